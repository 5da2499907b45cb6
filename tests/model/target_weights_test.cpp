#include "model/steps.h"
#include "support.h"

namespace tav {
namespace {

// Mature weight 700 kg: 385 kg (55 %) at breeding, 574 (82 %), 644 (92 %) and 700 at three
// calvings. First calving at 24 months, interval 12 months of 30.4 days. At 12 months 12 * 30.4 -
// 280 = 84.8 days are left to breeding and 364.8 to calving.
SimulationRecord Growing() { return With(Heifer(), "MatureWeight=700"); }

TEST(TargetWeights, OfAHeifer) {
    ExpectCases(
        Growing(), ComputeTargetWeights,
        {
            {"BodyWeight=300",
             "SBW=288, Age1stBreeding=14.789474, Age1stCalving=24, Age2ndCalving=36, "
             "Age3rdCalving=48, Weight1stBreeding=385, Weight1stCalving=574, Weight2ndCalving=644, "
             "Weight3rdCalving=700"},
            // (385 - 300) / 84.8; 274, 70 and 56 kg in 364.8 days
            {"BodyWeight=300",
             "ADGBeforeBreeding=1.0023585, ADGTo1stBreeding=1.0023585, TargetADG=1.0023585, "
             "ADGTo1stCalving=0.75109649, ADG1stTo2ndCalving=0.19188596, "
             "ADG2ndTo3rdCalving=0.15350877"},
            // in calf: 574 - (300 - 40) kg
            {"BodyWeight=300, DaysPregnant=1, ConceptusWeight=40",
             "ADGTo1stCalving=0.86074561, TargetADG=0.86074561"},
            // too heavy: 385 - 400 kg, which only the targets don't show
            {"BodyWeight=400", "ADGBeforeBreeding=-0.17688679, ADGTo1stBreeding=0, TargetADG=0"},
            {"BodyWeight=600, DaysPregnant=1", "ADGTo1stCalving=-0.07127193, TargetADG=0"},
            // late and open: gains of stages that are over stand as they were
            {"Age=24, ADGBeforeBreeding=0.5, ADGTo1stCalving=0.6",
             "ADGBeforeBreeding=0.5, ADGTo1stCalving=0.6, ADGTo1stBreeding=0, TargetADG=0.5"},
            {"CalvingInterval=0, ADG1stTo2ndCalving=0.2, ADG2ndTo3rdCalving=0.1",
             "ADG1stTo2ndCalving=0.2, ADG2ndTo3rdCalving=0.1"},
        });
}

TEST(TargetWeights, TargetOfACowByAge) {
    ExpectCases(With(Growing(), "AnimalType=Lactating Cow, BodyWeight=400, TargetADG=0.25"),
                ComputeTargetWeights,
                {
                    {"Age=60", "TargetADG=0"},
                    {"Age=48", "TargetADG=0"},  // third calving
                    {"Age=47.75", "TargetADG=0.15350877"},
                    {"Age=36", "TargetADG=0.15350877"},
                    {"Age=35.75", "TargetADG=0.19188596"},
                    {"Age=24", "TargetADG=0.19188596"},
                    {"Age=23.75", "TargetADG=22.894737"},  // 574 - 400 kg in 0.25 * 30.4 days
                    {"Age=15", "TargetADG=0.63596491, ADGTo1stBreeding=0"},
                    {"Age=14.75",
                     "TargetADG=0.25, ADGTo1stBreeding=0"},  // before breeding: what stood there
                    {"Age=14.75, TargetADG=-0.25", "TargetADG=0"},
                });
}

}  // namespace
}  // namespace tav
