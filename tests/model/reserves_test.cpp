#include "model/steps.h"
#include "support.h"

namespace tav {
namespace {

SimulationRecord AtScore(double cs9, double balance) {
    SimulationRecord r = With(LactatingCow(), "SBW=600");
    r.CS9 = cs9;
    r.BalanceTable[2].Growth = balance;
    return r;
}

// 600 kg shrunk at score 5 of 9: empty body 600 * 0.851 = 510.6 kg. At score 3 of 9:
//   weight  510.6 * 0.863 = 440.6478 kg, fat 3 * 3.7683 % and protein 20.0886 - 3 * 0.66762 %
//   energy  440.6478 * (0.113049 * 9.4 + 0.1808574 * 5.55) Mcal
TEST(Reserves, BodyCompositionAndTheCostOfOneScore) {
    SimulationRecord r = AtScore(5, -2);
    ComputeReserves(r);
    Expect(r,
           "EBWAtCS3=510.6, CSWeightFactor[3]=0.863, CSEBW[3]=440.6478, CSFatFraction[3]=0.113049, "
           "CSFat[3]=49.814793, CSProteinFraction[3]=0.1808574, CSProtein[3]=79.694415, "
           "CSBodyEnergy[3]=910.56306, CSBodyEnergy[7]=1936.1929");
    Expect(r, "EnergyLoss1CS=468.4418, EnergyGain1CS=557.188");       // two rows down, two up
    Expect(r, "DietNElLoss1CS=384.12228, DietNElGain1CS=478.43876");  // 0.82; 0.644 / 0.75
    Expect(r, "DeltaER=384.12228, DaysToChangeCS=-192.06114");        // losing 2 Mcal a day
    r.BalanceTable[2].Growth = 2;
    ComputeReserves(r);
    Expect(r, "DeltaER=478.43876, DaysToChangeCS=239.21938");
}

// The rows that are read: present, two scores down, two scores up; halves round to the even score.
// Below 3 of 9 a score can't be lost, above 7 none gained: the diet's value ends at the scale's
// end.
TEST(Reserves, EndsOfTheScaleAndRounding) {
    constexpr double kNone = 1000000;
    struct Score {
        double CS9, Loss, Gain, DietLoss, DietGain;
    };
    const Score scores[] = {
        {0.6, kNone, 522.9967, 0, 449.07983},
        {2.5, kNone, 533.88761, 184.14674, 458.43149},
        {3, 439.97173, 542.80626, 360.77682, 466.08964},
        {5.5, 481.00459, 562.88405, 394.42376, 483.32977},
        {7, 490.05101, 568.10396, 401.84183, 487.81193},
        {7.5, 498.94117, kNone, 409.13176, 237.18563},
        {9, 507.01272, kNone, 415.75043, 0},
    };
    for (const Score& s : scores) {
        SCOPED_TRACE(testing::Message() << "score " << s.CS9);
        SimulationRecord r = AtScore(s.CS9, 1);
        ComputeReserves(r);
        EXPECT_NEAR(s.Loss, r.EnergyLoss1CS.Value(), 1e-3);
        EXPECT_NEAR(s.Gain, r.EnergyGain1CS.Value(), 1e-3);
        EXPECT_NEAR(s.DietLoss, r.DietNElLoss1CS.Value(), 1e-3);
        EXPECT_NEAR(s.DietGain, r.DietNElGain1CS.Value(), 1e-3);
    }
}

TEST(Reserves, GuardsAndFaults) {
    ExpectCases(
        With(AtScore(5, 0), "DaysToChangeCS=7"), ComputeReserves,
        {
            {"AnimalType=Replacement Heifer",
             "DaysToChangeCS=0, DeltaER=384.12228"},  // she does not change
            {"CS9=0.5", "error=9, CSWeightFactor[9]=1.274, EBWAtCS3=0"},
            {"CS9=9.5", "error=9, EBWAtCS3=0"},
            {"CS9=-3", "error=9"},
            // a balance of exactly 0; at score 1 nothing can be lost either, and that is 0 / 0
            {"CS9=5", "error=11, DeltaER=384.12228, DaysToChangeCS=7"},
            {"CS9=1", "error=6, DeltaER=0, DaysToChangeCS=7"},
        });
}

}  // namespace
}  // namespace tav
