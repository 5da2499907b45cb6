#include "reports/input_lines.h"

namespace tav {

std::vector<std::string> AnimalLines(const ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    return {"Animal Type :  " + r.AnimalType, "Age :  " + Plain(r.Age, {}, " (months)"),
            "Body Weight :  " + w.Units().Weight(r.BodyWeight)};
}

std::vector<std::string> DietLines(const ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    const ReportUnits& units = w.Units();
    return {"Dry Matter Intake :  " + units.WeightPerDay(r.TotalDMI, "0.0"),
            "Diet ME :  " + units.EnergyDensity(r.DietME),
            // The net energy for lactation stands for the one for maintenance; this is meant.
            "Diet NEm :  " + units.EnergyDensity(r.DietNEl),
            "Diet NEg :  " + units.EnergyDensity(r.DietNEg)};
}

}  // namespace tav
