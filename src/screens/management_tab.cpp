// The fourth tab of the inputs screen: weather, grazing, and what only a heifer is asked for.
#include "core/program_state.h"
#include "core/simulation_record.h"
#include "screens/inputs_form.h"
#include "screens/placing.h"
#include "screens/quantity.h"

#include <array>

namespace tav {
namespace {

constexpr const char* kFlatTerrain = "Flat Terrain";
constexpr const char* kHillyTerrain = "Hilly Terrain";
constexpr const char* kNoNightCooling = "None";
constexpr double kMostTrips = 32766;  // the greatest even count that the record holds

constexpr Limits kCelsius = {-35, 50};
constexpr Limits kFahrenheit = {-31, 122};

// Texts of the record for the options of a frame, in their order. Any other text switches the last
// one on.
constexpr std::array<const char*, 4> kCoats = {"Clean/Dry", "Some Mud", "Wet/Matted",
                                               "Covered with Snow/Mud"};
constexpr std::array<const char*, 3> kHeat = {"None", "Rapid/Shallow", "Open Mouth"};

template <std::size_t N>
void ShowOption(const std::array<OptionButton*, N>& options,
                const std::array<const char*, N>& texts, std::string_view text) {
    std::size_t i = 0;
    while (i + 1 < N && text != texts[i])
        ++i;
    options[i]->SetValue(true);
}

template <std::size_t N>
std::string StoredOption(const std::array<OptionButton*, N>& options,
                         const std::array<const char*, N>& texts) {
    std::size_t i = 0;
    while (i + 1 < N && !options[i]->Value())
        ++i;
    return texts[i];
}

}  // namespace

void InputsForm::SetUpManagementTab() {
    constexpr FieldColumn kColumn = {180, 2760, 2280};
    PlaceFieldOn(InputTabs, kManagementAndEnvironment, kColumn, lblTemperature,
                 "Current Temperature", txtTemperature, 720);
    SetUpGrazingFrame();
    SetUpHeiferFields();
}

void InputsForm::SetUpGrazingFrame() {
    constexpr FieldColumn kWalk = {3600, 5400, 2340};
    fraGrazing.Caption = "Grazing";
    PlaceOn(InputTabs, kManagementAndEnvironment, fraGrazing, 180, 1440, 11640, 2040);
    PlaceCaption(optGrazing, "Grazing", 180, 390, 2880);
    PlaceCaption(optNoGrazing, "No Grazing", 180, 900, 2880);
    PlaceField(kWalk, lblTopography, "Topography", cboTopography, 390);
    PlaceField(kWalk, lblDistance, "", txtDistance, 930);
    PlaceField(kWalk, lblTrips, "Trips Between Pasture and Milking Center", txtTrips, 1470);
    cboTopography.AddItem(kFlatTerrain);
    cboTopography.AddItem(kHillyTerrain);
    txtTrips.Units = " / day";
    txtTrips.Maximum = kMostTrips;
    optGrazing.Click = [this] { optGrazing_Click(); };
    optNoGrazing.Click = [this] { optNoGrazing_Click(); };
}

void InputsForm::SetUpHeiferFields() {
    constexpr FieldColumn kLeft = {180, 2760, 2280};
    constexpr FieldColumn kRight = {6120, 3300, 2100};
    const auto place = [this](const FieldColumn& column, Label& label, const char* caption,
                              Control& box, int top) {
        PlaceFieldOn(InputTabs, kManagementAndEnvironment, column, label, caption, box, top);
    };
    place(kLeft, lblPreviousTemperature, "Previous Temperature", txtPreviousTemperature, 3780);
    place(kRight, lblWindSpeed, "Wind Speed", txtWindSpeed, 3780);
    fraCoatCondition.Caption = "Coat Condition";
    PlaceOn(InputTabs, kManagementAndEnvironment, fraCoatCondition, 180, 4440, 5700, 2460);
    fraHeatStress.Caption = "Heat Stress";
    PlaceOn(InputTabs, kManagementAndEnvironment, fraHeatStress, 6120, 4440, 5700, 2460);
    PlaceCaption(optCleanDry, "Clean and Dry", 180, 390, 5280);
    PlaceCaption(optSomeMud, "Some Mud on Lower Body", 180, 900, 5280);
    PlaceCaption(optWetMatted, "Wet and Matted", 180, 1410, 5280);
    PlaceCaption(optCovered, "Covered with Wet Snow or Mud", 180, 1920, 5280);
    PlaceCaption(optNoHeatStress, "None", 180, 390, 5280);
    PlaceCaption(optRapidShallow, "Rapid / Shallow Panting", 180, 900, 5280);
    PlaceCaption(optOpenMouth, "Open Mouth Panting", 180, 1410, 5280);
    place(kLeft, lblHairDepth, "Hair Depth", txtHairDepth, 7200);
    place(kRight, lblNightCooling, "Night Cooling", cboNightCooling, 7200);
    cboNightCooling.AddItem(kNoNightCooling);
    cboNightCooling.AddItem("Night Cooling");
}

void InputsForm::ShowManagementAndEnvironment() {
    const SimulationRecord& r = TheSimulation();
    constexpr Limits kWide = {-100, 200};
    SetLimits(txtTemperature, kWide);
    SetLimits(txtPreviousTemperature, kWide);
    txtWindSpeed.Maximum = 200;
    txtHairDepth.Maximum = 100;
    ShowTemperature(txtTemperature, r.Temperature);
    ShowGrazing();
    ShowHeiferFields();
    SetLimits(txtTemperature, kCelsius, kFahrenheit);
    SetLimits(txtPreviousTemperature, kCelsius, kFahrenheit);
    SetMaximum(txtWindSpeed, 50, 32);
    SetMaximum(txtHairDepth, 16, 6.3);
    TheProgram().CurrentInputsTab = kManagementAndEnvironment;
}

void InputsForm::ShowGrazing() {
    const SimulationRecord& r = TheSimulation();
    cboTopography.SetText(r.Topography == "Flat" ? kFlatTerrain : kHillyTerrain);
    lblDistance.Caption = r.AnimalType == kLactatingCow
                              ? "Distance Between Pasture and Milking Center"
                              : "Average Distance Traveled Each Day";
    (r.Grazing ? optGrazing : optNoGrazing).SetValue(true);
    if (r.Grazing) {
        optGrazing_Click();
    } else {
        optNoGrazing_Click();
    }
}

void InputsForm::optNoGrazing_Click() {
    cboTopography.Enabled = false;
    ShowNotApplicable(txtDistance);
    ShowNotApplicable(txtTrips);
}

// A heifer's walk is not asked for, even where she grazes: it is stored as none.
void InputsForm::optGrazing_Click() {
    const SimulationRecord& r = TheSimulation();
    cboTopography.Enabled = true;
    txtDistance.Enabled = true;
    txtTrips.Enabled = true;
    ShowQuantity(txtDistance, kDistance, r.Distance);
    if (r.AnimalType == kLactatingCow) {
        ShowPlain(txtTrips, r.Trips);
        return;
    }
    ShowNotApplicable(txtTrips);
    if (r.AnimalType == kReplacementHeifer) ShowNotApplicable(txtDistance);
}

void InputsForm::ShowHeiferFields() {
    const SimulationRecord& r = TheSimulation();
    const bool heifer = r.AnimalType == kReplacementHeifer;
    fraCoatCondition.Enabled = heifer;
    fraHeatStress.Enabled = heifer;
    cboNightCooling.Enabled = heifer;
    if (!heifer) {
        for (NumericTextBox* const box : {&txtPreviousTemperature, &txtWindSpeed, &txtHairDepth})
            ShowNotApplicable(*box);
        optCleanDry.SetValue(true);
        optNoHeatStress.SetValue(true);
        cboNightCooling.SetListIndex(0);
        return;
    }
    for (NumericTextBox* const box : {&txtPreviousTemperature, &txtWindSpeed, &txtHairDepth})
        box->Enabled = true;
    ShowTemperature(txtPreviousTemperature, r.PreviousTemperature);
    ShowQuantity(txtWindSpeed, kWind, r.WindSpeed);
    ShowQuantity(txtHairDepth, kHairDepth, r.HairDepth);
    ShowOption<4>({&optCleanDry, &optSomeMud, &optWetMatted, &optCovered}, kCoats, r.CoatCondition);
    ShowOption<3>({&optNoHeatStress, &optRapidShallow, &optOpenMouth}, kHeat, r.HeatStress);
    cboNightCooling.SetListIndex(r.NightCooling ? 1 : 0);
}

void InputsForm::StoreManagementAndEnvironment() {
    if (TheProgram().StartingUp) return;
    SimulationRecord& r = TheSimulation();
    r.Temperature = EnteredTemperature(txtTemperature);
    StoreGrazing();
    if (r.AnimalType == kReplacementHeifer) StoreHeiferFields();
}

void InputsForm::StoreGrazing() const {
    SimulationRecord& r = TheSimulation();
    r.Grazing = optGrazing.Value();
    if (!r.Grazing) {
        r.Distance = 0;
        r.Trips = 0;
        return;
    }
    r.Topography = cboTopography.Text() == kFlatTerrain ? "Flat" : "Hilly";
    r.Distance = ShowsNotApplicable(txtDistance)
                     ? std::int16_t{0}
                     : ToInteger(EnteredQuantity(txtDistance, kDistance).Value());
    if (r.AnimalType != kLactatingCow) return;
    // There and back.
    const std::int16_t trips = ToInteger(EnteredNumber(txtTrips).Value());
    r.Trips = trips % 2 == 0 ? trips : ToInteger(trips + 1.0);
}

void InputsForm::StoreHeiferFields() {
    SimulationRecord& r = TheSimulation();
    r.PreviousTemperature = EnteredTemperature(txtPreviousTemperature);
    r.WindSpeed = EnteredQuantity(txtWindSpeed, kWind);
    r.CoatCondition =
        StoredOption<4>({&optCleanDry, &optSomeMud, &optWetMatted, &optCovered}, kCoats);
    r.HeatStress = StoredOption<3>({&optNoHeatStress, &optRapidShallow, &optOpenMouth}, kHeat);
    r.HairDepth = EnteredQuantity(txtHairDepth, kHairDepth);
    r.NightCooling = cboNightCooling.Text() != kNoNightCooling;
}

}  // namespace tav
