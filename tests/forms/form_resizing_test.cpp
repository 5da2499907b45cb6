#include "forms/form_resizing.h"

#include "forms/sample_form.h"

namespace tav {
namespace {

// The main window, of which only the size matters.
class ParentForm : public SampleForm {
  public:
    ParentForm(const std::string& name, EventLog& log) : SampleForm(name, log) {
        FrameWidth = 0;
        FrameHeight = 1200;
    }
};

// Has one of each kind of control.
class ScreenUnderTest : public SampleForm {
  public:
    ScreenUnderTest(const std::string& name, EventLog& log) : SampleForm(name, log) {
        Width = 12120;
        Height = 7380;
        InputTabs.TabCaptions = {"First", "Second"};
        InputTabs.Move(0, 0, 12120, 7380);
        txtShown.Move(300, 100, 900, 300);
        fraParked.Move(600, 200, 1200, 2000);
        cboInside.Move(100, 400, 1000, 315);
        txtAge.Move(200, 800, 1000, 330);
        picture.Move(500, 600, 700, 800);
        InputTabs.Put(txtShown, 0);
        InputTabs.Put(fraParked, 1);
    }
    TabControl InputTabs{*this, "InputTabs"};
    TextBox txtShown{InputTabs, "txtShown"};
    Frame fraParked{InputTabs, "fraParked"};
    ComboBox cboInside{fraParked, "cboInside"};
    NumericTextBox txtAge{fraParked, "txtAge"};
    PictureBox picture{*this, "picture"};
    Timer timer{*this, "timer"};
};

class FormResizing : public FormsTest {
  protected:
    // The sizes of the main window's client area, in pixels.
    void OpenParent(int width, int height, int unitsPerPixel = 15) {
        Platform.ScreenInUse.UnitsPerPixelX = unitsPerPixel;
        Platform.ScreenInUse.UnitsPerPixelY = unitsPerPixel;
        Form& parent = Open<ParentForm>("frmParent");
        parent.Resize(width * unitsPerPixel, height * unitsPerPixel + 1200);
    }

    // The size that a font of that size gets at a scale of 1.
    double FontAfterScaling(double size, const std::string& form = "frmInputs") {
        auto& screen = Open<ScreenUnderTest>(form);
        screen.txtShown.FontSize = size;
        ScaleControls(1, 1, screen);
        return screen.txtShown.FontSize.Value();
    }

    static void ExpectPlace(const Control& control, double left, double top, double width,
                            double height) {
        SCOPED_TRACE(control.FullName());
        EXPECT_EQ(control.Left, left);
        EXPECT_EQ(control.Top, top);
        EXPECT_EQ(control.Width, width);
        EXPECT_EQ(control.Height, height);
    }
};

TEST_F(FormResizing, ControlsFollowTheMainWindow) {
    OpenParent(1000, 900);  // 1.25 and 1.5 times the layout
    auto& screen = Open<ScreenUnderTest>("frmInputs");
    ResizeScreen(screen);
    ExpectPlace(screen.txtShown, 375, 150, 1125, 450);
    ExpectPlace(screen.cboInside, 125, 600, 1250, 315);
    ExpectPlace(screen.picture, 500, 600, 700, 800);
    ExpectPlace(screen.txtAge, 250, 1200, 1250, 360);
    EXPECT_EQ(screen.txtShown.FontSize, 10);  // 8 times 1.375 is 11
    EXPECT_EQ(screen.cboInside.FontSize, 10);
    EXPECT_EQ(screen.picture.FontSize, 10);
}

TEST_F(FormResizing, AParkedControlComesBackToItsScaledPlace) {
    OpenParent(1000, 900);
    auto& screen = Open<ScreenUnderTest>("frmInputs");
    ResizeScreen(screen);
    ExpectPlace(screen.fraParked, 750 - 75000, 300, 1500, 3000);
    screen.InputTabs.ShowPage(1);
    EXPECT_EQ(screen.fraParked.Left, 750);
    EXPECT_EQ(screen.txtShown.Left, 375 - 75000);
}

TEST_F(FormResizing, TheTabsKeepTheirShareOfTheForm) {
    OpenParent(1000, 900);
    auto& screen = Open<ScreenUnderTest>("frmInputs");
    screen.InputTabs.Move(0, 0, 6060, 7380);
    screen.Width = 15000;
    screen.Height = 13500;
    ResizeScreen(screen);
    ExpectPlace(screen.InputTabs, 0, 0, 7500, 13500);
    EXPECT_TRUE(screen.InputTabs.Visible);
}

TEST_F(FormResizing, TheScaleCountsPixels) {
    OpenParent(632, 501, 20);
    const ScreenScale scale = ScaleOfMainWindow();
    EXPECT_EQ(scale.X.Value(), static_cast<float>(632 / 800.0 * (20 / 15.0)));
    EXPECT_EQ(scale.Y.Value(), static_cast<float>(501 / 600.0 * (20 / 15.0)));
    TheForms().Find("frmParent")->Resize(632.5 * 20, 1200 + 501.5 * 20);  // halves go to the even
    EXPECT_EQ(ScaleOfMainWindow().X.Value(), scale.X.Value());
    EXPECT_EQ(ScaleOfMainWindow().Y.Value(), static_cast<float>(502 / 600.0 * (20 / 15.0)));
}

TEST_F(FormResizing, FontsStepDown) {
    const std::vector<std::pair<double, double>> steps = {{5, 8},     {8, 8},   {9.9, 8}, {10, 10},
                                                          {11.9, 10}, {12, 12}, {13, 12}, {14, 14},
                                                          {14.1, 12}, {15, 12}, {16, 12}, {40, 12}};
    for (const auto& [size, expected] : steps)
        EXPECT_EQ(FontAfterScaling(size), expected) << size;
    EXPECT_EQ(FontAfterScaling(15, "frmSplash"), 14);
    EXPECT_EQ(FontAfterScaling(16, "frmSplash"), 16);
    EXPECT_EQ(FontAfterScaling(18, "frmSplash"), 14);
}

TEST_F(FormResizing, WhatCannotBeSetIsPassedOver) {
    auto& screen = Open<ScreenUnderTest>("frmInputs");
    screen.txtShown.Width = 3e38;
    screen.cboInside.Left = 3e38;
    screen.txtAge.FontSize = 3e38;
    ScaleControls(2, 2, screen);
    ExpectPlace(screen.txtShown, 300, 100, 3e38F, 300);  // moved as a whole or not at all
    ExpectPlace(screen.cboInside, 3e38F, 800, 2000, 315);
    EXPECT_EQ(screen.txtAge.FontSize, 12);
    ExpectPlace(screen.fraParked, 1200 - 75000, 400, 2400, 4000);
}

}  // namespace
}  // namespace tav
