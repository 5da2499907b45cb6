// The credits of the inputs screen, behind a key that is told to nobody.
#include "screens/inputs_form.h"

namespace tav {
namespace {

constexpr double kShareOfWidth = 0.9;
constexpr int kTextHeight = 1500;
constexpr int kTextSize = 40;  // points
constexpr int kGap = 200;
constexpr int kPictureSize = 2400;
constexpr int kTickTime = 1000;  // milliseconds

}  // namespace

void InputsForm::SetUpCredits() {
    lblEasterEgg.Visible = false;
    lblEasterEgg.Alignment = Alignment::Center;
    lblEasterEgg.Move(0, 0, kTextHeight, kTextHeight);
    picEasterEgg.Visible = false;
    picEasterEgg.Picture = "Logo";
    picEasterEgg.Move(0, kTextHeight + kGap, kPictureSize, kPictureSize);
    picEasterEgg.Click = [this] { HideCredits(); };
    Timer1.Tick = [this] { Timer1_Tick(); };
    InputTabs.KeyDown = [this](const KeyPress& key) {
        if (key.Ctrl && key.Shift && key.Key == "V") ShowCredits();
    };
}

void InputsForm::ShowCredits() {
    InputTabs.Visible = false;
    MoveFocus(nullptr);  // so that the next key reaches the form
    const Number width = Width * kShareOfWidth;
    const Number height = kTextHeight + kGap + picEasterEgg.Height;
    const Number top = (ClientHeight() - height) / 2;
    lblEasterEgg.FontSize = kTextSize;
    lblEasterEgg.Move((ClientWidth() - width) / 2, top, width, kTextHeight);
    picEasterEgg.Left = (ClientWidth() - picEasterEgg.Width) / 2;
    picEasterEgg.Top = top + kTextHeight + kGap;
    lblEasterEgg.Caption.clear();
    lblEasterEgg.Visible = true;
    picEasterEgg.Visible = true;
    creditsTick_ = 0;
    Timer1.Interval = kTickTime;
    Timer1.Start();
}

void InputsForm::HideCredits() {
    if (InputTabs.Visible) return;
    picEasterEgg.Visible = false;
    lblEasterEgg.Visible = false;
    InputTabs.Visible = true;
    Timer1.Stop();
}

void InputsForm::Timer1_Tick() {
    switch (creditsTick_) {
        case 0: lblEasterEgg.Caption = "Programmed By..."; break;
        case 1: lblEasterEgg.Caption.clear(); break;
        case 2: lblEasterEgg.Caption = "Click on Picture To Exit"; break;
        default: break;
    }
    creditsTick_ = creditsTick_ == 3 ? 0 : creditsTick_ + 1;
}

void InputsForm::Form_KeyDown(const KeyPress& /*key*/) { HideCredits(); }

void InputsForm::Form_MouseDown(MouseButton /*button*/) { HideCredits(); }

}  // namespace tav
