#include "forms/buttons.h"

#include "forms/form.h"

namespace tav {

void OptionButton::SetValue(bool on) {
    if (on) {
        for (Control* const control : Owner().Controls()) {
            auto* const other = dynamic_cast<OptionButton*>(control);
            if (other != nullptr && other->Container() == Container()) other->value_ = false;
        }
    }
    value_ = on;
}

void OptionButton::UserClick() {
    RequireUsable();
    Form::DismissPopUps();
    TakeFocus();
    Fire(MouseDown, MouseButton::Left);
    Fire(MouseUp, MouseButton::Left);
    if (value_) return;
    SetValue(true);
    Fire(Click);
}

void CheckBox::UserClick() {
    RequireUsable();
    Form::DismissPopUps();
    TakeFocus();
    Fire(MouseDown, MouseButton::Left);
    Fire(MouseUp, MouseButton::Left);
    Value = !Value;
    Fire(Click);
}

}  // namespace tav
