#include "reports/report_units.h"

#include "core/number_text.h"
#include "core/program_state.h"
#include "core/temperature.h"

namespace tav {
namespace {

std::string InBrackets(const std::string& unit) { return " (" + unit + ")"; }

}  // namespace

std::string ReportValue::Text(std::string_view mask, Number factor, Number divisor) const {
    const bool unchanged = isField_ && factor == 1 && divisor == 1;
    const Number converted = value_ / divisor * factor;
    if (mask.empty()) return NumberText(Single(converted));
    if (unchanged) return FormatNumber(Single(value_), mask);
    return FormatNumber(converted.Value(), mask);
}

std::string Plain(ReportValue value, std::string_view mask, std::string_view unit) {
    return value.Text(mask) + std::string(unit);
}

std::string Energy(ReportValue value, std::string_view mask) {
    return Plain(value, mask, " (Mcal/day)");
}

ReportUnits::ReportUnits(bool metric) : metric_(metric) {
    TheProgram().WeightUnitLabel = metric ? "kg" : "lbs";
    TheProgram().WeightUnitFactor = metric ? 1 : kPoundsPerKilogram;
}

std::string ReportUnits::Mass() const { return TheProgram().WeightUnitLabel; }
std::string ReportUnits::MassPerDay() const { return Mass() + "/day"; }

Number ReportUnits::WeightFactor() const { return TheProgram().WeightUnitFactor; }

std::string ReportUnits::WeightNumber(ReportValue kilograms, std::string_view mask) const {
    return kilograms.Text(mask, WeightFactor());
}

std::string ReportUnits::GramsNumber(ReportValue grams) const {
    return GramsNumber(grams, Choose("0", "0.000"));
}

std::string ReportUnits::GramsNumber(ReportValue grams, std::string_view mask) const {
    return grams.Text(mask, metric_ ? 1 : kPoundsPerGram);
}

std::string ReportUnits::GramsInSteps(ReportValue grams) const {
    return GramsInSteps(grams, Choose("0", "0.000"));
}

std::string ReportUnits::GramsInSteps(ReportValue grams, std::string_view mask) const {
    return metric_ ? grams.Text(mask) : grams.Text(mask, kPoundsPerKilogram, 1000);
}

std::string ReportUnits::DensityNumber(ReportValue perKilogram, std::string_view mask) const {
    return perKilogram.Text(mask, metric_ ? 1 : 1 / kPoundsPerKilogram);
}

std::string ReportUnits::Converted(ReportValue value, std::string_view mask,
                                   Single englishFactor) const {
    return metric_ ? value.Text(mask) : value.Text(mask, englishFactor);
}

std::string ReportUnits::WeightUnit() const { return InBrackets(Mass()); }

std::string ReportUnits::Weight(ReportValue kilograms, std::string_view mask) const {
    return WeightNumber(kilograms, mask) + WeightUnit();
}

std::string ReportUnits::WeightPerDay(ReportValue kilograms, std::string_view mask) const {
    return WeightNumber(kilograms, mask) + InBrackets(MassPerDay());
}

std::string ReportUnits::Protein(ReportValue grams) const {
    return Protein(grams, Choose("0", "0.000"));
}

std::string ReportUnits::Protein(ReportValue grams, std::string_view mask) const {
    return GramsNumber(grams, mask) + std::string(Choose(" (g/day)", " (lbs/day)"));
}

std::string ReportUnits::EnergyDensity(ReportValue perKilogram) const {
    return perKilogram.Text("0.00", 1, metric_ ? 1 : kPoundsPerKilogram) +
           std::string(Choose(" (Mcal/kg)", " (Mcal/lbs)"));
}

std::string ReportUnits::Temperature(Single celsius, std::string_view mask,
                                     std::string_view metricUnit,
                                     std::string_view englishUnit) const {
    const ReportValue value = metric_ ? ReportValue(celsius) : CelsiusToFahrenheit(celsius);
    return Plain(value, mask, Choose(metricUnit, englishUnit));
}

}  // namespace tav
