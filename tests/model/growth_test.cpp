#include "model/steps.h"
#include "support.h"

namespace tav {
namespace {

// 300 kg shrunk less 12 kg conceptus, mature at 500 kg: on the scale of the reference animal
// 288 * 478 / 480 = 286.8 kg. 4 Mcal are left for gain, 800 g/day of live weight are asked for.
SimulationRecord Growing() {
    return With(Heifer(),
                "SBW=300, ConceptusWeight=12, MatureWeight=500, NEAvailableGrowth=4, ADGPreg=665, "
                "DesiredADG=800, "
                "TotalNEg=10, TotalNEm=15, EffNEgME=0.4, TotalDMI=9, DMIMaint=4, DMIPreg=1, "
                "PredDMILactating=20");
}

TEST(Growth, AHeifer) {
    SimulationRecord r = Growing();
    ComputeGrowth(r);
    Expect(r, "SRWRatio=0.99583333, EqSBW=286.8");
    Expect(r, "EnergyGain=1.0278226");  // 4^0.9116 * 13.91 / 286.8^0.6837
    Expect(r, "ADGEnergy=1.0706485, ADGEnergyConceptus=1.7356485");  // / 0.96; + 0.665
    Expect(r, "TargetSWG=0.768, ReserveWeightChange=0");             // 0.8 * 0.96
    Expect(r, "EqEBW=255.5388, EBG=0.734208");                       // 286.8 * 0.891; 0.768 * 0.956
    // 255.5388^0.75 * 0.0635 * 0.734208^1.097
    Expect(r, "RE=2.8918112, NEGrowthDiet=2.8918112");
    Expect(r, "NPg=120.80475");                                  // 268 * 0.768 - RE * 29.4
    Expect(r, "EffMPNPg=0.507048, MPGrowth=238.25112");          // (83.4 - 286.8 * 0.114) / 100
    Expect(r, "NEReserves=0, DMIGrowth=4, MEGrowth=7.2295279");  // 9 - 4 - 1; RE / 0.4
}

TEST(Growth, Variations) {
    ExpectCases(
        Growing(), ComputeGrowth,
        {
            // others: scaled by NEm / NEg = 1.5, and less the intake of a lactating cow, dry cows
            // too
            {"AnimalType=Lactating Cow", "NEGrowthDiet=4.3377167, DMIGrowth=-16"},
            {"AnimalType=Dry Cow", "NEGrowthDiet=4.3377167, DMIGrowth=-16"},
            // from first calving on the gain with conceptus reads EBG before this run replaces it
            {"Age=23.9, EBG=0.5", "ADGEnergyConceptus=1.7356485"},
            {"Age=24, EBG=0.5", "ADGEnergyConceptus=1.1880126, EBG=0.734208"},
            {"UseTargetADG=1, TargetADG=0.5", "TargetSWG=0.48"},
            {"DesiredADG=0",
             "TargetSWG=0, EBG=0, RE=0, NEGrowthDiet=0, NPg=0, MPGrowth=0, MEGrowth=0"},
            // protein efficiency up to the reference weight: (83.4 - 239 * 0.114) / 100
            {"SBW=240, ConceptusWeight=0", "EffMPNPg=0.56154"},
            {"SBW=479.5, ConceptusWeight=0", "EffMPNPg=0.28964762"},                    // 477.5 kg
            {"SBW=481, ConceptusWeight=0", "EffMPNPg=0.28908"},                         // 479 kg
            {"MatureWeight=0, Breed=Guernsey", "SRWRatio=0.99583333, MatureWeight=0"},  // 500 kg
        });
}

TEST(Growth, GuardsAndFaults) {
    EXPECT_FALSE(Growing().EnergyGain.has_value());  // empty before the first run
    ExpectCases(With(Growing(), "EnergyGain=7, RE=7, SRWRatio=7"), ComputeGrowth,
                {
                    {"NEAvailableGrowth=0", "EnergyGain=0, ADGEnergy=0, RE=2.8918112"},
                    {"TotalNEg=0, EffNEgME=0", "NEGrowthDiet=0, MEGrowth=0"},
                    {"MatureWeight=0, Breed=Zebu", "error=11, SRWRatio=7"},
                    {"ConceptusWeight=300", "error=5, EqSBW=0, EnergyGain=7"},
                    {"ConceptusWeight=301, NEAvailableGrowth=0",
                     "error=5, EqSBW=-0.99583333, EnergyGain=7"},
                    {"DesiredADG=-100", "error=5, EBG=-0.091776, RE=7"},  // -0.1 * 0.96 * 0.956
                });
}

}  // namespace
}  // namespace tav
