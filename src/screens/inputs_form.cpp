#include "screens/inputs_form.h"

#include "core/program_state.h"
#include "core/simulation_record.h"

namespace tav {

InputsForm::InputsForm() : ScreenForm("Inputs") {
    InputTabs.TabCaptions = {"Program Settings", "Animal Description", "Animal Production",
                             "Management and Environment"};
    InputTabs.Move(0, 0, 12120, 7380);
    InputTabs.TabClick = [this](int previousTab) { InputTabs_Click(previousTab); };
}

void InputsForm::SetUp() { InputTabs.ShowPage(TheProgram().CurrentInputsTab); }

// A calf has no production and no management tab.
void InputsForm::InputTabs_Click(int previousTab) {
    if (TheProgram().StartingUp) return;
    if (TheSimulation().AnimalType == kYoungCalf && InputTabs.Tab() >= kAnimalProduction) {
        InputTabs.ShowPage(previousTab);
        return;
    }
    TheProgram().CurrentInputsTab = InputTabs.Tab();
}

}  // namespace tav
