#include "forms/sample_form.h"

namespace tav {
namespace {

class ControlTest : public FormsTest {};

TEST_F(ControlTest, ClickMovesTheFocusThenPressesThenClicks) {
    auto& form = Open();
    form.Watch(form.txtName);
    form.Watch(form.cmdOK);
    form.txtName.UserEnter();
    form.cmdOK.UserClick();
    EXPECT_EQ(Events, (EventLog{"txtName got focus", "txtName lost focus", "cmdOK got focus",
                                "cmdOK down", "cmdOK up", "cmdOK click"}));
    EXPECT_EQ(form.Focus(), &form.cmdOK);
}

TEST_F(ControlTest, DisabledOrHiddenRefusesAndNothingHappens) {
    auto& form = Open();
    form.Watch(form.cmdOK);
    form.cmdOK.Enabled = false;
    EXPECT_THROW(form.cmdOK.UserClick(), NotPossible);
    EXPECT_THROW(form.cmdOK.UserRightClick(), NotPossible);
    form.cmdOK.Enabled = true;
    form.cmdOK.Visible = false;
    EXPECT_THROW(form.cmdOK.UserClick(), NotPossible);
    form.cmdOK.SetFocus();
    EXPECT_EQ(form.Focus(), nullptr);
    EXPECT_TRUE(Events.empty());
}

TEST_F(ControlTest, DisabledFrameDisablesWhatStandsInIt) {
    auto& form = Open();
    form.fraGroup.Enabled = false;
    EXPECT_THROW(form.optFlat.UserClick(), NotPossible);
    EXPECT_TRUE(form.optFlat.Enabled);
    form.optElsewhere.UserClick();
    EXPECT_TRUE(form.optElsewhere.Value());
}

TEST_F(ControlTest, OptionsOfOneContainerExcludeEachOther) {
    auto& form = Open();
    form.Watch(form.optFlat);
    form.optElsewhere.SetValue(true);
    form.optHilly.SetValue(true);
    form.optFlat.UserClick();
    EXPECT_TRUE(form.optFlat.Value());
    EXPECT_FALSE(form.optHilly.Value());
    EXPECT_TRUE(form.optElsewhere.Value());
    Events.clear();
    form.optFlat.UserClick();  // it is on already
    EXPECT_EQ(Events, (EventLog{"optFlat down", "optFlat up"}));
}

TEST_F(ControlTest, CheckBoxIsToggledBeforeItsClick) {
    auto& form = Open();
    std::vector<bool> seen;
    form.chkTarget.Click = [&] { seen.push_back(form.chkTarget.Value); };
    form.chkTarget.UserClick();
    form.chkTarget.UserClick();
    EXPECT_EQ(seen, (std::vector<bool>{true, false}));
}

TEST_F(ControlTest, AnEventMayMoveTheFocusOn) {
    auto& form = Open();
    form.txtName.Click = [&] { form.cmdOK.SetFocus(); };
    form.txtName.UserClick();
    EXPECT_EQ(form.Focus(), &form.cmdOK);
    form.cmdOK.LostFocus = [&] { form.chkTarget.SetFocus(); };
    form.txtName.UserEnter();
    EXPECT_EQ(form.Focus(), &form.chkTarget);
}

TEST_F(ControlTest, NoEventReachesAFormThatIsGone) {
    auto& form = Open();
    form.Watch(form.cmdOK);
    form.cmdOK.MouseDown = [](MouseButton) { TheForms().Unload("frmSample"); };
    TheForms().Run([&] { form.cmdOK.UserClick(); });
    EXPECT_EQ(Events, (EventLog{"cmdOK got focus", "frmSample query", "frmSample unload"}));
}

TEST_F(ControlTest, KeysReachTheControlOrElseItsForm) {
    auto& form = Open();
    std::string seen;
    form.txtName.KeyDown = [&](const KeyPress& key) { seen = key.Key + (key.Ctrl ? "!" : ""); };
    form.txtName.UserKey(ParseKey("Ctrl+v"));
    EXPECT_EQ(seen, "V!");
    EXPECT_TRUE(Events.empty());
    form.cmdOK.UserKey(ParseKey("F1"));
    EXPECT_EQ(Events, (EventLog{"frmSample F1"}));
}

TEST_F(ControlTest, EnterPressesTheDefaultButtonButNotInSeveralLines) {
    auto& form = Open();
    int clicks = 0;
    form.cmdOK.Default = true;
    form.cmdOK.Click = [&] { ++clicks; };
    form.txtName.UserKey({.Key = "Enter"});
    EXPECT_EQ(clicks, 1);
    form.txtName.MultiLine = true;
    form.txtName.UserKey({.Key = "Enter"});
    form.txtName.UserKey({.Key = "Escape"});
    EXPECT_EQ(clicks, 1);
    form.cmdOK.Default = false;
    form.cmdOK.Cancel = true;
    form.txtName.UserKey({.Key = "Escape"});
    EXPECT_EQ(clicks, 2);
}

TEST_F(ControlTest, KeyTextsAreRead) {
    const KeyPress key = ParseKey("Ctrl+Shift+v");
    EXPECT_TRUE(key.Ctrl && key.Shift && !key.Alt);
    EXPECT_EQ(key.Key, "V");
    EXPECT_EQ(ParseKey("Ctrl++").Key, "+");
    EXPECT_THROW(ParseKey("Hyper+V"), NotPossible);
    EXPECT_THROW(ParseKey(""), NotPossible);
}

TEST_F(ControlTest, TextBoxKeepsToItsLines) {
    auto& form = Open();
    EXPECT_THROW(form.txtName.UserType("two\r\nlines"), NotPossible);
    form.txtName.MultiLine = true;
    form.txtName.UserType("two\r\nlines");
    EXPECT_EQ(form.txtName.Text, "two\r\nlines");
    form.txtName.ReadOnly = true;
    EXPECT_THROW(form.txtName.UserType("x"), NotPossible);
}

}  // namespace
}  // namespace tav
