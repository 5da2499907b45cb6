#include "model/steps.h"
#include "support.h"

namespace tav {
namespace {

// A cow of 500 kg that eats 20 kg, 4 % of her weight, half of it maize.
SimulationRecord Cow() {
    return Fed(Fed(With(LactatingCow(), "BodyWeight=500"), Hay(), 10), Maize(), 10);
}

// Hay has 1.2 kg protein in 10 kg, 30 % A and 60 % B, Kd 6. Degraded: 0.72 * 6 / (Kp + 6) + 0.36.
// Maize passes at 4 * 1.375 + 2.904 - 50 * 0.02; of its 1 kg protein 0.75 * 5 / 12.404 + 0.2.
TEST(DietSupply, PassageAndDegradationByKindOfFeed) {
    ExpectCases(
        Cow(), ComputeDietSupply,
        {
            // 4 * 0.479 + 3.362 - 50 * 0.017 + 50 * 0.007
            {"Hay.ForageDescription=Dry",
             "FeedKp[1]=4.778, FeedRDP[1]=0.76081648, FeedRUP[1]=0.43918352"},
            // 4 * 0.614 + 3.054
            {"Hay.ForageDescription=Wet", "FeedKp[1]=5.51, FeedRDP[1]=0.7353258"},
            // all concentrate: 4 * 1.375 + 2.904 - 100 * 0.02
            {"Hay.ForageDescription=Concentrate", "FeedKp[1]=6.404"},
            {"Hay.NDF=400", "FeedKp[1]=0, FeedRDP[1]=1.08"},                // -1.172 is not below 0
            {"Hay.ForageDescription=dry", "FeedKp[1]=0, FeedRDP[1]=1.08"},  // any other text
            {"", "FeedKp[2]=7.404, FeedRDP[2]=0.50232183"},
            {"Hay.Kd=0", "FeedRDP[1]=0.36"},  // fraction A alone
            {"Hay.Kd=0, Hay.ForageDescription=dry",
             "FeedRDP[1]=0, FeedRUP[1]=1.2"},                              // not even that
            {"Hay.PrtA=90, Hay.ForageDescription=dry", "FeedRDP[1]=1.2"},  // 150 % of it: all
            {"Hay.PrtC=50", "FeedRDP[1]=0.76081648"},  // fraction C does not enter
        });
}

TEST(DietSupply, AmountsOfEachFeedAndTheirTotals) {
    SimulationRecord r = Fed(Cow(), Limestone(), 0.5);
    r.FeedDMI.assign(7, 1);  // of an earlier, longer ration
    ComputeDietSupply(r);
    EXPECT_EQ(3u, r.FeedDMI.size());
    Expect(
        r,
        "FeedDMI[1]=10, FeedTDNg[1]=6246.8049, FeedTDNg[2]=8805, FeedTDNg[3]=0, "
        "TotalTDN=15051.805, UndiscountedTDNFraction=0.73423439, "  // 62.468 and 88.05 % of 10 kg
        "FeedCPg[1]=1200, FeedCPg[2]=1000, TotalCP=2200, FeedNDF[1]=5, TotalNDF=6, "
        "FeedADF[1]=3.5, TotalADF=3.8, TotalFeedDMI=20.5, EndogenousCP=241.9, "  // 20.5 * 11.8
        "EndogenousMP=96.76, EndogenousMPRequired=144.41791");                   // * 0.4, / 0.67
    EXPECT_LT(r.DiscountFactor, 1);
    EXPECT_CLOSE((r.DiscountFactor * r.TotalTDN).Value(), r.TotalDiscTDN);
    EXPECT_CLOSE(2.2, r.TotalRDP + r.TotalRUP);
    const Number digested = r.FeedRUP[0] * 0.7 + r.FeedRUP[1] * 0.9;
    EXPECT_CLOSE(digested.Value(), r.TotalDigestedRUP);
    EXPECT_CLOSE((digested / r.TotalRUP).Value(), r.DietRUPDigest);
    EXPECT_CLOSE((r.TotalNEg / r.TotalME).Value(), r.EffNEgME);
    EXPECT_CLOSE((r.TotalNEl / r.TotalME).Value(), r.EffNElME);
    EXPECT_CLOSE((r.TotalNEm / r.TotalME).Value(), r.EffNEmME);
}

// 5 kg of 70 % TDN are below maintenance and not discounted: 3500 * 0.13 = 455 g of microbial
// protein at most, and 0.85 of the degraded protein of 77 %. Of 18.75 kg 65.4 of the 70 % are left.
TEST(DietSupply, MicrobialProteinIsLimitedByDiscountedEnergyOrDegradedProtein) {
    ExpectCases(Fed(LactatingCow(), FeedOfTDN(70), 5), ComputeDietSupply,
                {
                    {"Test feed.PrtA=100", "MCP=455"},
                    {"Test feed.PrtA=10", "MCP=327.25"},
                    {"Test feed.PrtA=0", "MCP=0"},
                    {"Test feed.PrtA=100, Test feed.Qty=18.75, TotalDMI=18.75",
                     "MCP=1594.125, UndiscountedTDNFraction=0.7"},
                });
}

TEST(DietSupply, Guards) {
    ExpectCases(Fed(LactatingCow(), Limestone(), 0.5), ComputeDietSupply,
                {{"DietRUPDigest=1, EffNEgME=1, EffNElME=1, EffNEmME=1, MCP=1",
                  "DietRUPDigest=0, EffNEgME=0, EffNElME=0, EffNEmME=0, MCP=0"}});
    // A negative TDN stands, but microbes do not grow on it.
    ExpectCases(Fed(LactatingCow(), FeedOfTDN(-7), 10), ComputeDietSupply,
                {{"", "TotalTDN=-700, MCP=0"}});
    ExpectCases(LactatingCow(), ComputeDietSupply,
                {{"TotalCP=5, TotalME=5", "TotalCP=5, TotalME=5"}});
    // An intake of 0 is a fault, behind the microbial protein.
    ExpectCases(Cow(), ComputeDietSupply,
                {{"TotalDMI=0, EndogenousCP=1, MCP=0", "error=11, EndogenousCP=1, TotalCP=2200"}});
}

}  // namespace
}  // namespace tav
