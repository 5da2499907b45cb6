#include "model/steps.h"
#include "support.h"

#include <array>

namespace tav {
namespace {

// 500 kg, 20 kg dry matter, 30 kg milk, gain 0.48 / 0.96 = 0.5 kg, 27 degrees, 191 days in calf.
// Growing: first lactation at 30 months, mature at 700 kg, (700 / 500)^0.22 = 1.0768.
SimulationRecord Cow() {
    SimulationRecord r =
        With(LactatingCow(),
             "Age=30, LactationNumber=1, BodyWeight=500, MatureWeight=700, TotalDMI=20, "
             "TargetSWG=0.48, Temperature=27, DaysPregnant=191");
    ComputeMineralsAndVitamins(r);  // names the lines
    return r;
}

// Calcium and phosphorus of the conceptus are the difference of two days of its curve, such as
// 0.02456 * exp((0.05581 - 0.00007 * 191) * 191) less the same at day 190.
TEST(Minerals, RequirementOfAGrowingCowLineByLine) {
    struct Line {
        const char* Name;
        double Fecal, Urine, Sweat, Misc, Pregnancy, Lactation, Growth;
        double Fixed = 0;  // instead of their sum
    };
    const Line lines[] = {
        // 5 * 3.1; 5 * 0.08; 30 * 1.22; 9.83 * 1.0768 * 0.5
        {"Ca", 15.5, 0.4, 0, 0, 2.337836, 36.6, 5.2926319},
        // 20 * 1; 500 * 0.002; 30 * 0.9; (1.2 + 4.635 * 1.0768) * 0.5
        {"P", 20, 1, 0, 0, 1.7999884, 27, 3.0955594},
        {"Mg", 1.5, 0, 0, 0, 0.33, 4.5, 0.225},  // 500 * 0.003; 30 * 0.15; 0.5 * 0.45
        {"Cl", 11.25, 0, 0, 0, 1, 34.5, 0.5},    // 5 * 2.25; 30 * 1.15; 0.5
        {"K", 122, 19, 0.2, 0, 1.027, 45,
         0.8},  // 20 * 6.1; 500 * 0.038; 5 * 0.04; 30 * 1.5; 0.5 * 1.6
        {"Na", 19, 0, 0.5, 0, 1.39, 18.9, 0.7},  // 500 * 0.038; 5 * 0.1; 30 * 0.63; 0.5 * 1.4
        {"S", 0, 0, 0, 0, 0, 0, 0, 40},          // 20 * 2
        {"Co", 0, 0, 0, 0, 0, 0, 0, 2.2},        // 20 * 0.11
        {"Cu", 3.55, 0, 0, 0, 1.5, 4.5, 0.575},  // 500 * 0.0071; 30 * 0.15; 0.5 * 1.15
        {"I", 0, 0, 0, 0, 0, 7.5, 0},            // by weight: 5 * 1.5
        {"Fe", 0, 0, 0, 0, 18, 30, 17},          // 30 * 1; 0.5 * 34
        {"Mn", 1, 0, 0, 0, 0.3, 0.9, 0.35},      // 500 * 0.002; 30 * 0.03; 0.5 * 0.7
        {"Se", 0, 0, 0, 0, 0, 0, 0, 6},          // 20 * 0.3
        {"Zn", 16.5, 6, 0, 0, 12, 120, 12},      // 500 * 0.033; 500 * 0.012; 30 * 4; 0.5 * 24
        {"", 0, 0, 0, 0, 0, 0, 0},
        {"Vit A", 0, 0, 0, 0, 0, 0, 0, 55},   // 500 * 0.11
        {"Vit D", 0, 0, 0, 0, 0, 0, 0, 15},   // 500 * 0.03
        {"Vit E", 0, 0, 0, 0, 0, 0, 0, 400},  // 500 * 0.8
    };
    const SimulationRecord r = Cow();
    for (std::size_t i = 0; i < kMineralRows; ++i) {
        const Line& line = lines[i];
        const MineralRow& row = r.MineralRows[i];
        SCOPED_TRACE(line.Name);
        EXPECT_EQ(line.Name, row.Name);
        EXPECT_EQ(i < 7     ? "(g/d)"
                  : i < 14  ? "(mg/d)"
                  : i == 14 ? ""
                  : i < 17  ? "(1000 IU/kg)"
                            : "(IU/kg)",
                  row.Units);
        const double maintenance = line.Fecal + line.Urine + line.Sweat + line.Misc;
        EXPECT_CLOSE(line.Fecal, row.Fecal);
        EXPECT_CLOSE(line.Urine, row.Urine);
        EXPECT_CLOSE(line.Sweat, row.Sweat);
        EXPECT_CLOSE(line.Misc, row.Misc);
        EXPECT_CLOSE(maintenance, row.Maintenance);
        EXPECT_CLOSE(line.Pregnancy, row.Pregnancy);
        EXPECT_CLOSE(line.Lactation, row.Lactation);
        EXPECT_CLOSE(line.Growth, row.Growth);
        const double sum = maintenance + line.Pregnancy + line.Lactation + line.Growth;
        EXPECT_CLOSE(line.Fixed > 0 ? line.Fixed : sum, row.TAR);
    }
}

TEST(Minerals, RequirementByKindOfAnimal) {
    ExpectCases(
        Cow(), ComputeMineralsAndVitamins,
        {
            {"AnimalType=Dry Cow, DaysInMilk=0",
             "Ca.Fecal=7.7, P.Fecal=20, K.Fecal=52, Na.Fecal=7.5, I.Misc=3, I.Lactation=0"},
            {"AnimalType=Dry Cow, DaysInMilk=1", "Ca.Fecal=15.5, I.Misc=0, I.Lactation=7.5"},
            {"AnimalType=Replacement Heifer", "P.Fecal=16, K.Fecal=52, Na.Fecal=7.5"},  // 20 * 0.8
            {"AnimalType=COWS", "P.Fecal=20, K.Fecal=52"},  // "cow" in any case
            // In milk for 0 days: five lines go by the milk all the same, the others do not
            {"DaysInMilk=0",
             "Cl.Lactation=34.5, K.Lactation=45, Na.Lactation=18.9, Fe.Lactation=30, "
             "Zn.Lactation=120, Ca.Lactation=0, "
             "P.Lactation=0, Mg.Lactation=0, Cu.Lactation=0, Mn.Lactation=0, I.Lactation=0"},
            // 1.22, 1.45 or 1.37 g calcium a kilogram of milk
            {"Breed=Milking Shorthorn", "Ca.Lactation=36.6"},
            {"Breed=Jersey", "Ca.Lactation=43.5"},
            {"Breed=Ayrshire", "Ca.Lactation=41.1"},
            {"Breed=jersey", "Ca.Lactation=41.1"},
            {"Temperature=24.9", "K.Sweat=0, Na.Sweat=0"},
            {"Temperature=25", "K.Sweat=0.2, Na.Sweat=0.5"},
            {"Temperature=30", "K.Sweat=0.2, Na.Sweat=0.5"},
            {"Temperature=30.1", "K.Sweat=2, Na.Sweat=2.5"},
            // growth is over from 24 + 12 months on, but not in the first lactation
            {"Age=35.9, LactationNumber=2", "Fe.Growth=17, Fe.TAR=65"},
            {"Age=36, LactationNumber=2", "Fe.Growth=0, Ca.Growth=0, Fe.TAR=48"},
            {"Age=36, LactationNumber=1", "Fe.Growth=17"},
            // calcium and phosphorus of growth need a weight and a gain
            {"TargetSWG=-0.48", "Ca.Growth=0, P.Growth=0, Fe.Growth=-17"},
            {"BodyWeight=0", "Ca.Growth=0, P.Growth=0"},
        });
}

// Three different starts: phosphorus on day 190, calcium after it, the fixed amounts on day 191.
TEST(Minerals, PregnancyByDay) {
    const char* fixed =
        "Mg.Pregnancy=0.33, Cl.Pregnancy=1, K.Pregnancy=1.027, Na.Pregnancy=1.39, Fe.Pregnancy=18, "
        "Mn.Pregnancy=0.3, Zn.Pregnancy=12";
    const char* none =
        "Mg.Pregnancy=0, Cl.Pregnancy=0, K.Pregnancy=0, Na.Pregnancy=0, Fe.Pregnancy=0, "
        "Mn.Pregnancy=0, Zn.Pregnancy=0";
    ExpectCases(Cow(), ComputeMineralsAndVitamins,
                {
                    {"DaysPregnant=0", "Cu.Pregnancy=0"},
                    {"DaysPregnant=1", "Cu.Pregnancy=0.5"},
                    {"DaysPregnant=99", "Cu.Pregnancy=0.5"},
                    {"DaysPregnant=100", "Cu.Pregnancy=1.5"},
                    {"DaysPregnant=225", "Cu.Pregnancy=1.5"},
                    {"DaysPregnant=226", "Cu.Pregnancy=2"},
                    {"DaysPregnant=189", "Ca.Pregnancy=0, P.Pregnancy=0"},
                    {"DaysPregnant=190", "Ca.Pregnancy=0, P.Pregnancy=1.7622896"},
                    {"DaysPregnant=190", none},
                    {"DaysPregnant=191", fixed},
                    {"DaysPregnant=279", fixed},
                    {"DaysPregnant=279", "Ca.Pregnancy=10.195016, P.Pregnancy=5.3332515"},
                });
}

TEST(Vitamins, RequirementByAnimalAndGrazing) {
    ExpectCases(
        Cow(), ComputeMineralsAndVitamins,
        {
            {"AnimalType=Replacement Heifer, DaysPregnant=259",
             "Vit A.TAR=40, Vit E.TAR=400"},                                      // 500 * 0.08, 0.8
            {"AnimalType=Replacement Heifer, DaysPregnant=260", "Vit A.TAR=55"},  // 0.11
            {"AnimalType=Replacement Heifer, Grazing=1", "Vit E.TAR=130"},        // 0.26
            {"AnimalType=Dry Cow", "Vit E.TAR=800"},                              // 1.6
            {"AnimalType=Dry Cow, Grazing=1", "Vit E.TAR=250, Vit A.TAR=55, Vit D.TAR=15"},  // 0.5
            {"Grazing=1", "Vit E.TAR=130"},
        });
}

// Of 3 and 1 kg of a feed in which every number differs, in 8 kg of dry matter.
TEST(Minerals, SupplyIsEachFeedsContentTimesItsOwnCoefficient) {
    double next = 0.25;
    FeedRecord feed = With(FeedRecord(), "Name=Feed");
    VisitFields(FeedRecord(), [&]<class T>(std::string_view name, const T&) {
        if constexpr (std::is_same_v<T, Single>)
            feed = With(feed, std::string(name) + '=' + std::to_string(next += 1));
    });
    for (const std::string_view type : {kLactatingCow, kYoungCalf}) {
        SimulationRecord r = Fed(Fed(LactatingCow(), feed, 3), feed, 1);
        r.AnimalType = type;
        r.TotalDMI = 8;
        ComputeMineralsAndVitamins(r);
        for (std::size_t i = 0; i < kMineralRows; ++i) {
            const MineralRow& row = r.MineralRows[i];
            if (row.Name.empty()) continue;
            SCOPED_TRACE(row.Name);
            std::string field = "Feed." + row.Name;
            std::erase(field, ' ');
            const double total = NumberOf(r, field) * 4 * (i < 7 ? 10 : 1);  // % of 1 kg is 10 g
            const bool absorbed = i < 14 && type != kYoungCalf;              // a calf takes up all
            EXPECT_CLOSE(total, row.TotalDietary);
            EXPECT_CLOSE(absorbed ? total * NumberOf(r, field + "Bio") : total, row.TAS);
            EXPECT_CLOSE(total / 8 / (i < 7 ? 1000 : 1), row.RationDensity);  // kg/kg or mg/kg
            EXPECT_CLOSE((row.TAS - row.TAR).Value(), row.Difference);
        }
    }
}

TEST(Minerals, WithoutIntakeTheRequirementRemains) {
    ExpectCases(
        With(Cow(), "TotalDMI=0"), ComputeMineralsAndVitamins,
        {
            // the target density of a calf that was here before stands
            {"Mg.TAS=5, Mg.RationDensity=5, Mg.DesiredRationDensity=5",
             "Mg.TAS=0, Mg.RationDensity=0, Mg.DesiredRationDensity=5, Mg.TAR=6.555, "
             "Mg.Difference=-6.555"},
            {"AnimalType=Young Calf, Mg.DesiredRationDensity=5", "Mg.DesiredRationDensity=0"},
        });
}

// 2 kg of dry matter: 1 kg named "Calf Starter", whatever its category; 0.6 kg calf feed, a starter
// of another name among them; 0.4 kg other feed.
TEST(Minerals, AYoungCalf) {
    struct Line {
        const char* Name;
        double OnMilk, WithStarter;       // requirement, for each kilogram
        double Starter, CalfFeed, Other;  // target density
    };
    const Line lines[] = {
        {"Ca", 10, 7, 0.7, 1, 0.6},         {"P", 7.5 / 0.9, 4.5 / 0.78, 0.45, 0.7, 0.4},
        {"Mg", 0.7, 1, 0.1, 0.07, 0.1},     {"Cl", 2, 2, 0.2, 0.25, 0.2},
        {"K", 6.5, 6.5, 0.65, 0.65, 0.65},  {"Na", 1, 1.5, 0.15, 0.4, 0.14},
        {"S", 2.9, 2, 0.2, 0.29, 0.2},      {"Co", 0.1, 0.1, 0.1, 0.11, 0.1},
        {"Cu", 10, 10, 10, 10, 10},         {"I", 0.25, 0.25, 0.25, 0.5, 0.25},
        {"Fe", 100, 50, 50, 100, 50},       {"Mn", 40, 40, 40, 40, 40},
        {"Se", 0.3, 0.3, 0.3, 0.3, 0.3},    {"Zn", 40, 40, 40, 40, 40},
        {"Vit A", 4.455, 4.455, 4, 9, 4},  // 81 kg * 0.11 = 8.91 a day
        {"Vit D", 0.6, 0.6, 0.6, 0.6, 0.6}, {"Vit E", 50, 50, 25, 50, 25},
    };
    SimulationRecord fed = Fed(Cow(), With(Hay(), "Name=Calf Starter"), 1);
    Add(fed, With(Starter(), "Name=Starter, Category=CALF FEED - Starter"), 0.6);
    Add(fed, Hay(), 0.4);
    fed.MineralRows[14].TAR = 5;
    for (const char* intake : {"CalfStarterDMI=0", "CalfStarterDMI=0.001"}) {
        SimulationRecord r =
            With(With(fed, "AnimalType=Young Calf, CalfBodyWeight=81, TotalDMI=2"), intake);
        ComputeMineralsAndVitamins(r);
        for (const Line& line : lines) {
            const std::string name = line.Name;
            const double requirement = r.CalfStarterDMI == 0 ? line.OnMilk : line.WithStarter;
            EXPECT_CLOSE(2 * requirement, NumberOf(r, name + ".TAR")) << name;
            EXPECT_CLOSE((line.Starter + 0.6 * line.CalfFeed + 0.4 * line.Other) / 2,
                         NumberOf(r, name + ".DesiredRationDensity"))
                << name;
            for (const char* none : {".Fecal", ".Urine", ".Sweat", ".Misc", ".Maintenance",
                                     ".Pregnancy", ".Lactation", ".Growth"})
                EXPECT_EQ(0, NumberOf(r, name + none)) << name << none;
        }
        EXPECT_EQ(5, r.MineralRows[14].TAR);  // the empty line keeps what stood there
    }
}

}  // namespace
}  // namespace tav
