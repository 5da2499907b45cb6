#include "model/steps.h"
#include "support.h"

namespace tav {
namespace {

// Calf of 45 kg, day 190: conceptus 0 * 0.665 + 18; energy (190 * 0.00318 - 0.0352) / 0.14 =
// 0.569 / 0.14, net 0.64 of it; protein (190 * 0.69 - 69.2) / 0.33 = 61.9 / 0.33.
// Day 279: 89 * 0.665 + 18; 0.85202 / 0.14; 123.31 / 0.33. A calf of 36 kg needs 0.8 of that.
TEST(Pregnancy, NeedsStartWithAJumpAtDay190AndEndAtDay279) {
    const char* none = "ConceptusWeight=0, ADGPreg=0, MEPreg=0, NEPreg=0, MPPreg=0";
    const SimulationRecord afterCalving =
        With(DryCow(), "ConceptusWeight=60, ADGPreg=665, MEPreg=5, NEPreg=3, MPPreg=300");
    ExpectCases(
        afterCalving, ComputePregnancy,
        {
            {"DaysPregnant=0", none},
            {"DaysPregnant=189", none},
            {"DaysPregnant=190",
             "DaysPregnant=190, ConceptusWeight=18, ADGPreg=665, MEPreg=4.0642857, "
             "NEPreg=2.6011429, MPPreg=187.57576"},
            {"DaysPregnant=191", "ConceptusWeight=18.665, ADGPreg=665"},
            {"DaysPregnant=279", "DaysPregnant=279, ConceptusWeight=77.185, MEPreg=6.0858571"},
            {"DaysPregnant=280", "DaysPregnant=279, ConceptusWeight=77.185, MPPreg=373.66667"},
            {"DaysPregnant=300, CalfBirthWeight=36",
             "DaysPregnant=279, ConceptusWeight=61.748, ADGPreg=532, MEPreg=4.8686857, "
             "MPPreg=298.93333"},
            {"DaysPregnant=279, CalfBirthWeight=0", none},
        });
}

}  // namespace
}  // namespace tav
