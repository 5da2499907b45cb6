// What the animal type decides on the description tab: defaults, limits, and the small rules of
// its fields.
#include "core/new_simulation.h"
#include "core/number_text.h"
#include "core/platform.h"
#include "core/program_state.h"
#include "core/simulation_record.h"
#include "screens/inputs_form.h"
#include "screens/quantity.h"

#include <cmath>

namespace tav {
namespace {

// A gain that was kept while the target gain was in use comes back with this factor.
constexpr Quantity kKeptGain = {"grams", "lbs", 0.0022046F, 453.5929F, "0", "0.0000"};

// The greatest gain that can be asked for, when the tab is shown and when the type is chosen.
constexpr double kGainShown = 1500, kPoundsShown = 3.306;
constexpr double kGainChosen = 1000, kPoundsChosen = 2.2;

bool ConfirmTypeChange() {
    const Message question = {
        "Warning :  Changing Animal Types will replace your current settings with default values."
        "\r\nDo yo wish to continue?",
        "Confirm Animal Type Change", MessageIcon::Critical, MessageButtons::OKCancel};
    return ThePlatform().ShowMessage(question) == MessageAnswer::OK;
}

bool ConfirmClearingFeeds(const std::string& type) {
    const std::string kind = type == kYoungCalf ? "Young Calf" : "non-calf";
    const Message question = {"Switching to a " + kind +
                                  " animal type will automatically clear your feed list."
                                  "\r\n\r\nDo you wish to continue?",
                              "Confirm Setting Animal Type to = '" + type + "'",
                              MessageIcon::Question, MessageButtons::OKCancel};
    return ThePlatform().ShowMessage(question) == MessageAnswer::OK;
}

void ClearFeeds() {
    TheSimulation().Feeds.assign(1, {});
    TheSimulation().NumFeeds = 0;
}

void WarnOfLactationNumber(const std::string& text) {
    ThePlatform().ShowMessage({text, "Warning", MessageIcon::Information});
}

}  // namespace

// A refusal leaves what has been done before it: the limits stay open, and after the question about
// the feeds the record holds the new type's defaults. This is meant. The record takes the box's
// text once nothing can be refused any more, before the fields of the type are shown.
void InputsForm::cboAnimalType_Change() {
    SimulationRecord& r = TheSimulation();
    const std::string old = r.AnimalType;
    const std::string& type = cboAnimalType.Text();
    if (type == old) return;
    OpenDescriptionLimits();
    const bool calfBefore = old == kYoungCalf;
    const bool calfNow = type == kYoungCalf;
    if (!calfBefore && !calfNow && !ConfirmTypeChange()) {
        cboAnimalType.SetText(old);
        return;
    }
    SetAnimalTypeDefaults(r, type);
    if (calfBefore != calfNow && r.NumFeeds != 0) {
        if (!ConfirmClearingFeeds(type)) {
            cboAnimalType.SetText(old);
            return;
        }
        ClearFeeds();
    }
    r.AnimalType = type;
    WriteDescription(type);
    SetDescriptionLimits(type);
    if (type == kReplacementHeifer) SetMaximum(txtDesiredADG, kGainChosen, kPoundsChosen);
}

// Wide enough for every default in either unit system.
void InputsForm::OpenDescriptionLimits() {
    constexpr Limits kWide = {0, 10000};
    SetLimits(txtAge, {0, 100000});
    SetLimits(txtBodyWeight, kWide);
    SetLimits(txtAgeAtFirstCalving, kWide);
    SetLimits(txtCalvingInterval, kWide);
    SetLimits(txtDesiredADG, kWide);
    txtCalfBodyWeight.Maximum = 1000;
    SetLimits(txtCalfTemperature, {-100, 200});
}

// The limits of a type as the tab is shown. What a type doesn't name stays open.
void InputsForm::SetDescriptionLimits(std::string_view animalType) {
    if (animalType == kYoungCalf) {
        txtConditionScore.Minimum = 0;
        SetMaximum(txtCalfBodyWeight, 100, 221);
        SetLimits(txtCalfTemperature, {-35, 50}, {-31, 122});
        return;
    }
    if (animalType == kReplacementHeifer) {
        SetLimits(txtAge, {2, 30});
        SetLimits(txtBodyWeight, {46, 726}, {100, 1600});
        SetMaximum(txtDesiredADG, kGainShown, kPoundsShown);
    } else {
        SetLimits(txtAge, {animalType == kLactatingCow ? 18.0 : 26.0, 144});
        SetLimits(txtBodyWeight, {227, 1364}, {500, 3000});
    }
    txtAgeAtFirstCalving.Minimum = 15;
    txtCalvingInterval.Minimum = 11;
    txtConditionScore.Minimum = 1;
}

// The gain that was asked for is kept while the target gain takes its place.
void InputsForm::chkUseTargetADG_Click() {
    SimulationRecord& r = TheSimulation();
    if (!chkUseTargetADG.Value) {
        txtDesiredADG.Enabled = true;
        ShowQuantity(txtDesiredADG, kKeptGain, r.DesiredADG);
        return;
    }
    if (!ShowsNotApplicable(txtDesiredADG)) {
        r.DesiredADG = ToInteger(EnteredQuantity(txtDesiredADG, kKeptGain).Value());
    }
    ShowNotApplicable(txtDesiredADG);
}

// Only a warning: the number stands. It is compared with the ages that are stored, not with those
// that have been typed since.
void InputsForm::txtLactationNumber_ValueEntered() const {
    if (!IsNumeric(txtLactationNumber.Text)) return;
    const SimulationRecord& r = TheSimulation();
    const double entered = TextToNumber(txtLactationNumber.Text);
    const Number milking = r.Age - r.AgeAtFirstCalving;
    if (milking <= r.Age) {
        const double expected = std::trunc((milking / r.CalvingInterval).Value()) + 1;
        if (entered == expected) return;
        WarnOfLactationNumber(
            "Note that your value for Lactation Number is not what would \r\n"
            "normally be computed from the Age at First Calving and the Calving Interval.");
    } else if (entered > 1) {
        WarnOfLactationNumber(
            "Note that your value for Lactation Number is greater than what\r\n"
            "would normally be computed from the Age at First Calving and the Calving Interval.");
    }
}

}  // namespace tav
