// Reserves, gains, calves: whole pages or tables of animals at the ends of their range.
#include "reports/worked_animals.h"

namespace tav {
namespace {

constexpr const char* kReserves = R"(
Reserves Requirements


Major Inputs Used to Compute Body Reserves

Body Weight :  1102.31 (lbs)
Condition Score :  3.0
Energy Balance :  -1.50 (Mcal/day)

Calculation of Body Reserve Changes

Shrunk Body Weight :  1058.218 (lbs)
Empty Body Weight (CS=3) :  881.848 (lbs)

CS | Weight Factor | EBW  (lbs) | Fat  (lbs) | Protein  (lbs) | Body Energy (Mcal)
1.0 | 0.750 | 220.5 | 22.0462 | 44.0924 | 100.5
1.5 | 0.750 | 440.9 | 22.0462 | 44.0924 | 100.5
2.0 | 0.750 | 661.4 | 22.0462 | 44.0924 | 100.5
2.5 | 0.750 | 881.8 | 22.0462 | 44.0924 | 100.5
3.0 | 0.750 | 1102.3 | 22.0462 | 44.0924 | 100.5
3.5 | 0.750 | 1322.8 | 22.0462 | 44.0924 | 100.5
4.0 | 0.750 | 1543.2 | 22.0462 | 44.0924 | 100.5
4.5 | 0.750 | 1763.7 | 22.0462 | 44.0924 | 100.5
5.0 | 0.750 | 1984.2 | 22.0462 | 44.0924 | 100.5

Energy Available From Loss of 1 Condition Score :  Animal cannot lose condition.
Energy Required to Gain 1 Condition Score : Animal cannot gain condition.
Dietary NEl Value of 1 Condition Score Loss :  410.25 (Mcal)
Dietary NEl Required to Gain 1 Condition Score :  512.5 (Mcal)
Delta-ER :  33.5 (Mcal)

Calculation of Effect of Current NEl Balance on Body Reserves

Days to lose one condition score :   273
Daily Weight Change due to Reserves :  -0.7 (lbs/day)
MP Provided for Estimated Change in Reserves :  0.1 (lbs/day)
RE Substituted for Dietary NEl to lose CS :  410.25 (Mcal)
)";

TEST_F(WorkedPages, ReservesThatCanNeitherGrowNorShrink) {
    SimulationRecord& r = Cow(kDryCow, 3);
    r.CS9 = 5;
    r.BalanceTable[2].Total = -1.5;
    r.EBWAtCS3 = 400;
    for (std::size_t i = 0; i < 9; ++i) {
        r.CSWeightFactor[i] = 0.75;
        r.CSEBW[i] = 100 * (static_cast<int>(i) + 1);
        r.CSFat[i] = 10;
        r.CSProtein[i] = 20;
        r.CSBodyEnergy[i] = 100.5;
    }
    r.EnergyLoss1CS = r.EnergyGain1CS = 1000000;
    r.DietNElLoss1CS = 410.25;
    r.DietNElGain1CS = 512.5;
    r.DeltaER = 33.5;
    r.DaysToChangeCSText = "Days to lose one condition score :   273";
    r.ReserveWeightPerDay = -0.3;
    r.MPReservesProvided = 50;
    EXPECT_EQ(Body("Reserves Requirements", false), kReserves);
}

TEST_F(WorkedPages, StagesOfGainFromBreedingToTheThirdCalving) {
    SimulationRecord& r = Cow(kReplacementHeifer, 0);
    r.Age = 10;
    r.Age1stBreeding = 15;
    r.Age1stCalving = 24;
    r.Age2ndCalving = 37;
    r.Age3rdCalving = 50;
    r.CalvingInterval = 13;
    r.ADGTo1stBreeding = 0.75;
    r.ADGTo1stCalving = 0.8;
    r.ADG1stTo2ndCalving = 0.2;
    r.ADG2ndTo3rdCalving = 0.1;
    const auto gains = [&](bool metric) {
        const std::string body = Body("Target Weights and ADG", metric);
        const std::size_t begin = body.find("Animal Stage");
        return body.substr(begin, body.find("\n\nNOTES:") - begin);
    };
    EXPECT_EQ(gains(true),
              "Animal Stage | Average Daily Gain (kg)\n"
              "To 1st Breeding | 0.75\nTo 1st Calving | 0.80\n"
              "1st Calving To 2nd Calving | 0.20\n2nd Calving To 3rd Calving | 0.10");
    r.DaysPregnant = 30;  // bred before her time
    EXPECT_EQ(gains(false),
              "Animal Stage | Average Daily Gain (lbs)\n"
              "To 1st Breeding | N/A\nTo 1st Calving | 1.76\n"
              "1st Calving To 2nd Calving | 0.44\n2nd Calving To 3rd Calving | 0.22");
    Cow(kLactatingCow, 1);  // 30.5 months
    EXPECT_EQ(gains(true),
              "Animal Stage | Average Daily Gain (kg)\n"
              "To 1st Breeding | N/A\nTo 1st Calving | N/A\n"
              "1st Calving To 2nd Calving | 0.20\n2nd Calving To 3rd Calving | 0.10");
    r.CalvingInterval = 0;  // what the two later gains hold is of another animal
    EXPECT_EQ(gains(true),
              "Animal Stage | Average Daily Gain (kg)\n"
              "To 1st Breeding | N/A\nTo 1st Calving | N/A\n"
              "1st Calving To 2nd Calving | N/A\n2nd Calving To 3rd Calving | N/A");
}

constexpr const char* kCalfThatLosesWeight = R"(
Calf Requirements


Major Inputs Used to Compute Young Calf Requirements

Calf Body Weight :  110.231 (lbs) | Diet ME :  2.04 (Mcal/lbs)
Temperature :  41.0 deg. F | Diet NEm :  1.70 (Mcal/lbs)
 | Diet NEg :  1.36 (Mcal/lbs)

Calculation of Young Calf Reqiurements

Allowable Gain
     Energy Allowable ADG :  Weight Loss
     Net Protein Required for Growth :  N/A
     ADP Allowable Gain :  Weight Loss

Maintenance Requirement Calculations
     Total Milk Dry Matter Intake :  1.10 (lbs/day)
     Total Starter Dry Matter Intake :  0.55 (lbs/day)
     Net Energy Basal Maintenance Requirement :  0.086 (Mcal/day/BW^0.75)
     Temperature Multiplier :  1.27
     Net Energy Required for Maintenance :  2.00 (Mcal/day)
     Efficiency of use of ME for NEm :  0.82
     Metabolizable Energy Required for Maintenance :  2.44 (Mcal/day)
     Dry Matter Intake Required for Maintenance :  1.32 (lbs/day)
     Apparently Digested Protein Required for Maintenance :  25 (g/day)
     Crude Protein Required for Maintenance :  30 (g/day)

Growth Requirement Calculations
     Intake Available for Growth :  0.00
     Metabolizable Energy Available for Growth :  0.00 (Mcal/day)
     Efficiency of use of ME for NEg :  0.69
     Net Energy Available for Growth :  0.00 (Mcal/day)
     Apparently Digested Protein Required for Growth :  75 (g/day)
     Crude Protein Required for Growth :  80 (g/day)

Protein & Fat Values
     Total ADP Required :  100 (g/day)
     Total CP Required :  110 (g/day)
     ADP Balance :  -12 (g/day)
     CP Balance :  14 (g/day)
     Dietary Fat :  18.6%
)";

TEST_F(WorkedPages, CalvesThatLoseAndThatGainWeight) {
    SimulationRecord& r = Calf();
    r.CalfEnergyGainRaw = -0.1;
    r.CalfDMIGrowth = r.CalfMEGrowth = r.CalfNEGrowth = -0.05;
    EXPECT_EQ(Body("Calf Requirements", false), kCalfThatLosesWeight);
    r.CalfEnergyGainRaw = 0;  // not below 0: what there is of a gain is shown
    r.CalfEnergyGain = 0.4;
    r.CalfNPGrowth = 0.0752;
    r.CalfADPGain = 350;
    r.CalfDMIGrowth = 0.2;
    r.CalfMEGrowth = 0.9;
    r.CalfNEGrowth = 0.62;
    const std::string english = Body("Calf Requirements", false);
    EXPECT_LINE(english, "     Energy Allowable ADG :  0.88 (lbs/day)");
    EXPECT_LINE(english, "     Net Protein Required for Growth :  75 (g/day)");
    EXPECT_LINE(english, "     ADP Allowable Gain :  0.77 (lbs/day)");
    EXPECT_LINE(english, "     Intake Available for Growth :  0.44 (lbs/day)");
    const std::string metric = Body("Calf Requirements", true);
    EXPECT_LINE(metric, "     ADP Allowable Gain :  0.35 (kg/day)");
    EXPECT_LINE(metric, "     Metabolizable Energy Available for Growth :  0.90 (Mcal/day)");
    EXPECT_LINE(metric, "     Net Energy Available for Growth :  0.62 (Mcal/day)");
    EXPECT_LINE(metric, "Calf Body Weight :  50 (kg) | Diet ME :  4.50 (Mcal/kg)");
    EXPECT_LINE(metric, "Temperature :  5.0 deg. C | Diet NEm :  3.75 (Mcal/kg)");
}

TEST_F(WorkedPages, ACalfsMineralTablesHaveAnEmptyRowBeforeTheActualDensityAndAtTheEnd) {
    SimulationRecord& r = Calf();
    for (std::size_t i = 15; i < 18; ++i) {
        r.MineralRows[i].DesiredRationDensity = 22.0462;
        r.MineralRows[i].RationDensity = 44.0924;
    }
    const std::string body = Body("Mineral Requirements", false);
    EXPECT_EQ(body.substr(0, body.find(" | Ca")), "\nMineral Requirements\n\n\nMacro-Minerals\n\n");
    EXPECT_EQ(body.substr(body.find("Vitamins")),
              "Vitamins\n\n | VitA | VitD | VitE\n"
              "Ration Density | (1000 IU/lb) | (1000 IU/lb) | (IU/lb)\n"
              "Desired Ration Density | 10.0 | 10.0 | 10.0\n\n"
              "Actual Ration Density | 20.0 | 20.0 | 20.0\n\n");
}

}  // namespace
}  // namespace tav
