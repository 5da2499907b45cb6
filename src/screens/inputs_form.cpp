#include "screens/inputs_form.h"

#include "core/program_state.h"
#include "core/simulation_record.h"
#include "forms/context_help.h"

#include <initializer_list>

namespace tav {
namespace {

// The size that goes with a form of 800 by 600 pixels; the tabs keep that share of the form.
constexpr int kTabsWidth = 12120;
constexpr int kTabsHeight = 7380;

}  // namespace

InputsForm::InputsForm() : ScreenForm("Inputs") {
    SetUpTabs();
    SetUpSettingsTab();
    SetUpDescriptionTab();
    SetUpProductionTab();
    SetUpManagementTab();
    SetUpContextMenus();
    SetUpCredits();
}

void InputsForm::SetUpTabs() {
    InputTabs.TabCaptions = {"Program Settings", "Animal Description", "Animal Production",
                             "Management and Environment"};
    InputTabs.Move(0, 0, kTabsWidth, kTabsHeight);
    InputTabs.TabClick = [this](int previousTab) { InputTabs_Click(previousTab); };
}

void InputsForm::SetUpContextMenus() {
    const std::initializer_list<Control*> explained = {&chkCBWFromMW,
                                                       &chkDefaultSumRes,
                                                       &chkMWFromBreed,
                                                       &chkUseTargetADG,
                                                       &fraBasis,
                                                       &fraCalfVariables,
                                                       &fraCoatCondition,
                                                       &fraGrazing,
                                                       &fraHeadersAndFooters,
                                                       &fraHeatStress,
                                                       &fraMilkProtein,
                                                       &fraSummaryResults,
                                                       &fraUnits,
                                                       &lblAge,
                                                       &lblAgeAtFirstCalving,
                                                       &lblAnimalType,
                                                       &lblBodyWeight,
                                                       &lblBreed,
                                                       &lblCalfBirthWeight,
                                                       &lblCalfBodyWeight,
                                                       &lblCalfTemperature,
                                                       &lblCalvingInterval,
                                                       &lblComments,
                                                       &lblConditionScore,
                                                       &lblDaysInMilk,
                                                       &lblDaysPregnant,
                                                       &lblDefaultZoom,
                                                       &lblDesiredADG,
                                                       &lblDistance,
                                                       &lblHairDepth,
                                                       &lblLactationNumber,
                                                       &lblLactose,
                                                       &lblMatureWeight,
                                                       &lblMilkFat,
                                                       &lblMilkProduction,
                                                       &lblNightCooling,
                                                       &lblPreviousTemperature,
                                                       &lblTemperature,
                                                       &lblTopography,
                                                       &lblTrips,
                                                       &lblWindSpeed};
    for (Control* const control : explained) {
        control->MouseUp = [control](MouseButton button) {
            if (button == MouseButton::Right) OpenContextMenu(*control);
        };
    }
}

void InputsForm::SetUpInputs() {
    const int tab = TheProgram().CurrentInputsTab;
    InputTabs.ShowPage(tab);
    ShowTab(tab);
}

// A calf has no production and no management tab. The description is stored before the question, so
// that an animal that has just become a calf counts as one.
void InputsForm::InputTabs_Click(int previousTab) {
    if (TheProgram().StartingUp) return;
    StoreTab(TheProgram().CurrentInputsTab);
    if (TheSimulation().AnimalType == kYoungCalf && InputTabs.Tab() >= kAnimalProduction) {
        InputTabs.ShowPage(previousTab);
        return;
    }
    ShowTab(InputTabs.Tab());
}

void InputsForm::ShowTab(int tab) {
    switch (tab) {
        case kProgramSettings: ShowProgramSettings(); break;
        case kAnimalDescription: ShowAnimalDescription(); break;
        case kAnimalProduction: ShowAnimalProduction(); break;
        case kManagementAndEnvironment: ShowManagementAndEnvironment(); break;
        default: break;
    }
}

void InputsForm::StoreTab(int tab) {
    switch (tab) {
        case kProgramSettings: StoreProgramSettings(); break;
        case kAnimalDescription: StoreAnimalDescription(); break;
        case kAnimalProduction: StoreAnimalProduction(); break;
        case kManagementAndEnvironment: StoreManagementAndEnvironment(); break;
        default: break;
    }
}

}  // namespace tav
