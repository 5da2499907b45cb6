#include "model/steps.h"
#include "support.h"

namespace tav {
namespace {

// 81 kg (27 of metabolic weight) on 1 kg of milk powder: 5 ME, 4.3 NEm, 3.45 NEg, 25 % protein.
SimulationRecord OnMilk() { return Fed(Calf(), Milk(), 1); }

TEST(YoungCalf, OnMilkAlone) {
    SimulationRecord r = OnMilk();
    ComputeYoungCalf(r);
    Expect(r,
           "CalfMilkDMI=1, CalfStarterDMI=0, CalfDietCP=25, CalfDietDCP=23.25, CalfDietME=5, "
           "CalfEffNEmME=0.86, CalfEffNEgME=0.69");
    Expect(r, "CalfNEMaint=2.322, MEMaint=2.7, CalfDMIMaint=0.54");  // 27 * 0.086; / 0.86; / 4.3
    Expect(r, "CalfDMIGrowth=0.46, CalfNEGrowth=1.587, CalfMEGrowth=2.3");  // * 3.45; / 0.69
    // (1.587 * 1.19 / (81^0.355 * 0.69))^0.8333, of which 0.188 is protein
    Expect(r, "CalfEnergyGainRaw=0.63068164, CalfEnergyGain=0.63068164, CalfNPGrowth=0.11856815");
    Expect(r, "CalfMetabolicFecalN=5.4, CalfEndogenousN=1.9, CalfBiologicalValue=0.8");  // 27 * 0.2
    // ((1.9 + 5.4) / 0.8 - 1.9) * 6.25; milk is digested to 0.93
    Expect(r, "CalfADPMaint=45.15625, CalfCPMaint=48.555108");
    Expect(r, "CalfADPGrowth=148.21019, CalfCPGrowth=159.36579");    // gain * 188 / 0.8
    Expect(r, "CalfADPBalance=39.133565, CalfCPBalance=42.079102");  // of 232.5 and 250 g
    Expect(r,
           "CalfADPGain=797.20745, CalfTotalFat=0.2, CalfDietFat=0.2");  // in g; fat is a fraction
}

// 1 kg milk powder, 0.5 kg starter, 0.5 kg hay. The hay has 2.7691708 Mcal DE, * 0.82 = 2.2707201
// ME, half of it 1.13536 Mcal: efficiency 0.75 and 0.57, against 0.86 and 0.69 of 6.5 Mcal.
TEST(YoungCalf, OnMilkStarterAndHay) {
    SimulationRecord r = With(Fed(Fed(OnMilk(), Starter(), 0.5), Hay(), 0.5), "TotalDMI=99");
    ComputeYoungCalf(r);
    Expect(r, "TotalDMI=2, CalfStarterDMI=1");  // summed up anew
    // (1.13536 * 0.75 + 6.5 * 0.86) / 7.63536
    Expect(r, "CalfEffNEmME=0.84364326, CalfEffNEgME=0.67215628");
    // Mcal/day from here on
    Expect(r, "Hay.NEm=0.85152, Hay.NEg=0.6471552, TotalNEm=0.85152, TotalNEg=0.6471552");
    Expect(r, "CalfDietNEm=3.22076, CalfDietNEg=2.5660776");  // (4.3 + 1.29 + hay) / 2
    Expect(r, "CalfDietME=3.81768, Hay.cCP=12, Hay.cDCP=9");  // 0.75 of 12
    // 0.25 + 0.1 + 0.06; 0.2325 + 0.075 + 0.045; of 2 kg
    Expect(r, "CalfDietCP=20.5, CalfDietDCP=17.625");
    Expect(r, "CalfNEGrowth=3.2821471, CalfMEGrowth=4.8830118, MEMaint=2.7523482");
    // (0.25 * 0.8 + 0.16 * 0.7) / 0.41 kg
    Expect(r, "CalfEndogenousN=5.2, CalfBiologicalValue=0.76097561");
    Expect(r, "CalfADPMaint=54.559295");  // ((5.2 + 5.4) / 0.7609756 - 5.2) * 6.25
    Expect(r, "CalfCPMaint=63.459038");   // digested (0.25 * 0.93 + 0.16 * 0.75) / 0.41
    Expect(r, "CalfTotalFat=0.23, CalfDietFat=0.115");  // 0.2 + 0.02 + 2 % of 0.5
    EvaluateFeedEnergy(r);  // gives the hay's energy for a kilogram again
    EXPECT_GT(r.Feeds[2].NEm, 0.85152 * 1.3);
}

TEST(YoungCalf, ColdMultiplierByTemperatureAndAge) {
    struct Step {
        double Temperature, Older, Younger;  // over 2 months, up to 2 months
    };
    const Step steps[] = {
        {15.1, 0, 0},       {15, 0, 0.13},     {10.1, 0, 0.13},    {10, 0, 0.27},
        {5.1, 0, 0.27},     {5, 0.13, 0.40},   {0.1, 0.13, 0.40},  {0, 0.27, 0.54},
        {-4.9, 0.27, 0.54}, {-5, 0.40, 0.68},  {-9.9, 0.40, 0.68}, {-10, 0.54, 0.86},
        {-15, 0.68, 0.94},  {-20, 0.81, 1.08}, {-25, 0.94, 1.21},  {-29.9, 0.94, 1.21},
        {-30, 1.07, 1.34},  {-40, 1.07, 1.34},
    };
    for (const Step& step : steps) {
        for (const auto& [age, multiplier] : {std::pair(2.1, step.Older), {2., step.Younger}}) {
            SimulationRecord r = OnMilk();
            r.CalfTemperature = step.Temperature;
            r.Age = age;
            ComputeYoungCalf(r);
            EXPECT_CLOSE(multiplier, r.CalfTempMultiplier) << step.Temperature << ", age " << age;
            EXPECT_CLOSE(2.322 * (1 + multiplier), r.CalfNEMaint);
        }
    }
}

TEST(YoungCalf, GuardsAndFaults) {
    ExpectCases(
        OnMilk(), ComputeYoungCalf,
        {
            // 2.16 Mcal of milk for a maintenance of 2.322: weight loss
            {"Milk.Qty=0.5",
             "CalfDietNEm=4.3, CalfEnergyGainRaw=-9999, CalfEnergyGain=0, CalfNPGrowth=0, "
             "CalfADPGrowth=0, CalfCPGrowth=0"},
            // neither energy nor protein: digestibility and biological value 1, 5.4 * 6.25
            {"Milk.cME=0, Milk.cNEm=0, Milk.cNEg=0, Milk.cCP=0, Milk.cDCP=0",
             "CalfEffNEmME=0, CalfEffNEgME=0, MEMaint=0, CalfDMIMaint=0, CalfMEGrowth=0, "
             "CalfBiologicalValue=1, CalfADPMaint=33.75, CalfCPMaint=33.75"},
            // a calf without weight, and energy for growth
            {"CalfBodyWeight=0", "error=11, CalfNEGrowth=3.45, CalfEnergyGainRaw=0"},
            // nothing to eat: only the sums are cleared
            {"Milk.Qty=0, CalfMilkDMI=5, CalfStarterDMI=5, CalfDietNEm=5, CalfDietME=5, "
             "CalfDietNEg=5, CalfNEMaint=5, CalfDietCP=5",
             "TotalDMI=0, CalfMilkDMI=0, CalfStarterDMI=0, CalfDietNEm=0, CalfDietME=0, "
             "CalfDietNEg=0, CalfNEMaint=5, CalfDietCP=5"},
            {"NumFeeds=0, CalfMilkDMI=5, CalfDietCP=5", "TotalDMI=1, CalfMilkDMI=0, CalfDietCP=5"},
        });
    ExpectCases(Fed(Calf(), Hay(), 1), ComputeYoungCalf,
                {{"CalfBodyWeight=0",
                  "error=11, Hay.NFCDigest=0.98, CalfStarterDMI=0"}});  // in the feed energy
}

// Energy evaluation goes by the words "Calf Feed", the calf's sums by three exact categories: a
// feed between them keeps its DE, 3 * 0.82 * 0.5 Mcal, and counts as an ordinary one.
TEST(YoungCalf, KindsOfCalfFeeds) {
    SimulationRecord r =
        Fed(OnMilk(), With(Starter(), "Category=Calf Feed - Vitamin/Mineral"), 0.5);
    Add(r, With(Starter(), "Name=Between, Category=Calf Feed - Other, DE=3, CP=20"), 0.5);
    Add(r, Limestone(), 0.1);
    ExpectCases(r, ComputeYoungCalf,
                {
                    {"", "CalfStarterDMI=1.1, TotalME=1.23, Between.NEm=0.9225"},  // 0.75 of it
                    // 0.25 + 0.1 + 0.1 kg of 2.1; no fat in between
                    {"", "CalfDietCP=21.428571, CalfTotalFat=0.22"},
                });
}

}  // namespace
}  // namespace tav
