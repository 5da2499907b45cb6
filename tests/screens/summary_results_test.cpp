#include "screens/summary_results.h"

#include "core/program_state.h"

#include <algorithm>
#include <set>

#include <gtest/gtest.h>

namespace tav {
namespace {

SimulationRecord Animal(std::string_view type) {
    SimulationRecord r;
    r.AnimalType = type;
    r.NumFeeds = 1;
    r.TotalDMI = 20;
    return r;
}

struct Line {
    const char* Choice;
    const char* Metric;
    const char* English;
};

void ExpectLines(const SimulationRecord& r, std::initializer_list<Line> lines) {
    for (const Line& line : lines) {
        EXPECT_EQ(SummaryResultText(r, line.Choice, true), line.Metric);
        EXPECT_EQ(SummaryResultText(r, line.Choice, false), line.English);
    }
}

TEST(SummaryResultText, ReadsAsACowsPanel) {
    SimulationRecord r = Animal(kLactatingCow);
    r.MilkProduction = 40;
    r.EnergyAllowableMilk = 38.25;
    r.ProteinAllowableMilk = 41.5;
    r.TotalNEl = 40;
    r.NEPreg = 1;
    r.NEMaint = 10;
    r.NELact = 28;
    r.NEGrowthDiet = 2.5;
    r.TotalME = 60;
    r.MEPreg = 1;
    r.MEMaint = 20;
    r.MEGrowth = 3;
    r.MPFeed = 1.2;
    r.MPBacterial = 1300;
    r.EndogenousMP = 100;
    r.MPPreg = 20;
    r.MPMaint = 800;
    r.MPLact = 1900;
    r.MPGrowth = 5;
    r.RDPBalance = -20.5;
    r.DaysToChangeCSText = "as it stands";
    r.DietCP = 0.165;
    r.TotalCP = 3300;
    r.DietRDP = 0.65;
    r.DietNEl = 1.5;
    r.DietME = 2.5;
    r.DietNEg = 1;
    r.PredDMI = 22.5;
    ExpectLines(
        r, {{"Entered Milk Production", "Entered Milk Production :  40.0 (kg/day)",
             "Entered Milk Production :  88.2 (lbs/day)"},
            {"Energy Allowable Milk", "NEl Allowable Milk :  38.3 (kg/day)",
             "NEl Allowable Milk :  84.3 (lbs/day)"},
            {"MP Allowable Milk", "MP Allowable Milk :  41.5 (kg/day)",
             "MP Allowable Milk :  91.5 (lbs/day)"},
            {"NEl Balance", "NEl Balance :  -1.5 (Mcal/day)", "NEl Balance :  -1.5 (Mcal/day)"},
            {"ME Balance", "ME Balance :  36.0 (Mcal/day)", "ME Balance :  36.0 (Mcal/day)"},
            {"MP Balance", "MP Balance :  -125 (g/day)", "MP Balance :  -125 (g/day)"},
            {"RDP Balance", "RDP Balance :  -21 (g/d)", "RDP Balance :  -21 (g/d)"},
            {"Days To Change 1 Condition Score", "as it stands", "as it stands"},
            {"Diet CP", "Diet CP :  16.5 (%DM)", "Diet CP :  16.5 (%DM)"},
            // 3300 g in 20 kg are 16.5 %, of which 65 % is degraded.
            {"Diet Protein Degradability", "CP - RDP :  10.7 (%DM)", "CP - RDP :  10.7 (%DM)"},
            {"Diet NEl", "Diet NEl :  1.50 (Mcal/kg DM)", "Diet NEl :  0.68 (Mcal/lbs DM)"},
            {"Diet ME", "Diet ME :  2.50 (Mcal/kg DM)", "Diet ME :  1.13 (Mcal/lbs DM)"},
            {"Diet NEg", "Diet NEg :  1.00 (Mcal/kg DM)", "Diet NEg :  0.45 (Mcal/lbs DM)"},
            {"Predicted Dry Matter Intake", "DMI - Predicted :  22.50 (kg/day)",
             "DMI - Predicted :  49.60 (lbs/day)"}});
}

TEST(SummaryResultText, ReadsAsAHeifersPanel) {
    SimulationRecord r = Animal(kReplacementHeifer);
    r.TargetADGNoConceptus = 0.7;
    r.TargetADGConceptus = 0.8;
    r.ADGEnergy = 0.9;
    r.ADGEnergyConceptus = 1;
    r.ADGMP = 1.1;
    r.ADGMPConceptus = 1.2;
    ExpectLines(
        r, {{"Target ADG w/o Conceptus", "Target ADG w/o Conceptus :  0.70 (kg/day)",
             "Target ADG w/o Conceptus :  1.54 (lbs/day)"},
            {"Target ADG with Conceptus", "Target ADG with Conceptus :  0.80 (kg/day)",
             "Target ADG with Conceptus :  1.76 (lbs/day)"},
            {"Energy Allowable ADG w/o Conceptus",
             "Energy Allowable ADG w/o Conceptus :  0.90 (kg/day)",
             "Energy Allowable ADG w/o Conceptus :  1.98 (lbs/day)"},
            {"Energy Allowable ADG with Conceptus",
             "Energy Allowable ADG with Conceptus :  1.00 (kg/day)",
             "Energy Allowable ADG with Conceptus :  2.20 (lbs/day)"},
            {"MP Allowable ADG w/o Conceptus", "MP Allowable ADG w/o Conceptus :  1.10 (kg/day)",
             "MP Allowable ADG w/o Conceptus :  2.43 (lbs/day)"},
            {"MP Allowable ADG with Conceptus", "MP Allowable ADG with Conceptus :  1.20 (kg/day)",
             "MP Allowable ADG with Conceptus :  2.65 (lbs/day)"}});
}

TEST(SummaryResultText, ReadsAsACalfsPanel) {
    SimulationRecord r = Animal(kYoungCalf);
    r.CalfMilkDMI = 0.5;
    r.CalfStarterDMI = 1;
    r.CalfEnergyGain = 0.6;
    r.CalfADPGain = 700;
    r.CalfDietME = 4;
    r.CalfDietNEm = 3;
    r.CalfDietNEg = 2;
    r.CalfDietCP = 21.25;
    r.CalfDietDCP = 19.5;
    r.CalfADPBalance = 12.4;
    r.CalfCPBalance = -3;
    ExpectLines(
        r, {{"(CALF) Dry Matter Intake - Milk", "Milk Dry Matter Intake :  0.50 (kg/day)",
             "Milk Dry Matter Intake :  1.10 (lbs/day)"},
            {"(CALF) Dry Matter Intake - Starter", "Starter Dry Matter Intake :  1.00 (kg/day)",
             "Starter Dry Matter Intake :  2.20 (lbs/day)"},
            {"(CALF) Energy Allowable Gain", "Energy Allowable Gain :  0.60 (kg/day)",
             "Energy Allowable Gain :  1.32 (lbs/day)"},
            {"(CALF) Apparently Dig. Protein Allowable Gain", "ADP Allowable Gain :  0.70 (kg/day)",
             "ADP Allowable Gain :  1.54 (lbs/day)"},
            {"(CALF) Diet ME", "Diet ME :  4.00 (Mcal/kg)", "Diet ME :  1.81 (Mcal/lbs)"},
            {"(CALF) Diet NEm", "Diet NEm :  3.00 (Mcal/kg)", "Diet NEm :  1.36 (Mcal/lbs)"},
            {"(CALF) Diet NEg", "Diet NEg :  2.00 (Mcal/kg)", "Diet NEg :  0.91 (Mcal/lbs)"},
            {"(CALF) Diet CP", "Diet CP :  21.3%", "Diet CP :  21.3%"},
            {"(CALF) Diet DCP", "Diet DCP :  19.5%", "Diet DCP :  19.5%"},
            {"(CALF) Digestible Protein Balance", "Digestible Protein Balance :  12 (g)",
             "Digestible Protein Balance :  12 (g)"},
            {"(CALF) Crude Protein Balance", "Crude Protein Balance :  -3 (g)",
             "Crude Protein Balance :  -3 (g)"}});
}

// A line that doesn't fit the animal says so, each in words of its own.
TEST(SummaryResultText, SaysWhatAnAnimalDoesNotHave) {
    for (const std::string_view dry : {kDryCow, kReplacementHeifer}) {
        const SimulationRecord r = Animal(dry);
        EXPECT_EQ(SummaryResultText(r, "Entered Milk Production", true),
                  "Entered Milk Production :  N/A");
        EXPECT_EQ(SummaryResultText(r, "Energy Allowable Milk", true), "ME Allowable Milk :  N/A");
        EXPECT_EQ(SummaryResultText(r, "MP Allowable Milk", true), "MP Allowable Milk :  N/A");
    }
    SimulationRecord calf = Animal(kYoungCalf);
    calf.DaysToChangeCSText = "of an earlier cow";
    EXPECT_EQ(SummaryResultText(calf, "Diet NEl", true), "NEl Concentration :  N/A");
    EXPECT_EQ(SummaryResultText(calf, "Diet ME", true), "ME Concentration :  N/A");
    EXPECT_EQ(SummaryResultText(calf, "Diet NEg", true), "Diet NEg :  N/A");
    EXPECT_EQ(SummaryResultText(calf, "Predicted Dry Matter Intake", true),
              "DMI - Predicted :  N/A");
    EXPECT_EQ(SummaryResultText(calf, "Diet Protein Degradability", true), "CP - RDP :  N/A");
    EXPECT_EQ(SummaryResultText(calf, "Days To Change 1 Condition Score", true), "");
    const SimulationRecord cow = Animal(kLactatingCow);
    EXPECT_EQ(SummaryResultText(cow, "(CALF) Diet ME", true), "(CALF) Diet ME :  N/A");
    EXPECT_EQ(SummaryResultText(cow, "(CALF) Dry Matter Intake - Milk", true),
              "(CALF) Milk Dry Matter Intake :  N/A");
    EXPECT_EQ(SummaryResultText(cow, "(CALF) Apparently Dig. Protein Allowable Gain", true), "");
}

TEST(SummaryResultText, IsEmptyForWhatIsNoLine) {
    for (const std::string_view type : kAnimalTypes) {
        for (const char* const text : {"Blank", "", "diet cp", "Rumen pH"})
            EXPECT_EQ(SummaryResultText(Animal(type), text, true), "");
    }
}

// What is offered, what is known and what is taken by default go together.
TEST(SummaryChoices, AllThatAreOfferedAreLinesOfSomeAnimal) {
    const std::vector<std::string_view> names = SummaryChoiceNames();
    EXPECT_EQ(names.size(), 32U);
    EXPECT_EQ(std::set(names.begin(), names.end()).size(), 32U);
    EXPECT_EQ(names.front(), "Blank");
    EXPECT_EQ(names[5], "Days To Change 1 Condition Score");
    EXPECT_EQ(names[10], "Predicted Dry Matter Intake");
    EXPECT_EQ(names[20], "MP Allowable ADG with Conceptus");
    EXPECT_EQ(names.back(), "(CALF) Apparently Dig. Protein Allowable Gain");
    SimulationRecord cow = Animal(kLactatingCow);
    cow.DaysToChangeCSText = "days";
    for (const std::string_view name : names) {
        const bool shown = !SummaryResultText(cow, name, true).empty() ||
                           !SummaryResultText(Animal(kYoungCalf), name, true).empty();
        EXPECT_EQ(shown, name != "Blank") << name;
    }
    for (const std::string_view type : kAnimalTypes) {
        for (const std::string_view name : DefaultSummaryChoices(type))
            EXPECT_NE(std::find(names.begin(), names.end(), name), names.end()) << name;
    }
}

// What a strange animal has in common with the others is computed, milk is not.
TEST(SummaryResultText, AStrangeAnimalGivesNoMilk) {
    SimulationRecord r = Animal("Water Buffalo");
    r.MilkProduction = 8;
    r.DietCP = 0.12;
    EXPECT_EQ(SummaryResultText(r, "Entered Milk Production", true),
              "Entered Milk Production :  N/A");
    EXPECT_EQ(SummaryResultText(r, "MP Allowable Milk", true), "MP Allowable Milk :  N/A");
    EXPECT_EQ(SummaryResultText(r, "Diet CP", true), "Diet CP :  12.0 (%DM)");
    EXPECT_EQ(SummaryResultText(r, "(CALF) Diet CP", true), "(CALF) Diet CP :  N/A");
}

// Pounds come from the working factor, which has 32 bits: 250 kg fall short of 551.155 lbs.
TEST(SummaryResultText, TakesAndLeavesTheWorkingUnit) {
    SimulationRecord r = Animal(kLactatingCow);
    r.PredDMI = 250;
    EXPECT_EQ(SummaryResultText(r, "Predicted Dry Matter Intake", false),
              "DMI - Predicted :  551.15 (lbs/day)");
    for (const char* const choice : {"Diet NEl", "Blank", "Days To Change 1 Condition Score"}) {
        TheProgram().WeightUnitLabel = "cm";
        SummaryResultText(r, choice, false);
        EXPECT_EQ(TheProgram().WeightUnitLabel, " (lbs/day)") << choice;
        EXPECT_EQ(TheProgram().WeightUnitFactor, Single(2.20462)) << choice;
        SummaryResultText(r, choice, true);
        EXPECT_EQ(TheProgram().WeightUnitLabel, " (kg/day)") << choice;
        EXPECT_EQ(TheProgram().WeightUnitFactor, 1) << choice;
    }
}

TEST(SummaryChoices, AStrangeAnimalTypeLeavesThemAsTheyAre) {
    TheProgram() = {};
    TheProgram().SummaryResultsNames[3] = "Diet CP";
    TheSimulation() = Animal("Water Buffalo");
    TakeDefaultSummaryChoices();
    EXPECT_EQ(TheProgram().SummaryResultsNames[3], "Diet CP");
    TheSimulation().AnimalType = kDryCow;
    TakeDefaultSummaryChoices();
    EXPECT_EQ(TheProgram().SummaryResultsNames[3], "RDP Balance");
    EXPECT_EQ(TheProgram().SummaryResultsNames[5], "Blank");
}

TEST(DegradedProtein, LimitsBelowTwentyGrams) {
    SimulationRecord r = Animal(kLactatingCow);
    r.RDPBalance = -20;
    EXPECT_FALSE(DegradedProteinIsLimiting(r));
    r.RDPBalance = -20.5;
    EXPECT_TRUE(DegradedProteinIsLimiting(r));
    r.AnimalType = kYoungCalf;
    EXPECT_FALSE(DegradedProteinIsLimiting(r));
}

}  // namespace
}  // namespace tav
