// A toolbar of keyed buttons.
#pragma once

#include "forms/control.h"

#include <string>
#include <string_view>
#include <vector>

namespace tav {

struct ToolbarButton {
    std::string Key{};
    std::string Caption{};
    std::string Picture{};
    std::string ToolTip{};
    bool TwoState = false;  // stays pressed; a press releases the other two-state buttons
    bool Pressed = false;
    bool Enabled = true;
};

class Toolbar : public Control {
  public:
    using Control::Control;
    ControlKind Kind() const override { return ControlKind::Toolbar; }

    std::vector<ToolbarButton> Buttons;

    // The button of that key, null if there is none. The key of a separator is empty.
    ToolbarButton* Button(std::string_view key);
    const ToolbarButton* Button(std::string_view key) const;

    std::function<void(ToolbarButton& button)> ButtonClick;

    // Presses a button, then raises ButtonClick.
    void UserClickButton(std::string_view key);

    bool TakesFocus() const override { return false; }
};

}  // namespace tav
