// Text entry: free text, and numbers within limits.
#pragma once

#include "forms/control.h"

#include <string>
#include <string_view>

namespace tav {

class TextBox : public Control {
  public:
    using Control::Control;
    ControlKind Kind() const override { return ControlKind::TextBox; }

    std::string Text;
    tav::Alignment Alignment = tav::Alignment::Left;
    bool MultiLine = false;  // line breaks are carriage return and line feed
    bool ReadOnly = false;   // can be entered and copied from, not changed

    std::function<void()> Change;  // the user has changed the text

    // Replaces the text, in the field that has been entered. Throws NotPossible for a read-only
    // box, and for a line break in one of a single line.
    void UserType(std::string_view text);
};

// A box for one number. What the user enters is a number, alone or with the unit behind it; it is
// taken when the field is left, if it is within the limits, and then shown by Format with the unit.
// What isn't taken leaves the text as it was. The program may set any text ("N/A"), whatever the
// limits are.
class NumericTextBox : public Control {
  public:
    using Control::Control;
    ControlKind Kind() const override { return ControlKind::NumericTextBox; }

    std::string Text;        // "650 kg"
    Single Minimum = 0;      // both limits are accepted themselves
    Single Maximum = 32767;  // the widest that every whole field of the record holds
    std::string Units;       // "kg"
    std::string Format;      // mask such as "0.00"; empty: the number as it was entered
    tav::Alignment Alignment = tav::Alignment::Left;

    // Why the last entry wasn't taken, for the view to show; empty if it was.
    std::string Refusal;

    std::function<void()> ValueEntered;  // a value has been entered and taken

    // What stands in the field while the user is at it. A text with other characters than digits,
    // one separator, a leading sign and the unit isn't taken into the field, and unless another one
    // follows, nothing is: half of what was meant is never a value.
    void UserType(std::string_view text);
    void UserEnter() override;
    void FinishEntry() override;

    // Whether the user is at it, and what stands in the field then; the view shows that.
    bool IsBeingEdited() const { return editing_; }
    const std::string& EditText() const { return editText_; }
    // What was typed last if it wasn't taken into the field, for the view to leave it to be mended.
    const std::string& RefusedText() const { return refusedText_; }

  private:
    std::string NumberPart(std::string_view text) const;

    std::string editText_;
    bool editing_ = false;
    bool typed_ = false;
    std::string refusedText_;
};

}  // namespace tav
