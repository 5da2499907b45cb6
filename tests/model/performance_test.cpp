#include "model/steps.h"
#include "support.h"

namespace tav {
namespace {

// A cow with 30 Mcal NEl and 1000 + 1200 + 100 g of protein.
SimulationRecord Cow() {
    SimulationRecord r = LactatingCow();
    r.MineralRows[0].Name = "Ca";
    r.MineralRows[1].Name = "P";
    r.BalanceTable[2].Label = "Difference";
    return With(
        r,
        "TotalDMI=20, TotalME=50, TotalNEl=30, TotalNEg=16, TotalNDF=7, TotalADF=4, NEPreg=2, "
        "MEPreg=3, "
        "NEMaint=10, MEMaint=16, NELact=12, NEGrowthDiet=1, MEGrowth=20, MPFeed=1, "
        "MPBacterial=1200, "
        "EndogenousMP=100, MPMaint=700, MPPreg=50, MPLact=1200, MPGrowth=50, NPPerGain=123, "
        "DietRUPDigest=0.8, "
        "TargetADG=0.3, ADGPreg=665, PredictedDMI=25, Ca.TAR=50, P.TAR=40, DaysToChangeCS=100");
}

TEST(Performance, DaysToChangeAConditionScore) {
    ExpectCases(Cow(), ComputePerformance,
                {
                    // halves to even
                    {"Difference.Total=-1, DaysToChangeCS=-37.5",
                     "DaysToChangeCSText=Days to lose one condition score :   38"},
                    {"Difference.Total=-1, DaysToChangeCS=-36.5",
                     "DaysToChangeCSText=Days to lose one condition score :   36"},
                    {"Difference.Total=-1, DaysToChangeCS=-400",
                     "DaysToChangeCSText=Days to lose one condition score :  > 305"},
                    {"Difference.Total=0, DaysToChangeCS=0.2",
                     "DaysToChangeCSText=Days to gain one condition score :   0"},
                    {"Difference.Total=1, DaysToChangeCS=305",
                     "DaysToChangeCSText=Days to gain one condition score :   305"},
                    {"Difference.Total=1, DaysToChangeCS=305.1",
                     "DaysToChangeCSText=Days to gain one condition score :  > 305"},
                    {"AnimalType=Replacement Heifer, Difference.Total=-1",
                     "DaysToChangeCSText=No changes in condition score for heifers."},
                });
}

TEST(Performance, ConcentrationsOfTheDiet) {
    const SimulationRecord r = With(Fed(Fed(Cow(), Hay(), 12), Maize(), 8), "TotalDMI=20");
    ExpectCases(
        r, ComputePerformance,
        {
            {"", "DietNDF=0.35, DietADF=0.2, DietME=2.5, DietNEl=1.5, DietNEg=0.8"},  // of 20 kg
            // 50 % of the hay
            {"", "ForageNDFTotal=6, TargetADGNoConceptus=0.3, TargetADGConceptus=0.965"},
            {"TotalDMI=0", "DietNDF=0, DietADF=0, DietME=0, DietNEl=0, DietNEg=0"},
            {"", "EnteredMilk=30"},
            {"AnimalType=Dry Cow", "EnteredMilk=0"},
        });
}

// 30 - (2 + 10 + 12 + 1) = 5 Mcal are left; with maintenance raised by 10, -5; with 5 more, 0. The
// protein of a weight w: 123 * w / 0.492 for a gain, 123 * w * 0.67 from a loss; undegraded / 0.8.
TEST(Performance, ReservesTakeOrGiveWhatEnergyIsLeft) {
    const char* none =
        "ReserveWeightPerDay=0, MPReservesRequired=0, RUPReservesRequired=0, MPReservesProvided=0, "
        "RUPReservesProvided=0";
    ExpectCases(With(Cow(),
                     "MPReservesRequired=7, RUPReservesRequired=7, MPReservesProvided=7, "
                     "RUPReservesProvided=7"),
                ComputePerformance,
                {
                    // 5 / 5.12 kg
                    {"",
                     "ReserveWeightPerDay=0.9765625, MPReservesRequired=244.14062, "
                     "RUPReservesRequired=305.17578, MPReservesProvided=0, RUPReservesProvided=0"},
                    // 5 / 6.4 kg
                    {"AnimalType=Dry Cow",
                     "ReserveWeightPerDay=0.78125, MPReservesRequired=195.3125, "
                     "RUPReservesRequired=244.14062, MPReservesProvided=0, RUPReservesProvided=0"},
                    {"NEMaint=20",
                     "ReserveWeightPerDay=-1.0162602, MPReservesRequired=0, RUPReservesRequired=0, "
                     "MPReservesProvided=83.75, RUPReservesProvided=104.6875"},  // -5 / 4.92 kg
                    {"AnimalType=Dry Cow, NEMaint=20",
                     "ReserveWeightPerDay=-1.0162602, MPReservesRequired=0, RUPReservesRequired=0, "
                     "MPReservesProvided=83.75, RUPReservesProvided=104.6875"},
                    {"NEMaint=15", none},
                    {"AnimalType=Bull", none},
                    {"AnimalType=Replacement Heifer, MEMaint=60", none},
                    {"DietRUPDigest=0", "RUPReservesRequired=0"},
                    {"DietRUPDigest=0, NEMaint=20", "RUPReservesProvided=0"},
                });
}

TEST(Performance, AllowableMilk) {
    ExpectCases(Cow(), ComputePerformance,
                {
                    // (30 - 10 - 2 - 1) / 12 * 30 kg; (2300 - 700 - 50 - 50) / 1200 * 30 kg
                    {"", "EnergyAllowableMilk=42.5, ProteinAllowableMilk=37.5"},
                    {"MilkProduction=0", "EnergyAllowableMilk=0, ProteinAllowableMilk=0"},
                    {"MilkProduction=-30", "EnergyAllowableMilk=0, ProteinAllowableMilk=0"},
                    {"NELact=0, MPLact=0", "EnergyAllowableMilk=0, ProteinAllowableMilk=0"},
                    // nothing left
                    {"NEMaint=28, MPMaint=2250", "EnergyAllowableMilk=0, ProteinAllowableMilk=0"},
                    // a little left, less than growth takes: below 0
                    {"NEMaint=27.5, MPMaint=2225",
                     "EnergyAllowableMilk=-1.25, ProteinAllowableMilk=-0.625"},
                });
}

// Net energy 2 + 10 + 12 + 1 = 25, metabolisable 3 + 16 + 20 = 39 Mcal; protein 2000 g; of 25 kg.
TEST(Performance, DensitiesThatTheIntakeMustHold) {
    ExpectCases(
        Cow(), ComputePerformance,
        {
            {"",
             "EnergyDensityRequired=1, MPDensityRequired=80, CaDensityRequired=2, "
             "PDensityRequired=1.6"},
            {"AnimalType=Replacement Heifer, DaysPregnant=259", "EnergyDensityRequired=1.56"},
            {"AnimalType=Replacement Heifer, DaysPregnant=260", "EnergyDensityRequired=1"},
            {"PredictedDMI=-1",
             "EnergyDensityRequired=0, MPDensityRequired=0, CaDensityRequired=0, "
             "PDensityRequired=0"},
        });
}

// 0.4 % Na * 435 + 1.5 % K * 256 - (0.2 % S * 624 + 0.35 % Cl * 282) = 558 - 223.5 meq/kg
TEST(Performance, CationAnionDifference) {
    SimulationRecord r = Cow();
    r.MineralRows[5].RationDensity = 0.004;
    r.MineralRows[4].RationDensity = 0.015;
    r.MineralRows[6].RationDensity = 0.002;
    r.MineralRows[3].RationDensity = 0.0035;
    ComputePerformance(r);
    Expect(r, "DCAD=334.5");
}

}  // namespace
}  // namespace tav
