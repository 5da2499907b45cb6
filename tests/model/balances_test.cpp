#include "model/steps.h"
#include "support.h"

namespace tav {
namespace {

// Round requirements and supplies of an animal past first calving; 2000 g of microbial protein are
// 1280 g of metabolisable protein.
SimulationRecord Cow() {
    return With(LactatingCow(),
                "TotalDMI=20, TotalME=50, TotalNEl=30, NEMaint=10, EffNEmME=0.625, MEPreg=3, "
                "NEPreg=2, NELact=15, "
                "NEGrowthDiet=1, NEReserves=0.5, EBG=0.1, MCP=2000, TotalDigestedRUP=0.9, "
                "TotalRDP=2.4, TotalCP=3600, "
                "TotalDiscTDN=14000, DietRUPDigest=0.75, EndogenousMP=100, MPMaint=700, MPPreg=50, "
                "MPLact=1300, "
                "MPGrowth=40, NEAvailableGrowth=4, EnergyGain=0.8, EffMPNPg=0.3, ADGPreg=665, "
                "PredictedDMI=21");
}

void ExpectLine(const BalanceRow& row, const char* label, const char* unit,
                std::array<double, 6> amounts) {
    SCOPED_TRACE(label);
    EXPECT_EQ(label, row.Label);
    EXPECT_EQ(unit, row.Unit);
    std::size_t i = 0;
    for (Single amount :
         {row.Total, row.Maintenance, row.Pregnancy, row.Lactation, row.Growth, row.Reserves})
        EXPECT_CLOSE(amounts[i++], amount);
}

// Each use's supply is what the use before has left. The differences of the reserves stay
// unwritten.
TEST(Balances, TheTableOfACow) {
    SimulationRecord r = Cow();
    ComputeBalances(r);
    const auto& rows = r.BalanceTable;
    ExpectLine(rows[0], "NE Supplied", "Mcal/day", {30, 30, 20, 18, 3, 2});
    ExpectLine(rows[1], "NE Required", "Mcal/day", {28.5, 10, 2, 15, 1, 0.5});
    ExpectLine(rows[2], "NE (Diet - Req.)", "Mcal/day", {1.5, 20, 18, 3, 2, 0});
    // 0.9 kg and 1280 g are added as they are
    ExpectLine(rows[3], "MP Diet", "g/day", {1280.9, 1280.9, 580.9, 530.9, -769.1, -809.1});
    ExpectLine(rows[4], "MP Required", "g/day", {2090, 700, 50, 1300, 40, 0});
    ExpectLine(rows[5], "MP (Diet - Req.)", "g/day", {-809.1, 580.9, 530.9, -769.1, -809.1, 0});
}

TEST(Balances, AHeiferIsReckonedOnMetabolisableEnergyAndSpendsItAll) {
    SimulationRecord r = With(Cow(), "AnimalType=Replacement Heifer");
    ComputeBalances(r);
    ExpectLine(r.BalanceTable[0], "ME Supplied", "Mcal/day", {50, 50, 34, 31, 31, 0});
    ExpectLine(r.BalanceTable[1], "ME Required", "Mcal/day",
               {50.5, 16, 3, 0, 31, 0.5});  // 10 / 0.625
    ExpectLine(r.BalanceTable[2], "ME (Diet - Req.)", "Mcal/day", {-0.5, 34, 31, 31, 0, 0});
}

// Up to the age of first calving (268 * 0.8 - 2 * 29.4) / 0.3 = 155.6 / 0.3, if there is energy for
// a gain; later MPGrowth, if a gain is aimed at.
TEST(Balances, GrowthByAge) {
    ExpectCases(With(Cow(), "Age=24, TargetSWG=0.8, RE=2"), ComputeBalances,
                {
                    {"", "MP Required.Growth=518.66667, NE Required.Growth=1"},
                    {"EnergyGain=0", "MP Required.Growth=0"},
                    {"EffMPNPg=0", "MP Required.Growth=0"},
                    {"TargetSWG=0", "MP Required.Growth=0"},
                    {"Age=24.1", "MP Required.Growth=40"},
                    {"Age=24.1, EBG=0", "MP Required.Growth=0, NE Required.Growth=0"},
                });
}

TEST(Balances, ProteinOfTheDiet) {
    ExpectCases(
        Cow(), ComputeBalances,
        {
            {"", "PredDMI=21, ActualDMI=20, MPBacterial=1280, MPFeed=0.9"},
            {"",
             "DietCP=0.18, DietRDP=0.66666667, DietRUP=0.33333333"},  // 3.6 of 20 kg, 2.4 of 3.6 kg
            {"", "RDPSupplied=2400, RDPRequired=2141.16, RUPSupplied=1200"},  // 14000 * 0.15294
            {"", "RUPRequired=946.66667"},  // (2090 - (100 + 1280)) / 0.75
            {"",
             "MPBalance=190"},  // 900 + 1280 + 100 - 2090: in grams, and with endogenous protein
            // 268 - 4 / 0.8 * 29.4; 0.3 * (2280 - 2050) / 121 / 0.96
            {"", "NPPerGain=121, ADGMP=0.59400826"},
            {"", "ADGMPConceptus=1.2590083"},
            {"EnergyGain=0.4", "NPPerGain=-26, ADGMP=0"},  // 268 - 10 * 29.4
            {"EnergyGain=0", "NPPerGain=0, ADGMP=0, ADGMPConceptus=0.665"},
            {"TotalDMI=0, DietRUPDigest=0", "DietCP=0, RDPSupplied=0, RUPRequired=0"},
            {"TotalCP=0", "DietRDP=0, DietRUP=0, RDPSupplied=0"},
            {"AnimalType=Replacement Heifer, EffNEmME=0", "ME Required.Maintenance=0"},
        });
    SimulationRecord r = Cow();
    r.EnergyGain.reset();
    ComputeBalances(r);
    EXPECT_NEAR(258.84, r.RDPBalance.Value(), 1e-3);     // 2400 - 2141.16
    EXPECT_NEAR(253.33333, r.RUPBalance.Value(), 1e-3);  // 1200 - 946.66667
    EXPECT_EQ(0, r.NPPerGain);
}

}  // namespace
}  // namespace tav
