#include "reports/components.h"
#include "reports/report_grid.h"

namespace tav {
namespace {

constexpr double kDaysOfAMonth = 30.4;

bool IsBredHeifer(const SimulationRecord& r) {
    return r.AnimalType == kReplacementHeifer && r.DaysPregnant > 0;
}

void WriteInputs(ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    const ReportUnits& units = w.Units();
    std::vector<std::string> lines = {
        "Animal Type :  " + r.AnimalType,
        "Age :  " + Plain(r.Age, {}, " (months)"),
        "Body Weight :  " + units.Weight(r.BodyWeight, "0"),
        "Mature Weight :  " + units.Weight(r.MatureWeight, "0"),
        "Days Pregnant :  " + Plain(r.DaysPregnant, "0", " days"),
        "Age at First Calving :  " + Plain(r.AgeAtFirstCalving, {}, " (months)"),
        "Calving Interval :  " + Plain(r.CalvingInterval, {}, " (months)")};
    if (IsBredHeifer(r))
        lines.push_back("Conceptus Weight :  " + units.Weight(r.ConceptusWeight, "0"));

    ReportGrid grid = TextColumns(w, 2);
    const std::size_t rows = (lines.size() + 1) / 2;
    for (std::size_t i = 0; i < lines.size(); ++i)
        grid.Set(static_cast<int>(i % rows) + 1, i < rows ? 1 : 2, lines[i]);
    grid.KeepWhole();
    grid.Write();
}

void WriteTargetWeights(ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    using enum ColumnAlign;
    ReportGrid grid(w, {Left, Decimal, Decimal}, kFullGrid);
    grid.SetHeadingRows(1);
    grid.Row(
        {"Reproductive Status", "Target Age (months)", "Target Weight (" + w.Units().Mass() + ")"});
    const auto add = [&](const char* status, Single age, Single weight) {
        std::string ageText = Plain(age, "0.00");
        if (age > 0) ageText += "  (" + Plain(age * kDaysOfAMonth, "0") + " days)";
        grid.Row({status, ageText, w.Units().WeightNumber(weight, "0")});
    };
    add("1st Breeding", r.Age1stBreeding, r.Weight1stBreeding);
    add("1st Calving", r.Age1stCalving, r.Weight1stCalving);
    add("2nd Calving", r.Age2ndCalving, r.Weight2ndCalving);
    add("3rd Calving", r.Age3rdCalving, r.Weight3rdCalving);
    grid.KeepWhole();
    w.HeadingWith("Calculation of Target Weights and Ages", grid.Height());
    grid.Write();
    w.LineEnds(1);
    w.Line(
        "Target Weights are computed from Mature Weight.  The multipliers are 55%, 82%, 92% & 100% "
        "for first pregnancy and first, second and third calving, respectively.");
}

// A stage applies to an animal that has it before it or is in it. Its gain is a daily one, although
// the heading has the unit of weight alone.
void WriteTargetGains(ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    using enum ColumnAlign;
    ReportGrid grid(w, {Left, Decimal}, kFullGrid);
    grid.SetHeadingRows(1);
    grid.Row({"Animal Stage", "Average Daily Gain (" + w.Units().Mass() + ")"});
    const auto add = [&](const char* stage, bool applies, Single gain) {
        grid.Row({stage, applies ? w.Units().WeightNumber(gain, "0.00") : "N/A"});
    };
    const bool unbred = r.AnimalType == kReplacementHeifer && !IsBredHeifer(r);
    const bool calvesAgain = r.CalvingInterval > 0;
    add(" To 1st Breeding", unbred && r.Age < r.Age1stBreeding, r.ADGTo1stBreeding);
    add("To 1st Calving", r.Age < r.Age1stCalving, r.ADGTo1stCalving);
    add("1st Calving To 2nd Calving", calvesAgain && r.Age < r.Age2ndCalving, r.ADG1stTo2ndCalving);
    add("2nd Calving To 3rd Calving", calvesAgain && r.Age < r.Age3rdCalving, r.ADG2ndTo3rdCalving);
    grid.KeepWhole();
    w.HeadingWith("Calculation of Target Daily Gain", grid.Height());
    grid.Write();
}

void WriteNotes(ReportWriter& w) {
    w.KeepTogether(8);
    w.LineEnds(1);
    w.Line("NOTES:");
    w.Line("All body weights and ADG's are on full body weight basis.");
    w.Line(
        "Target daily gain is computed as the total weight gain needed to reach the next target "
        "weight divided by the days available to reach the next target.  Before first breeding, "
        "days available are first breeding age - current age.  Between first breeding and calving, "
        "days available are age at first calving - current age.  During lactation, the days "
        "available are the calving interval.");
    if (IsBredHeifer(w.Record())) w.Line("Bred heifer weight is assumed to include conceptus.");
}

}  // namespace

void WriteTargetWeightsAndADG(ReportWriter& w) {
    w.StartComponent(38, "Target Weights and Average Daily Gain");
    w.Heading("Major Inputs Used to Compute Target Weights");
    WriteInputs(w);
    WriteTargetWeights(w);
    WriteTargetGains(w);
    WriteNotes(w);
}

}  // namespace tav
