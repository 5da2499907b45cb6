#include "reports/components.h"
#include "reports/input_lines.h"
#include "reports/report_grid.h"

namespace tav {
namespace {

constexpr double kMilesPerKilometre = 0.62137;
constexpr double kFeetPerMetre = 3.28;

constexpr std::string_view kInsulation = " (Mcal/m^2/deg C/day)";

std::string WindSpeed(const ReportWriter& w) {
    const ReportUnits& units = w.Units();
    return units.Converted(w.Record().WindSpeed, "0.00", kMilesPerKilometre) +
           std::string(units.Choose(" (kph)", " (mph)"));
}

std::string Distance(const ReportWriter& w) {
    const ReportUnits& units = w.Units();
    return units.Converted(w.Record().Distance, "0.00", kFeetPerMetre) +
           std::string(units.Choose(" (m)", " (ft)"));
}

void WriteInputs(ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    std::vector<std::string> left = AnimalLines(w);
    const auto temperature = [&](Single celsius) {
        return w.Units().Temperature(celsius, "0.0", " deg C", " deg F");
    };
    left.push_back("Coat Condition :  " + r.CoatCondition);
    left.push_back("Previous Temperature :  " + temperature(r.PreviousTemperature));
    left.push_back("Current Temperature :  " + temperature(r.Temperature));
    left.push_back("Wind Speed :  " + WindSpeed(w));
    left.emplace_back(r.Grazing ? "Grazing :  Yes" : "Grazing :  No");

    std::vector<std::string> right;
    if (r.AnimalType == kReplacementHeifer) right = DietLines(w);
    if (r.Grazing) {
        right.push_back("Distance Between Pasture and Milking :  " + Distance(w));
        right.push_back("Number of One-Way Trips :  " + Plain(r.Trips));
    }

    ReportGrid grid = TextColumns(w, 2);
    int row = 0;
    for (const std::string& line : left)
        grid.Set(++row, 1, line);
    row = 0;
    for (const std::string& line : right)
        grid.Set(++row, 2, line);
    grid.Write();
}

void WriteAdjustments(ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    const bool heifer = r.AnimalType == kReplacementHeifer;
    if (heifer) w.Line("Shrunk Body Weight :  ", w.Units().Weight(r.SBW, "0"));
    w.Line("Basal Maintenance Requirement :  ",
           Plain(r.MaintCoefficient, "0.000",
                 heifer ? " (Mcal/day/SBW^0.75)" : " (Mcal/day/BW^0.75)"));
    w.LineEnds(1);
    w.Subheading("Adjustment Factors:");
    w.Line(" Previous Plane of Nutrition Compensation Factor (Heifers Only) :  ",
           Plain(r.CompensationFactor, "0.00"));
    w.Line(" Previous Temp Factor (Heifers Only) :  ",
           Plain(r.PreviousTempAdjust, "0.00", " (Mcal/day/SBW^0.75)"));
    w.Line(" Grazing Activity :  ", Energy(r.ActivityNE));
}

void WriteColdStress(ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    w.LineEnds(1);
    w.Subheading("Cold Stress Factors Calculations:");
    w.Line(" Surface Area :  ", Plain(r.SurfaceArea, "0.00", " (m^2)"));
    w.Line(" Heat Production :  ", Plain(r.HeatProduction, "0.00", " (Mcal/m^2/day)"));
    w.Line(" Tissue Insulation :  ", Plain(r.TissueInsulation, "0.00", kInsulation));
    w.Line(" External Insulation :  ", Plain(r.ExternalInsulation, "0.00", kInsulation));
    w.Line(" Total Insulation :  ", Plain(r.TotalInsulation, "0.00", kInsulation));
    w.Line(" Lower Critical Temperature :  ",
           w.Units().Temperature(r.LowerCriticalTemp, "0.0", " deg. C", " deg. F"));
    w.Line(" ME Requirement Due to Cold Stress :  ", Energy(r.MECold));
    w.LineEnds(1);
    w.Line("Heat Stress Adjustment Factor :  ", Plain(r.HeatStressFactor, "0.00"));
}

void WriteRequirements(ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    const ReportUnits& units = w.Units();
    w.Line("Net Energy Requirement for Maintainence without Cold or Heat Stress :  ",
           Energy(r.NEMaintThermoneutral));
    w.Line("Net Energy Requirement for Maintainence with Cold or Heat Stress :  ",
           Energy(r.NEMaint));
    w.Line("Concentration of NEm in Diet :  ",
           Plain(r.DietNEConcentration, "0.00", " (Mcal/kg DM)"));
    w.Line("DMI Required for Maintenance :  ", units.WeightPerDay(r.DMIMaint, "0.00"));
    w.Line("ME Required for Maintenance :  ", Energy(r.DMIMaint * r.DietME));
    w.LineEnds(1);
    w.Subheading("MP Required for Maintenance: ");
    w.Line(" Scurf Requirement :  ", units.Protein(r.MPScurf));
    w.Line(" Urinary Requirement :  ", units.Protein(r.MPUrine));
    w.Line(" Metabolic Fecal Requirement :  ", units.Protein(r.MPFecal));
    w.Line(" Endogenous Requirement :  ", units.Protein(r.EndogenousMPRequired));
    w.Line(" Total :  ", units.Protein(r.MPMaint));
}

}  // namespace

void WriteMaintenanceRequirements(ReportWriter& w) {
    w.StartComponent(44, "Maintenance Requirements");
    w.Heading("Major Inputs Used to Compute Maintenance Requirements");
    WriteInputs(w);
    w.Heading("Calculation of Maintenance Reqiurements");
    WriteAdjustments(w);
    WriteColdStress(w);
    WriteRequirements(w);
}

}  // namespace tav
