#include "forms/form.h"

#include "core/platform.h"
#include "core/program_state.h"
#include "forms/buttons.h"
#include "forms/form_registry.h"
#include "forms/menu.h"

#include <algorithm>

namespace tav {

Form::Form(std::string name) : name_(std::move(name)) {}

void Form::Resize(Number width, Number height) {
    const Single newWidth = width;
    const Single newHeight = height;
    if (newWidth == Width && newHeight == Height) return;
    Width = newWidth;
    Height = newHeight;
    if (loaded_) Form_Resize();
}

void Form::SetWindowState(WindowState state) {
    if (state == state_) return;
    if (state_ == WindowState::Normal) {
        normalWidth_ = Width;
        normalHeight_ = Height;
    }
    state_ = state;
    if (state == WindowState::Maximised) {
        const ScreenSize screen = ThePlatform().Screen();
        Width = screen.Width;
        Height = screen.Height;
    } else if (state == WindowState::Normal) {
        Width = normalWidth_;
        Height = normalHeight_;
    }
    if (loaded_) Form_Resize();
}

Control* Form::Find(std::string_view name, int index) const {
    const auto found =
        std::find_if(controls_.begin(), controls_.end(), [&](const Control* control) {
            return control->Name() == name && control->Index() == index;
        });
    return found == controls_.end() ? nullptr : *found;
}

void Form::MoveFocus(Control* control) {
    if (control == focus_) return;
    if (Control* const previous = focus_) {
        previous->FinishEntry();
        // The event of a completed entry may itself have moved the focus.
        if (focus_ != previous) return;
        focus_ = nullptr;
        previous->Fire(previous->LostFocus);
        if (focus_ != nullptr) return;
    }
    focus_ = control;
    if (control != nullptr) control->Fire(control->GotFocus);
}

void Form::PopUp(MenuItem& menu, std::function<void()> closed) {
    DismissPopUps();
    popUp_ = &menu;
    popUpClosed_ = std::move(closed);
    TheProgram().Popup = menu.Name();
}

void Form::ClosePopUp() {
    if (popUp_ == nullptr) return;
    popUp_ = nullptr;
    const auto closed = std::exchange(popUpClosed_, {});
    if (closed) closed();
}

void Form::DismissPopUps() {
    for (Form* const form : TheForms().Loaded())
        form->ClosePopUp();
}

void Form::FinishEntry() {
    if (focus_ != nullptr) focus_->FinishEntry();
}

void Form::FinishEntries() {
    for (Form* const form : TheForms().Loaded())
        form->FinishEntry();
}

void Form::RequireUsable() const {
    if (!loaded_) throw NotPossible(name_ + " isn't loaded");
    if (!visible_) throw NotPossible(name_ + " isn't shown");
    if (!Enabled) throw NotPossible(name_ + " is disabled");
    const Form* const modal = TheForms().Modal();
    if (modal != nullptr && modal != this) {
        throw NotPossible(name_ + " can't be reached: " + modal->name_ + " is open in front of it");
    }
}

void Form::UserResize(Number width, Number height) {
    RequireUsable();
    if (!Sizable || state_ != WindowState::Normal) throw NotPossible(name_ + " can't be resized");
    DismissPopUps();
    Resize(width, height);
}

void Form::UserSetState(WindowState state) {
    RequireUsable();
    if (!Sizable) throw NotPossible(name_ + " can't be maximised or minimised");
    DismissPopUps();
    SetWindowState(state);
}

void Form::Press(MouseButton button) {
    RequireUsable();
    DismissPopUps();
    Form_MouseDown(button);
    Form_MouseUp(button);
}

void Form::UserClick() {
    Press(MouseButton::Left);
    if (loaded_ && !TheProgram().Ended) Form_Click();
}

void Form::UserRightClick() { Press(MouseButton::Right); }

void Form::UserKey(const KeyPress& key) {
    RequireUsable();
    DismissPopUps();
    Form_KeyDown(key);
    if (loaded_ && !TheProgram().Ended) PressButtonOf(key);
}

void Form::PressButtonOf(const KeyPress& key) {
    for (Control* const control : controls_) {
        auto* const button = dynamic_cast<CommandButton*>(control);
        if (button == nullptr || !button->IsUsable()) continue;
        if ((key.Key == "Enter" && button->Default) || (key.Key == "Escape" && button->Cancel)) {
            button->UserClick();
            return;
        }
    }
}

void Form::UserClose() {
    RequireUsable();
    if (!HasCloseBox) throw NotPossible(name_ + " has no close box");
    DismissPopUps();
    TheForms().Unload(name_);
}

}  // namespace tav
