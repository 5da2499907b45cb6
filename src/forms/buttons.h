// Buttons: options, check boxes, commands.
#pragma once

#include "forms/control.h"

namespace tav {

// One of a group: at most one option of a container is on.
class OptionButton : public CaptionedControl {
  public:
    using CaptionedControl::CaptionedControl;
    ControlKind Kind() const override { return ControlKind::OptionButton; }

    // Switching one on switches the others of its container off. Raises no event.
    bool Value() const { return value_; }
    void SetValue(bool on);

    // Switches it on and raises Click; one that is on already raises nothing.
    void UserClick() override;

  private:
    bool value_ = false;
};

class CheckBox : public CaptionedControl {
  public:
    using CaptionedControl::CaptionedControl;
    ControlKind Kind() const override { return ControlKind::CheckBox; }

    bool Value = false;

    // Toggles it, then raises Click.
    void UserClick() override;
};

class CommandButton : public CaptionedControl {
  public:
    using CaptionedControl::CaptionedControl;
    ControlKind Kind() const override { return ControlKind::CommandButton; }

    bool Default = false;  // pressed by Enter anywhere on the form
    bool Cancel = false;   // pressed by Escape
};

}  // namespace tav
