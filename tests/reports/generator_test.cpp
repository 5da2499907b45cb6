#include "core/number_text.h"
#include "reports/date_text.h"
#include "reports/header_footer.h"
#include "support/report_fixture.h"

namespace tav {
namespace {

using GeneratorTest = ReportTest;

std::vector<int> Marked(const std::vector<bool>& marks) {
    std::vector<int> marked;
    for (std::size_t i = 0; i < marks.size(); ++i) {
        if (marks[i]) marked.push_back(static_cast<int>(i));
    }
    return marked;
}

TEST_F(GeneratorTest, EachAnimalHasItsReports) {
    EXPECT_EQ(ReportComponentNames(kDryCow),
              (std::vector<std::string>{
                  "Summary Report", "Energy and Protein Supply", "Duodenal Amino Acid Supply",
                  "Dry Matter Intake", "Maintenance Requirements", "Growth Requirements",
                  "Target Weights and ADG", "Pregnancy Requirements", "Lactation Requirements",
                  "Reserves Requirements", "Mineral Requirements"}));
    EXPECT_EQ(ReportComponentNames(kLactatingCow), ReportComponentNames(kDryCow));
    const auto heifer = ReportComponentNames(kReplacementHeifer);
    EXPECT_EQ(heifer.size(), 10u);
    EXPECT_EQ(heifer[9], "Mineral Requirements");
    EXPECT_EQ(ReportComponentNames(kYoungCalf),
              (std::vector<std::string>{"Calf Requirements", "Mineral Requirements"}));
}

TEST_F(GeneratorTest, TheSelectionIsKeptByPosition) {
    Load("Dry Cow");
    Make({"Summary Report", "Reserves Requirements"});
    EXPECT_EQ(TheProgram().ReportSelectionMask, 1 + 512);
    EXPECT_EQ(Marked(KeptSelection(11)), (std::vector<int>{0, 9}));
    // A heifer has no reserves: her minerals stand in their place.
    TheSimulation().AnimalType = kReplacementHeifer;
    EXPECT_EQ(Marked(KeptSelection(10)), (std::vector<int>{0, 9}));
    TheSimulation().AnimalType = kYoungCalf;
    EXPECT_TRUE(Marked(KeptSelection(2)).empty());
    EXPECT_EQ(TheProgram().ReportSelectionMask, 0);
}

// The eleventh bit has no entry in a list of ten: what remains of it marks them all.
TEST_F(GeneratorTest, ABitBeyondTheListMarksAllOfIt) {
    TheSimulation().AnimalType = kReplacementHeifer;
    TheProgram().ReportSelectionMask = 1024;
    EXPECT_EQ(Marked(KeptSelection(10)).size(), 10u);
}

TEST_F(GeneratorTest, ZoomIsAWordOrAPercentage) {
    const auto zoomOf = [](std::string_view text) {
        PageLayout layout;
        SetZoom(layout, text);
        return layout.ZoomMode == ZoomMode::Percentage ? layout.Zoom
                                                       : -static_cast<int>(layout.ZoomMode);
    };
    EXPECT_EQ(zoomOf("Thumbnail"), -1);
    EXPECT_EQ(zoomOf("Two Pages"), -2);
    EXPECT_EQ(zoomOf("Whole Page"), -3);
    EXPECT_EQ(zoomOf("Page Width"), -4);
    EXPECT_EQ(zoomOf("75%"), 75);
    EXPECT_EQ(zoomOf("1%"), 1);
    for (const char* const bad : {"", "%", "xyz", "0%", "-50%", "40000%", "page width"})
        EXPECT_EQ(zoomOf(bad), 100) << bad;
}

TEST_F(GeneratorTest, FieldsStandForDatesAndNames) {
    TheProgram().SimulationFileName = "Herd 7.TAV";
    const DateTime now = platform.Now();
    const std::vector<std::pair<const char*, const char*>> cases = {
        {"Page Number", "Page %d"},
        {"Simulation File Name", "Herd 7"},
        {"General Date", "11/22/2026 3:27:05 PM"},
        {"Long Date", "Sunday, November 22, 2026"},
        {"Medium Date", "22-Nov-26"},
        {"Short Date", "22-Nov-26"},  // a step longer than its name
        {"Long Time", "3:27:05 PM"},
        {"Short Time", "03:27 PM"},
        {"24 Hr Time", "15:27"},
        {"24 Hr Time (15:27)", "24 Hr Time (15:27)"},
        {"My farm", "My farm"},
        {"", ""},
    };
    for (const auto& [field, text] : cases)
        EXPECT_EQ(FieldText(field, now), text) << field;
    EXPECT_EQ(JoinedFields({"a", "", "Page Number"}, now), "a||Page %d");
}

TEST_F(GeneratorTest, MidnightAndNoonAreTwelve) {
    using namespace std::chrono;
    const local_days day(2026y / January / 5);
    EXPECT_EQ(DateText(day, DateForm::LongTime), "12:00:00 AM");
    EXPECT_EQ(DateText(day + 12h, DateForm::MediumTime), "12:00 PM");
    EXPECT_EQ(DateText(day, DateForm::MediumDate), "05-Jan-26");
    EXPECT_EQ(DateText(day, DateForm::LongDate), "Monday, January 5, 2026");
}

TEST_F(GeneratorTest, DatesAreThoseOfTheUsersLocaleWhereItIsKnown) {
    SetDateWriter([](DateTime, DateForm form) {
        return std::string(form == DateForm::MediumDate ? "22 nov. 2026" : "15.27");
    });
    EXPECT_EQ(FieldText("Short Date", platform.Now()), "22 nov. 2026");
    EXPECT_EQ(FieldText("24 Hr Time", platform.Now()), "15.27");
    SetDateWriter({});
    EXPECT_EQ(FieldText("24 Hr Time", platform.Now()), "15:27");
}

TEST_F(GeneratorTest, AFileNameLosesItsLastFourCharactersForAnExtensionAnywhere) {
    EXPECT_EQ(FileStem("Cow.tav"), "Cow");
    EXPECT_EQ(FileStem("Cow.tav.bak"), "Cow.tav");
    EXPECT_EQ(FileStem("old.Tavern"), "old.Ta");
    EXPECT_EQ(FileStem("Cow"), "Cow");
}

TEST_F(GeneratorTest, AReportChangesNothingOfTheRecord) {
    Load("Lactating Cow");
    const auto print = [](const SimulationRecord& r) {
        return NumberText(r.TotalDMI) + r.DaysToChangeCSText + NumberText(r.Feeds[3].Qty) +
               NumberText(r.MineralRows[7].TAS);
    };
    const std::string before = print(TheSimulation());
    TheProgram().UseMetric = false;
    Make();
    EXPECT_EQ(print(TheSimulation()), before);
    EXPECT_EQ(TheProgram().WeightUnitLabel, "lbs");
    EXPECT_NEAR(Number(TheProgram().WeightUnitFactor).Value(), 2.20462, 1e-6);
}

std::vector<int> Orientations(const ReportDocument& document) {
    std::vector<int> orientations;
    for (const ReportPage& page : document.Pages)
        orientations.push_back(page.Orientation);
    return orientations;
}

TEST_F(GeneratorTest, EnergySupplyLiesOnItsSideFromTheFirstPage) {
    Load("Replacement Heifer");
    const auto document = Make({"Energy and Protein Supply"});
    EXPECT_EQ(Orientations(*document), (std::vector<int>{1}));
    EXPECT_TRUE(state.OrientationRestorePending);
    EXPECT_EQ(state.SavedOrientation, kPortrait);
}

TEST_F(GeneratorTest, WhatFollowsEnergySupplyIsUprightOnANewPage) {
    Load("Replacement Heifer");
    const auto document = Make({"Energy and Protein Supply", "Dry Matter Intake"});
    EXPECT_EQ(Orientations(*document), (std::vector<int>{1, 0}));
    EXPECT_NE(document->Pages[1].Text.find("Dry Matter Intake"), std::string::npos);
    EXPECT_FALSE(state.OrientationRestorePending);
}

TEST_F(GeneratorTest, MineralsAfterEnergySupplyLeaveNoEmptyPage) {
    Load("Replacement Heifer");
    EXPECT_EQ(Orientations(*Make({"Energy and Protein Supply", "Mineral Requirements"})),
              (std::vector<int>{1, 0}));
    EXPECT_EQ(Orientations(*Make({"Dry Matter Intake", "Mineral Requirements"})),
              (std::vector<int>{0, 0}));
    EXPECT_EQ(Orientations(*Make({"Mineral Requirements"})), (std::vector<int>{0}));
}

TEST_F(GeneratorTest, InALandscapeDocumentOnlyMineralsGoUpright) {
    Load("Replacement Heifer");
    const auto document = Make(
        {"Energy and Protein Supply", "Dry Matter Intake", "Mineral Requirements"}, kLandscape);
    EXPECT_EQ(state.SavedOrientation, kLandscape);
    const std::vector<int> orientations = Orientations(*document);
    EXPECT_EQ(orientations.front(), kLandscape);
    EXPECT_EQ(orientations.back(), kPortrait);
    EXPECT_EQ(std::count(orientations.begin(), orientations.end(), 0), 1);
}

TEST_F(GeneratorTest, ShortReportsShareAPageAndNoPageIsEmpty) {
    Load("Dry Cow");
    EXPECT_EQ(Make({"Pregnancy Requirements", "Dry Matter Intake"})->PageCount(), 1);
    for (const int orientation : {kPortrait, kLandscape}) {
        for (const std::string& name : ReportComponentNames(kDryCow)) {
            const auto document = Make({name}, orientation);
            for (const ReportPage& page : document->Pages)
                EXPECT_GT(page.Runs.size(), 4u) << name;
        }
    }
}

// The lowest text of a page above its footer.
const TextRun& LastRun(const ReportPage& page) {
    const auto last = std::max_element(page.Runs.begin(), page.Runs.end(),
                                       [](const TextRun& a, const TextRun& b) {
                                           const auto place = [](const TextRun& run) {
                                               return run.Style.Size == 8 ? 0 : run.Baseline;
                                           };
                                           return place(a) < place(b);
                                       });
    return *last;
}

TEST_F(GeneratorTest, NoHeadingStandsAloneAtTheFoot) {
    for (const char* const simulation : {"Heifer in Winter", "Dry Cow", "Young Calf"}) {
        Load(simulation);
        for (const int orientation : {kPortrait, kLandscape}) {
            std::vector<std::string> wanted = ReportComponentNames(TheSimulation().AnimalType);
            for (; !wanted.empty(); wanted.erase(wanted.begin())) {
                const auto document = Make(wanted, orientation);
                for (const ReportPage& page : document->Pages)
                    EXPECT_FALSE(LastRun(page).Style.Bold) << simulation << LastRun(page).Text;
            }
        }
    }
}

TEST_F(GeneratorTest, TheThreeMineralTablesAreAlikeAndOnOnePage) {
    for (const char* const simulation : {"Lactating Cow", "Dry Cow", "Young Calf"}) {
        Load(simulation);
        const auto document = Make({"Mineral Requirements"});
        ASSERT_EQ(document->PageCount(), 1);
        std::vector<Twips> rightEdges;
        for (const Rule& rule : document->Pages[0].Rules) {
            if (rule.Y1 == rule.Y2 && rule.Thickness == 8) rightEdges.push_back(rule.X2);
        }
        EXPECT_NEAR(*std::min_element(rightEdges.begin(), rightEdges.end()),
                    *std::max_element(rightEdges.begin(), rightEdges.end()), 0.01);
    }
}

TEST_F(GeneratorTest, KeepTogetherBreaksThePageOrLeavesRoom) {
    PageLayout layout;
    SetUpDocument(layout, state);
    ReportWriter writer(layout, TheSimulation(), state, true);
    const Twips line = layout.TextHeight("A");
    writer.KeepTogether(10, {}, true);  // at the top: no gap
    EXPECT_EQ(layout.CurrentY(), layout.MarginTop);
    writer.LineEnds(10);
    writer.KeepTogether(10, {}, true);
    EXPECT_NEAR(layout.CurrentY(), layout.MarginTop + 13 * line, 0.01);
    writer.KeepTogether(10);
    EXPECT_NEAR(layout.CurrentY(), layout.MarginTop + 13 * line, 0.01);
    // As many lines as still fit, five spare ones counted in; one more goes to the next page.
    const int fitting = static_cast<int>((layout.PageHeight() - layout.CurrentY()) / line) - 5;
    writer.KeepTogether(fitting);
    EXPECT_EQ(layout.CurrentPage(), 1);
    writer.KeepTogether(fitting + 1, {}, true);
    EXPECT_EQ(layout.CurrentPage(), 2);
    EXPECT_EQ(layout.CurrentY(), layout.MarginTop);
}

TEST_F(GeneratorTest, KeepTogetherFitsTheFontToTheWidestLine) {
    PageLayout layout;
    SetUpDocument(layout, state);
    ReportWriter writer(layout, TheSimulation(), state, true);
    const std::string cell(20, '8');
    writer.KeepTogether(1, {cell, cell, cell});  // 60 digits, 120 twips each, fit
    EXPECT_EQ(layout.FontSize(), 12);
    writer.KeepTogether(1, {cell, cell, cell, cell, cell});  // 100 digits fit at 10 points
    EXPECT_EQ(layout.FontSize(), 10);
    writer.KeepTogether(1, {std::string(5000, '8')});
    EXPECT_EQ(layout.FontSize(), 1);
}

}  // namespace
}  // namespace tav
