// The requirements of growing cows and grazing animals, whole pages.
#include "reports/worked_animals.h"

namespace tav {
namespace {

using WorkedRequirements = WorkedPages;

void SetGrowth(SimulationRecord& r) {
    r.SRWRatio = 0.75;
    r.EqSBW = 360;
    r.EqEBW = 320;
    r.TargetSWG = 0.5;
    r.EBG = 0.45;
    r.RE = 2.125;
    r.NEGrowthDiet = 3.25;
    r.MEMaint = 15;
    r.MEPreg = 1;
    r.DMIPreg = 0.5;
    r.DMIGrowth = 13.5;
    r.NEAvailableGrowth = 14.85;
    r.ADGEnergy = 1;
    r.ADGEnergyConceptus = 1.25;
    r.NPg = 100;
    r.EffMPNPg = 0.4;
    r.MPGrowth = 250;
    r.ADGMP = 0.8;
    r.ADGMPConceptus = 0.9;
}

constexpr const char* kGrowthMetric = R"(
Growth Requirements


Major Inputs Used to Compute Growth Requirements

Animal Type :  Lactating Cow | Dry Matter Intake :  20.0 (kg/day)
Age :  30.5 (months) | Diet ME :  2.50 (Mcal/kg)
Body Weight :  500 (kg) | Diet NEm :  1.60 (Mcal/kg)
Mature Weight :  650 (kg) | Diet NEg :  1.10 (Mcal/kg)

Calculation of Growth Reqiurements

Shrunk Body Weight :  480 (kg)
Ratio of Standard Reference Weight to Mature SBW :  0.75
Equivalent Shrunk Body Weight :  360 (kg)
Equivalent Empty Body Weight :  320 (kg)
Target Weight Gain :  0.50 (kg/day)
Equivalent Empty Body Gain :  0.45 (kg/day)
NE Required For Growth :  2.13 (Mcal/day)
Diet NEl Required for Growth :  3.25 (Mcal/day)
NE Required for Maintenance :  9.50 (Mcal/day)
ME Required for Maintenance :  15.00 (Mcal/day)
Dry Matter Intake Required for Maintenance :  6.00 (kg/day)
ME Requirement for Pregnancy :  1.00 (Mcal/day)
Dry Matter Intake Required for Pregnancy :  0.50 (kg/day)
Dry Matter Intake Available for Growth :  13.50 (kg/day)
Net Energy Available for Growth :  14.85 (Mcal/day)
ME Available for Growth :  35.00 (Mcal/day)
ME Allowable Gain (without Pregnancy) :  1.00 (kg/day)
ME Allowable Gain (with Pregnancy) :  1.25 (kg/day)
Net Protein Requirement for Growth:  100 (g/day)
Efficiency of use of MP for NPg :  0.40
MP Required for Growth :  250 (g/day)
MP Required for Maintenance :  500 (g)
(Maintenance + Growth) MP Requirement :  750 (g)
MP Allowable ADG (w/o Conceptus) :  0.80 (kg)
MP Allowable ADG (with Conceptus) :  0.90 (kg)
)";

TEST_F(WorkedRequirements, GrowthOfACowInHerFirstAndSecondLactation) {
    SetGrowth(Cow(kLactatingCow, 1));
    EXPECT_EQ(Body("Growth Requirements", true), kGrowthMetric);
    Cow(kDryCow, 2);
    const std::string english = Body("Growth Requirements", false);
    for (const char* const line : {"Animal Type :  Dry Cow | Dry Matter Intake :  44.1 (lbs/day)",
                                   "Age :  30.5 (months) | Diet ME :  1.13 (Mcal/lbs)",
                                   "Body Weight :  1102.31 (lbs) | Diet NEm :  0.73 (Mcal/lbs)",
                                   "Mature Weight :  1433.003 (lbs) | Diet NEg :  0.50 (Mcal/lbs)",
                                   "Shrunk Body Weight :  1058 (lbs)",
                                   "Equivalent Shrunk Body Weight :  794 (lbs)",
                                   "Equivalent Empty Body Weight :  705 (lbs)",
                                   "Target Weight Gain :  1.10 (lbs/day)",
                                   "Equivalent Empty Body Gain :  0.99 (lbs/day)",
                                   "Dry Matter Intake Required for Maintenance :  13.23 (lbs/day)",
                                   "Dry Matter Intake Required for Pregnancy :  1.10 (lbs/day)",
                                   "Dry Matter Intake Available for Growth :  29.76 (lbs/day)",
                                   "ME Allowable Gain (without Pregnancy) :  2.20 (lbs/day)",
                                   "ME Allowable Gain (with Pregnancy) :  2.76 (lbs/day)",
                                   "Net Protein Requirement for Growth:  0.220 (lbs/day)",
                                   "MP Required for Growth :  0.551 (lbs/day)",
                                   "MP Required for Maintenance :  1.102 (lbs)",
                                   "(Maintenance + Growth) MP Requirement :  1.653 (lbs)",
                                   "MP Allowable ADG (w/o Conceptus) :  1.76 (lbs)",
                                   "MP Allowable ADG (with Conceptus) :  1.98 (lbs)"}) {
        EXPECT_LINE(english, line);
    }
}

void SetMaintenance(SimulationRecord& r) {
    r.CoatCondition = "Clean/Dry";
    r.PreviousTemperature = 15;
    r.Temperature = -5;
    r.WindSpeed = 10;
    r.Grazing = true;
    r.Distance = 500;
    r.Trips = 4;
    r.MaintCoefficient = 0.086;
    r.CompensationFactor = 1.05;
    r.PreviousTempAdjust = 0.0035;
    r.ActivityNE = 1.234;
    r.SurfaceArea = 5.5;
    r.HeatProduction = 3.25;
    r.TissueInsulation = 7;
    r.ExternalInsulation = 6.5;
    r.TotalInsulation = 13.5;
    r.LowerCriticalTemp = -20;
    r.MECold = 0.75;
    r.HeatStressFactor = 1.07;
    r.NEMaintThermoneutral = 9.25;
    r.DietNEConcentration = 1.6;
    r.MPScurf = 20;
    r.MPUrine = 100;
    r.MPFecal = 330;
    r.EndogenousMPRequired = 50;
}

constexpr const char* kMaintenanceOfAHeifer = R"(
Maintenance Requirements


Major Inputs Used to Compute Maintenance Requirements

Animal Type :  Replacement Heifer | Dry Matter Intake :  44.1 (lbs/day)
Age :  30.5 (months) | Diet ME :  1.13 (Mcal/lbs)
Body Weight :  1102.31 (lbs) | Diet NEm :  0.73 (Mcal/lbs)
Coat Condition :  Clean/Dry | Diet NEg :  0.50 (Mcal/lbs)
Previous Temperature :  59.0 deg F | Distance Between Pasture and Milking :  1640.00 (ft)
Current Temperature :  23.0 deg F | Number of One-Way Trips :  4
Wind Speed :  6.21 (mph) | 
Grazing :  Yes | 

Calculation of Maintenance Reqiurements

Shrunk Body Weight :  1058 (lbs)
Basal Maintenance Requirement :  0.086 (Mcal/day/SBW^0.75)

Adjustment Factors:
 Previous Plane of Nutrition Compensation Factor (Heifers Only) :  1.05
 Previous Temp Factor (Heifers Only) :  0.00 (Mcal/day/SBW^0.75)
 Grazing Activity :  1.23 (Mcal/day)

Cold Stress Factors Calculations:
 Surface Area :  5.50 (m^2)
 Heat Production :  3.25 (Mcal/m^2/day)
 Tissue Insulation :  7.00 (Mcal/m^2/deg C/day)
 External Insulation :  6.50 (Mcal/m^2/deg C/day)
 Total Insulation :  13.50 (Mcal/m^2/deg C/day)
 Lower Critical Temperature :  -4.0 deg. F
 ME Requirement Due to Cold Stress :  0.75 (Mcal/day)

Heat Stress Adjustment Factor :  1.07
Net Energy Requirement for Maintainence without Cold or Heat Stress :  9.25 (Mcal/day)
Net Energy Requirement for Maintainence with Cold or Heat Stress :  9.50 (Mcal/day)
Concentration of NEm in Diet :  1.60 (Mcal/kg DM)
DMI Required for Maintenance :  13.23 (lbs/day)
ME Required for Maintenance :  15.00 (Mcal/day)

MP Required for Maintenance: 
 Scurf Requirement :  0.044 (lbs/day)
 Urinary Requirement :  0.220 (lbs/day)
 Metabolic Fecal Requirement :  0.728 (lbs/day)
 Endogenous Requirement :  0.110 (lbs/day)
 Total :  1.102 (lbs/day)
)";

TEST_F(WorkedRequirements, MaintenanceOfAGrazingAnimal) {
    SetMaintenance(Cow(kReplacementHeifer, 0));
    EXPECT_EQ(Body("Maintenance Requirements", false), kMaintenanceOfAHeifer);
    Cow(kLactatingCow, 2);
    const std::string cow = Body("Maintenance Requirements", true);
    EXPECT_LINE(cow,
                "Animal Type :  Lactating Cow | "
                "Distance Between Pasture and Milking :  500.00 (m)");
    EXPECT_LINE(cow, "Age :  30.5 (months) | Number of One-Way Trips :  4");
    EXPECT_LINE(cow, "Wind Speed :  10.00 (kph) | ");
    EXPECT_LINE(cow, "Basal Maintenance Requirement :  0.086 (Mcal/day/BW^0.75)");
    EXPECT_EQ(cow.find("Shrunk Body Weight"), std::string::npos);
    EXPECT_EQ(cow.find("Diet ME"), std::string::npos);
}

}  // namespace
}  // namespace tav
