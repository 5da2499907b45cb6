// Controls that show something and take no entry.
#pragma once

#include "forms/control.h"

#include <string>

namespace tav {

class Label : public CaptionedControl {
  public:
    using CaptionedControl::CaptionedControl;
    ControlKind Kind() const override { return ControlKind::Label; }

    tav::Alignment Alignment = tav::Alignment::Left;
    bool TakesFocus() const override { return false; }
};

// Holds other controls; option buttons in one frame are one group. Disabled, it disables them.
class Frame : public CaptionedControl {
  public:
    using CaptionedControl::CaptionedControl;
    ControlKind Kind() const override { return ControlKind::Frame; }

    bool TakesFocus() const override { return false; }
};

// Both show the picture of that name, which a view finds among the program's pictures. A picture
// box can hold other controls.
class PictureBox : public Control {
  public:
    using Control::Control;
    ControlKind Kind() const override { return ControlKind::PictureBox; }

    std::string Picture;
    bool TakesFocus() const override { return false; }
};

class Image : public Control {
  public:
    using Control::Control;
    ControlKind Kind() const override { return ControlKind::Image; }

    std::string Picture;
    bool HasFont() const override { return false; }
    bool TakesFocus() const override { return false; }
};

// A rule from Left, Top over Width and Height.
class Line : public Control {
  public:
    using Control::Control;
    ControlKind Kind() const override { return ControlKind::Line; }

    bool HasFont() const override { return false; }
    bool TakesFocus() const override { return false; }
};

}  // namespace tav
