// The third tab of the inputs screen: breed, weights and milk.
#include "core/number_text.h"
#include "core/program_state.h"
#include "core/simulation_record.h"
#include "model/breed_estimates.h"
#include "screens/inputs_form.h"
#include "screens/placing.h"
#include "screens/quantity.h"

#include <algorithm>
#include <array>

namespace tav {
namespace {

constexpr double kTrueShare = 0.93;  // true protein of a milk's crude protein
constexpr std::string_view kProteinMask = "0.00";

// What a breed's milk typically holds [%]. The protein is true protein.
struct TypicalMilk {
    std::string_view Breed;
    double Fat, Protein, Lactose;
};

constexpr std::array<TypicalMilk, 6> kBreeds = {{
    {"Ayrshire", 3.7, 3.4, 4.85},
    {"Brown Swiss", 3.6, 3.3, 4.85},
    {"Guernsey", 4.2, 3.6, 4.85},
    {"Holstein", 3.5, 3.2, 4.85},
    {"Jersey", 4.2, 3.6, 4.85},
    {"Milking Shorthorn", 3.6, 3.3, 4.75},
}};

}  // namespace

void InputsForm::SetUpProductionTab() {
    constexpr FieldColumn kWeights = {180, 2400, 1920};
    constexpr FieldColumn kMilkColumn = {6120, 3300, 2100};
    const auto place = [this](const FieldColumn& column, Label& label, const char* caption,
                              Control& box, int top) {
        PlaceFieldOn(InputTabs, kAnimalProduction, column, label, caption, box, top);
    };
    place(kWeights, lblBreed, "Breed", lstBreed, 780);
    lstBreed.Height = 2160;
    place(kWeights, lblMatureWeight, "Mature Weight", txtMatureWeight, 3120);
    PlaceCaption(chkMWFromBreed, "Mature Weight from Breed", 540, 3660, 5040);
    InputTabs.Put(chkMWFromBreed, kAnimalProduction);
    place(kWeights, lblCalfBirthWeight, "Calf Birth Weight", txtCalfBirthWeight, 4560);
    PlaceCaption(chkCBWFromMW, "Calf Birth Weight from Mature Weight", 540, 5100, 5040);
    InputTabs.Put(chkCBWFromMW, kAnimalProduction);

    place(kMilkColumn, lblMilkProduction, "Milk Production", txtMilkProduction, 780);
    place(kMilkColumn, lblMilkFat, "Milk Fat", txtMilkFat, 1500);
    fraMilkProtein.Caption = "Milk Protein";
    PlaceOn(InputTabs, kAnimalProduction, fraMilkProtein, 5940, 2220, 5880, 1980);
    PlaceCaption(optMilkCrudeProtein, "Crude Protein", 180, 390, 2520);
    PlaceCaption(optMilkTrueProtein, "True Protein", 180, 900, 2520);
    txtMilkProtein.Move(3600, 1410, kMilkColumn.BoxWidth, kBoxHeight);
    place(kMilkColumn, lblLactose, "Lactose", txtLactose, 4560);
    TieProductionEvents();
}

void InputsForm::TieProductionEvents() {
    for (const TypicalMilk& breed : kBreeds)
        lstBreed.AddItem(std::string(breed.Breed));
    for (NumericTextBox* const box : {&txtMilkFat, &txtMilkProtein, &txtLactose}) {
        box->Units = " (%)";
        box->Format = "0.00";
    }
    lstBreed.Click = [this] { lstBreed_Click(); };
    chkMWFromBreed.Click = [this] { chkMWFromBreed_Click(); };
    chkCBWFromMW.Click = [this] { chkCBWFromMW_Click(); };
    optMilkCrudeProtein.Click = [this] { ConvertMilkProtein(true); };
    optMilkTrueProtein.Click = [this] { ConvertMilkProtein(false); };
}

void InputsForm::ShowAnimalProduction() {
    const SimulationRecord& r = TheSimulation();
    txtMatureWeight.Maximum = 10000;
    txtCalfBirthWeight.Maximum = 1000;
    txtMilkProduction.Maximum = 1000;
    showingBreed_ = true;
    lstBreed.SetListIndex(lstBreed.IndexOf(r.Breed));
    showingBreed_ = false;
    ShowQuantity(txtMatureWeight, kWeight, r.MatureWeight);
    chkMWFromBreed.Value = r.MWFromBreed;
    txtMatureWeight.Enabled = !r.MWFromBreed;
    ShowQuantity(txtCalfBirthWeight, kWeight, r.CalfBirthWeight);
    chkCBWFromMW.Value = r.CBWFromMW;
    txtCalfBirthWeight.Enabled = !r.CBWFromMW;
    ShowMilk();
    SetMaximum(txtMatureWeight, 1500, 3300);
    SetLimits(txtCalfBirthWeight, {11.4, 79.6}, {25, 175});
    SetMaximum(txtMilkProduction, 100, 220);
    TheProgram().CurrentInputsTab = kAnimalProduction;
}

void InputsForm::ShowMilk() {
    const SimulationRecord& r = TheSimulation();
    (TheProgram().UseMilkTrueProtein ? optMilkTrueProtein : optMilkCrudeProtein).SetValue(true);
    if (r.AnimalType != kLactatingCow) {
        for (NumericTextBox* const box :
             {&txtMilkProduction, &txtMilkFat, &txtMilkProtein, &txtLactose}) {
            ShowNotApplicable(*box);
        }
        return;
    }
    ShowMilkYield();
    for (NumericTextBox* const box : {&txtMilkFat, &txtMilkProtein, &txtLactose})
        box->Enabled = true;
    ShowMasked(txtMilkFat, r.MilkFat, txtMilkFat.Format);
    ShowMilkProtein();
    ShowMasked(txtLactose, r.Lactose, txtLactose.Format);
}

// A cow that hasn't begun to give milk has no yield to enter.
void InputsForm::ShowMilkYield() {
    const SimulationRecord& r = TheSimulation();
    const bool inMilk = r.DaysInMilk != 0;
    txtMilkProduction.Enabled = inMilk;
    ShowQuantity(txtMilkProduction, kMilk, inMilk ? r.MilkProduction : Single(0));
}

void InputsForm::ShowMilkProtein() {
    const Single protein = TheSimulation().MilkTrueProtein;
    if (TheProgram().UseMilkTrueProtein) {
        ShowMasked(txtMilkProtein, protein, kProteinMask);
    } else {
        ShowMasked(txtMilkProtein, protein / kTrueShare, kProteinMask);
    }
}

void InputsForm::StoreAnimalProduction() const {
    if (TheProgram().StartingUp) return;
    SimulationRecord& r = TheSimulation();
    r.MatureWeight = EnteredQuantity(txtMatureWeight, kWeight);
    r.MWFromBreed = chkMWFromBreed.Value;
    r.Breed = lstBreed.Text();
    r.CalfBirthWeight = EnteredQuantity(txtCalfBirthWeight, kWeight);
    r.CBWFromMW = chkCBWFromMW.Value;
    if (r.AnimalType != kLactatingCow) return;
    r.MilkProduction = EnteredQuantity(txtMilkProduction, kMilk);
    r.MilkFat = EnteredNumber(txtMilkFat);
    const Number protein = EnteredNumber(txtMilkProtein);
    r.MilkTrueProtein = optMilkCrudeProtein.Value() ? protein * kTrueShare : protein;
    r.Lactose = EnteredNumber(txtLactose);
}

void InputsForm::TakeMatureWeightOfBreed() {
    SimulationRecord& r = TheSimulation();
    r.MatureWeight = MatureWeightFromBreed(lstBreed.Text());
    ShowQuantity(txtMatureWeight, kWeight, r.MatureWeight);
    if (chkCBWFromMW.Value) TakeBirthWeightEstimate();
}

void InputsForm::TakeBirthWeightEstimate() {
    SimulationRecord& r = TheSimulation();
    r.CalfBirthWeight = CalfBirthWeightFromMW(r);
    ShowQuantity(txtCalfBirthWeight, kWeight, r.CalfBirthWeight);
}

void InputsForm::chkMWFromBreed_Click() {
    if (chkMWFromBreed.Value) TakeMatureWeightOfBreed();
    txtMatureWeight.Enabled = !chkMWFromBreed.Value;
}

void InputsForm::chkCBWFromMW_Click() {
    if (chkCBWFromMW.Value) {
        TheSimulation().MatureWeight = EnteredQuantity(txtMatureWeight, kWeight);
        TakeBirthWeightEstimate();
    }
    txtCalfBirthWeight.Enabled = !chkCBWFromMW.Value;
}

void InputsForm::lstBreed_Click() {
    if (showingBreed_) return;
    if (chkMWFromBreed.Value) TakeMatureWeightOfBreed();
    if (TheSimulation().AnimalType == kLactatingCow) WriteTypicalMilk(lstBreed.Text());
}

// The record takes it over when the tab is stored.
void InputsForm::WriteTypicalMilk(std::string_view breed) {
    const auto* const milk = std::find_if(kBreeds.begin(), kBreeds.end(),
                                          [&](const TypicalMilk& m) { return m.Breed == breed; });
    if (milk == kBreeds.end()) return;
    ShowMasked(txtMilkFat, Number(milk->Fat), "0.0");
    const Number protein = milk->Protein;
    ShowMasked(txtMilkProtein, optMilkCrudeProtein.Value() ? protein / kTrueShare : protein, "0.0");
    ShowMasked(txtLactose, Number(milk->Lactose), "0.00");
}

// Shows the same milk by its other protein. An animal that gives none has nothing to convert.
void InputsForm::ConvertMilkProtein(bool toCrude) {
    if (ShowsNotApplicable(txtMilkProtein)) return;
    const Number protein = EnteredNumber(txtMilkProtein);
    ShowMasked(txtMilkProtein, toCrude ? protein / kTrueShare : protein * kTrueShare, kProteinMask);
}

}  // namespace tav
