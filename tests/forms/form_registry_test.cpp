#include "forms/sample_form.h"

namespace tav {
namespace {

class FormRegistryTest : public FormsTest {
  protected:
    SampleForm& OpenMainWindow() {
        auto& parent = Open("frmMain");
        parent.IsMainWindow = true;
        return parent;
    }
    SampleForm& OpenChild(const std::string& name) {
        auto& child = Open(name);
        child.IsChild = true;
        return child;
    }
};

TEST_F(FormRegistryTest, LoadsOnceAndShowsEachTime) {
    TheForms().Register("frmSample",
                        [this] { return std::make_unique<SampleForm>("frmSample", Events); });
    EXPECT_EQ(TheForms().Find("frmSample"), nullptr);
    Form& form = TheForms().Load("frmSample");
    EXPECT_FALSE(form.Visible());
    EXPECT_EQ(&TheForms().Show("frmSample"), &form);
    TheForms().Show("frmSample");
    EXPECT_EQ(Events, (EventLog{"frmSample load", "frmSample activate", "frmSample activate"}));
    EXPECT_THROW(TheForms().Load("frmNowhere"), std::out_of_range);
}

TEST_F(FormRegistryTest, CancelKeepsTheForm) {
    auto& form = Open();
    form.RefuseQuery = true;
    EXPECT_FALSE(TheForms().Unload("frmSample"));
    EXPECT_EQ(Events, (EventLog{"frmSample query"}));
    form.RefuseQuery = false;
    form.RefuseUnload = true;
    EXPECT_FALSE(TheForms().Unload("frmSample"));
    EXPECT_TRUE(form.IsLoaded());
    form.RefuseUnload = false;
    EXPECT_TRUE(TheForms().Unload("frmSample"));
    EXPECT_EQ(TheForms().Find("frmSample"), nullptr);
}

TEST_F(FormRegistryTest, ChildrenCloseBeforeTheMainWindow) {
    OpenMainWindow();
    OpenChild("frmOne");
    EXPECT_TRUE(TheForms().Unload("frmMain"));
    EXPECT_EQ(Events,
              (EventLog{"frmMain query", "frmOne query", "frmOne unload", "frmMain unload"}));
    EXPECT_TRUE(TheForms().Loaded().empty());
}

TEST_F(FormRegistryTest, MainWindowThatRefusesAtLastHasLostItsChildren) {
    OpenMainWindow().RefuseUnload = true;
    OpenChild("frmOne");
    EXPECT_FALSE(TheForms().Unload("frmMain"));
    EXPECT_EQ(TheForms().Find("frmOne"), nullptr);
    EXPECT_NE(TheForms().Find("frmMain"), nullptr);
}

TEST_F(FormRegistryTest, ChildThatRefusesKeepsEverything) {
    OpenMainWindow();
    OpenChild("frmOne").RefuseQuery = true;
    EXPECT_FALSE(TheForms().Unload("frmMain"));
    EXPECT_EQ(TheForms().Loaded().size(), 2u);
    EXPECT_EQ(Events, (EventLog{"frmMain query", "frmOne query"}));
}

TEST_F(FormRegistryTest, ModalFormBlocksTheOthers) {
    auto& form = Open();
    Open("frmDialog");
    TheForms().ShowModal("frmDialog");
    EXPECT_THROW(form.cmdOK.UserClick(), NotPossible);
    EXPECT_THROW(form.UserClose(), NotPossible);
    EXPECT_EQ(TheForms().Active()->Name(), "frmDialog");
    TheForms().Unload("frmDialog");
    EXPECT_NO_THROW(form.cmdOK.UserClick());
    EXPECT_EQ(TheForms().Active(), &form);
}

TEST_F(FormRegistryTest, RunTimeErrorEndsTheProgramWithoutFurtherEvents) {
    auto& form = Open();
    form.cmdOK.Click = [] { Raise(kTypeMismatch); };
    TheForms().Run([&] { form.cmdOK.UserClick(); });
    EXPECT_TRUE(TheProgram().Ended);
    EXPECT_EQ(TheProgram().FatalError, kTypeMismatch);
    EXPECT_TRUE(TheForms().Loaded().empty());
    EXPECT_TRUE(Events.empty());
}

TEST_F(FormRegistryTest, ProgramEndsWithItsLastForm) {
    Open();
    auto& other = Open("frmOther");
    TheForms().Run([] { TheForms().Unload("frmSample"); });
    EXPECT_FALSE(TheProgram().Ended);
    TheForms().Run([&] { other.UserClose(); });
    EXPECT_TRUE(TheProgram().Ended);
    EXPECT_EQ(TheProgram().FatalError, 0);
}

TEST_F(FormRegistryTest, WindowComesBackToTheSizeThatItHad) {
    auto& form = Open();
    form.UserResize(6000, 4000);
    form.UserSetState(WindowState::Maximised);
    EXPECT_EQ(form.Width, Platform.Screen().Width);
    EXPECT_THROW(form.UserResize(1, 1), NotPossible);
    form.UserSetState(WindowState::Normal);
    EXPECT_EQ(form.Width, 6000);
    EXPECT_EQ(form.Height, 4000);
    EXPECT_EQ(Events.size(), 3u);
    form.Resize(6000, 4000);  // no change, no event
    EXPECT_EQ(Events.size(), 3u);
}

TEST_F(FormRegistryTest, FixedWindowRefusesTheUser) {
    auto& form = Open();
    form.Sizable = false;
    form.HasCloseBox = false;
    EXPECT_THROW(form.UserResize(1, 1), NotPossible);
    EXPECT_THROW(form.UserSetState(WindowState::Minimised), NotPossible);
    EXPECT_THROW(form.UserClose(), NotPossible);
}

}  // namespace
}  // namespace tav
