// The program by the keyboard alone, and what is told to those who can't see it.
#include "desktop/form_view.h"
#include "driven_program.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QTableView>
#include <algorithm>
#include <set>

namespace tav {
namespace {

class Keyboarding : public DrivenProgram {
  protected:
    // The controls of a form that take the keyboard now. Of a group of options it is the one that
    // is on, from which the arrow keys lead to the others.
    static std::set<std::string> Expected(const std::string& form) {
        std::set<std::string> names;
        for (const Control* const control : TheForms().Find(form)->Controls()) {
            const auto* const option = dynamic_cast<const OptionButton*>(control);
            const bool off = option != nullptr && !option->Value();
            if (control->TakesFocus() && control->HasPlace() && control->IsUsable() && !off)
                names.insert(control->FullName());
        }
        return names;
    }

    // Where the tab key leads until it comes back to where it began.
    std::set<std::string> Reached() {
        std::set<std::string> names;
        for (int i = 0; i < 200; ++i) {
            const std::string at = Keyboard();
            if (!at.empty()) names.insert(at);
            // A grid is gone through cell by cell: this is its last one.
            if (qobject_cast<QTableView*>(QApplication::focusWidget()) != nullptr)
                Key(Qt::Key_End, Qt::ControlModifier);
            Key(Qt::Key_Tab);
        }
        return names;
    }

    void ExpectAllReached(const std::string& form) {
        const std::set<std::string> expected = Expected(form);
        const std::set<std::string> reached = Reached();
        for (const std::string& name : expected)
            EXPECT_TRUE(reached.contains(name)) << "the tab key doesn't lead to " << name;
    }

    void ExpectNamed(const std::string& form) const {
        for (Control* const control : TheForms().Find(form)->Controls()) {
            if (!control->TakesFocus() || !control->HasPlace() || !control->IsShown()) continue;
            ControlView* const view = ViewOf(form).ViewOf(*control);
            ASSERT_NE(view, nullptr) << control->FullName();
            EXPECT_FALSE(NameOf(*view->FocusWidget()).empty())
                << control->FullName() << " has no name for those who can't see it";
        }
    }

    static std::string NameOf(QWidget& widget) {
        QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(&widget);
        if (told == nullptr) return {};
        // A drop-down list is known by its label alone.
        const auto labels = told->relations(QAccessible::Label);
        if (!labels.isEmpty()) return labels.front().first->text(QAccessible::Name).toStdString();
        return told->text(QAccessible::Name).toStdString();
    }

    void ExpectKeyboardSomewhere(const std::string& after) const {
        const QWidget* const focus = QApplication::focusWidget();
        EXPECT_TRUE(focus != nullptr && focus->isVisible() && focus->isEnabled())
            << "the keyboard is lost after " << after;
    }
};

TEST_F(Keyboarding, TheTermsAreAcceptedAndRejectedByKeys) {
    Begin();
    EXPECT_EQ(Keyboard(), "frmSplash.cmdAcceptTerms");
    ExpectAllReached("frmSplash");
    ExpectNamed("frmSplash");
    Key(Qt::Key_A, Qt::AltModifier);
    EXPECT_EQ(TheForms().Find("frmSplash"), nullptr);
    EXPECT_EQ(Messages().size(), 2U);
    ExpectKeyboardSomewhere("accepting the terms");
}

TEST_F(Keyboarding, EscapeRejectsTheTerms) {
    Begin();
    Key(Qt::Key_Escape);
    EXPECT_TRUE(HasEnded());
    EXPECT_EQ(TheProgram().FatalError, 0);
    Begin();
    Key(Qt::Key_Return);
    EXPECT_EQ(TheForms().Find("frmSplash"), nullptr);
    Messages();
}

TEST_F(Keyboarding, TheTabKeyLeadsToEverythingOnTheScreens) {
    OpenCow("Inputs");
    for (int page = 0; page < 4; ++page) {
        ClickTab("frmInputs.InputTabs", page);
        ExpectAllReached("frmInputs");
        ExpectNamed("frmInputs");
    }
    for (const std::string screen : {"Feeds", "Ration", "Reports"}) {
        ClickToolbar(screen);
        ExpectAllReached("frm" + screen);
        ExpectNamed("frm" + screen);
    }
}

TEST_F(Keyboarding, TheTabKeyLeadsToEverythingInTheDialogs) {
    OpenCow("Feeds");
    Key(Qt::Key_A, Qt::AltModifier);
    ASSERT_NE(TheForms().Find("frmAddFeed"), nullptr);
    Mark("frmAddFeed.lstCategory(2)", Model<ListBox>("frmAddFeed.lstCategory(2)").List(3));
    ExpectAllReached("frmAddFeed");
    ExpectNamed("frmAddFeed");
    Key(Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(TheForms().Find("frmAddFeed"), nullptr);
    ExpectKeyboardSomewhere("the picker");
    ClickMenu("Go To...", "Batch File Utility");
    Messages();
    ExpectAllReached("frmBatchOps");
    ExpectNamed("frmBatchOps");
    Key(Qt::Key_Escape);
    EXPECT_EQ(TheForms().Find("frmBatchOps"), nullptr);
    ExpectKeyboardSomewhere("the batch");
    ClickMenu("Help", "About the TAV Dairy Cattle Program");
    ExpectNamed("frmAbout");
    Key(Qt::Key_Return);
    EXPECT_EQ(TheForms().Find("frmAbout"), nullptr);
    ExpectKeyboardSomewhere("the about box");
}

TEST_F(Keyboarding, FieldsBearTheNamesOfTheirLabels) {
    OpenCow("Inputs");
    const auto name = [this](const std::string& control) { return NameOf(WidgetOf(control)); };
    EXPECT_EQ(name("frmInputs.cboLeftHeader"), "Left Header");
    EXPECT_EQ(name("frmInputs.cboSumRes(3)"), "Line 4");
    EXPECT_EQ(name("frmInputs.txtComments"), "Comments");
    EXPECT_EQ(name("frmInputs.cboDefaultZoom"), "Report Preview Zoom");
    EXPECT_EQ(name("frmInputs.txtBodyWeight"), "Body Weight");
    EXPECT_EQ(name("frmInputs.txtMilkProtein"), "Milk Protein");
    EXPECT_EQ(name("frmInputs.lstBreed"), "Breed");
    ClickToolbar("Feeds");
    EXPECT_EQ(name("frmFeeds.lstFeeds"), "Feeds");
    EXPECT_EQ(name("frmFeeds.grdFeedData"), "Feed Components");
    ClickToolbar("Ration");
    EXPECT_EQ(name("frmRation.txtTotalIntake"), "Total Intake");
    EXPECT_EQ(name("frmRation.grdRation"), "Ration List (Dry Matter Basis)");
    // A grid that opens a cell says whose it is.
    Widget<QTableView>("frmRation.grdRation").setFocus(Qt::TabFocusReason);
    Settle();
    Key(Qt::Key_Down);
    Type("9");
    EXPECT_EQ(NameOf(*QApplication::focusWidget()), "Ration List (Dry Matter Basis)");
    Key(Qt::Key_Escape);
}

TEST_F(Keyboarding, AccessKeysOpenMenusAndPressButtons) {
    OpenCow("Ration");
    Key(Qt::Key_F, Qt::AltModifier);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    Key(Qt::Key_S);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_FALSE(Content(InFolder("TAV Dairy Cattle Default Simulation Data File.tav")).empty());
    ExpectKeyboardSomewhere("the menu");

    Widget<QLineEdit>("frmRation.txtTotalIntake").setFocus(Qt::TabFocusReason);
    Settle();
    Type("30");
    Key(Qt::Key_S, Qt::AltModifier);  // "&Set to 100%" takes the entry first
    EXPECT_EQ(Keyboard(), "frmRation.cmdResetIntake");
    EXPECT_NEAR(TheSimulation().TotalDMI.Value(), 30, 0.01);
    Key(Qt::Key_E, Qt::AltModifier);
    EXPECT_EQ(Keyboard(), "frmRation.cmdEstimateIntake");
    EXPECT_NE(TheSimulation().TotalDMI.Value(), 30);

    // The keys of every program of today.
    Asked.ChooseFile(InFolder("Mine"));
    Key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(TheMessage().Text, "Simulation Data File Saved");
    EXPECT_FALSE(Content(InFolder("Mine.tav")).empty());
    ExpectKeyboardSomewhere("a dialog");
}

TEST_F(Keyboarding, OptionsChangeWithTheArrowKeys) {
    OpenCow("Inputs");
    WidgetOf("frmInputs.optMetric").setFocus(Qt::TabFocusReason);
    Settle();
    Key(Qt::Key_Down);
    EXPECT_TRUE(Model<OptionButton>("frmInputs.optEnglish").Value());
    EXPECT_FALSE(TheProgram().UseMetric);
    EXPECT_EQ(Keyboard(), "frmInputs.optEnglish");
    Key(Qt::Key_Up);
    EXPECT_TRUE(TheProgram().UseMetric);
}

TEST_F(Keyboarding, TabsTurnWithTheArrowKeys) {
    OpenCow("Inputs");
    ClickTab("frmInputs.InputTabs", 1);
    EXPECT_EQ(Keyboard(), "frmInputs.InputTabs");
    Key(Qt::Key_Right);
    EXPECT_EQ(Model<TabControl>("frmInputs.InputTabs").Tab(), 2);
    EXPECT_EQ(Keyboard(), "frmInputs.InputTabs");
    EXPECT_TRUE(WidgetOf("frmInputs.lstBreed").isVisible());
}

// Whatever an event disables or hides, the next key finds a place.
TEST_F(Keyboarding, TheKeyboardIsNeverLost) {
    OpenCow("Feeds");
    while (TheSimulation().NumFeeds > 0) {
        if (TheSimulation().NumFeeds == 1) Asked.Press(QMessageBox::Ok);
        Click("frmFeeds.cmdRemoveFeed");
        ExpectKeyboardSomewhere("a removal");
    }
    Messages();
    ClickToolbar("Ration");
    ExpectKeyboardSomewhere("the ration without feeds");
    for (const char* const button : {"frmRation.cmdResetIntake", "frmRation.cmdEstimateIntake"}) {
        if (!WidgetOf(button).isEnabled()) continue;
        Click(button);
        ExpectKeyboardSomewhere(button);
    }
    Messages();
    ClickToolbar("Inputs");
    ClickTab("frmInputs.InputTabs", 2);
    Click("frmInputs.chkMWFromBreed");
    ExpectKeyboardSomewhere("a check box");
    ClickTab("frmInputs.InputTabs", 3);
    for (const char* const option : {"frmInputs.optGrazing", "frmInputs.optNoGrazing"}) {
        Click(option);
        ExpectKeyboardSomewhere(option);
    }
    // The field that the user is in is shut by the next click.
    Click("frmInputs.optGrazing");
    Click("frmInputs.txtDistance");
    Click("frmInputs.optNoGrazing");
    ExpectKeyboardSomewhere("a field that has been shut");
    EXPECT_FALSE(WidgetOf("frmInputs.txtDistance").isEnabled());
    // The credits take the tabs off the screen; any key brings them back.
    ClickTab("frmInputs.InputTabs", 0);
    EXPECT_EQ(Keyboard(), "frmInputs.InputTabs");
    Key(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(WidgetOf("frmInputs.picEasterEgg").isVisible());
    ExpectKeyboardSomewhere("the credits");
    Key(Qt::Key_X);
    EXPECT_FALSE(WidgetOf("frmInputs.picEasterEgg").isVisible());
    EXPECT_TRUE(WidgetOf("frmInputs.InputTabs").isVisible());
    Key(Qt::Key_Tab);
    ExpectKeyboardSomewhere("the credits' end");
}

}  // namespace
}  // namespace tav
