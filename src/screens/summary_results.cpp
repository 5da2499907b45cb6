#include "screens/summary_results.h"

#include "core/number_text.h"
#include "core/program_state.h"
#include "screens/quantity.h"

#include <algorithm>

namespace tav {
namespace {

using Record = SimulationRecord;

constexpr double kPoundsPerKilogram = 2.20462;

// The choices that are no number with a unit, and the line before which the first is offered.
constexpr std::string_view kDaysToChange = "Days To Change 1 Condition Score";
constexpr std::string_view kAfterDays = "RDP Balance";
constexpr std::string_view kBlank = "Blank";

// What stands behind a value, and with it the factor that the value takes in English units.
enum class Unit {
    WeightPerDay,
    EnergyDensity,
    CalfEnergyDensity,
    McalPerDay,
    GramsPerDay,
    GramsShort,
    Grams,
    PercentDM,
    Percent
};

struct UnitText {
    std::string Text;
    Number Factor;
};

// A weight a day has the working unit, the rest units of its own.
UnitText TextOf(Unit unit, bool metric) {
    const Number perWeight = metric ? 1 : 1 / kPoundsPerKilogram;
    switch (unit) {
        case Unit::WeightPerDay:
            return {TheProgram().WeightUnitLabel, TheProgram().WeightUnitFactor};
        case Unit::EnergyDensity: return {metric ? " (Mcal/kg DM)" : " (Mcal/lbs DM)", perWeight};
        case Unit::CalfEnergyDensity: return {metric ? " (Mcal/kg)" : " (Mcal/lbs)", perWeight};
        case Unit::McalPerDay: return {" (Mcal/day)", 1};
        case Unit::GramsPerDay: return {" (g/day)", 1};
        case Unit::GramsShort: return {" (g/d)", 1};
        case Unit::Grams: return {" (g)", 1};
        case Unit::PercentDM: return {" (%DM)", 1};
        case Unit::Percent: return {"%", 1};
    }
    return {"", 1};
}

// One choice: the line's beginning, its value (a field, or an expression where there is none), mask
// and unit, and what stands instead for an animal that the line does not fit.
struct Choice {
    const char* Name;
    const char* Prefix;
    Single Record::*Field;
    Number (*Expression)(const Record&);
    const char* Mask;
    Unit UnitOfValue;
    const char* NotApplicable;
};

Number NElBalance(const Record& r) {
    return r.TotalNEl - (r.NEPreg + r.NEMaint + r.NELact + r.NEGrowthDiet);
}
Number MEBalance(const Record& r) { return r.TotalME - (r.MEPreg + r.MEMaint + r.MEGrowth); }
Number MPBalanceOf(const Record& r) {
    return (r.MPFeed * 1000 + r.MPBacterial + r.EndogenousMP) -
           (r.MPPreg + r.MPMaint + r.MPLact + r.MPGrowth);
}
Number DegradedProteinPercent(const Record& r) {
    return r.TotalCP / (r.TotalDMI * 1000) * (r.DietRDP * 100);
}

// Lines of cows and heifers, in the order in which they are offered. The first three are a
// lactating cow's alone.
constexpr std::array<Choice, 19> kChoices = {{
    {"Entered Milk Production", "Entered Milk Production :  ", &Record::MilkProduction, nullptr,
     "0.0", Unit::WeightPerDay, "Entered Milk Production :  N/A"},
    {"Energy Allowable Milk", "NEl Allowable Milk :  ", &Record::EnergyAllowableMilk, nullptr,
     "0.0", Unit::WeightPerDay, "ME Allowable Milk :  N/A"},
    {"MP Allowable Milk", "MP Allowable Milk :  ", &Record::ProteinAllowableMilk, nullptr, "0.0",
     Unit::WeightPerDay, "MP Allowable Milk :  N/A"},
    {"NEl Balance", "NEl Balance :  ", nullptr, NElBalance, "0.0", Unit::McalPerDay,
     "NEl Balance :  N/A"},
    {"RDP Balance", "RDP Balance :  ", &Record::RDPBalance, nullptr, "0", Unit::GramsShort,
     "RDP Balance :  N/A"},
    {"MP Balance", "MP Balance :  ", nullptr, MPBalanceOf, "0", Unit::GramsPerDay,
     "MP Balance :  N/A"},
    {"Diet NEl", "Diet NEl :  ", &Record::DietNEl, nullptr, "0.00", Unit::EnergyDensity,
     "NEl Concentration :  N/A"},
    {"Diet CP", "Diet CP :  ", nullptr, [](const Record& r) { return r.DietCP * 100; }, "0.0",
     Unit::PercentDM, "Diet CP :  N/A"},
    {"Predicted Dry Matter Intake", "DMI - Predicted :  ", &Record::PredDMI, nullptr, "0.00",
     Unit::WeightPerDay, "DMI - Predicted :  N/A"},
    {"ME Balance", "ME Balance :  ", nullptr, MEBalance, "0.0", Unit::McalPerDay,
     "ME Balance :  N/A"},
    {"Diet ME", "Diet ME :  ", &Record::DietME, nullptr, "0.00", Unit::EnergyDensity,
     "ME Concentration :  N/A"},
    {"Diet Protein Degradability", "CP - RDP :  ", nullptr, DegradedProteinPercent, "0.0",
     Unit::PercentDM, "CP - RDP :  N/A"},
    {"Diet NEg", "Diet NEg :  ", &Record::DietNEg, nullptr, "0.00", Unit::EnergyDensity,
     "Diet NEg :  N/A"},
    {"Target ADG w/o Conceptus", "Target ADG w/o Conceptus :  ", &Record::TargetADGNoConceptus,
     nullptr, "0.00", Unit::WeightPerDay, "Target ADG w/o Conceptus :  N/A"},
    {"Target ADG with Conceptus", "Target ADG with Conceptus :  ", &Record::TargetADGConceptus,
     nullptr, "0.00", Unit::WeightPerDay, "Target ADG with Conceptus :  N/A"},
    {"Energy Allowable ADG w/o Conceptus",
     "Energy Allowable ADG w/o Conceptus :  ", &Record::ADGEnergy, nullptr, "0.00",
     Unit::WeightPerDay, "Energy Allowable ADG w/o Conceptus :  N/A"},
    {"Energy Allowable ADG with Conceptus",
     "Energy Allowable ADG with Conceptus :  ", &Record::ADGEnergyConceptus, nullptr, "0.00",
     Unit::WeightPerDay, "Energy Allowable ADG with Conceptus :  N/A"},
    {"MP Allowable ADG w/o Conceptus", "MP Allowable ADG w/o Conceptus :  ", &Record::ADGMP,
     nullptr, "0.00", Unit::WeightPerDay, "MP Allowable ADG w/o Conceptus :  N/A"},
    {"MP Allowable ADG with Conceptus",
     "MP Allowable ADG with Conceptus :  ", &Record::ADGMPConceptus, nullptr, "0.00",
     Unit::WeightPerDay, "MP Allowable ADG with Conceptus :  N/A"},
}};

// Lines of the young calf, offered behind those.
constexpr std::array<Choice, 11> kCalfChoices = {{
    {"(CALF) Dry Matter Intake - Milk", "Milk Dry Matter Intake :  ", &Record::CalfMilkDMI, nullptr,
     "0.00", Unit::WeightPerDay, "(CALF) Milk Dry Matter Intake :  N/A"},
    {"(CALF) Dry Matter Intake - Starter", "Starter Dry Matter Intake :  ", &Record::CalfStarterDMI,
     nullptr, "0.00", Unit::WeightPerDay, "(CALF) Starter Dry Matter Intake :  N/A"},
    {"(CALF) Energy Allowable Gain", "Energy Allowable Gain :  ", &Record::CalfEnergyGain, nullptr,
     "0.00", Unit::WeightPerDay, "(CALF) Energy Allowable Gain :  N/A"},
    {"(CALF) Diet ME", "Diet ME :  ", &Record::CalfDietME, nullptr, "0.00", Unit::CalfEnergyDensity,
     "(CALF) Diet ME :  N/A"},
    {"(CALF) Diet NEm", "Diet NEm :  ", &Record::CalfDietNEm, nullptr, "0.00",
     Unit::CalfEnergyDensity, "(CALF) Diet NEm :  N/A"},
    {"(CALF) Diet NEg", "Diet NEg :  ", &Record::CalfDietNEg, nullptr, "0.00",
     Unit::CalfEnergyDensity, "(CALF) Diet NEg :  N/A"},
    {"(CALF) Diet CP", "Diet CP :  ", &Record::CalfDietCP, nullptr, "0.0", Unit::Percent,
     "(CALF) Diet CP :  N/A"},
    {"(CALF) Diet DCP", "Diet DCP :  ", &Record::CalfDietDCP, nullptr, "0.0", Unit::Percent,
     "(CALF) Diet DCP :  N/A"},
    {"(CALF) Digestible Protein Balance", "Digestible Protein Balance :  ", &Record::CalfADPBalance,
     nullptr, "0", Unit::Grams, "(CALF) Digestible Protein Balance :  N/A"},
    {"(CALF) Crude Protein Balance", "Crude Protein Balance :  ", &Record::CalfCPBalance, nullptr,
     "0", Unit::Grams, "(CALF) Crude Protein Balance :  N/A"},
    {"(CALF) Apparently Dig. Protein Allowable Gain", "ADP Allowable Gain :  ", nullptr,
     [](const Record& r) { return r.CalfADPGain / 1000; }, "0.00", Unit::WeightPerDay, ""},
}};

constexpr std::array<SummaryChoices, 4> kDefaults = {{
    {"Entered Milk Production", "Energy Allowable Milk", "MP Allowable Milk", "NEl Balance",
     "Days To Change 1 Condition Score", "RDP Balance", "MP Balance", "Diet NEl", "Diet CP",
     "Predicted Dry Matter Intake"},
    {"ME Balance", "NEl Balance", "MP Balance", "RDP Balance", "Days To Change 1 Condition Score",
     "Blank", "Diet ME", "Diet NEl", "Diet CP", "Diet Protein Degradability"},
    {"Target ADG w/o Conceptus", "Target ADG with Conceptus", "Energy Allowable ADG w/o Conceptus",
     "MP Allowable ADG w/o Conceptus", "RDP Balance", "MP Balance", "Diet ME", "Diet CP",
     "Diet Protein Degradability", "Predicted Dry Matter Intake"},
    {"(CALF) Dry Matter Intake - Milk", "(CALF) Dry Matter Intake - Starter",
     "(CALF) Energy Allowable Gain", "(CALF) Diet ME", "(CALF) Diet NEm", "(CALF) Diet NEg",
     "(CALF) Diet CP", "(CALF) Diet DCP", "(CALF) Apparently Dig. Protein Allowable Gain",
     "(CALF) Crude Protein Balance"},
}};

std::string ValueText(const Record& r, const Choice& choice, Number factor) {
    if (choice.Field != nullptr) return ScaledText(r.*choice.Field, factor, choice.Mask);
    return FormatNumber((choice.Expression(r) * factor).Value(), choice.Mask);
}

template <class Choices>
const Choice* Find(const Choices& choices, std::string_view name) {
    const auto found = std::find_if(choices.begin(), choices.end(),
                                    [&](const Choice& choice) { return choice.Name == name; });
    return found == choices.end() ? nullptr : &*found;
}

bool Fits(const Record& r, const Choice& choice, bool calfLine) {
    if (calfLine != (r.AnimalType == kYoungCalf)) return false;
    const bool milkLine = &choice >= kChoices.data() && &choice < kChoices.data() + 3;
    return !milkLine || r.AnimalType == kLactatingCow;
}

}  // namespace

SummaryChoices DefaultSummaryChoices(std::string_view animalType) {
    for (std::size_t i = 0; i < kAnimalTypes.size(); ++i) {
        if (kAnimalTypes[i] == animalType) return kDefaults[i];
    }
    SummaryChoices blank;
    blank.fill(kBlank);
    return blank;
}

std::vector<std::string_view> SummaryChoiceNames() {
    std::vector<std::string_view> names = {kBlank};
    for (const Choice& choice : kChoices) {
        if (choice.Name == kAfterDays) names.push_back(kDaysToChange);
        names.emplace_back(choice.Name);
    }
    for (const Choice& choice : kCalfChoices)
        names.emplace_back(choice.Name);
    return names;
}

void TakeDefaultSummaryChoices() {
    const std::string& animal = TheSimulation().AnimalType;
    if (std::find(kAnimalTypes.begin(), kAnimalTypes.end(), animal) == kAnimalTypes.end()) return;
    const SummaryChoices choices = DefaultSummaryChoices(animal);
    std::copy(choices.begin(), choices.end(), TheProgram().SummaryResultsNames.begin());
}

std::string SummaryResultText(const Record& record, std::string_view choice, bool metric) {
    TheProgram().WeightUnitLabel = metric ? " (kg/day)" : " (lbs/day)";
    TheProgram().WeightUnitFactor = metric ? 1 : kPoundsPerKilogram;
    if (choice == kDaysToChange) {
        return record.AnimalType == kYoungCalf ? std::string() : record.DaysToChangeCSText;
    }
    const Choice* line = Find(kChoices, choice);
    const bool calfLine = line == nullptr;
    if (calfLine) line = Find(kCalfChoices, choice);
    if (line == nullptr) return {};
    if (!Fits(record, *line, calfLine)) return line->NotApplicable;
    const UnitText unit = TextOf(line->UnitOfValue, metric);
    return line->Prefix + ValueText(record, *line, unit.Factor) + unit.Text;
}

bool DegradedProteinIsLimiting(const Record& record) {
    return record.RDPBalance < -20 && record.AnimalType != kYoungCalf;
}

}  // namespace tav
