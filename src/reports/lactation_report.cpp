#include "reports/components.h"

namespace tav {

void WriteLactationRequirements(ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    const ReportUnits& units = w.Units();
    w.StartComponent(20, "Lactation Requirements");

    w.Heading("Major Inputs Used to Compute Lactation Requirements");
    w.Line("Milk Production :  ", units.WeightPerDay(r.MilkProduction, "0.0"));
    w.Line("Milk Fat :  ", Plain(r.MilkFat, "0.00", " (%)"));
    w.Line("True Milk Protein :  ", Plain(r.MilkTrueProtein, "0.00", " (%)"));
    w.Line("Lactose :  ", Plain(r.Lactose, "0.00", " (%)"));

    w.Heading("Calculation of Lactation Requirements");
    w.Line("Daily Milk Fat Yield :  ", units.WeightPerDay(r.MilkFatYield, "0.00"));
    w.Line("Daily Milk Protein Yield :  ", units.WeightPerDay(r.MilkProteinYield, "0.00"));
    // Per kilogram of milk in both systems.
    w.Line("Energy Content of Milk :  ", Plain(r.MilkEnergy, "0.00", " (Mcal NEl/kg)"));
    w.Line("NE Requirement for Lactation :  ", Energy(r.NELact, "0.0"));
    w.Line("Fat Corrected Milk Production :  ", units.WeightPerDay(r.FCM, "0.0"));
    w.Line("MP Requirement for Lactation :  ", units.Protein(r.MPLact));
    w.Line("Energy Allowable Milk :  ", units.WeightPerDay(r.EnergyAllowableMilk, "0.0"));
    w.Line("Protein Allowable Milk :  ", units.WeightPerDay(r.ProteinAllowableMilk, "0.0"));
}

}  // namespace tav
