// The way from one screen to another.
#pragma once

#include "core/main_window.h"

namespace tav {

// The main window and its screens, as the commands see them, on the forms of the program. Touching
// frmParent loads it.
class Navigation : public MainWindow {
  public:
    void ShowTerms() override;
    void PressButton(std::string_view key) override;
    void PressOnlyButton(std::string_view key) override;
    void ClickButton(std::string_view key) override;
    void ShowScreen(std::string_view key) override;
    void CloseScreen(std::string_view key) override;
    void StoreScreen(std::string_view key) override;
    void SetUpScreen(std::string_view key) override;
    void SetTitle(const std::string& title) override;
    CommonDialog& Dialog() override;
};

}  // namespace tav
