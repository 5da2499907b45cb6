// How the quantities of the record, which are all metric, are shown and entered on the inputs
// screen. The two directions have constants of their own which are not exact inverses: a value that
// is shown and stored again may drift in its last digits.
#pragma once

#include "core/number.h"
#include "forms/text_box.h"

#include <string>
#include <string_view>

namespace tav {

inline constexpr std::string_view kNotApplicable = "N/A";

// A unit that begins with a blank is the one that the control has; one blank stands before it on
// the screen like before any other.
struct Quantity {
    std::string_view MetricUnit, EnglishUnit;
    float ToEnglish;  // from the record to the English display
    float ToRecord;   // from an English entry to the record
    std::string_view MetricMask, EnglishMask;
};

inline constexpr Quantity kWeight = {"kg", "lbs", 2.2046199F, 0.4535929F, "0", "0"};
inline constexpr Quantity kCalfWeight = {"kg", "lbs", 2.2046199F, 0.4535929F, "0.0", "0.0"};
inline constexpr Quantity kMilk = {"kg/day", "lbs/day", 2.2046199F, 0.4535929F, "0.0", "0.0"};
inline constexpr Quantity kGain = {"grams", "lbs", 0.00220462F, 453.5929F, "0", "0.0000"};
inline constexpr Quantity kWind = {" kph", " mph", 0.62137F, 1.6093471F, "0.0", "0.0"};
inline constexpr Quantity kDistance = {"m", "ft", 3.28F, 0.30487806F, "0", "0"};
inline constexpr Quantity kHairDepth = {"cm", "in", 0.3937F, 2.540005F, "0", "0"};

// A value of the record, with its factor, in a mask.
std::string ScaledText(Single value, Number factor, std::string_view mask);

// A number, one blank and the unit; the number alone where there is no unit.
std::string WithUnit(std::string_view number, std::string_view unit);

// Each shows a value of the record: as a quantity, as a temperature, by a mask with the box's own
// unit, or as the plain number with it. The first two set the box's unit and mask.
void ShowQuantity(NumericTextBox& box, const Quantity& quantity, Single value);
void ShowTemperature(NumericTextBox& box, Single celsius);
void ShowMasked(NumericTextBox& box, Single value, std::string_view mask);
void ShowMasked(NumericTextBox& box, Number value, std::string_view mask);
void ShowPlain(NumericTextBox& box, Single value);

// Shows "N/A" and disables the box.
void ShowNotApplicable(NumericTextBox& box);
bool ShowsNotApplicable(const NumericTextBox& box);

// Each gives what stands in a box: the number, the quantity or temperature for the record. They
// raise 13 where no number stands.
Number EnteredNumber(const NumericTextBox& box);
Number EnteredQuantity(const NumericTextBox& box, const Quantity& quantity);
Number EnteredTemperature(const NumericTextBox& box);

// A pair of limits. Setting them leaves the text as it is.
struct Limits {
    double Minimum, Maximum;
};
void SetLimits(NumericTextBox& box, Limits limits);
// The one of the two that fits the user's units.
void SetLimits(NumericTextBox& box, Limits metric, Limits english);
void SetMaximum(NumericTextBox& box, double metric, double english);

}  // namespace tav
