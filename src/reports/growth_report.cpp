#include "reports/components.h"
#include "reports/input_lines.h"
#include "reports/report_grid.h"

namespace tav {
namespace {

constexpr int kLactationsWhileGrowing = 2;

void WriteInputs(ReportWriter& w) {
    ReportGrid grid = TextColumns(w, 2);
    int row = 0;
    for (const std::string& line : AnimalLines(w))
        grid.Set(++row, 1, line);
    grid.Set(++row, 1, "Mature Weight :  " + w.Units().Weight(w.Record().MatureWeight));
    row = 0;
    for (const std::string& line : DietLines(w))
        grid.Set(++row, 2, line);
    grid.Write();
}

void WriteGain(ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    const ReportUnits& units = w.Units();
    w.Line("Shrunk Body Weight :  ", units.Weight(r.SBW, "0"));
    w.Line("Ratio of Standard Reference Weight to Mature SBW :  ", Plain(r.SRWRatio, "0.00"));
    w.Line("Equivalent Shrunk Body Weight :  ", units.Weight(r.EqSBW, "0"));
    w.Line("Equivalent Empty Body Weight :  ", units.Weight(r.EqEBW, "0"));
    w.Line("Target Weight Gain :  ", units.WeightPerDay(r.TargetSWG, "0.00"));
    w.Line("Equivalent Empty Body Gain :  ", units.WeightPerDay(r.EBG, "0.00"));
    w.Line("NE Required For Growth :  ", Energy(r.RE));
    if (r.AnimalType != kReplacementHeifer)
        w.Line("Diet NEl Required for Growth :  ", Energy(r.NEGrowthDiet));
}

void WriteEnergyForGrowth(ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    const ReportUnits& units = w.Units();
    w.Line("NE Required for Maintenance :  ", Energy(r.NEMaint));
    w.Line("ME Required for Maintenance :  ", Energy(r.MEMaint));
    w.Line("Dry Matter Intake Required for Maintenance :  ",
           units.WeightPerDay(r.DMIMaint, "0.00"));
    w.Line("ME Requirement for Pregnancy :  ", Energy(r.MEPreg));
    w.Line("Dry Matter Intake Required for Pregnancy :  ", units.WeightPerDay(r.DMIPreg, "0.00"));
    w.Line("Dry Matter Intake Available for Growth :  ", units.WeightPerDay(r.DMIGrowth, "0.00"));
    w.Line("Net Energy Available for Growth :  ", Energy(r.NEAvailableGrowth));
    w.Line("ME Available for Growth :  ", Energy((r.TotalDMI - r.DMIMaint) * r.DietME));
    w.Line("ME Allowable Gain (without Pregnancy) :  ", units.WeightPerDay(r.ADGEnergy, "0.00"));
    w.Line("ME Allowable Gain (with Pregnancy) :  ",
           units.WeightPerDay(r.ADGEnergyConceptus, "0.00"));
}

void WriteProteinForGrowth(ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    const ReportUnits& units = w.Units();
    const std::string perAnimal(units.Choose(" (g)", " (lbs)"));
    w.Line("Net Protein Requirement for Growth:  ", units.Protein(r.NPg));
    w.Line("Efficiency of use of MP for NPg :  ", Plain(r.EffMPNPg, "0.00"));
    w.Line("MP Required for Growth :  ", units.Protein(r.MPGrowth));
    w.Line("MP Required for Maintenance :  ", units.GramsNumber(r.MPMaint) + perAnimal);
    w.Line("(Maintenance + Growth) MP Requirement :  ",
           units.GramsNumber(r.MPMaint + r.MPGrowth) + perAnimal);
    w.Line("MP Allowable ADG (w/o Conceptus) :  ", units.Weight(r.ADGMP, "0.00"));
    w.Line("MP Allowable ADG (with Conceptus) :  ", units.Weight(r.ADGMPConceptus, "0.00"));
}

}  // namespace

void WriteGrowthRequirements(ReportWriter& w) {
    const bool grows = w.Record().LactationNumber <= kLactationsWhileGrowing;
    w.StartComponent(grows ? 40 : 15, "Growth Requirements");
    w.Heading("Major Inputs Used to Compute Growth Requirements");
    WriteInputs(w);
    w.Heading("Calculation of Growth Reqiurements");
    if (!grows) {
        w.Line("Growth Requirements Not Computed For Cows In Their 3rd Lactation Or Greater");
        return;
    }
    WriteGain(w);
    WriteEnergyForGrowth(w);
    WriteProteinForGrowth(w);
}

}  // namespace tav
