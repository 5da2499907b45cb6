#include "model/steps.h"
#include "support.h"

namespace tav {
namespace {

// 30 kg of milk with 4 % fat, 3.1 % true protein, 4.8 % lactose:
//   energy   3.1 / 0.93 * 0.0547 + 4 * 0.0929 + 4.8 * 0.0395 = 0.1823333 + 0.3716 + 0.1896 Mcal/kg
//   protein  30 * 3.1 % = 0.93 kg, and 0.93 / 0.67 = 1.3880597 kg of metabolisable protein
//   fat      1.2 kg; milk of 4 % fat is its own fat corrected milk: 1.2 * 15 + 30 * 0.4 = 30 kg
TEST(Lactation, ByWhatTheMilkHolds) {
    ExpectCases(LactatingCow(), ComputeLactation,
                {
                    {"",
                     "MilkEnergy=0.74353333, MilkEnergyYield=22.306, NELact=22.306, "
                     "MilkProteinYield=0.93, MilkFatYield=1.2, MPLact=1388.0597, FCM=30"},
                    {"MilkFat=5", "FCM=34.5"},                // 1.5 * 15 + 30 * 0.4
                    {"Lactose=0", "MilkEnergy=0.74593333"},   // a fixed 0.192
                    {"Lactose=-1", "MilkEnergy=0.51443333"},  // as it stands
                    {"Lactose=0.001", "MilkEnergy=0.55397283"},
                    // -10 * (0.3716 + 0.192), and no type but the milk counts
                    {"AnimalType=Dry Cow, MilkProduction=-10, MilkTrueProtein=0, Lactose=0",
                     "NELact=-5.636, FCM=-10"},
                });
}

TEST(Lactation, WithoutMilkAllIsZeroButTheEnergyYieldOfTheRunBefore) {
    SimulationRecord r = LactatingCow();
    ComputeLactation(r);
    r.MilkProduction = 0;
    ComputeLactation(r);
    Expect(r,
           "MilkEnergy=0, NELact=0, MilkProteinYield=0, MilkFatYield=0, MPLact=0, FCM=0, "
           "MilkEnergyYield=22.306");
}

}  // namespace
}  // namespace tav
