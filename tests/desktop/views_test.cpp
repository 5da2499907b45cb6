// Each kind of control on the screen: what it shows, and what a person's hands do to it.
#include "desktop/form_view.h"
#include "desktop/text.h"
#include "driven_program.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTabBar>
#include <QTextDocument>
#include <QToolButton>
#include <QWheelEvent>
#include <array>
#include <filesystem>

namespace tav {
namespace {

class Views : public DrivenProgram {
  protected:
    std::vector<std::string> MarkedIn(const std::string& list) const {
        std::vector<std::string> marked;
        for (const QListWidgetItem* const item : Widget<QListWidget>(list).selectedItems())
            marked.push_back(item->text().toStdString());
        return marked;
    }
};

TEST_F(Views, OptionsAndCheckBoxesFollowTheClicksAndTheProgram) {
    OpenCow("Inputs");
    auto& metric = Widget<QRadioButton>("frmInputs.optMetric");
    auto& english = Widget<QRadioButton>("frmInputs.optEnglish");
    EXPECT_TRUE(metric.isChecked());
    Click(english);
    EXPECT_FALSE(TheProgram().UseMetric);
    EXPECT_TRUE(english.isChecked());
    EXPECT_FALSE(metric.isChecked());
    Click(english);  // can't be switched off by itself
    EXPECT_TRUE(english.isChecked());
    Key(Qt::Key_Up);  // nor left by the arrow keys without the program knowing
    EXPECT_EQ(metric.isChecked(), Model<OptionButton>("frmInputs.optMetric").Value());
    EXPECT_EQ(TheProgram().UseMetric, metric.isChecked());

    auto& own = Widget<QCheckBox>("frmInputs.chkDefaultSumRes");
    EXPECT_TRUE(own.isChecked());
    Click(own);
    EXPECT_FALSE(own.isChecked());
    EXPECT_FALSE(Model<CheckBox>("frmInputs.chkDefaultSumRes").Value);
    own.setFocus(Qt::TabFocusReason);
    Key(Qt::Key_Space);
    EXPECT_TRUE(own.isChecked());
    EXPECT_TRUE(Model<CheckBox>("frmInputs.chkDefaultSumRes").Value);
}

TEST_F(Views, DropDownListsTakeTheirEntriesAndFreeText) {
    OpenCow("Inputs");
    Choose("frmInputs.cboDefaultZoom", "Whole Page");
    EXPECT_EQ(Model<ComboBox>("frmInputs.cboDefaultZoom").Text(), "Whole Page");

    // The wheel turns the page, not the value.
    auto& zoom = Widget<QComboBox>("frmInputs.cboDefaultZoom");
    QWheelEvent wheel(zoom.rect().center(), zoom.mapToGlobal(zoom.rect().center()), {}, {0, -120},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&zoom, &wheel);
    EXPECT_EQ(zoom.currentText().toStdString(), "Whole Page");

    // A text of one's own, letter by letter, with what would be signs elsewhere.
    auto& header = Widget<QComboBox>("frmInputs.cboLeftHeader");
    ASSERT_TRUE(header.isEditable());
    Click(header, QPoint(20, header.height() / 2));
    Key(Qt::Key_A, Qt::ControlModifier);
    Type("Herd <7> & Co");
    EXPECT_EQ(Model<ComboBox>("frmInputs.cboLeftHeader").Text(), "Herd <7> & Co");
    EXPECT_EQ(header.currentText().toStdString(), "Herd <7> & Co");

    // What is in no list is shown all the same.
    Model<ComboBox>("frmInputs.cboDefaultZoom").SetText("33%");
    TheDesktop().Refresh();
    EXPECT_EQ(zoom.currentIndex(), -1);
    const QImage shown = zoom.grab().toImage();
    Model<ComboBox>("frmInputs.cboDefaultZoom").SetText("");
    TheDesktop().Refresh();
    EXPECT_NE(shown, zoom.grab().toImage());
}

TEST_F(Views, AListWithOneChoiceFollowsMouseKeysAndProgram) {
    OpenCow("Feeds");
    auto& feeds = Widget<QListWidget>("frmFeeds.lstFeeds");
    auto& model = Model<ListBox>("frmFeeds.lstFeeds");
    ASSERT_EQ(feeds.count(), TheSimulation().NumFeeds);
    Mark("frmFeeds.lstFeeds", model.List(3));
    EXPECT_EQ(model.ListIndex(), 3);
    EXPECT_EQ(Model<Grid>("frmFeeds.grdFeedData").TextMatrix(0, 1), model.List(3));
    Key(Qt::Key_Down);
    EXPECT_EQ(model.ListIndex(), 4);
    Key(Qt::Key_End);
    EXPECT_EQ(model.ListIndex(), model.ListCount() - 1);

    // The program moves the choice along with the feed.
    const std::string last = model.Text();
    Click("frmFeeds.cmdMoveUp");
    EXPECT_EQ(model.Text(), last);
    EXPECT_EQ(MarkedIn("frmFeeds.lstFeeds"), std::vector<std::string>{last});
    EXPECT_EQ(feeds.currentRow(), model.ListIndex());
}

TEST_F(Views, AListWithSeveralMarksKeepsWhatTheProgramTakesBack) {
    OpenCow("Feeds");
    Click("frmFeeds.cmdAddFeed");
    Mark("frmAddFeed.lstCategory(0)", Model<ListBox>("frmAddFeed.lstCategory(0)").List(1));
    const auto all = [this] {
        int marks = 0;
        for (int i = 0; i < 9; ++i)
            marks += static_cast<int>(
                MarkedIn("frmAddFeed.lstCategory(" + std::to_string(i) + ")").size());
        return marks;
    };
    EXPECT_EQ(all(), 1);
    auto& list = Model<ListBox>("frmAddFeed.lstCategory(0)");
    Mark("frmAddFeed.lstCategory(0)", list.List(0));
    EXPECT_EQ(all(), 2);
    EXPECT_TRUE(list.Selected(0));
    Mark("frmAddFeed.lstCategory(0)", list.List(0));
    EXPECT_FALSE(list.Selected(0));

    // With the keys: the arrow moves, the space bar marks.
    Key(Qt::Key_Down);
    EXPECT_EQ(all(), 1);
    Key(Qt::Key_Space);
    EXPECT_FALSE(list.Selected(1));
    Key(Qt::Key_Down);
    Key(Qt::Key_Space);
    EXPECT_TRUE(list.Selected(2));
    EXPECT_EQ(all(), 1);
    // Letters lead to a line and mark nothing.
    Type(list.List(0).substr(0, 1));
    EXPECT_EQ(all(), 1);

    // A cow gets no calf feed: the mark is gone again when the message has been read.
    auto& calf = Model<ListBox>("frmAddFeed.lstCategory(8)");
    Mark("frmAddFeed.lstCategory(8)", calf.List(0));
    EXPECT_EQ(TheMessage().Title, "Cannot Select Calf Feeds");
    EXPECT_FALSE(calf.Selected(0));
    EXPECT_TRUE(MarkedIn("frmAddFeed.lstCategory(8)").empty());
    Click("frmAddFeed.cmdCancel");
}

TEST_F(Views, TextOfSeveralLinesReachesTheRecord) {
    OpenCow("Inputs");
    auto& comments = Widget<QPlainTextEdit>("frmInputs.txtComments");
    Click(*comments.viewport());
    Key(Qt::Key_A, Qt::ControlModifier);
    Type("Two <b>lines</b>");
    Key(Qt::Key_Return);
    Type("& no more");
    ClickToolbar("Ration");
    EXPECT_EQ(TheSimulation().Comments, "Two <b>lines</b>\r\n& no more");
    ClickToolbar("Inputs");
    EXPECT_EQ(Widget<QPlainTextEdit>("frmInputs.txtComments").toPlainText().toStdString(),
              "Two <b>lines</b>\n& no more");
    // The tab key leads on.
    Click(*Widget<QPlainTextEdit>("frmInputs.txtComments").viewport());
    Key(Qt::Key_Tab);
    EXPECT_NE(Keyboard(), "frmInputs.txtComments");
}

TEST_F(Views, TabsShowTheirPagesAndKeepACalfFromOthers) {
    OpenCow("Inputs");
    ClickTab("frmInputs.InputTabs", 1);
    EXPECT_TRUE(WidgetOf("frmInputs.cboAnimalType").isVisible());
    EXPECT_FALSE(WidgetOf("frmInputs.fraUnits").isVisible());
    Asked.Press(QMessageBox::Ok);
    Choose("frmInputs.cboAnimalType", "Young Calf");
    EXPECT_EQ(TheSimulation().AnimalType, "Young Calf");
    Messages();
    EXPECT_TRUE(WidgetOf("frmInputs.txtCalfBodyWeight").isEnabled());
    auto& bar = *WidgetOf("frmInputs.InputTabs").findChild<QTabBar*>();
    Click(bar, bar.tabRect(2).center());
    EXPECT_EQ(bar.currentIndex(), 1);
    EXPECT_TRUE(WidgetOf("frmInputs.cboAnimalType").isVisible());
}

TEST_F(Views, MenuAndToolbarShowMarksAndWhatCanBeChosen) {
    OpenCow("Ration");
    const auto pressed = [this](const char* caption) {
        for (const QToolButton* const button : MainWindow().findChildren<QToolButton*>()) {
            if (button->text() == QLatin1String(caption)) return button->isChecked();
        }
        return false;
    };
    EXPECT_TRUE(pressed("Ration"));
    ClickToolbar("Ration");  // a second press doesn't release it
    EXPECT_TRUE(pressed("Ration"));
    ClickToolbar("Reports");
    EXPECT_FALSE(pressed("Ration"));
    EXPECT_TRUE(pressed("Reports"));

    const std::string keep = "Auto-Save Default Data On Exit";
    EXPECT_TRUE(ActionOf("File", keep).isChecked());
    EXPECT_FALSE(ActionOf("File", "Save Current Simulation As Default").isEnabled());
    ClickMenu("File", keep);
    EXPECT_FALSE(ActionOf("File", keep).isChecked());
    EXPECT_TRUE(ActionOf("File", "Save Current Simulation As Default").isEnabled());
    // Only menus that can be opened from the bar stand in it.
    EXPECT_EQ(MainWindow().menuBar()->actions().size(), 3);
}

TEST_F(Views, FoldersAndFilesOfTheBatch) {
    std::filesystem::create_directory(InFolder("herd"));
    std::filesystem::copy_file(SamplePath("Dry Cow"), InFolder("herd/Dry & <b>Cow.tav"));
    OpenCow("Ration");
    ClickMenu("Go To...", "Batch File Utility");
    EXPECT_EQ(TheMessage().Title, "Welcome to the Batch File Utility!");
    auto& folders = Widget<QListWidget>("frmBatchOps.DirList");
    auto& files = Widget<QListWidget>("frmBatchOps.FileList");
    EXPECT_EQ(files.count(), 1);
    QListWidgetItem* const herd = folders.findItems("herd", Qt::MatchExactly).value(0);
    ASSERT_NE(herd, nullptr);
    Click(*folders.viewport(), folders.visualItemRect(herd).center());
    QTest::mouseDClick(folders.viewport(), Qt::LeftButton, {},
                       folders.visualItemRect(herd).center());
    Settle();
    ASSERT_EQ(files.count(), 1);
    EXPECT_EQ(files.item(0)->text().toStdString(), "Dry & <b>Cow.tav");
    Mark("frmBatchOps.FileList", "Dry & <b>Cow.tav");
    Click("frmBatchOps.cmdAdd");
    EXPECT_EQ(Model<ListBox>("frmBatchOps.lstSelectedFiles").ListCount(), 1);
    // Back up with the keys.
    folders.setFocus(Qt::TabFocusReason);
    folders.setCurrentRow(1);
    EXPECT_EQ(folders.currentItem()->text().toStdString(), "..");
    Key(Qt::Key_Return);
    EXPECT_EQ(files.count(), 1);
    EXPECT_NE(files.item(0)->text().toStdString(), "Dry & <b>Cow.tav");
    Key(Qt::Key_Escape);
    EXPECT_EQ(TheForms().Find("frmBatchOps"), nullptr);
}

TEST_F(Views, PicturesAreDrawn) {
    Begin();
    EXPECT_FALSE(Widget<QLabel>("frmSplash.imgLogo").pixmap().isNull());
    EXPECT_FALSE(QApplication::windowIcon().isNull());
    AcceptTerms();
    Messages();
    ClickMenu("Help", "About the TAV Dairy Cattle Program");
    EXPECT_FALSE(Widget<QLabel>("frmAbout.picIcon").pixmap().isNull());
    Key(Qt::Key_Escape);
    EXPECT_EQ(TheForms().Find("frmAbout"), nullptr);
}

// A feed's name is data: it stands on the screen letter by letter, wherever it stands.
TEST_F(Views, NamesAreShownAsTheyStand) {
    const std::array<std::string, 4> names = {"<b>Hay</b> & \"straw\"", "Hay & straw", "&lt;Hay",
                                              "<img src=x>"};
    OpenCow("Feeds");
    for (const std::string& name : names) {
        auto& grid = Model<Grid>("frmFeeds.grdFeedData");
        TheDesktop().Perform([&] { grid.UserEdit(0, 1, name); });
        const QString shown = QString::fromStdString(name);
        auto& feeds = Widget<QListWidget>("frmFeeds.lstFeeds");
        const QList<QListWidgetItem*> found = feeds.findItems(shown, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1) << name;
        // The tip is read as rich text exactly where it has been written as such.
        QTextDocument tip;
        if (Qt::mightBeRichText(found.front()->toolTip())) {
            tip.setHtml(found.front()->toolTip());
        } else {
            tip.setPlainText(found.front()->toolTip());
        }
        EXPECT_EQ(tip.toPlainText().toStdString(), name);

        ClickToolbar("Ration");
        const auto& cells =
            *dynamic_cast<QAbstractItemView&>(WidgetOf("frmRation.grdRation")).model();
        EXPECT_EQ(cells.headerData(1, Qt::Vertical).toString().trimmed().toStdString(),
                  "1.  " + name);
        ClickToolbar("Feeds");

        // In a message, whose text is not a program's either.
        Asked.Press(QMessageBox::Ok);
        TheDesktop().Perform([&] { ThePlatform().ShowMessage({"'" + name + "' is in it", name}); });
        const Said said = TheMessage();
        EXPECT_EQ(said.Format, Qt::PlainText);
        EXPECT_EQ(said.Text, "'" + name + "' is in it");
        EXPECT_EQ(said.Title, name);
    }
    for (const QLabel* const label : MainWindow().findChildren<QLabel*>())
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->objectName().toStdString();
}

TEST_F(Views, TheTitleShowsAnyFileName) {
    OpenCow("Ration");
    ViewOf("frmParent").TheForm().Caption = "Cow [*] & <b>";
    TheDesktop().Refresh();
    EXPECT_EQ(MainWindow().windowTitle().toStdString(), "Cow [*][*] & <b>");
    EXPECT_FALSE(MainWindow().isWindowModified());
}

}  // namespace
}  // namespace tav
