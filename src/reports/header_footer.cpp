#include "reports/header_footer.h"

#include "reports/date_text.h"

#include <algorithm>
#include <array>

namespace tav {
namespace {

constexpr std::string_view kExtension = ".tav";

struct DateField {
    std::string_view Name;
    DateForm Form;
};

// Short dates and times are one step longer than their names say; this is meant.
constexpr std::array<DateField, 7> kDateFields = {{
    {"General Date", DateForm::General},
    {"Long Date", DateForm::LongDate},
    {"Medium Date", DateForm::MediumDate},
    {"Short Date", DateForm::MediumDate},
    {"Long Time", DateForm::LongTime},
    {"Short Time", DateForm::MediumTime},
    {"24 Hr Time", DateForm::ShortTime},
}};

bool HoldsExtension(std::string_view name) {
    const auto found = std::search(
        name.begin(), name.end(), kExtension.begin(), kExtension.end(),
        [](char a, char b) { return (a >= 'A' && a <= 'Z' ? a + ('a' - 'A') : a) == b; });
    return found != name.end();
}

}  // namespace

std::string FileStem(std::string_view fileName) {
    if (HoldsExtension(fileName)) fileName.remove_suffix(kExtension.size());
    return std::string(fileName);
}

std::string FieldText(std::string_view field, DateTime now) {
    if (field == "Page Number") return "Page %d";
    if (field == "Simulation File Name") return FileStem(TheProgram().SimulationFileName);
    for (const DateField& date : kDateFields) {
        if (date.Name == field) return DateText(now, date.Form);
    }
    return std::string(field);
}

std::string JoinedFields(const Texts3& fields, DateTime now) {
    return FieldText(fields[0], now) + "|" + FieldText(fields[1], now) + "|" +
           FieldText(fields[2], now);
}

}  // namespace tav
