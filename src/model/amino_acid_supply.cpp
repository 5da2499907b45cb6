#include "model/ration.h"
#include "model/steps.h"

namespace tav {
namespace {

// One of the nine amino acids that carry results: its content in the feeds, the coefficients of its
// share in the flow of essential amino acids (intercept + OfRUP * x + OfRUPShare * R), its results.
struct AminoAcid {
    Single FeedRecord::*Content;
    double Intercept, OfRUP, OfRUPShare;
    Single SimulationRecord::*Flow;
    Single SimulationRecord::*Digestible;
    Single SimulationRecord::*PercentOfMP;
};

using F = FeedRecord;
using R = SimulationRecord;

constexpr std::array<AminoAcid, 9> kAminoAcids = {{
    {&F::Arg, 7.31, 0.251, 0, &R::ArgFlow, &R::DigArgFlow, &R::ArgPctMP},
    {&F::His, 2.07, 0.393, 0.0122, &R::HisFlow, &R::DigHisFlow, &R::HisPctMP},
    {&F::Ile, 7.59, 0.391, -0.0123, &R::IleFlow, &R::DigIleFlow, &R::IlePctMP},
    {&F::Leu, 8.53, 0.41, 0.0746, &R::LeuFlow, &R::DigLeuFlow, &R::LeuPctMP},
    {&F::Lys, 13.66, 0.3276, -0.07497, &R::LysFlow, &R::DigLysFlow, &R::LysPctMP},
    {&F::Met, 2.9, 0.391, -0.00742, &R::MetFlow, &R::DigMetFlow, &R::MetPctMP},
    {&F::Phe, 7.32, 0.244, 0.029, &R::PheFlow, &R::DigPheFlow, &R::PhePctMP},
    {&F::Thr, 7.55, 0.45, -0.0212, &R::ThrFlow, &R::DigThrFlow, &R::ThrPctMP},
    {&F::Val, 8.68, 0.314, 0, &R::ValFlow, &R::DigValFlow, &R::ValPctMP},
}};

// Undegraded amino acids of the ration [g/day], those of the table and tryptophan.
struct UndegradedAminoAcids {
    std::array<Number, kAminoAcids.size()> Total;
    std::array<Number, kAminoAcids.size()> Digestible;
    Number Trp;

    Number Sum() const {
        return SumOver(Total, [](Number amount) { return amount; }) + Trp;
    }
};

UndegradedAminoAcids FromFeeds(const SimulationRecord& r) {
    UndegradedAminoAcids sums;
    for (std::size_t i = 0; i < r.NumFeeds; ++i) {
        const FeedRecord& f = r.Feeds[i];
        if (!(f.Qty > 0 && f.CP > 0 && r.FeedCPg[i] > 0)) continue;
        const Number protein =
            r.FeedRUP[i] * 1000 / r.FeedCPg[i] * ((f.Qty / r.TotalDMI) * (f.CP / 100));
        const Number digested = protein * (f.RUPDigest / 100);
        for (std::size_t a = 0; a < kAminoAcids.size(); ++a) {
            const Number content = f.*kAminoAcids[a].Content / 100;
            sums.Total[a] += protein * content * r.TotalDMI * 1000;
            sums.Digestible[a] += digested * content * r.TotalDMI * 1000;
        }
        sums.Trp += protein * (f.Trp / 100) * r.TotalDMI * 1000;
    }
    return sums;
}

// Undegraded feed protein in percent of the protein that reaches the duodenum.
Number RUPShare(const SimulationRecord& r) {
    const Number duodenal = r.TotalRUP * 1000 + r.EndogenousCP + r.MCP;
    return duodenal > 0 ? r.TotalRUP * 1000 / duodenal * 100 : Number(0);
}

}  // namespace

// The flow of nine essential amino acids to the duodenum, the digestible part of each, and each in
// percent of metabolisable protein. The composition of the flow is predicted by one regression an
// amino acid; what the feeds do not explain is microbial and endogenous.
//
// Reads    of each feed Qty, CP, RUPDigest and ten amino acids [% of CP]; FeedCPg, FeedRUP,
// TotalRUP,
//          TotalDigestedRUP, MCP, EndogenousCP, EndogenousMP, TotalDMI
// Writes   TotalEAAFlow, the nine flows and digestible flows [g/day], MPFeed [kg/day], MPBacterial
//          [g/day], the nine percentages of metabolisable protein
// Form     0.863 of the undegraded amino acids reach the flow; microbial and endogenous amino acids
// are
//          digested to 0.8; 0.64 of microbial protein is metabolisable
// Note     Tryptophan counts in the sum of essential amino acids and has no result of its own. The
//          shares need not add up to 100, and the rest of a flow may be negative.
void ComputeAminoAcidSupply(SimulationRecord& r) {
    if (r.NumFeeds == 0) return;
    const UndegradedAminoAcids rup = FromFeeds(r);
    const Number rupSum = rup.Sum();
    const Number rupShare = RUPShare(r);

    std::array<Number, kAminoAcids.size()> share;
    for (std::size_t a = 0; a < kAminoAcids.size(); ++a) {
        const AminoAcid& acid = kAminoAcids[a];
        const Number x = rupSum > 0 ? rup.Total[a] / rupSum * 100 : Number(0);
        share[a] = acid.Intercept + acid.OfRUP * x + acid.OfRUPShare * rupShare;
    }

    r.TotalEAAFlow = rupSum * 0.863 + 30.9 + r.MCP * 0.433;
    for (std::size_t a = 0; a < kAminoAcids.size(); ++a) {
        r.*kAminoAcids[a].Flow = share[a] / 100 * r.TotalEAAFlow;
    }
    for (std::size_t a = 0; a < kAminoAcids.size(); ++a) {
        const Number rupPart = rup.Total[a] * 0.863;
        const Number restPart = r.*kAminoAcids[a].Flow - rupPart;
        const Number digestedPart =
            rup.Total[a] > 0 ? rup.Digestible[a] / rup.Total[a] * rupPart : Number(0);
        r.*kAminoAcids[a].Digestible = digestedPart + restPart * 0.8;
    }

    r.MPFeed = r.TotalDigestedRUP;
    r.MPBacterial = r.MCP * 0.64;
    const Number mp = r.MPFeed * 1000 + r.MPBacterial + r.EndogenousMP;
    for (const AminoAcid& acid : kAminoAcids) {
        r.*acid.PercentOfMP = mp > 0 ? r.*acid.Digestible / mp * 100 : Number(0);
    }
}

}  // namespace tav
