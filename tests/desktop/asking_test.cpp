// Asking the program: What's This, F1, the right mouse button.
#include "desktop/form_view.h"
#include "desktop/help_viewer.h"
#include "desktop/whats_this_pop_up.h"
#include "driven_program.h"
#include "forms/context_help.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QLabel>
#include <QTableView>
#include <QTextBlock>
#include <QTextBrowser>
#include <filesystem>

namespace tav {
namespace {

class Asking : public DrivenProgram {
  protected:
    ~Asking() override {
        if (WhatsThisPopUp* const window = PopUp()) window->close();
        if (HelpViewer* const window = Viewer()) window->close();
    }

    template <class T>
    static T* Shown() {
        for (QWidget* const widget : QApplication::topLevelWidgets()) {
            auto* const found = dynamic_cast<T*>(widget);
            if (found != nullptr && found->isVisible()) return found;
        }
        return nullptr;
    }
    static WhatsThisPopUp* PopUp() { return Shown<WhatsThisPopUp>(); }
    static HelpViewer* Viewer() { return Shown<HelpViewer>(); }
    static std::string Page() {
        HelpViewer* const viewer = Viewer();
        if (viewer == nullptr) return {};
        return viewer->findChild<QTextBrowser*>()->document()->firstBlock().text().toStdString();
    }
    static std::vector<std::string> TextsOf(const QWidget& window) {
        std::vector<std::string> texts;
        for (const QLabel* const label : window.findChildren<QLabel*>())
            texts.push_back(label->text().toStdString());
        return texts;
    }
    void OpenDescription() {
        OpenCow("Inputs");
        ClickTab("frmInputs.InputTabs", 1);
    }
    static bool PointerAsks() {
        const QCursor* const pointer = QApplication::overrideCursor();
        return pointer != nullptr && pointer->shape() == Qt::WhatsThisCursor;
    }
};

TEST_F(Asking, F1OpensThePageOnTheFieldWithTheKeyboard) {
    OpenDescription();
    Click("frmInputs.txtBodyWeight");
    Key(Qt::Key_F1);
    ASSERT_NE(Viewer(), nullptr);
    EXPECT_EQ(Page(), "Animal description");
    Viewer()->close();
    Settle();
    EXPECT_EQ(Keyboard(), "frmInputs.txtBodyWeight");
    ClickToolbar("Ration");
    ClickToolbar("Help");
    ASSERT_NE(Viewer(), nullptr);
    EXPECT_EQ(TheProgram().CurrentScreen, "Ration");
}

TEST_F(Asking, AClickInWhatsThisModeAsksAndDoesNothingElse) {
    OpenCow("Ration");
    const Single before = TheSimulation().TotalDMI;
    ClickMenu("Help", "What's This?");
    EXPECT_TRUE(PointerAsks());
    Click("frmRation.cmdEstimateIntake");
    ASSERT_NE(PopUp(), nullptr);
    EXPECT_FALSE(PointerAsks());
    EXPECT_EQ(TheSimulation().TotalDMI.Value(), before.Value());
    const std::vector<std::string> texts = TextsOf(*PopUp());
    EXPECT_EQ(texts.at(0), "Estimate Intake");
    EXPECT_GT(texts.at(1).size(), 20U);
    // The next click is an ordinary one again.
    QTest::keyClick(PopUp(), Qt::Key_Escape);
    Settle();
    EXPECT_EQ(PopUp(), nullptr);
    Click("frmRation.cmdEstimateIntake");
    EXPECT_NE(TheSimulation().TotalDMI.Value(), before.Value());

    // By the keyboard, and called off.
    Key(Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_TRUE(PointerAsks());
    Key(Qt::Key_Escape);
    EXPECT_FALSE(PointerAsks());
    EXPECT_EQ(PopUp(), nullptr);
}

TEST_F(Asking, EveryKindOfControlCanBeAskedAbout) {
    OpenDescription();
    for (const char* const name :
         {"frmInputs.cboAnimalType", "frmInputs.txtAge", "frmInputs.lblAge",
          "frmInputs.fraCalfVariables", "frmInputs.InputTabs"}) {
        ClickMenu("Help", "What's This?");
        const std::string type = TheSimulation().AnimalType;
        Click(WidgetOf(name), QPoint(20, 8));
        EXPECT_FALSE(PointerAsks()) << name;
        ASSERT_NE(PopUp(), nullptr) << name;
        PopUp()->close();
        Settle();
    }
    ClickToolbar("Feeds");
    ClickMenu("Help", "What's This?");
    Click(*Widget<QTableView>("frmFeeds.grdFeedData").viewport(), QPoint(200, 40));
    ASSERT_NE(PopUp(), nullptr);
    EXPECT_FALSE(Model<Grid>("frmFeeds.grdFeedData").IsEditing());
    PopUp()->close();
    Settle();
    // Where there is nothing to be asked about, the mode ends all the same.
    ClickMenu("Help", "What's This?");
    Click(MainWindow(), QPoint(MainWindow().width() - 3, 40));
    EXPECT_FALSE(PointerAsks());
    EXPECT_EQ(PopUp(), nullptr);
}

TEST_F(Asking, TheRightButtonOffersHelpAndTheHelpItsPage) {
    OpenDescription();
    Asked.ChooseEntry("What's This?");
    RightClick("frmInputs.lblBodyWeight");
    ASSERT_NE(PopUp(), nullptr);
    EXPECT_EQ(TextsOf(*PopUp()).at(0), "Body Weight");

    // Over the help itself stands the other menu.
    Asked.ChooseEntry("Jump To Help Topic");
    QContextMenuEvent again(QContextMenuEvent::Mouse, QPoint(9, 9),
                            PopUp()->mapToGlobal(QPoint(9, 9)));
    QApplication::sendEvent(PopUp(), &again);
    Settle();
    EXPECT_EQ(PopUp(), nullptr);
    ASSERT_NE(Viewer(), nullptr);
    EXPECT_EQ(Page(), "Animal description");
}

TEST_F(Asking, TheMenuOfAGridHoldsItsOwnCommandsToo) {
    OpenCow("Feeds");
    std::vector<std::string> entries;
    Asked.DoInMenu([&entries](QWidget& menu) {
        for (const QAction* const action : menu.actions())
            entries.push_back(action->isSeparator() ? "-" : action->text().toStdString());
        QTest::keyClick(&menu, Qt::Key_Escape);
    });
    auto& table = Widget<QTableView>("frmFeeds.grdFeedData");
    Click(*table.viewport(), table.visualRect(table.model()->index(2, 1)).center(),
          Qt::RightButton);
    EXPECT_EQ(entries, (std::vector<std::string>{"&What's This?", "-", "Copy", "Copy with Headers",
                                                 "Paste"}));
    EXPECT_EQ(ContextControl(), nullptr);
}

// The mouse is somewhere else then: the menu opens where the keyboard is.
TEST_F(Asking, TheMenuKeyOpensTheSameMenuBesideTheControl) {
    OpenCow("Ration");
    auto& button = WidgetOf("frmRation.cmdResetIntake");
    QCursor::setPos(MainWindow().mapToGlobal(QPoint(3, 3)));
    QPoint at;
    Asked.DoInMenu([&at](QWidget& menu) {
        at = menu.pos();
        QTest::keyClick(&menu, Qt::Key_Escape);
    });
    button.setFocus(Qt::TabFocusReason);
    Settle();
    QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(5, 5),
                          button.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&button, &key);
    Settle();
    EXPECT_TRUE(button.rect().adjusted(0, 0, 0, 9).contains(button.mapFromGlobal(at)));
}

TEST_F(Asking, TheHelpOnAControlLeadsToItsPageByKey) {
    OpenDescription();
    ClickMenu("Help", "What's This?");
    Click("frmInputs.lblBodyWeight");
    ASSERT_NE(PopUp(), nullptr);
    QTest::keyClick(PopUp(), Qt::Key_F1);
    Settle();
    EXPECT_EQ(PopUp(), nullptr);
    EXPECT_EQ(Page(), "Animal description");
}

TEST_F(Asking, AMissingHelpFileIsTold) {
    std::filesystem::remove(InFolder("TAV Dairy Cattle Program Help.HLP"));
    OpenCow("Ration");
    ClickToolbar("Help");
    const std::vector<Said> said = Messages();
    if (Viewer() == nullptr) {
        ASSERT_EQ(said.size(), 1U);
        EXPECT_EQ(said[0].Title, "Help");
        EXPECT_EQ(said[0].Format, Qt::PlainText);
    }
}

}  // namespace
}  // namespace tav
