// The summary and what the ration supplies, in both systems of units.
#include "reports/worked_animals.h"

namespace tav {
namespace {

class WorkedSupply : public WorkedPages {
  protected:
    // Two feeds, which are alike in all but their names and amounts.
    static void Feed(SimulationRecord& r) {
        r.NumFeeds = 2;
        r.Feeds.assign(2, {});
        r.TotalDMI = 20;
        for (std::size_t i = 0; i < 2; ++i) {
            FeedRecord& feed = r.Feeds[i];
            feed.Name = i == 0 ? "Hay" : "Silage";
            feed.Qty = i == 0 ? 15 : 5;
            feed.DM = i == 0 ? 75 : 40;
            feed.ME = 2.5;
            feed.NEl = 1.5;
            feed.NEg = 1;
        }
        r.FeedDMI = {15, 5};
        r.FeedTDNg = {9000, 3000};
        r.FeedCPg = {1500, 500};
        r.FeedRUP = {0.5, 0.2};
        r.FeedRDP = {1, 0.3};
        r.FeedNDF = {7.5, 2.5};
        r.FeedKp = {4.25, 5.75};
        r.TotalFeedDMI = 20;
        r.TotalTDN = 12000;
        r.TotalME = 50;
        r.TotalNEl = 30;
        r.TotalNEg = 20;
        r.TotalCP = 2000;
        r.TotalRUP = 0.7;
        r.TotalRDP = 1.3;
        r.TotalNDF = 10;
        r.MCP = 1250;
        r.IntakeMultiple = 2.25;
        r.DiscountFactor = 0.9375;
        r.UndiscountedTDNFraction = 0.625;
        r.DietRUPDigest = 0.75;
    }
};

TEST_F(WorkedSupply, EnergyAndProtein) {
    Feed(Cow(kDryCow, 3));
    EXPECT_EQ(Body("Energy and Protein Supply", true), R"(
Energy and Protein Supply

Feed Name | DMI | TDN | ME | NEl | NEg | CP | RUP | RDP | NDF | MCP
 | (kg/day) | (g/day) | (Mcal/day) | (Mcal/day) | (Mcal/day) | (g/day) | (g/day) | (g/day) | (kg/day) | (g/day)
Hay | 15.0 | 9000 | 37.5 | 22.5 | 15.0 | 1500 | 500 | 1000 | 7.5 | -
Silage | 5.0 | 3000 | 12.5 | 7.5 | 5.0 | 500 | 200 | 300 | 2.5 | -
Totals : | 20.0 | 12000 | 50.0 | 30.0 | 20.0 | 2000 | 700 | 1300 | 10.0 | 1250



Feed Name | ME | NEl | NEg | Kp
 | (Mcal/kg) | (Mcal/kg) | (Mcal/kg) | (%/hr)
Hay | 2.50 | 1.50 | 1.00 | 4.25
Silage | 2.50 | 1.50 | 1.00 | 5.75



Increment over Maintenance :  2.3 X
Energy/Protein Discount Factor :  6.25%
Undiscounted TDN in Diet :  62.5%
Diet RUP Digestibility :  75%
)");
    const std::string english = Body("Energy and Protein Supply", false);
    EXPECT_LINE(english,
                "Hay | 33.1 | 19.842 | 37.5 | 22.5 | 15.0 | 3.307 | 1.102 | 2.205 | "
                "16.5 | -");
    EXPECT_LINE(english,
                "Totals : | 44.1 | 26.455 | 50.0 | 30.0 | 20.0 | 4.4 | 1.5 | 2.9 | 22.0 | "
                "2.8");
    EXPECT_LINE(english, " | (Mcal/lb) | (Mcal/lb) | (Mcal/lb) | (%/hr)");
    EXPECT_LINE(english, "Hay | 1.13 | 0.68 | 0.45 | 4.25");
}

// The second table stands with the four lines below it, and they use a page to its end.
TEST_F(WorkedSupply, TheFactorsDoNotStandAlone) {
    SimulationRecord& r = Load("Dry Cow");
    const FeedRecord feed = r.Feeds[0];
    for (const int feeds : {7, 8, 9, 10, 15, 22}) {
        r.NumFeeds = static_cast<std::uint8_t>(feeds);
        r.Feeds.assign(r.NumFeeds, feed);
        r.TotalDMI = feeds * feed.Qty;
        RunComputations();
        const auto document = Make({"Energy and Protein Supply"});
        EXPECT_EQ(document->PageCount(), feeds == 7 ? 1 : 2) << feeds;
        EXPECT_NE(document->Pages.back().Text.find("(Mcal/kg)"), std::string::npos) << feeds;
    }
}

TEST_F(WorkedSupply, SummaryOfABredHeifer) {
    SimulationRecord& r = Cow(kReplacementHeifer, 0);
    Feed(r);
    r.DaysPregnant = 200;
    r.UseTargetADG = false;
    r.DesiredADG = 800;
    r.ActualDMI = 20;
    r.PredDMI = 19.96;
    r.ADGEnergy = 0.9;
    r.ADGEnergyConceptus = 1;
    r.ADGMP = 1.1;
    r.ADGMPConceptus = 1.2;
    r.TargetADGNoConceptus = 0.7;
    r.TargetADGConceptus = 0.8;
    r.RDPRequired = 1250;
    r.RDPSupplied = 1300;
    r.RDPBalance = 50;
    r.RUPBalance = -25;
    r.MPBacterial = 700;
    r.MPFeed = 0.5;
    r.DietCP = 0.125;
    r.DietRDP = 0.65;
    r.DietRUP = 0.35;
    r.DCAD = 220.462;
    r.EnergyDensityRequired = 2;
    r.MPDensityRequired = 75;
    r.MineralRows[0].TotalDietary = 100;
    TheProgram().UseMetric = true;
    const std::string metric = TextOf("Summary Report");
    EXPECT_NE(metric.find("]\n\nSummary Report\n\nAnimal Inputs\n\nAnimal Type"),
              std::string::npos);
    EXPECT_LINE(metric, "Desired ADG :  800 g/day");
    EXPECT_LINE(metric, "DMI - Predicted :  20.0 (kg/day) | RDP Supplied :  1300 (g/d)");
    EXPECT_LINE(metric, "Energy Allowable ADG (w/o Conceptus) :  0.90 (kg) | ");
    EXPECT_LINE(metric, "DMI/Maint. DMI :  2.25 | CP - Diet :  12.5 (%DM)");
    EXPECT_LINE(metric, " | CP - RDP :  6.5 (%DM)");
    EXPECT_LINE(metric, " | CP - RUP :  3.5 (%DM)");
    EXPECT_LINE(metric, "Forage NDF :  0.0 (%DM) | MP :  75 (g/kg)");
    EXPECT_LINE(metric, "Ca :  0.5 (%DM) | ");
    EXPECT_LINE(metric, "Silage | 5.00 | 12.50 | 25.00");

    TheProgram().UseMetric = false;
    const std::string english = TextOf("Summary Report");
    EXPECT_LINE(english, "Body Weight :  1102 lbs");
    EXPECT_LINE(english, "Desired ADG :  1.7637 lbs/day");
    EXPECT_LINE(english, "DMI - Actual :  44.1 (lbs/day) | RDP Required :  2.756 (lbs/d)");
    EXPECT_LINE(english, "MP Allowable ADG (with Conceptus) :  2.65 (lbs) | ");
    EXPECT_LINE(english,
                "MP Allowable ADG (w/o Conceptus) :  2.43 (lbs) | RUP Balance :  -0.055 "
                "(lbs/d)");
    EXPECT_LINE(english, "Target ADG (w/o Conceptus) :  1.54 (lbs) | MP - RUP :  1.102 (g/d)");
    EXPECT_LINE(english, "NDF :  0.0 (%DM) | ME :  0.91 (Mcal/lbs)");
    EXPECT_LINE(english, "Forage NDF :  0.0 (%DM) | MP :  0.0750 (lbs/lbs)");
    EXPECT_LINE(english, "ME :  1.13 (Mcal/lbs DM) | ");
    EXPECT_LINE(english, "DCAD :  100 (mEQ/lb) | ");
    EXPECT_LINE(english, " | Qty (lbs/day DM) | Qty (lbs/day As-Fed) | %");
    EXPECT_LINE(english, "Hay | 33.07 | 44.09 | 75.00");
}

TEST_F(WorkedSupply, SummaryOfCows) {
    SimulationRecord& r = Cow(kDryCow, 1);
    Feed(r);
    r.TargetADGNoConceptus = 0.25;
    r.TargetADGConceptus = 0.75;
    r.ReserveWeightPerDay = -0.45;
    r.DaysToChangeCSText = "Days to lose one condition score :   200";
    TheProgram().UseMetric = false;
    const std::string dry = TextOf("Summary Report");
    EXPECT_LINE(dry, "Target ADG (w/o Conceptus) :  0.55 (lbs) | ");
    EXPECT_LINE(dry, "Target ADG (with Conceptus) :  1.65 (lbs) | RUP Required :  0.000 (lbs/d)");
    EXPECT_LINE(dry, "DMI/Maint. DMI :  2.25 | RUP Balance :  0.000 (lbs/d)");
    EXPECT_LINE(dry, "Days to lose one condition score :   200 | MP - Bacterial :  0.000 (lbs/d)");
    EXPECT_LINE(dry,
                "Daily Weight Change due to Reserves :  -1.0 (lbs/day) | "
                "MP - Endogenous :  0.000 (lbs/d)");
    Cow(kLactatingCow, 2);
    r.MilkProduction = 30;
    r.MilkFat = 3.5;
    r.MilkTrueProtein = 3.125;
    r.DaysInMilk = 90;
    r.EnergyAllowableMilk = 32;
    r.ProteinAllowableMilk = 28;
    const std::string milking = TextOf("Summary Report");
    EXPECT_LINE(milking, "Milk Production :  66.1 (lbs/day)");
    EXPECT_LINE(milking, "Milk Fat :  3.50");
    EXPECT_LINE(milking, "Milk True Protein :  3.13");
    EXPECT_LINE(milking, "Days In Milk :  90");
    EXPECT_LINE(milking, "NEl Allowable Milk :  70.5 (lbs/day) | ");
    EXPECT_LINE(milking, "MP Allowable Milk :  61.7 (lbs/day) | RUP Required :  0.000 (lbs/d)");
    EXPECT_LINE(milking, "Milk Production :  66.1 (lbs/day) | RUP Balance :  0.000 (lbs/d)");
}

}  // namespace
}  // namespace tav
