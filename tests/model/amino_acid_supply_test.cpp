#include "model/steps.h"
#include "support.h"

namespace tav {
namespace {

// 5 kg of a feed with 20 % protein, 400 of its 1000 g undegraded, in 10 kg of dry matter:
// 4 g of undegraded amino acid for each percent of it in the protein. The percentages add up to
// 50: 200 g in all. 400 g undegraded of 400 + 200 + 1000 g make R = 25 %.
SimulationRecord Supplied() {
    SimulationRecord r = Fed(LactatingCow(), With(Hay(), "CP=20, RUPDigest=60"), 5);
    r.FeedCPg.assign(1, 1000);
    r.FeedRUP.assign(1, 0.4);
    return With(r,
                "TotalDMI=10, TotalRUP=0.4, TotalDigestedRUP=0.24, MCP=1000, EndogenousCP=200, "
                "EndogenousMP=80");
}

constexpr const char* kNine[] = {"Arg", "His", "Ile", "Leu", "Lys", "Met", "Phe", "Thr", "Val"};

double FlowOf(const SimulationRecord& r, const char* acid) {
    return NumberOf(r, std::string(acid) + "Flow");
}

// The whole flow is 200 * 0.863 + 30.9 + 1000 * 0.433 = 636.5 g. Of arginine, 5 % of the protein:
// 20 g, x = 10 % of the undegraded; share 7.31 + 0.251 * 10 = 9.82 %, 62.5043 g. Of that 20 * 0.863
// = 17.26 g come from the feed, digested to 60 %, the rest to 80 %: 10.356 + 45.2443 * 0.8.
// Metabolisable protein is 240 + 640 + 80 = 960 g.
TEST(AminoAcidSupply, NineFlows) {
    SimulationRecord r = Supplied();
    ComputeAminoAcidSupply(r);
    Expect(r, "TotalEAAFlow=636.5, MPBacterial=640, MPFeed=0.24");
    Expect(r, "ArgFlow=62.5043, DigArgFlow=46.55144, ArgPctMP=4.8491083");  // 7.31 + 0.251 * 10
    // 2.07 + 0.393 * 5 + 0.0122 * 25
    Expect(r, "HisFlow=27.6241, DigHisFlow=20.37328, HisPctMP=2.1222167");
    // 7.59 + 0.391 * 10 - 0.0123 * 25
    Expect(r, "IleFlow=71.240263, DigIleFlow=53.54021, IlePctMP=5.5771052");
    // 8.53 + 0.41 * 15 + 0.0746 * 25
    Expect(r, "LeuFlow=105.30892, DigLeuFlow=79.06914, LeuPctMP=8.2363687");
    // 13.66 + 0.3276 * 10 - 0.07497 * 25
    Expect(r, "LysFlow=95.868039, DigLysFlow=73.242431, LysPctMP=7.6294199");
    // 2.9 + 0.391 * 5 - 0.00742 * 25
    Expect(r, "MetFlow=29.721368, DigMetFlow=22.051094, MetPctMP=2.296989");
    // 7.32 + 0.244 * 10 + 0.029 * 25
    Expect(r, "PheFlow=66.737025, DigPheFlow=49.93762, PhePctMP=5.2018354");
    // 7.55 + 0.45 * 10 - 0.0212 * 25
    Expect(r, "ThrFlow=73.3248, DigThrFlow=55.20784, ThrPctMP=5.7508167");
    Expect(r, "ValFlow=95.2204, DigValFlow=69.27232, ValPctMP=7.2158667");  // 8.68 + 0.314 * 20
}

TEST(AminoAcidSupply, OddRations) {
    ExpectCases(
        Supplied(), ComputeAminoAcidSupply,
        {
            // no feed protein: intercepts of 30.9 + 433 g, all of it microbial and endogenous
            {"Hay.CP=0, TotalRUP=0", "TotalEAAFlow=463.9, LeuFlow=39.57067, DigLeuFlow=31.656536"},
            // undigestible: (62.5043 - 17.26) * 0.8
            {"Hay.RUPDigest=0", "DigArgFlow=36.19544"},
            // 90 % of amino acids, 360 g: 360 * 0.863 + 30.9 without microbes. The feed's own 200 *
            // 0.863 = 172.6 g of valine exceed (8.68 + 0.314 * 55.56) % of that: the rest is
            // negative
            {"Hay.Val=50, MCP=0", "TotalEAAFlow=341.58, ValFlow=89.235877, DigValFlow=36.868702"},
            // no protein at all: no share R and no percentages
            {"Hay.CP=0, TotalRUP=0, TotalDigestedRUP=0, MCP=0, EndogenousCP=0, EndogenousMP=0, "
             "LysPctMP=5, ValPctMP=5",
             "LysFlow=4.22094, LysPctMP=0, ValPctMP=0"},
            {"NumFeeds=0, LysFlow=5", "LysFlow=5"},
        });
}

TEST(AminoAcidSupply, AFeedWithoutQuantityOrProteinAddsNothing) {
    SimulationRecord one = Supplied();
    SimulationRecord more =
        Fed(Fed(Fed(Supplied(), Maize(), 0), With(Maize(), "CP=0"), 1), Maize(), 1);
    more.TotalDMI = 10;
    more.FeedCPg = {1000, 100, 100, 0};
    more.FeedRUP = {0.4, 0.1, 0.1, 0.1};
    ComputeAminoAcidSupply(one);
    ComputeAminoAcidSupply(more);
    for (const char* acid : kNine)
        EXPECT_EQ(FlowOf(one, acid), FlowOf(more, acid)) << acid;
}

TEST(AminoAcidSupply, TryptophanMovesAllNineAndCystineNone) {
    SimulationRecord before = Supplied(), cystine = With(Supplied(), "Hay.Cys=4"),
                     tryptophan = With(Supplied(), "Hay.Trp=5");
    for (SimulationRecord* r : {&before, &cystine, &tryptophan})
        ComputeAminoAcidSupply(*r);
    for (const char* acid : kNine) {
        EXPECT_EQ(FlowOf(before, acid), FlowOf(cystine, acid)) << acid;
        EXPECT_NE(FlowOf(before, acid), FlowOf(tryptophan, acid)) << acid;
    }
}

}  // namespace
}  // namespace tav
