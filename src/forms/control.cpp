#include "forms/control.h"

#include "core/program_state.h"
#include "forms/buttons.h"
#include "forms/form.h"
#include "forms/tab_control.h"
#include "forms/text_box.h"

#include <algorithm>
#include <cctype>

namespace tav {
namespace {

// Whether Enter belongs to the control itself and not to the form's default button.
bool TakesEnter(const Control& control) {
    const auto* const box = dynamic_cast<const TextBox*>(&control);
    return box != nullptr && box->MultiLine;
}

bool IsPressedBySpace(const Control& control) {
    const ControlKind kind = control.Kind();
    return kind == ControlKind::CommandButton || kind == ControlKind::CheckBox ||
           kind == ControlKind::OptionButton;
}

bool OnHiddenPage(const Control& control) {
    const auto* const tabs = dynamic_cast<const TabControl*>(control.Container());
    return tabs != nullptr && control.TabPage != tabs->Tab();
}

}  // namespace

KeyPress ParseKey(std::string_view text) {
    KeyPress key;
    std::string_view rest = text;
    for (std::size_t plus = rest.find('+');
         plus != std::string_view::npos && plus + 1 < rest.size(); plus = rest.find('+')) {
        const std::string_view held = rest.substr(0, plus);
        if (held == "Ctrl") {
            key.Ctrl = true;
        } else if (held == "Shift") {
            key.Shift = true;
        } else if (held == "Alt") {
            key.Alt = true;
        } else {
            throw NotPossible("no such key: " + std::string(text));
        }
        rest.remove_prefix(plus + 1);
    }
    if (rest.empty()) throw NotPossible("no such key: " + std::string(text));
    key.Key = rest;
    if (rest.size() == 1) {
        key.Key[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(rest[0])));
    }
    return key;
}

Control::Control(Form& owner, std::string name, int index)
    : owner_(&owner), container_(nullptr), name_(std::move(name)), index_(index) {
    owner.controls_.push_back(this);
}

Control::Control(Control& container, std::string name, int index)
    : owner_(container.owner_), container_(&container), name_(std::move(name)), index_(index) {
    owner_->controls_.push_back(this);
}

std::string Control::FullName() const {
    std::string name = owner_->Name() + "." + name_;
    if (index_ >= 0) name += "(" + std::to_string(index_) + ")";
    return name;
}

void Control::Move(Number left, Number top, Number width, Number height) {
    // All four are converted before the first is set: what can't be held moves nothing.
    const Single newLeft = left, newTop = top, newWidth = width, newHeight = height;
    Left = newLeft;
    Top = newTop;
    Width = newWidth;
    Height = newHeight;
}

bool Control::IsLive() const { return owner_->IsLoaded() && !TheProgram().Ended; }

bool Control::IsShown() const {
    for (const Control* at = this; at != nullptr; at = at->container_) {
        if (!at->Visible || OnHiddenPage(*at)) return false;
    }
    return owner_->Visible();
}

bool Control::IsUsable() const {
    for (const Control* at = this; at != nullptr; at = at->container_) {
        if (!at->Enabled) return false;
    }
    return owner_->Enabled && IsShown();
}

void Control::RequireUsable() const {
    owner_->RequireUsable();
    for (const Control* at = this; at != nullptr; at = at->container_) {
        const std::string where =
            at == this ? FullName() : FullName() + " can't be reached: " + at->FullName();
        if (!at->Visible) throw NotPossible(where + " is hidden");
        if (OnHiddenPage(*at)) {
            throw NotPossible(where + " stands on page " + std::to_string(at->TabPage) +
                              " of the tabs, which isn't on show");
        }
        if (!at->Enabled) throw NotPossible(where + " is disabled");
    }
}

void Control::SetFocus() {
    if (TakesFocus() && IsUsable()) owner_->MoveFocus(this);
}

void Control::TakeFocus() {
    if (TakesFocus()) owner_->MoveFocus(this);
}

void Control::UserClick() {
    RequireUsable();
    Form::DismissPopUps();
    TakeFocus();
    Fire(MouseDown, MouseButton::Left);
    Fire(MouseUp, MouseButton::Left);
    Fire(Click);
}

void Control::UserRightClick() {
    RequireUsable();
    Form::DismissPopUps();
    Fire(MouseDown, MouseButton::Right);
    Fire(MouseUp, MouseButton::Right);
}

void Control::UserEnter() {
    RequireUsable();
    if (!TakesFocus()) throw NotPossible(FullName() + " takes no focus");
    Form::DismissPopUps();
    TakeFocus();
}

void Control::UserLeave() {
    if (owner_->Focus() != this) throw NotPossible(FullName() + " hasn't got the focus");
    owner_->MoveFocus(nullptr);
}

void Control::UserKey(const KeyPress& key) {
    RequireUsable();
    Form::DismissPopUps();
    TakeFocus();
    if (KeyDown) {
        Fire(KeyDown, key);
    } else if (IsLive()) {
        owner_->Form_KeyDown(key);
    }
    if (!IsLive()) return;
    if (key.Key == "Enter" && !TakesEnter(*this)) FinishEntry();
    const bool onButton = Kind() == ControlKind::CommandButton && key.Key == "Enter";
    if (onButton || (key.Key == "Space" && IsPressedBySpace(*this))) {
        UserClick();
    } else if (key.Key == "Escape" || (key.Key == "Enter" && !TakesEnter(*this))) {
        owner_->PressButtonOf(key);
    }
}

}  // namespace tav
