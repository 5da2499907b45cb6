#include "forms/sample_form.h"

namespace tav {
namespace {

class MenuForm : public SampleForm {
  public:
    MenuForm(const std::string& name, EventLog& log) : SampleForm(name, log) {
        mnuContextMenu.Visible = false;
        for (MenuItem* const item : {&mnuSave, &mnuContextWT}) {
            item->Click = [this, item] { Events.push_back(item->Name()); };
        }
    }
    MenuItem mnuFile{*this, "mnuFile", "&File"};
    MenuItem mnuSave{mnuFile, "mnuSave", "&Save"};
    MenuItem mnuSep1{mnuFile, "mnuSep1", "-"};
    MenuItem mnuContextMenu{*this, "mnuContextMenu", ""};
    MenuItem mnuContextWT{mnuContextMenu, "mnuContextWT", "&What's This?"};
};

class MenuTest : public FormsTest {
  protected:
    MenuForm& Form = Open<MenuForm>();
};

TEST_F(MenuTest, EntriesFollowTheirMenus) {
    EXPECT_EQ(Form.mnuFile.Entries(), (std::vector<MenuItem*>{&Form.mnuSave, &Form.mnuSep1}));
    Form.mnuSave.UserClick();
    EXPECT_EQ(Events, (EventLog{"mnuSave"}));
    EXPECT_THROW(Form.mnuSep1.UserClick(), NotPossible);
    Form.mnuFile.Enabled = false;
    EXPECT_THROW(Form.mnuSave.UserClick(), NotPossible);
}

TEST_F(MenuTest, PopUpIsOpenForOneChoiceAndThenClosed) {
    const auto open = [this] {
        Form.PopUp(Form.mnuContextMenu, [this] { Events.push_back("closed"); });
    };
    EXPECT_THROW(Form.mnuContextWT.UserClick(), NotPossible);
    open();
    EXPECT_EQ(TheProgram().Popup, "mnuContextMenu");
    Form.mnuContextWT.UserClick();
    EXPECT_EQ(Events, (EventLog{"mnuContextWT", "closed"}));
    EXPECT_THROW(Form.mnuContextWT.UserClick(), NotPossible);
    open();
    Form.cmdOK.UserClick();  // anything else closes it
    EXPECT_EQ(Events.back(), "closed");
    EXPECT_EQ(Form.OpenPopUp(), nullptr);
    EXPECT_THROW(Form.mnuContextWT.UserClick(), NotPossible);
}

TEST_F(MenuTest, ToolbarButtonsExcludeEachOtherAndTheEventMayReleaseThem) {
    Toolbar toolbar(Form, "Toolbar");
    toolbar.Buttons = {{.Key = "Inputs", .TwoState = true, .Pressed = true},
                       {.Key = ""},
                       {.Key = "Feeds", .TwoState = true},
                       {.Key = "Help"}};
    toolbar.ButtonClick = [this](ToolbarButton& button) { Events.push_back(button.Key); };
    toolbar.UserClickButton("Feeds");
    EXPECT_FALSE(toolbar.Button("Inputs")->Pressed);
    EXPECT_TRUE(toolbar.Button("Feeds")->Pressed);
    toolbar.UserClickButton("Help");
    EXPECT_FALSE(toolbar.Button("Help")->Pressed);
    EXPECT_TRUE(toolbar.Button("Feeds")->Pressed);
    EXPECT_EQ(Events, (EventLog{"Feeds", "Help"}));
    EXPECT_THROW(toolbar.UserClickButton(""), NotPossible);
    toolbar.Button("Help")->Enabled = false;
    EXPECT_THROW(toolbar.UserClickButton("Help"), NotPossible);
}

}  // namespace
}  // namespace tav
