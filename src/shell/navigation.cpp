#include "shell/navigation.h"

#include "core/program_state.h"
#include "forms/form_registry.h"
#include "forms/screen_form.h"
#include "shell/parent_form.h"

namespace tav {
namespace {

std::string FormName(std::string_view key) { return "frm" + std::string(key); }

ParentForm& TheParent() { return TheForms().Get<ParentForm>("frmParent"); }

void SetPressed(std::string_view key, bool pressed) {
    ToolbarButton* const button = TheParent().Toolbar.Button(key);
    if (button != nullptr) button->Pressed = pressed;
}

// The screen of that key if it is loaded, null otherwise.
ScreenForm* LoadedScreen(std::string_view key) {
    return dynamic_cast<ScreenForm*>(TheForms().Find(FormName(key)));
}

}  // namespace

void Navigation::ShowTerms() { TheForms().Show("frmSplash"); }

void Navigation::PressButton(std::string_view key) { SetPressed(key, true); }

void Navigation::PressOnlyButton(std::string_view key) {
    for (const std::string_view screen : kScreenKeys)
        SetPressed(screen, screen == key);
}

void Navigation::ClickButton(std::string_view key) {
    ParentForm& parent = TheParent();
    ToolbarButton* const button = parent.Toolbar.Button(key);
    if (button != nullptr) parent.Toolbar_ButtonClick(*button);
}

void Navigation::ShowScreen(std::string_view key) {
    if (!IsScreen(key)) return;
    TheForms().Show(FormName(key));
    // A simulation that can't be read at the start brings up the inputs beside the screen with
    // which the main window has just begun.
    for (const std::string_view other : kScreenKeys) {
        if (other != key) CloseScreen(other);
    }
}

void Navigation::CloseScreen(std::string_view key) {
    if (IsScreen(key)) TheForms().Unload(FormName(key));
}

void Navigation::StoreScreen(std::string_view key) {
    if (ScreenForm* const screen = LoadedScreen(key)) screen->Store();
}

void Navigation::SetUpScreen(std::string_view key) {
    if (ScreenForm* const screen = LoadedScreen(key)) screen->SetUp();
}

void Navigation::SetTitle(const std::string& title) { TheParent().Caption = title; }

CommonDialog& Navigation::Dialog() { return TheParent().CommonDialog1; }

}  // namespace tav
