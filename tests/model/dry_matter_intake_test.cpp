#include "model/steps.h"
#include "support.h"

namespace tav {
namespace {

// An animal of 625 kg (125 of metabolic weight) that eats 10 kg of 1 Mcal.
SimulationRecord Eating(const char* type) {
    SimulationRecord r = With(LactatingCow(), "TotalDMI=10, TotalNEm=10, TotalNEl=10, FCM=30");
    r.AnimalType = type;
    return r;
}

// Of a heifer: 125 * (0.2435 - 0.0466 - 0.0869) / 1 = 13.75 kg by the factor. Any coat leaves 1.
TEST(DryMatterIntake, TemperatureFactor) {
    ExpectCases(
        With(Eating("Replacement Heifer"), "DMITempFactor=0.77, CoatCondition=Wet/Matted"),
        PredictDMI,
        {
            {"Temperature=-15.5", "DMITempFactor=1.16, PredictedDMI=15.95, DMICoatFactor=1"},
            {"Temperature=-15", "DMITempFactor=1.07"},
            {"Temperature=-5.5", "DMITempFactor=1.07"},
            {"Temperature=-5", "DMITempFactor=1.05"},
            {"Temperature=4.5", "DMITempFactor=1.05"},
            {"Temperature=5", "DMITempFactor=1.03"},
            {"Temperature=14.5", "DMITempFactor=1.03"},
            {"Temperature=15", "DMITempFactor=1"},
            {"Temperature=24.5", "DMITempFactor=1"},
            {"Temperature=25", "DMITempFactor=0.9"},
            {"Temperature=34.5", "DMITempFactor=0.9"},
            {"Temperature=35.5", "DMITempFactor=0.65"},
            {"Temperature=35.5, NightCooling=1", "DMITempFactor=0.9"},
            // at exactly 35 the factor of the run before, which at the first one is 0
            {"Temperature=35", "DMITempFactor=0.77, PredictedDMI=10.5875"},
            {"Temperature=35, NightCooling=1", "DMITempFactor=0.77"},
            {"Temperature=35, DMITempFactor=0", "PredictedDMI=0"},
        });
}

// 125 * (NE * 0.2435 - NE^2 * 0.0466 - constant) / NE, NE at least 0.95 below the line.
TEST(DryMatterIntake, HeiferByAgeEnergyAndPregnancy) {
    ExpectCases(Eating("Replacement Heifer"), PredictDMI,
                {
                    {"Age=12, TotalNEm=14", "HeiferDMIConstant=0.1128, PredictedDMI=12.211071"},
                    {"Age=12.1, TotalNEm=14",
                     "HeiferDMIConstant=0.0869, PredictedDMI=14.523571, DietNEConcentration=1.4"},
                    {"TotalNEm=10", "HeiferDMIDivisor=1, PredictedDMI=13.75"},
                    {"TotalNEm=9", "HeiferDMIDivisor=0.95, PredictedDMI=12.434737"},
                    {"TotalNEm=9.9", "HeiferDMIDivisor=0.95"},
                    {"TotalNEm=0", "PredictedDMI=-11.434211"},  // negative, and so it stays
                    {"TotalDMI=0", "DietNEConcentration=0"},
                    {"DaysPregnant=210", "PredictedDMI=13.75"},
                    {"DaysPregnant=211", "PredictedDMI=13.715625"},  // 1 - 1 * 0.0025
                    {"DaysPregnant=258", "PredictedDMI=12.1"},       // 1 - 48 * 0.0025
                    {"DaysPregnant=259",
                     "PredictedDMI=10.684729"},  // (1.71 - exp(-21 * 0.35) * 0.69) % of 625 kg
                    {"DaysPregnant=279", "PredictedDMI=7.6485326"},
                });
}

// Lactating: 125 * 0.0968 + 30 * 0.372 - 0.293 = 22.967 kg, less the lag of the first weeks.
// Dry: (1.97 - exp((day - 280) * 0.16) * 0.75) % of 625 kg.
TEST(DryMatterIntake, Cows) {
    ExpectCases(Eating("Lactating Cow"), PredictDMI,
                {
                    {"DaysInMilk=0",
                     "PredictedDMI=11.614722"},  // 1 - exp(-3.67 * 0.192): a fresh cow does eat
                    {"DaysInMilk=14", "PredictedDMI=15.234607"},  // two weeks
                    {"DaysInMilk=150", "PredictedDMI=22.781531"},
                    {"TotalNEl=16", "DietNEConcentration=1.6"},
                });
    ExpectCases(Eating("Dry Cow"), PredictDMI,
                {
                    {"DaysPregnant=220", "PredictedDMI=12.312183"},
                    {"DaysPregnant=279", "PredictedDMI=8.318076"},
                    {"DaysPregnant=280", "PredictedDMI=7.625"},  // (1.97 - 0.75) %
                    {"DaysPregnant=220, Temperature=38", "PredictedDMI=12.312183"},  // heifers only
                });
}

// All three are predicted: 13.75 by the heifer equation, 12.3 by the dry cow's. TotalDMI stays.
TEST(DryMatterIntake, OneIsSelectedByTypeAndComparedWithTheRation) {
    ExpectCases(Eating("Bull"), PredictDMI,
                {
                    {"AnimalType=Young Calf",
                     "PredictedDMI=13.75, PredDMIHeifer=13.75, PredDMIDry=12.3125, TotalDMI=10"},
                    {"AnimalType=Dry Cow", "PredictedDMI=12.3125"},
                    {"PredictedDMI=12.5",
                     "PredictedDMI=12.5, DMIShortfall=0.2"},  // none of its own: the run before's
                    {"PredictedDMI=10", "DMIShortfall=0"},
                    {"PredictedDMI=8", "DMIShortfall=0"},
                    {"PredictedDMI=-1, TotalDMI=-2", "DMIShortfall=0, DietNEConcentration=0"},
                });
}

}  // namespace
}  // namespace tav
