#include "model/steps.h"
#include "support.h"

namespace tav {
namespace {

// 625 kg (125 of metabolic weight, 600 kg shrunk). She eats 20 kg with 2.5 Mcal ME, 1.5 NEl, 1.7
// NEm and 0.8 NEg a kilogram.
SimulationRecord Cow() {
    return With(LactatingCow(),
                "SBW=600, TotalDMI=20, TotalME=50, TotalNEl=30, TotalNEm=34, TotalNEg=16, "
                "EffNEmME=0.68, MPBacterial=1000, EndogenousMPRequired=140");
}

// 300 kg, 296 of them taken for shrunk weight, 40 for a conceptus: 256 kg, 64 of metabolic weight.
SimulationRecord HeiferInCalf() {
    return With(Cow(),
                "AnimalType=Replacement Heifer, BodyWeight=300, SBW=296, ConceptusWeight=40");
}

TEST(Maintenance, ACowInHardFrost) {
    SimulationRecord r = With(Cow(), "Temperature=-40, WindSpeed=10, DaysPregnant=200, MEPreg=2");
    ComputeMaintenance(r);
    Expect(r, "NEMaintThermoneutral=10");                         // 125 * 0.08
    Expect(r, "DMIThermoneutral=6.6666667");                      // 10 / 1.5
    Expect(r, "GrowthRE=10.666667");                              // (20 - 6.6666667) * 0.8
    Expect(r, "RetainedEnergy=13, MEIntake=50");                  // 13.333333 * 1.5 * 0.65
    Expect(r, "SurfaceArea=6.540393");                            // 600^0.67 * 0.09
    Expect(r, "HeatProduction=5.6571524");                        // (50 - 13) / 6.5406
    Expect(r, "TissueInsulation=9, AgeDays=1824");                // score 5 of 9: 5 * 0.75 + 5.25
    Expect(r, "ExternalInsulation=4.54, TotalInsulation=13.54");  // (7.36 - 2.96 + 1.275) * 0.8
    Expect(r, "LowerCriticalTemp=-26.108167");                    // 39 - 13.54 * 5.657 * 0.85
    Expect(r, "MECold=6.7103434");                                // (-26.1 + 40) * 6.54 / 13.54
    Expect(r, "NECold=4.026206, NEMaint=14.026206");              // 1.5 / 2.5 of it
    Expect(r, "DMIMaint=9.350804, DMIPreg=0.8");                  // 2 / 2.5
    Expect(r, "NEAvailableGrowth=7.8793568");                     // (20 - maintenance - 0.8) * 0.8
    Expect(r, "MEMaint=20.626774");
}

TEST(Maintenance, BasalNeed) {
    ExpectCases(
        HeiferInCalf(), ComputeMaintenance,
        {
            // a heifer's rests on shrunk weight, condition and last month: 64 * (1.0 * 0.086)
            {"", "NEMaintThermoneutral=5.504, DietNEConcentration=1.7"},
            // 64 * (1.1 * 0.086 + 20 * 0.0007)
            {"ConditionScore=4, PreviousTemperature=0", "NEMaintThermoneutral=6.9504"},
            // 64 * (0.8 * 0.086 - 0.014)
            {"ConditionScore=1, PreviousTemperature=40", "NEMaintThermoneutral=3.5072"},
            // retained (20 - 5.504 / 1.7) * 0.8, in growth alone
            {"", "GrowthRE=13.409882, RetainedEnergy=13.409882"},
        });
    // that of all others on live weight alone
    ExpectCases(
        With(Cow(), "BodyWeight=685, ConceptusWeight=60, ConditionScore=4, PreviousTemperature=0"),
        ComputeMaintenance,
        {
            {"", "NEMaintThermoneutral=10, CS9=7, CompensationFactor=1, PreviousTempAdjust=0"},
            {"AnimalType=Dry Cow", "NEMaintThermoneutral=10"},
            {"AnimalType=Bull", "NEMaintThermoneutral=10.75"},  // 125 * 0.086
        });
}

// For each kilogram of weight 0.00045 a kilometre, 0.0012 for grazing, 0.006 for hills; a heifer
// 0.0009 + 0.0016 wherever she walks.
TEST(Maintenance, Activity) {
    ExpectCases(With(Cow(), "Grazing=1"), ComputeMaintenance,
                {
                    {"Grazing=0, Distance=1000, Trips=4, Topography=Hilly", "ActivityNE=0"},
                    {"", "ActivityNE=0.75, NEMaintThermoneutral=10.75"},  // 625 * 0.0012
                    {"Distance=1000, Trips=4", "ActivityNE=1.875"},       // + 4 km * 0.28125
                    {"AnimalType=Dry Cow, Distance=500, Trips=2, Topography=Hilly",
                     "ActivityNE=4.78125"},  // + 3.75
                    {"Topography=hilly", "ActivityNE=0.75"},
                });
    ExpectCases(With(HeiferInCalf(), "Grazing=1"), ComputeMaintenance,
                {
                    {"Distance=1000, Trips=4",
                     "ActivityNE=0.75, NEMaintThermoneutral=6.254"},  // 300 * 0.0025
                    {"Topography=Hilly", "ActivityNE=2.55"},          // + 1.8
                });
}

TEST(Maintenance, Insulation) {
    ExpectCases(
        With(Cow(), "CoatInsulationFactor=0.3"), ComputeMaintenance,
        {
            // tissue by age, from 30 days (0.98 months) on and from 183 and 363; score 5 of 9
            {"Age=0.98", "TissueInsulation=2.5"},
            {"Age=0.99", "TissueInsulation=6.5"},
            {"Age=6.01", "TissueInsulation=6.5"},
            {"Age=6.02", "TissueInsulation=6.75"},  // 5 * 0.3125 + 5.1875
            {"Age=11.94", "TissueInsulation=6.75"},
            {"Age=11.95", "TissueInsulation=9"},
            // coat (7.36 + 0.5 * 2.55) * 0.8 = 6.908, less in wind
            {"CoatCondition=Clean/Dry", "ExternalInsulation=6.908, TotalInsulation=15.908"},
            {"CoatCondition=Some Mud", "ExternalInsulation=5.5264"},
            {"CoatCondition=Wet/Matted", "ExternalInsulation=3.454"},
            {"CoatCondition=Covered with Snow/Mud", "ExternalInsulation=1.3816"},
            {"CoatCondition=Clipped", "ExternalInsulation=2.0724"},  // other: 0.3 of the run before
            {"WindSpeed=25", "ExternalInsulation=0.988"},            // 8.635 - 7.4
            {"WindSpeed=30", "ExternalInsulation=0, TotalInsulation=9"},  // 8.635 - 8.88
        });
}

TEST(Maintenance, HeatStressFrom30Degrees) {
    ExpectCases(
        With(Cow(), "HeatStressFactor=1.5"), ComputeMaintenance,
        {
            {"Temperature=29.9, HeatStress=Open Mouth", "HeatStressFactor=1, MECold=0"},
            {"Temperature=29.9, HeatStress=Other", "HeatStressFactor=1"},
            {"Temperature=30, HeatStress=None", "HeatStressFactor=1, NEMaint=10"},
            {"Temperature=30, HeatStress=Rapid/Shallow", "HeatStressFactor=1.07, NEMaint=10.7"},
            {"Temperature=30, HeatStress=Open Mouth", "HeatStressFactor=1.18, NEMaint=11.8"},
            {"Temperature=30, HeatStress=Other", "HeatStressFactor=1.5"},  // of the run before
        });
}

// Skin 0.3 W^0.6, urine 4.1 W^0.5; faeces 30 g a kilogram eaten less half of what bacterial protein
// loses, (1000 / 0.8 - 1000) * 0.5 = 125; endogenous 140. A heifer's W is her live weight too.
TEST(Maintenance, Protein) {
    ExpectCases(Cow(), ComputeMaintenance,
                {{"", "MPScurf=14.277405, MPUrine=102.5, MPFecal=475, MPMaint=731.7774"}});
    ExpectCases(HeiferInCalf(), ComputeMaintenance,
                {{"", "MPScurf=8.4353919, MPUrine=66.110514"}});  // 300 - 40 kg
}

TEST(Maintenance, GuardsAndFaults) {
    ExpectCases(
        Cow(), ComputeMaintenance,
        {
            {"TotalDMI=0, EffNEmME=0, SBW=0, DaysPregnant=200, MEPreg=2, Temperature=-40",
             "DietNEConcentration=0, DMIThermoneutral=0, GrowthRE=0, RetainedEnergy=0, "
             "HeatProduction=0, LowerCriticalTemp=39, "
             "NECold=0, DMIMaint=0, DMIPreg=0, NEAvailableGrowth=0, MEMaint=0"},
            {"TotalME=0, DaysPregnant=200, MEPreg=2, Temperature=-90", "NECold=0, DMIPreg=0"},
            // open: what an earlier pregnancy needed does not count
            {"MEPreg=2", "DMIPreg=0, NEAvailableGrowth=10.666667"},
            {"DaysPregnant=1, MEPreg=2", "DMIPreg=0.8"},
            // 13.333333 * 0.05
            {"TotalNEg=1", "NEAvailableGrowth=0.66666667"},
            // maintenance takes 10 / 0.5 = 20 kg, more than she eats
            {"TotalDMI=6, TotalNEl=3", "DMIMaint=20, NEAvailableGrowth=0"},
            // a conceptus heavier than its mother
            {"ConceptusWeight=700, Grazing=1, NEMaintThermoneutral=3",
             "error=5, ActivityNE=0.75, NEMaintThermoneutral=3"},
            // no coat in a storm, and tissue 0 at score -7 of 9; without cold nothing is divided
            {"ConditionScore=-3, WindSpeed=100, MECold=3",
             "error=11, LowerCriticalTemp=39, MECold=3"},
            {"ConditionScore=-3, WindSpeed=100, Temperature=39", "MECold=0"},
        });
}

}  // namespace
}  // namespace tav
