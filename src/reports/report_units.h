// Numbers and units of the lines of a report. The record is metric; a value is converted here, at
// the moment at which it is printed, and nowhere else.
#pragma once

#include "core/number.h"

#include <string>
#include <string_view>

namespace tav {

// What a line prints: a field of the record, or an expression. A field that needs no conversion is
// rounded on the 7 digits that it has, everything else on 15.
class ReportValue {
  public:
    ReportValue(Single field) : value_(field), isField_(true) {}
    ReportValue(Number expression) : value_(expression) {}
    ReportValue(int count) : value_(count) {}

    // The value divided by the divisor and times the factor, by a mask such as "0.00", or in the
    // general form of a 32-bit number where there is no mask.
    std::string Text(std::string_view mask, Number factor = 1, Number divisor = 1) const;

  private:
    Number value_;
    bool isField_ = false;
};

// The units of one component. Sets the shared WeightUnitLabel and WeightUnitFactor.
class ReportUnits {
  public:
    explicit ReportUnits(bool metric);

    bool Metric() const { return metric_; }
    // What stands in one of the two systems.
    std::string_view Choose(std::string_view metric, std::string_view english) const {
        return metric_ ? metric : english;
    }

    std::string Mass() const;        // "kg", "lbs"
    std::string MassPerDay() const;  // "kg/day", "lbs/day"

    // From the kilograms of the record to what is shown.
    Number WeightFactor() const;

    // Numbers alone. Grams a day have the mask "0" and become pounds a day with "0.000"; a density
    // is per kilogram of what it is in.
    std::string WeightNumber(ReportValue kilograms, std::string_view mask) const;
    std::string GramsNumber(ReportValue grams) const;
    std::string GramsNumber(ReportValue grams, std::string_view mask) const;
    // The same in two steps, by way of kilograms: what is halfway between two decimals may fall to
    // the other side.
    std::string GramsInSteps(ReportValue grams) const;
    std::string GramsInSteps(ReportValue grams, std::string_view mask) const;
    std::string DensityNumber(ReportValue perKilogram, std::string_view mask) const;

    // The number times the 32-bit factor in English units.
    std::string Converted(ReportValue value, std::string_view mask, Single englishFactor) const;

    // Numbers with the unit behind them: " (kg)", " (kg/day)", " (g/day)", " (Mcal/kg)". An energy
    // density is divided by the pounds of a kilogram, not multiplied by the kilograms of a pound.
    std::string WeightUnit() const;
    std::string Weight(ReportValue kilograms, std::string_view mask = {}) const;
    std::string WeightPerDay(ReportValue kilograms, std::string_view mask) const;
    std::string Protein(ReportValue grams) const;
    std::string Protein(ReportValue grams, std::string_view mask) const;
    std::string EnergyDensity(ReportValue perKilogram) const;
    std::string Temperature(Single celsius, std::string_view mask, std::string_view metricUnit,
                            std::string_view englishUnit) const;

  private:
    bool metric_;
};

// A value and its unit, alike in both systems.
std::string Plain(ReportValue value, std::string_view mask = {}, std::string_view unit = {});

// A value with " (Mcal/day)".
std::string Energy(ReportValue value, std::string_view mask = "0.00");

inline constexpr double kPoundsPerKilogram = 2.20462;
inline constexpr double kPoundsPerGram = 1.0 / 1000 * kPoundsPerKilogram;

}  // namespace tav
