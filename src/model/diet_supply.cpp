#include "model/ration.h"
#include "model/steps.h"

namespace tav {
namespace {

void SizePerFeedArrays(SimulationRecord& r) {
    for (PerFeed* values : {&r.FeedDMI, &r.FeedTDNg, &r.FeedDiscTDNg, &r.FeedCPg, &r.FeedRUP,
                            &r.FeedRDP, &r.FeedNDF, &r.FeedADF, &r.FeedKp}) {
        values->assign(r.NumFeeds, Single());
    }
}

// Passage rate [%/hour] of a feed, from the intake in percent of body weight and the concentrates
// in percent of the dry matter. The plus sign of the concentrates in the dry forages is meant.
Number PassageRate(const FeedRecord& f, Number intakePct, Number concPct) {
    Number kp = 0;
    if (f.ForageDescription == "Concentrate") {
        kp = intakePct * 1.375 + 2.904 - concPct * 0.02;
    } else if (f.ForageDescription == "Dry") {
        kp = intakePct * 0.479 + 3.362 - f.NDF * 0.017 + concPct * 0.007;
    } else if (f.ForageDescription == "Wet") {
        kp = intakePct * 0.614 + 3.054;
    }
    return kp < 0 ? Number(0) : kp;
}

// Degraded protein [kg/day]: all of fraction A and as much of B as degradation wins over passage.
Number DegradedProtein(const FeedRecord& f, Number kp) {
    if (!(kp + f.Kd > 0)) return 0;
    return (f.CP / 100) * (f.PrtB / 100) * f.Qty * (f.Kd / (kp + f.Kd)) +
           (f.CP / 100) * (f.PrtA / 100) * f.Qty;
}

void SupplyOfFeed(SimulationRecord& r, std::size_t i, Number intakePct, Number concPct) {
    const FeedRecord& f = r.Feeds[i];
    const Number Q = f.Qty;
    r.FeedDMI[i] = Q;
    if (f.Category != kVitaminMineralCategory) {
        r.FeedTDNg[i] = f.TDN / 100 * (Q * 1000);
        r.FeedDiscTDNg[i] = f.DiscountedTDN / 100 * (Q * 1000);
    } else {
        r.FeedTDNg[i] = 0;
        r.FeedDiscTDNg[i] = 0;
    }
    r.FeedCPg[i] = f.CP / 100 * (Q * 1000);
    const Number kp = PassageRate(f, intakePct, concPct);
    r.FeedKp[i] = kp;
    r.FeedRDP[i] = DegradedProtein(f, kp);
    if (Single(r.FeedRDP[i] * 1000) > r.FeedCPg[i]) r.FeedRDP[i] = r.FeedCPg[i] / 1000;
    r.FeedRUP[i] = (r.FeedCPg[i] - r.FeedRDP[i] * 1000) / 1000;
    r.FeedNDF[i] = f.NDF / 100 * Q;
    r.FeedADF[i] = f.ADF / 100 * Q;
}

Number SumOf(const PerFeed& values) {
    return SumOver(values, [](Single value) { return value; });
}

void ComputeTotals(SimulationRecord& r) {
    r.TotalFeedDMI = SumOf(r.FeedDMI);
    r.TotalTDN = SumOf(r.FeedTDNg);
    r.TotalDiscTDN = SumOf(r.FeedDiscTDNg);
    r.TotalCP = SumOf(r.FeedCPg);
    r.TotalRUP = SumOf(r.FeedRUP);
    Number digestedRUP;
    for (std::size_t i = 0; i < r.NumFeeds; ++i) {
        digestedRUP += (r.Feeds[i].RUPDigest / 100) * r.FeedRUP[i];
    }
    r.TotalDigestedRUP = digestedRUP;
    r.TotalRDP = SumOf(r.FeedRDP);
    r.TotalNDF = SumOf(r.FeedNDF);
    r.TotalADF = SumOf(r.FeedADF);
    r.DietRUPDigest = GuardedQuotient(r.TotalDigestedRUP, r.TotalRUP);
}

// Microbial growth is limited by energy or by degraded protein, whichever is lower.
void ComputeMicrobialProtein(SimulationRecord& r) {
    r.MCP = r.TotalDiscTDN * 0.13;
    const Number fromProtein = (r.TotalRDP * 1000) * 0.85;
    if (Single(fromProtein) < r.MCP) r.MCP = fromProtein;
    if (r.MCP < 0) r.MCP = 0;
}

}  // namespace

// What the ration supplies in a day: of each feed its dry matter, digestible nutrients, protein
// fractions and fibre, and of the ration the totals, microbial and endogenous protein.
//
// Reads    of each feed Qty, Category, ForageDescription, NDF, ADF, CP, PrtA, PrtB, Kd, RUPDigest
// and
//          the energy values, which are evaluated first; TotalDMI [kg/day], BodyWeight [kg]
// Writes   the nine arrays by feed, sized anew; the totals; DietRUPDigest, MCP,
// UndiscountedTDNFraction,
//          EffNEgME, EffNElME, EffNEmME, EndogenousCP, EndogenousMP, EndogenousMPRequired
// Form     degradation against passage; 130 g microbial protein a kilogram of discounted TDN, at
// most
//          0.85 of the degraded protein; 11.8 g endogenous protein a kilogram of dry matter
// Raises   11 or 6 for a TotalDMI of 0
void ComputeDietSupply(SimulationRecord& r) {
    if (r.NumFeeds == 0) return;
    SizePerFeedArrays(r);
    EvaluateFeedEnergy(r);

    const Number intakePct = r.BodyWeight > 0 ? r.TotalDMI / r.BodyWeight * 100 : Number(0);
    const Number concentrates = SumOver(FeedsInUse(r), [](const FeedRecord& f) {
        return f.ForageDescription == "Concentrate" ? Number(f.Qty) : Number(0);
    });
    const Number concPct = r.TotalDMI > 0 ? concentrates / r.TotalDMI * 100 : Number(0);
    for (std::size_t i = 0; i < r.NumFeeds; ++i)
        SupplyOfFeed(r, i, intakePct, concPct);

    ComputeTotals(r);
    ComputeMicrobialProtein(r);
    r.UndiscountedTDNFraction = r.TotalTDN / 1000 / r.TotalDMI;
    r.EffNEgME = GuardedQuotient(r.TotalNEg, r.TotalME);
    r.EffNElME = GuardedQuotient(r.TotalNEl, r.TotalME);
    r.EffNEmME = GuardedQuotient(r.TotalNEm, r.TotalME);
    r.EndogenousCP = r.TotalDMI * 11.8;
    r.EndogenousMP = r.EndogenousCP * 0.4;
    r.EndogenousMPRequired = r.EndogenousMP / 0.67;
}

}  // namespace tav
