#include "support/report_fixture.h"

namespace tav {
namespace {

using ComponentsTest = ReportTest;

TEST_F(ComponentsTest, AHeiferIsOnMetabolisableEnergyUpToDay259) {
    SimulationRecord& r = Load("Heifer in Winter");
    r.NELact = 0.25;
    r.NEMaint = 7.5;
    r.MEMaint = 11.5;
    r.NEPreg = r.NEGrowthDiet = r.MEPreg = r.MEGrowth = 0;
    r.DaysPregnant = 259;
    std::string text = TextOf("Summary Report");
    EXPECT_LINE(text, " | ME | MP | Ca | P | K");
    EXPECT_NE(text.find("\nLactation | N/A | 0 | "), std::string::npos);
    EXPECT_NE(text.find("\nMaintenance | 11.5 | "), std::string::npos);
    EXPECT_NE(text.find("\nTotal Required | 11.5 | "), std::string::npos);
    r.DaysPregnant = 260;
    text = TextOf("Summary Report");
    EXPECT_LINE(text, " | NEl | MP | Ca | P | K");
    EXPECT_NE(text.find("\nLactation | 0.3 | 0 | "), std::string::npos);
    EXPECT_NE(text.find("\nTotal Required | 7.8 | "), std::string::npos);
}

TEST_F(ComponentsTest, OnlyALactatingCowHasMilkAmongHerInputs) {
    Load("Dry Cow");
    const std::string text = TextOf("Summary Report");
    EXPECT_LINE(text, "Milk Production :  N/A");
    EXPECT_EQ(text.find("Milk Fat"), std::string::npos);
    EXPECT_EQ(text.find("Days In Milk"), std::string::npos);
}

TEST_F(ComponentsTest, ProteinFromFeedKeepsGramsAsItsUnit) {
    SimulationRecord& r = Load("Lactating Cow");
    r.MPFeed = 1.5;
    EXPECT_NE(TextOf("Summary Report").find("MP - RUP :  1500 (g/d)\n"), std::string::npos);
    TheProgram().UseMetric = false;
    EXPECT_NE(TextOf("Summary Report").find("MP - RUP :  3.307 (g/d)\n"), std::string::npos);
}

TEST_F(ComponentsTest, TheGainAskedForIsInGramsOrPounds) {
    SimulationRecord& r = Load("Replacement Heifer");
    r.UseTargetADG = false;
    r.DesiredADG = 850;
    EXPECT_LINE(TextOf("Summary Report"), "Desired ADG :  850 g/day");
    TheProgram().UseMetric = false;
    EXPECT_LINE(TextOf("Summary Report"), "Desired ADG :  1.8739 lbs/day");
    r.UseTargetADG = true;
    EXPECT_LINE(TextOf("Summary Report"), "Desired ADG :  Using Model Computed Target ADG");
}

TEST_F(ComponentsTest, GrowthIsShownUpToTheSecondLactation) {
    SimulationRecord& r = Load("Lactating Cow");
    r.LactationNumber = 3;
    std::string text = TextOf("Growth Requirements");
    EXPECT_LINE(text,
                "Growth Requirements Not Computed For Cows In Their 3rd Lactation Or Greater");
    EXPECT_EQ(text.find("Shrunk Body Weight"), std::string::npos);
    r.LactationNumber = 2;
    r.NEGrowthDiet = 1.234;
    text = TextOf("Growth Requirements");
    EXPECT_EQ(text.find("Not Computed"), std::string::npos);
    EXPECT_LINE(text, "Calculation of Growth Reqiurements");
    EXPECT_LINE(text, "Diet NEl Required for Growth :  1.23 (Mcal/day)");
}

TEST_F(ComponentsTest, AHeifersGrowthHasNoLineOfDietaryEnergy) {
    Load("Replacement Heifer");
    EXPECT_EQ(TextOf("Growth Requirements").find("Diet NEl Required for Growth"),
              std::string::npos);
}

TEST_F(ComponentsTest, GrazingAddsDistanceAndTrips) {
    SimulationRecord& r = Load("Lactating Cow");
    r.Grazing = true;
    r.Distance = 250;
    r.Trips = 4;
    TheProgram().UseMetric = false;
    const std::string text = TextOf("Maintenance Requirements");
    EXPECT_NE(text.find("Distance Between Pasture and Milking :  820.00 (ft)\n"),
              std::string::npos);
    EXPECT_NE(text.find("Number of One-Way Trips :  4\n"), std::string::npos);
    r.Grazing = false;
    EXPECT_EQ(TextOf("Maintenance Requirements").find("Trips"), std::string::npos);
}

TEST_F(ComponentsTest, TemperaturesAndWindAreConverted) {
    SimulationRecord& r = Load("Heifer in Winter");
    r.Temperature = -10;
    r.PreviousTemperature = 20.5;
    r.LowerCriticalTemp = -40;
    r.WindSpeed = 10;
    TheProgram().UseMetric = false;
    const std::string text = TextOf("Maintenance Requirements");
    EXPECT_NE(text.find("Current Temperature :  14.0 deg F"), std::string::npos);
    EXPECT_NE(text.find("Previous Temperature :  68.9 deg F"), std::string::npos);
    EXPECT_LINE(text, " Lower Critical Temperature :  -40.0 deg. F");
    EXPECT_NE(text.find("Wind Speed :  6.21 (mph)"), std::string::npos);
}

TEST_F(ComponentsTest, AnAnimalMayBeTooThinOrTooFatForAScore) {
    SimulationRecord& r = Load("Dry Cow");
    r.EnergyLoss1CS = 1000000;
    r.EnergyGain1CS = 512.5;
    std::string text = TextOf("Reserves Requirements");
    EXPECT_LINE(text,
                "Energy Available From Loss of 1 Condition Score :  Animal cannot lose condition.");
    EXPECT_LINE(text, "Energy Required to Gain 1 Condition Score :  512.5 (Mcal)");
    r.EnergyLoss1CS = 480;
    r.EnergyGain1CS = 1000000;
    text = TextOf("Reserves Requirements");
    EXPECT_LINE(text, "Energy Available From Loss of 1 Condition Score :  480 (Mcal)");
    EXPECT_LINE(text, "Energy Required to Gain 1 Condition Score : Animal cannot gain condition.");
}

TEST_F(ComponentsTest, ReservesTakeOrGiveProtein) {
    SimulationRecord& r = Load("Lactating Cow");
    r.MPReservesRequired = 50;
    r.DietNElGain1CS = 497.5;
    EXPECT_LINE(TextOf("Reserves Requirements"),
                "MP Required for Estimated Change in Reserves :  50.0 (g/day)");
    EXPECT_LINE(TextOf("Reserves Requirements"),
                "Energy Dietary NEl will supply to gain CS:  497.5 (Mcal)");
    r.MPReservesRequired = 0;
    r.MPReservesProvided = 1000;
    r.DietNElLoss1CS = 399.5;
    TheProgram().UseMetric = false;
    EXPECT_LINE(TextOf("Reserves Requirements"),
                "MP Provided for Estimated Change in Reserves :  2.2 (lbs/day)");
    EXPECT_LINE(TextOf("Reserves Requirements"),
                "RE Substituted for Dietary NEl to lose CS :  399.5 (Mcal)");
}

TEST_F(ComponentsTest, MineralsShowNoGrowthOfAGrownCow) {
    SimulationRecord& r = Load("Lactating Cow");
    r.AgeAtFirstCalving = 24;
    r.CalvingInterval = 13;
    r.Age = 37;
    r.LactationNumber = 2;
    const std::string none = "Growth | N/A | N/A | N/A | N/A | N/A | N/A | N/A";
    std::string text = TextOf("Mineral Requirements");
    EXPECT_LINE(text, none);
    EXPECT_NE(text.find(none), text.rfind(none));  // macro and micro minerals
    r.Age = 36.9;
    text = TextOf("Mineral Requirements");
    EXPECT_NO_LINE(text, none);
    EXPECT_LINE(text, "Growth | N/A | N/A | N/A");  // vitamins never have any
    r.Age = 37;
    r.LactationNumber = 1;
    EXPECT_NO_LINE(TextOf("Mineral Requirements"), none);
}

TEST_F(ComponentsTest, AmountsOfMineralsAreNeverConverted) {
    SimulationRecord& r = Load("Lactating Cow");
    r.MineralRows[15].RationDensity = 2.20462;
    const std::string metric = TextOf("Mineral Requirements");
    TheProgram().UseMetric = false;
    const std::string english = TextOf("Mineral Requirements");
    EXPECT_EQ(metric.substr(0, metric.rfind("Ration Density")),
              english.substr(0, english.rfind("Ration Density")));
    EXPECT_NE(metric.find("Ration Density | 2.2 (1000 IU/kg) | "), std::string::npos);
    EXPECT_NE(english.find("Ration Density | 1.0 (1000 IU/lb) | "), std::string::npos);
}

TEST_F(ComponentsTest, TotalsOfProteinHaveOneDecimalInEnglishUnits) {
    SimulationRecord& r = Load("Dry Cow");
    TheProgram().UseMetric = false;
    r.TotalCP = r.MCP = 1000;
    r.TotalTDN = 1000;
    r.TotalRUP = r.TotalRDP = 1;
    const std::string text = TextOf("Energy and Protein Supply");
    const std::size_t totals = text.find("\nTotals : | ");
    const std::string line = text.substr(totals + 1, text.find('\n', totals + 1) - totals - 1);
    EXPECT_NE(line.find(" | 2.205 | "), std::string::npos) << line;
    EXPECT_NE(line.find(" | 2.2 | 2.2 | 2.2 | "), std::string::npos) << line;
    EXPECT_TRUE(line.ends_with(" | 2.2")) << line;
}

TEST_F(ComponentsTest, StagesThatAreOverDoNotApply) {
    SimulationRecord& r = Load("Replacement Heifer");
    r.DaysPregnant = 0;
    std::string text = TextOf("Target Weights and ADG");
    EXPECT_EQ(text.find("| N/A"), std::string::npos);
    EXPECT_EQ(text.find("Bred heifer"), std::string::npos);
    r.DaysPregnant = 200;
    r.ConceptusWeight = 24.4;
    text = TextOf("Target Weights and ADG");
    EXPECT_LINE(text, "To 1st Breeding | N/A");
    EXPECT_NE(text.find("Conceptus Weight :  24 (kg)\n"), std::string::npos);
    EXPECT_LINE(text, "Bred heifer weight is assumed to include conceptus.");
    r.Age = r.Age2ndCalving;
    text = TextOf("Target Weights and ADG");
    EXPECT_LINE(text, "To 1st Calving | N/A");
    EXPECT_LINE(text, "1st Calving To 2nd Calving | N/A");
    EXPECT_EQ(text.find("2nd Calving To 3rd Calving | N/A"), std::string::npos);
}

TEST_F(ComponentsTest, TheAgeInDaysStandsBehindAPositiveAge) {
    SimulationRecord& r = Load("Lactating Cow");
    r.Age1stBreeding = 0;
    r.Weight1stBreeding = 374.4;
    r.Age1stCalving = 24;
    const std::string text = TextOf("Target Weights and ADG");
    EXPECT_LINE(text, "1st Breeding | 0.00 | 374");
    EXPECT_NE(text.find("\n1st Calving | 24.00  (730 days) | "), std::string::npos);
}

TEST_F(ComponentsTest, ACalfThatLosesWeightHasFixedLines) {
    SimulationRecord& r = Load("Young Calf");
    r.CalfEnergyGainRaw = -9999;
    r.CalfDMIGrowth = r.CalfMEGrowth = -0.5;
    r.CalfNEGrowth = 0;
    const std::string text = TextOf("Calf Requirements");
    for (const char* const line :
         {"     Energy Allowable ADG :  Weight Loss", "     Net Protein Required for Growth :  N/A",
          "     ADP Allowable Gain :  Weight Loss", "     Intake Available for Growth :  0.00",
          "     Metabolizable Energy Available for Growth :  0.00 (Mcal/day)",
          "     Net Energy Available for Growth :  0.00 (Mcal/day)",
          "Calculation of Young Calf Reqiurements"}) {
        EXPECT_LINE(text, line);
    }
}

TEST_F(ComponentsTest, ACalfsMineralsAreConcentrations) {
    SimulationRecord& r = Load("Young Calf");
    for (std::size_t i = 0; i < 7; ++i) {
        r.MineralRows[i].DesiredRationDensity = 0.7;
        r.MineralRows[i].RationDensity = 0.0085;
    }
    const std::string text = TextOf("Mineral Requirements");
    EXPECT_LINE(text, "Ration Density | (g/g) | (g/g) | (g/g) | (g/g) | (g/g) | (g/g) | (g/g)");
    EXPECT_LINE(text, "Desired Ration Density | 0.70 | 0.70 | 0.70 | 0.70 | 0.70 | 0.70 | 0.70");
    EXPECT_LINE(text, "Actual Ration Density | 0.85 | 0.85 | 0.85 | 0.85 | 0.85 | 0.85 | 0.85");
    EXPECT_EQ(text.find("Pregnancy"), std::string::npos);
}

// A ration of as many feeds as there can be, with names as long as anyone might make them.
TEST_F(ComponentsTest, TwoHundredAndFiftyFiveFeedsAreAllThere) {
    SimulationRecord& r = Load("Lactating Cow");
    const FeedRecord feed = r.Feeds[0];
    r.Feeds.assign(255, feed);
    r.NumFeeds = 255;
    for (std::size_t i = 0; i < 255; ++i)
        r.Feeds[i].Name = "Feed " + std::to_string(i + 1) + " of the co-operative at the river";
    r.Feeds[254].Name = "Foder <b>&</b> \xE9t\xE9 \xE4\xBD\x99" + std::string(300, 'M');
    r.TotalDMI = 255 * feed.Qty;
    RunComputations();
    for (const char* const report : {"Summary Report", "Energy and Protein Supply"}) {
        const auto document = Make({report});
        const std::string text = TextForm(*document);
        for (int i = 1; i < 255; ++i) {
            const std::string name = "\nFeed " + std::to_string(i) + " of the co-operative";
            EXPECT_NE(text.find(name), std::string::npos) << report << name;
        }
        EXPECT_NE(text.find("\nFoder <b>&</b> \xC3\xA9t\xC3\xA9"), std::string::npos);
        for (const ReportPage& page : document->Pages) {
            for (const TextRun& run : page.Runs)
                EXPECT_LE(run.X + run.Width, page.Width - 720 + 0.01) << run.Text;
        }
    }
}

TEST_F(ComponentsTest, AFeedWithoutDryMatterCannotBeShownAsFed) {
    SimulationRecord& r = Load("Dry Cow");
    r.Feeds[0].DM = 0;
    EXPECT_THROW(Make({"Summary Report"}), RuntimeError);
}

}  // namespace
}  // namespace tav
