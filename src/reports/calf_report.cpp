#include "reports/components.h"
#include "reports/report_grid.h"

namespace tav {
namespace {

constexpr std::string_view kIndent = "     ";

// A line of the calculation, indented.
void Add(ReportWriter& w, std::string_view label, std::string_view value = {}) {
    w.Line(std::string(kIndent) + std::string(label), value);
}

std::string Grams(ReportValue value) { return Plain(value, "0", " (g/day)"); }

void WriteInputs(ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    const ReportUnits& units = w.Units();
    ReportGrid grid = TextColumns(w, 2);
    grid.Row({"Calf Body Weight :  " + units.Weight(r.CalfBodyWeight),
              "Diet ME :  " + units.EnergyDensity(r.CalfDietME)});
    grid.Row({"Temperature :  " + units.Temperature(r.CalfTemperature, "0.0", " deg. C", " deg. F"),
              "Diet NEm :  " + units.EnergyDensity(r.CalfDietNEm)});
    grid.Row({"", "Diet NEg :  " + units.EnergyDensity(r.CalfDietNEg)});
    grid.Write();
}

void WriteAllowableGain(ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    const ReportUnits& units = w.Units();
    w.Subheading("Allowable Gain");
    if (r.CalfEnergyGainRaw < 0) {
        Add(w, "Energy Allowable ADG :  Weight Loss");
        Add(w, "Net Protein Required for Growth :  N/A");
        Add(w, "ADP Allowable Gain :  Weight Loss");
        return;
    }
    Add(w, "Energy Allowable ADG :  ", units.WeightPerDay(r.CalfEnergyGain, "0.00"));
    Add(w, "Net Protein Required for Growth :  ", Grams(r.CalfNPGrowth * 1000));
    Add(w, "ADP Allowable Gain :  ", units.WeightPerDay(r.CalfADPGain / 1000, "0.00"));
}

void WriteMaintenance(ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    const ReportUnits& units = w.Units();
    w.Subheading("Maintenance Requirement Calculations");
    Add(w, "Total Milk Dry Matter Intake :  ", units.WeightPerDay(r.CalfMilkDMI, "0.00"));
    Add(w, "Total Starter Dry Matter Intake :  ", units.WeightPerDay(r.CalfStarterDMI, "0.00"));
    Add(w, "Net Energy Basal Maintenance Requirement :  ", "0.086 (Mcal/day/BW^0.75)");
    Add(w, "Temperature Multiplier :  ", Plain(r.CalfTempMultiplier + 1, "0.00"));
    Add(w, "Net Energy Required for Maintenance :  ", Energy(r.CalfNEMaint));
    Add(w, "Efficiency of use of ME for NEm :  ", Plain(r.CalfEffNEmME, "0.00"));
    Add(w, "Metabolizable Energy Required for Maintenance :  ", Energy(r.MEMaint));
    Add(w, "Dry Matter Intake Required for Maintenance :  ",
        units.WeightPerDay(r.CalfDMIMaint, "0.00"));
    Add(w, "Apparently Digested Protein Required for Maintenance :  ", Grams(r.CalfADPMaint));
    Add(w, "Crude Protein Required for Maintenance :  ", Grams(r.CalfCPMaint));
}

void WriteGrowth(ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    w.Subheading("Growth Requirement Calculations");
    Add(w, "Intake Available for Growth :  ",
        r.CalfDMIGrowth > 0 ? w.Units().WeightPerDay(r.CalfDMIGrowth, "0.00") : "0.00");
    Add(w, "Metabolizable Energy Available for Growth :  ",
        r.CalfMEGrowth > 0 ? Energy(r.CalfMEGrowth) : "0.00 (Mcal/day)");
    Add(w, "Efficiency of use of ME for NEg :  ", Plain(r.CalfEffNEgME, "0.00"));
    Add(w, "Net Energy Available for Growth :  ",
        r.CalfNEGrowth > 0 ? Energy(r.CalfNEGrowth) : "0.00 (Mcal/day)");
    Add(w, "Apparently Digested Protein Required for Growth :  ", Grams(r.CalfADPGrowth));
    Add(w, "Crude Protein Required for Growth :  ", Grams(r.CalfCPGrowth));
}

void WriteProteinAndFat(ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    w.Subheading("Protein & Fat Values");
    Add(w, "Total ADP Required :  ", Grams(r.CalfADPMaint + r.CalfADPGrowth));
    Add(w, "Total CP Required :  ", Grams(r.CalfCPMaint + r.CalfCPGrowth));
    Add(w, "ADP Balance :  ", Grams(r.CalfADPBalance));
    Add(w, "CP Balance :  ", Grams(r.CalfCPBalance));
    Add(w, "Dietary Fat :  ", Plain(r.CalfDietFat * 100, "0.0", "%"));
}

}  // namespace

void WriteCalfRequirements(ReportWriter& w) {
    w.StartComponent(40, "Calf Requirements");
    w.Heading("Major Inputs Used to Compute Young Calf Requirements");
    WriteInputs(w);
    w.Heading("Calculation of Young Calf Reqiurements");
    WriteAllowableGain(w);
    w.LineEnds(1);
    WriteMaintenance(w);
    w.LineEnds(1);
    WriteGrowth(w);
    w.LineEnds(1);
    WriteProteinAndFat(w);
}

}  // namespace tav
