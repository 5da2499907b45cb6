#include "reports/report_grid.h"
#include "reports/summary_parts.h"

namespace tav {
namespace {

constexpr int kRows = 19;
constexpr int kAnimal = 1;  // the columns
constexpr int kProtein = 2;

void SetIntake(const ReportWriter& w, ReportGrid& grid) {
    const SimulationRecord& r = w.Record();
    grid.Set(3, kAnimal, "DMI - Actual :  " + w.Units().WeightPerDay(r.ActualDMI, "0.0"));
    grid.Set(4, kAnimal, "DMI - Predicted :  " + w.Units().WeightPerDay(r.PredDMI, "0.0"));
}

void SetReserves(const ReportWriter& w, ReportGrid& grid) {
    const SimulationRecord& r = w.Record();
    grid.Set(11, kAnimal, r.DaysToChangeCSText);
    grid.Set(13, kAnimal,
             "Daily Weight Change due to Reserves :  " +
                 w.Units().WeightPerDay(r.ReserveWeightPerDay, "0.0"));
}

void SetTargetGain(const ReportWriter& w, ReportGrid& grid, int row) {
    const SimulationRecord& r = w.Record();
    grid.Set(row, kAnimal,
             "Target ADG (w/o Conceptus) :  " + w.Units().Weight(r.TargetADGNoConceptus, "0.00"));
    grid.Set(row + 1, kAnimal,
             "Target ADG (with Conceptus) :  " + w.Units().Weight(r.TargetADGConceptus, "0.00"));
}

std::string IntakeMultiple(const SimulationRecord& r) {
    return "DMI/Maint. DMI :  " + Plain(r.IntakeMultiple, "0.00");
}

void SetLactatingCow(const ReportWriter& w, ReportGrid& grid) {
    const SimulationRecord& r = w.Record();
    const ReportUnits& units = w.Units();
    grid.Set(6, kAnimal,
             "NEl Allowable Milk :  " + units.WeightPerDay(r.EnergyAllowableMilk, "0.0"));
    grid.Set(7, kAnimal,
             "MP Allowable Milk :  " + units.WeightPerDay(r.ProteinAllowableMilk, "0.0"));
    grid.Set(9, kAnimal, "Milk Production :  " + units.WeightPerDay(r.MilkProduction, "0.0"));
    SetReserves(w, grid);
}

// Gains are kilograms or pounds here, although they are daily ones.
void SetReplacementHeifer(const ReportWriter& w, ReportGrid& grid) {
    const SimulationRecord& r = w.Record();
    const auto gain = [&](int row, const char* label, Single value) {
        grid.Set(row, kAnimal, label + w.Units().Weight(value, "0.00"));
    };
    gain(6, "Energy Allowable ADG (w/o Conceptus) :  ", r.ADGEnergy);
    gain(7, "Energy Allowable ADG (with Conceptus) :  ", r.ADGEnergyConceptus);
    gain(9, "MP Allowable ADG (w/o Conceptus) :  ", r.ADGMP);
    gain(10, "MP Allowable ADG (with Conceptus) :  ", r.ADGMPConceptus);
    SetTargetGain(w, grid, 12);
    grid.Set(15, kAnimal, IntakeMultiple(r));
}

void SetDryCow(const ReportWriter& w, ReportGrid& grid) {
    SetTargetGain(w, grid, 6);
    grid.Set(9, kAnimal, IntakeMultiple(w.Record()));
    SetReserves(w, grid);
}

void SetProteinSupply(const ReportWriter& w, ReportGrid& grid) {
    const SimulationRecord& r = w.Record();
    const std::string unit(w.Units().Choose(" (g/d)", " (lbs/d)"));
    const auto grams = [&](int row, const char* label, Single value) {
        grid.Set(row, kProtein, label + w.Units().GramsInSteps(value) + unit);
    };
    grams(3, "RDP Required :  ", r.RDPRequired);
    grams(4, "RDP Supplied :  ", r.RDPSupplied);
    grams(5, "RDP Balance :  ", r.RDPBalance);
    grams(7, "RUP Required :  ", r.RUPRequired);
    grams(8, "RUP Supplied :  ", r.RUPSupplied);
    grams(9, "RUP Balance :  ", r.RUPBalance);
    grams(11, "MP - Bacterial :  ", r.MPBacterial);
    // The unit stays in grams, also behind a value in pounds; this is meant.
    grid.Set(12, kProtein,
             "MP - RUP :  " +
                 (w.Units().Metric() ? Plain(r.MPFeed * 1000, "0")
                                     : Plain(r.MPFeed * kPoundsPerKilogram, "0.000")) +
                 " (g/d)");
    grams(13, "MP - Endogenous :  ", r.EndogenousMP);
}

void SetProteinShares(const ReportWriter& w, ReportGrid& grid) {
    const SimulationRecord& r = w.Record();
    const auto percent = [&](int row, const char* label, Number value) {
        grid.Set(row, kProtein, label + Plain(value, "0.0", " (%DM)"));
    };
    percent(15, "CP - Diet :  ", r.DietCP * 100);
    percent(16, "CP - RDP :  ", r.TotalCP / (r.TotalDMI * 1000) * r.DietRDP * 100);
    percent(17, "CP - RUP :  ", r.TotalCP / (r.TotalDMI * 1000) * r.DietRUP * 100);
}

}  // namespace

void WritePerformance(ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    ReportGrid grid = TextColumns(w, 2);
    grid.SetHeadingRows(1);
    grid.Row({"Animal Performance", "Protein Values"});
    SetIntake(w, grid);
    if (r.AnimalType == kLactatingCow) SetLactatingCow(w, grid);
    if (r.AnimalType == kReplacementHeifer) SetReplacementHeifer(w, grid);
    if (r.AnimalType == kDryCow) SetDryCow(w, grid);
    SetProteinSupply(w, grid);
    SetProteinShares(w, grid);
    grid.Set(kRows, kAnimal, "");
    grid.KeepWhole();
    grid.Write();
}

}  // namespace tav
