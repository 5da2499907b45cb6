// The inputs screen, frmInputs: program settings, the animal, its production and its surroundings.
#pragma once

#include "forms/screen_form.h"
#include "forms/tab_control.h"

namespace tav {

// The tabs, as the main window's menu opens them.
enum InputsTab : int {
    kProgramSettings = 0,
    kAnimalDescription = 1,
    kAnimalProduction = 2,
    kManagementAndEnvironment = 3,
};

class InputsForm : public ScreenForm {
  public:
    InputsForm();

    TabControl InputTabs{*this, "InputTabs"};

    // Selects the tab that was open last.
    void SetUp() override;

  private:
    void InputTabs_Click(int previousTab);
};

}  // namespace tav
