#include "forms/sample_form.h"

namespace tav {
namespace {

class TabForm : public SampleForm {
  public:
    TabForm(const std::string& name, EventLog& log) : SampleForm(name, log) {
        InputTabs.TabCaptions = {"Settings", "Animal", "Production"};
        txtFirst.Move(300, 100, 900, 300);
        fraSecond.Move(500, 100, 900, 300);
        InputTabs.Put(txtFirst, 0);
        InputTabs.Put(fraSecond, 1);
        InputTabs.TabClick = [this](int previous) {
            Events.push_back(std::to_string(previous) + " to " + std::to_string(InputTabs.Tab()));
        };
    }
    TabControl InputTabs{*this, "InputTabs"};
    TextBox txtFirst{InputTabs, "txtFirst"};
    Frame fraSecond{InputTabs, "fraSecond"};
    TextBox txtInside{fraSecond, "txtInside"};
};

class TabControlTest : public FormsTest {
  protected:
    TabForm& Form = Open<TabForm>();
};

TEST_F(TabControlTest, ControlsOfHiddenPagesAreParkedAndOutOfReach) {
    EXPECT_EQ(Form.txtFirst.Left, 300);
    EXPECT_EQ(Form.fraSecond.Left, 500 - 75000);
    EXPECT_THROW(Form.txtInside.UserType("x"), NotPossible);
    Form.InputTabs.UserClickTab(1);
    EXPECT_EQ(Form.txtFirst.Left, 300 - 75000);
    EXPECT_EQ(Form.fraSecond.Left, 500);
    EXPECT_NO_THROW(Form.txtInside.UserType("x"));
    EXPECT_TRUE(Form.txtFirst.Visible);
    EXPECT_FALSE(Form.txtFirst.IsShown());
}

TEST_F(TabControlTest, OnlyAChangeRaisesTheEvent) {
    Form.InputTabs.SetTab(0);
    Form.InputTabs.SetTab(2);
    Form.InputTabs.ShowPage(1);
    EXPECT_EQ(Events, (EventLog{"0 to 2"}));
    EXPECT_THROW(Form.InputTabs.SetTab(3), RuntimeError);
    EXPECT_THROW(Form.InputTabs.UserClickTab(3), NotPossible);
}

TEST_F(TabControlTest, TheEventMayGoBack) {
    Form.InputTabs.TabClick = [this](int previous) {
        if (Form.InputTabs.Tab() == 2) Form.InputTabs.ShowPage(previous);
    };
    Form.InputTabs.UserClickTab(2);
    EXPECT_EQ(Form.InputTabs.Tab(), 0);
    EXPECT_EQ(Form.txtFirst.Left, 300);
}

}  // namespace
}  // namespace tav
