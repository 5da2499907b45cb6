// The second tab of the inputs screen: the animal as it stands there.
#include "core/program_state.h"
#include "core/simulation_record.h"
#include "screens/inputs_form.h"
#include "screens/placing.h"
#include "screens/quantity.h"

namespace tav {
namespace {

constexpr double kGreatestScore = 5;        // of the scale from 1 to 5
constexpr double kGreatestLactation = 255;  // what the record's count holds

}  // namespace

void InputsForm::SetUpDescriptionTab() {
    constexpr FieldColumn kAnimal = {180, 2640, 2280};
    constexpr FieldColumn kGainColumn = {6120, 3300, 2100};
    constexpr FieldColumn kCalf = {180, 3300, 2100};
    const auto place = [this](const FieldColumn& column, Label& label, const char* caption,
                              Control& box, int top) {
        PlaceFieldOn(InputTabs, kAnimalDescription, column, label, caption, box, top);
    };
    place(kAnimal, lblAnimalType, "Animal Type", cboAnimalType, 780);
    place(kAnimal, lblAge, "Age", txtAge, 1680);
    place(kAnimal, lblBodyWeight, "Body Weight", txtBodyWeight, 2400);
    place(kAnimal, lblDaysPregnant, "Days Pregnant", txtDaysPregnant, 3120);
    place(kAnimal, lblConditionScore, "Condition Score", txtConditionScore, 3840);
    place(kAnimal, lblDaysInMilk, "Days In Milk", txtDaysInMilk, 4560);
    place(kAnimal, lblLactationNumber, "Lactation Number", txtLactationNumber, 5280);
    place(kAnimal, lblAgeAtFirstCalving, "Age At First Calving", txtAgeAtFirstCalving, 6000);
    place(kAnimal, lblCalvingInterval, "Calving Interval", txtCalvingInterval, 6720);

    place(kGainColumn, lblDesiredADG, "Desired Average Daily Gain", txtDesiredADG, 1680);
    PlaceCaption(chkUseTargetADG, "Use Target Average Daily Gain", 6120, 2400, 5160);
    InputTabs.Put(chkUseTargetADG, kAnimalDescription);
    fraCalfVariables.Caption = "Young Calf";
    PlaceOn(InputTabs, kAnimalDescription, fraCalfVariables, 5940, 5040, 5880, 2025);
    PlaceField(kCalf, lblCalfBodyWeight, "Calf Body Weight", txtCalfBodyWeight, 480);
    PlaceField(kCalf, lblCalfTemperature, "Calf Temperature", txtCalfTemperature, 1200);
    TieDescriptionEvents();
}

void InputsForm::TieDescriptionEvents() {
    for (const std::string_view type : kAnimalTypes)
        cboAnimalType.AddItem(std::string(type));
    txtAge.Units = "months";
    txtDaysPregnant.Units = "days";
    txtConditionScore.Format = "0.0";
    txtConditionScore.Maximum = kGreatestScore;
    txtDaysInMilk.Units = "days";
    txtLactationNumber.Maximum = kGreatestLactation;
    txtAgeAtFirstCalving.Units = "months";
    txtCalvingInterval.Units = "months";
    cboAnimalType.Change = [this] { cboAnimalType_Change(); };
    chkUseTargetADG.Click = [this] { chkUseTargetADG_Click(); };
    txtLactationNumber.ValueEntered = [this] { txtLactationNumber_ValueEntered(); };
}

void InputsForm::ShowAnimalDescription() {
    SimulationRecord& r = TheSimulation();
    cboAnimalType.SetText(r.AnimalType);
    if (r.AnimalType != kYoungCalf && r.ConditionScore == 0) r.ConditionScore = 1;
    OpenDescriptionLimits();
    WriteDescription(r.AnimalType);
    SetDescriptionLimits(r.AnimalType);
    TheProgram().CurrentInputsTab = kAnimalDescription;
}

void InputsForm::WriteDescription(std::string_view animalType) {
    const bool heifer = animalType == kReplacementHeifer;
    lblDesiredADG.Visible = heifer;
    txtDesiredADG.Visible = heifer;
    chkUseTargetADG.Visible = heifer;
    if (animalType == kYoungCalf) {
        WriteCalf();
    } else {
        WriteGrownAnimal(animalType);
    }
}

void InputsForm::WriteCalf() {
    const SimulationRecord& r = TheSimulation();
    for (NumericTextBox* const box :
         {&txtAge, &txtBodyWeight, &txtDaysPregnant, &txtConditionScore, &txtDaysInMilk,
          &txtLactationNumber, &txtAgeAtFirstCalving, &txtCalvingInterval}) {
        ShowNotApplicable(*box);
    }
    txtCalfBodyWeight.Enabled = true;
    txtCalfTemperature.Enabled = true;
    ShowQuantity(txtCalfBodyWeight, kCalfWeight, r.CalfBodyWeight);
    ShowTemperature(txtCalfTemperature, r.CalfTemperature);
}

void InputsForm::WriteGrownAnimal(std::string_view animalType) {
    const SimulationRecord& r = TheSimulation();
    const bool milked = animalType == kLactatingCow;
    for (NumericTextBox* const box : {&txtAge, &txtBodyWeight, &txtDaysPregnant, &txtConditionScore,
                                      &txtAgeAtFirstCalving, &txtCalvingInterval}) {
        box->Enabled = true;
    }
    ShowPlain(txtAge, r.Age);
    ShowQuantity(txtBodyWeight, kWeight, r.BodyWeight);
    ShowPlain(txtDaysPregnant, r.DaysPregnant);
    ShowMasked(txtConditionScore, r.ConditionScore, txtConditionScore.Format);
    ShowPlain(txtAgeAtFirstCalving, r.AgeAtFirstCalving);
    ShowPlain(txtCalvingInterval, r.CalvingInterval);
    if (milked) {
        txtDaysInMilk.Enabled = true;
        txtLactationNumber.Enabled = true;
        ShowPlain(txtDaysInMilk, r.DaysInMilk);
        ShowPlain(txtLactationNumber, r.LactationNumber);
    } else {
        ShowNotApplicable(txtDaysInMilk);
        ShowNotApplicable(txtLactationNumber);
    }
    if (animalType == kReplacementHeifer) WriteDesiredGain();
    ShowNotApplicable(txtCalfBodyWeight);
    ShowNotApplicable(txtCalfTemperature);
}

void InputsForm::WriteDesiredGain() {
    const SimulationRecord& r = TheSimulation();
    chkUseTargetADG.Value = r.UseTargetADG;
    txtDesiredADG.Enabled = true;
    ShowQuantity(txtDesiredADG, kGain, r.DesiredADG);
    if (r.UseTargetADG) ShowNotApplicable(txtDesiredADG);
}

void InputsForm::StoreAnimalDescription() const {
    if (TheProgram().StartingUp) return;
    SimulationRecord& r = TheSimulation();
    r.AnimalType = cboAnimalType.Text();
    if (r.AnimalType == kYoungCalf) {
        r.CalfBodyWeight = EnteredQuantity(txtCalfBodyWeight, kCalfWeight);
        r.CalfTemperature = EnteredTemperature(txtCalfTemperature);
        return;
    }
    const auto whole = [](const NumericTextBox& box) {
        return ToInteger(EnteredNumber(box).Value());
    };
    r.Age = whole(txtAge);
    r.BodyWeight = EnteredQuantity(txtBodyWeight, kWeight);
    r.DaysPregnant = whole(txtDaysPregnant);
    r.ConditionScore = EnteredNumber(txtConditionScore);
    const bool milked = r.AnimalType == kLactatingCow;
    r.DaysInMilk = milked ? whole(txtDaysInMilk) : std::int16_t{0};
    r.LactationNumber =
        milked ? ToByte(EnteredNumber(txtLactationNumber).Value()) : std::uint8_t{0};
    r.AgeAtFirstCalving = whole(txtAgeAtFirstCalving);
    r.CalvingInterval = whole(txtCalvingInterval);
    if (r.AnimalType != kReplacementHeifer) {
        r.UseTargetADG = false;
        r.DesiredADG = 0;
        return;
    }
    r.UseTargetADG = chkUseTargetADG.Value;
    if (!r.UseTargetADG) r.DesiredADG = ToInteger(EnteredQuantity(txtDesiredADG, kGain).Value());
}

}  // namespace tav
