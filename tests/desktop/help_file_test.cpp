// The help as it is delivered: nothing in it leads nowhere, and no control is left without a text.
#include "desktop/help_file.h"

#include "desktop/help_search.h"
#include "feeds/add_feed_form.h"
#include "feeds/feeds_form.h"
#include "reports/reports_form.h"
#include "screens/inputs_form.h"
#include "screens/ration_form.h"
#include "shell/about_form.h"
#include "shell/batch_form.h"
#include "shell/parent_form.h"
#include "shell/splash_form.h"
#include "support/temporary_folder.h"

#include <QCryptographicHash>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <stdexcept>

#include <gtest/gtest.h>

namespace tav {
namespace {

const HelpFile& Delivered() {
    static const HelpFile file = HelpFile::Read(HELP_FILE);
    return file;
}

bool Exists(const HelpTarget& target) {
    const HelpPage* const page = Delivered().Page(target.Page);
    if (page == nullptr) return false;
    if (target.Section.isEmpty()) return true;
    for (const HelpSection& section : SectionsOf(*page)) {
        if (section.Name == target.Section) return true;
    }
    return false;
}

std::string NameOf(const HelpTarget& target) {
    return (target.Page + "#" + target.Section).toStdString();
}

TEST(Help, LinksLeadSomewhere) {
    static const QRegularExpression kLink("\\]\\(([^)]*)\\)");
    for (const HelpPage* const page : Delivered().Pages()) {
        auto links = kLink.globalMatch(page->Markdown);
        while (links.hasNext()) {
            HelpTarget target = TargetOfLink(links.next().captured(1));
            if (target.Page.isEmpty()) target.Page = page->Name;
            EXPECT_TRUE(Exists(target)) << page->Name.toStdString() << ": " << NameOf(target);
        }
    }
}

TEST(Help, IndexLeadsSomewhereAndNamesEveryPage) {
    QSet<QString> pages;
    for (const HelpKeyword& keyword : Delivered().Index()) {
        EXPECT_FALSE(keyword.Text.isEmpty()) << NameOf(keyword.Target);
        EXPECT_TRUE(Exists(keyword.Target))
            << keyword.Text.toStdString() << ": " << NameOf(keyword.Target);
        pages.insert(keyword.Target.Page);
    }
    EXPECT_EQ(pages.size(), Delivered().Pages().size());
}

TEST(Help, EveryPageStandsOnceInTheContents) {
    QFile file(HELP_FILE);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QSet<QString> listed;
    for (const HelpPage* const page : Delivered().Pages()) {
        EXPECT_FALSE(listed.contains(page->Name)) << page->Name.toStdString();
        EXPECT_FALSE(page->Title.isEmpty());
        listed.insert(page->Name);
    }
    EXPECT_EQ(listed.size(), file.readAll().count("\n@@ page "));
}

TEST(Help, SectionsOfAPageHaveNamesOfTheirOwn) {
    for (const HelpPage* const page : Delivered().Pages()) {
        QSet<QString> names;
        for (const HelpSection& section : SectionsOf(*page)) {
            EXPECT_FALSE(names.contains(section.Name))
                << page->Name.toStdString() << ": " << section.Name.toStdString();
            names.insert(section.Name);
        }
    }
}

TEST(Help, TextsOnControlsLeadToPages) {
    ASSERT_FALSE(Delivered().Notes().isEmpty());
    for (auto note = Delivered().Notes().begin(); note != Delivered().Notes().end(); ++note) {
        EXPECT_TRUE(Exists(note->Target)) << note.key().toStdString();
        EXPECT_GT(note->Text.size(), 10) << note.key().toStdString();
    }
}

TEST(Help, EveryInputHasAText) {
    for (const char* const name : {"chkCBWFromMW",
                                   "chkDefaultSumRes",
                                   "chkMWFromBreed",
                                   "chkUseTargetADG",
                                   "fraBasis",
                                   "fraCalfVariables",
                                   "fraCoatCondition",
                                   "fraGrazing",
                                   "fraHeadersAndFooters",
                                   "fraHeatStress",
                                   "fraMilkProtein",
                                   "fraSummaryResults",
                                   "fraUnits",
                                   "lblAge",
                                   "lblAgeAtFirstCalving",
                                   "lblAnimalType",
                                   "lblBodyWeight",
                                   "lblBreed",
                                   "lblCalfBirthWeight",
                                   "lblCalfBodyWeight",
                                   "lblCalfTemperature",
                                   "lblCalvingInterval",
                                   "lblComments",
                                   "lblConditionScore",
                                   "lblDaysInMilk",
                                   "lblDaysPregnant",
                                   "lblDefaultZoom",
                                   "lblDesiredADG",
                                   "lblDistance",
                                   "lblHairDepth",
                                   "lblLactationNumber",
                                   "lblLactose",
                                   "lblMatureWeight",
                                   "lblMilkFat",
                                   "lblMilkProduction",
                                   "lblNightCooling",
                                   "lblPreviousTemperature",
                                   "lblTemperature",
                                   "lblTopography",
                                   "lblTrips",
                                   "lblWindSpeed"}) {
        EXPECT_NE(Delivered().Note(name), nullptr) << name;
    }
}

// Those that the keyboard reaches, and those with a right click of their own.
template <class F>
void ExpectTextsOn() {
    const F form;
    for (const Control* const control : form.Controls()) {
        if (!control->HasPlace()) continue;
        if (!control->TakesFocus() && !control->MouseUp && !control->MouseDown) continue;
        EXPECT_NE(Delivered().Note(QString::fromStdString(control->FullName())), nullptr)
            << control->FullName();
        EXPECT_NE(Delivered().Note(QString::fromStdString(control->Name())), nullptr)
            << control->Name();
    }
}

TEST(Help, EveryControlThatAPersonReachesHasAText) {
    ExpectTextsOn<InputsForm>();
    ExpectTextsOn<FeedsForm>();
    ExpectTextsOn<AddFeedForm>();
    ExpectTextsOn<RationForm>();
    ExpectTextsOn<ReportsForm>();
    ExpectTextsOn<BatchForm>();
    ExpectTextsOn<ParentForm>();
    ExpectTextsOn<SplashForm>();
    ExpectTextsOn<AboutForm>();
}

TEST(Help, AControlIsKnownByItsFormAndWithoutItsPlaceInAnArray) {
    const HelpFile& help = Delivered();
    ASSERT_NE(help.Note("frmInputs.cboSumRes(3)"), nullptr);
    EXPECT_EQ(help.Note("frmInputs.cboSumRes(3)"), help.Note("cboSumRes"));
    EXPECT_NE(help.Note("frmFeeds.cmdAddFeed"), help.Note("frmAddFeed.cmdAddFeed"));
    EXPECT_EQ(help.Note("lblNowhere"), nullptr);
}

TEST(Help, SearchFindsTheSection) {
    const HelpSearch search(Delivered());
    const auto first = [&search](const char* query) {
        const QList<HelpHit> hits = search.Find(query);
        return hits.isEmpty() ? std::string("nothing") : NameOf(hits.front().Target);
    };
    EXPECT_EQ(first("estimate intake"), "ration#estimate-intake");
    EXPECT_EQ(first("HAIR depth"), "management#hair-depth");
    EXPECT_EQ(first("tav batch"), "tav#tav-batch");
    EXPECT_EQ(first("xylophone"), "nothing");
    EXPECT_EQ(first("  "), "nothing");
    EXPECT_GT(search.Find("lysin").size(), 1);  // the beginning of a word will do
    EXPECT_EQ(first("ysine"), "nothing");       // its end won't
}

class HelpFileOnDisk : public testing::Test {
  protected:
    QByteArray Sound() const {
        QFile file(HELP_FILE);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    QString Path(const char* name) { return QString::fromStdString(folder_.Path(name)); }

    void Write(const QByteArray& bytes) {
        QFile file(Path("help.HLP"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    // Writes a content with the right sum behind it.
    void WriteSummed(const QByteArray& content) {
        const QByteArray sum =
            QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex();
        Write(content + "@@ end " + sum + "\n");
    }

    std::string Refusal(const char* name = "help.HLP") {
        try {
            HelpFile::Read(Path(name));
        } catch (const std::runtime_error& error) {
            return error.what();
        }
        return "none";
    }

  private:
    TemporaryFolder folder_;
};

TEST_F(HelpFileOnDisk, IsFoundWhateverTheCaseOfItsName) {
    Write(Sound());
    EXPECT_EQ(HelpFile::Read(Path("HELP.hlp")).Pages().size(), Delivered().Pages().size());
}

TEST_F(HelpFileOnDisk, ThatIsMissingIsToldWithItsPlace) {
    const std::string refusal = Refusal("nothing.HLP");
    EXPECT_NE(refusal.find("is not there"), std::string::npos) << refusal;
    EXPECT_NE(refusal.find("nothing.HLP"), std::string::npos) << refusal;
}

TEST_F(HelpFileOnDisk, ThatIsDamagedIsRefused) {
    const QByteArray sound = Sound();
    QByteArray altered = sound;
    altered[altered.size() / 2] = altered[altered.size() / 2] == 'x' ? 'y' : 'x';
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("MZ something else"), sound.left(sound.size() / 2),
          sound.chopped(10), altered, QByteArray(sound).replace("\n", "\r\n")}) {
        Write(bytes);
        EXPECT_NE(Refusal().find("The help file is damaged"), std::string::npos) << bytes.size();
    }
}

TEST_F(HelpFileOnDisk, WithPartsThatDoNotFitIsRefused) {
    const QByteArray head = "TAV Dairy Cattle Program Help 1\n";
    for (const char* const parts :
         {"", "@@ contents\n", "@@ contents\nChapter\n", "@@ contents\nChapter\n    nowhere\n",
          "@@ contents\nChapter\n    a\n@@ page a\n", "@@ pictures\n"}) {
        WriteSummed(head + parts);
        EXPECT_NE(Refusal().find("The help file is damaged"), std::string::npos) << parts;
    }
    WriteSummed(head + "@@ contents\nChapter\n    a\n@@ page a\n# A\nkeywords: x\n\nText\n");
    EXPECT_EQ(HelpFile::Read(Path("help.HLP")).FirstPage(), "a");
}

}  // namespace
}  // namespace tav
