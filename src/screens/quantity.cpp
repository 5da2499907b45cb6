#include "screens/quantity.h"

#include "core/number_text.h"
#include "core/program_state.h"
#include "core/temperature.h"
#include "screens/leading_number.h"

namespace tav {
namespace {

bool Metric() { return TheProgram().UseMetric; }

// The unit of the field at hand.
void SetWorkingUnit(const Quantity& quantity, float englishFactor) {
    ProgramState& program = TheProgram();
    program.WeightUnitFactor = Metric() ? 1 : englishFactor;
    program.WeightUnitLabel = Metric() ? quantity.MetricUnit : quantity.EnglishUnit;
}

void ShowText(NumericTextBox& box, std::string_view number) {
    box.Text = WithUnit(number, box.Units);
}

}  // namespace

std::string ScaledText(Single value, Number factor, std::string_view mask) {
    if (factor == 1) return FormatNumber(value, mask);
    return FormatNumber((value * factor).Value(), mask);
}

std::string WithUnit(std::string_view number, std::string_view unit) {
    std::string text(number);
    if (!unit.empty()) text.append(unit.front() == ' ' ? "" : " ").append(unit);
    return text;
}

void ShowQuantity(NumericTextBox& box, const Quantity& quantity, Single value) {
    SetWorkingUnit(quantity, quantity.ToEnglish);
    box.Units = TheProgram().WeightUnitLabel;
    box.Format = Metric() ? quantity.MetricMask : quantity.EnglishMask;
    ShowText(box, ScaledText(value, TheProgram().WeightUnitFactor, box.Format));
}

void ShowTemperature(NumericTextBox& box, Single celsius) {
    box.Units = Metric() ? " deg C" : " deg F";
    box.Format = "0.0";
    ShowText(box, Metric() ? FormatNumber(celsius, box.Format)
                           : FormatNumber(CelsiusToFahrenheit(celsius).Value(), box.Format));
}

void ShowMasked(NumericTextBox& box, Single value, std::string_view mask) {
    ShowText(box, FormatNumber(value, mask));
}

void ShowMasked(NumericTextBox& box, Number value, std::string_view mask) {
    ShowText(box, FormatNumber(value.Value(), mask));
}

void ShowPlain(NumericTextBox& box, Single value) { ShowText(box, NumberText(value)); }

void ShowNotApplicable(NumericTextBox& box) {
    box.Text = kNotApplicable;
    box.Enabled = false;
}

bool ShowsNotApplicable(const NumericTextBox& box) { return box.Text == kNotApplicable; }

Number EnteredNumber(const NumericTextBox& box) { return LeadingNumber(box.Text); }

Number EnteredQuantity(const NumericTextBox& box, const Quantity& quantity) {
    SetWorkingUnit(quantity, quantity.ToRecord);
    return EnteredNumber(box) * TheProgram().WeightUnitFactor;
}

Number EnteredTemperature(const NumericTextBox& box) {
    const Number entered = EnteredNumber(box);
    return Metric() ? entered : FahrenheitToCelsius(entered);
}

void SetLimits(NumericTextBox& box, Limits limits) {
    box.Minimum = limits.Minimum;
    box.Maximum = limits.Maximum;
}

void SetLimits(NumericTextBox& box, Limits metric, Limits english) {
    SetLimits(box, Metric() ? metric : english);
}

void SetMaximum(NumericTextBox& box, double metric, double english) {
    box.Maximum = Metric() ? metric : english;
}

}  // namespace tav
