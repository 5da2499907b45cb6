#include "model/ration.h"
#include "model/steps.h"

namespace tav {
namespace {

// The feeds of the ration that are not calf feeds.
class OrdinaryFeeds {
  public:
    explicit OrdinaryFeeds(SimulationRecord& r) {
        for (FeedRecord& f : FeedsInUse(r)) {
            if (!IsCalfFeed(f)) feeds_[count_++] = &f;
        }
    }

    std::span<FeedRecord* const> Feeds() const { return std::span(feeds_).first(count_); }

    template <class Term>
    Number Sum(Term&& term) const {
        return SumOver(Feeds(), [&](const FeedRecord* f) { return term(*f); });
    }

  private:
    std::array<FeedRecord*, 255> feeds_{};  // as many as NumFeeds can count
    std::size_t count_ = 0;
};

// What of a feed is digested at maintenance, in percent of its dry matter.
struct DigestedParts {
    Number NFC, CP, Fat, NDF;
};

Number DigestedProtein(const FeedRecord& f) {
    if (!(f.CP > 0)) return 0;
    if (f.EnergyEqClass == "Forage") return Exp(-1.2 * f.ADFIP / f.CP) * f.CP;
    if (f.Category == kAnimalProteinCategory) return f.CPDigest * f.CP;
    return (1 - (f.ADFIP / f.CP) * 0.4) * f.CP;
}

DigestedParts DigestedPartsOf(const FeedRecord& f, Number nfc) {
    return {.NFC = nfc * 0.98 * f.PAF,
            .CP = DigestedProtein(f),
            .Fat = f.Fat >= 1 ? (f.Fat - 1) * 2.25 : Number(0),
            .NDF = f.NDF > f.NDFIP ? f.NDFDigest * f.NDF : Number(0)};
}

void EvaluateFatSupplement(FeedRecord& f) {
    if (f.EnergyEqClass == "Fatty Acid") {
        f.TDN = f.FatDigest * f.Fat * 2.25;
        f.DE = f.FatDigest * 0.094 * f.Fat;
    } else {
        f.TDN = (f.Fat - 10) * f.FatDigest * 2.25 + 10;
        f.DE = (f.Fat - 10) * f.FatDigest * 0.094 + 0.43;
    }
}

// Here and in the two forms without fibre Fat - 1 has no floor at 0, unlike the digested fat. This
// is meant, and so is that they leave the fibre out of the carbohydrate.
void EvaluateAnimalProtein(FeedRecord& f, const DigestedParts& d) {
    f.TDN = f.CPDigest * f.CP + (f.Fat - 1) * 2.25 + (100 - f.CP - f.Ash - f.Fat) * f.NFCDigest - 7;
    f.DE = d.NFC * 0.042 + d.CP * 0.056 + (d.Fat / 2.25) * 0.094 - 0.3;
}

void EvaluateFibrousFeed(FeedRecord& f, const DigestedParts& d) {
    f.TDN = d.NFC + d.CP + d.Fat + d.NDF - 7;
    f.DE = d.NFC * 0.042 + d.NDF * 0.042 + d.CP * 0.056 + (d.Fat / 2.25) * 0.094 - 0.3;
}

void EvaluateFibrelessFeed(FeedRecord& f) {
    if (f.CP > 0) {
        f.TDN = (100 - f.CP - f.Fat - f.Ash) * (f.PAF * 0.98) +
                (1 - (f.ADFIP / f.CP) * 0.4) * f.CP + ((f.Fat - 1) * 2.25 - 7);
        f.DE = (100 - f.CP - f.Fat - f.Ash) * 0.042 * (f.PAF * 0.98) +
               (1 - (f.ADFIP / f.CP) * 0.4) * 0.056 * f.CP + (f.Fat - 1) * 0.094 - 0.3;
    } else {
        f.TDN = (100 - f.Fat - f.Ash) * (f.PAF * 0.98) + ((f.Fat - 1) * 2.25 - 7);
        f.DE = (100 - f.Fat - f.Ash) * 0.042 * (f.PAF * 0.98) + (f.Fat - 1) * 0.094 - 0.3;
    }
}

// TDN [%DM] and DE [Mcal/kg] at maintenance. They replace what the library or the file supplied.
void EvaluateAtMaintenance(SimulationRecord& r, FeedRecord& f) {
    f.NFCDigest = 0.98;
    const Number nfc = 100 - f.NDF - f.CP - f.Fat - f.Ash + f.NDFIP;
    r.TotalNFC += nfc / 100 * f.Qty;
    const DigestedParts d = DigestedPartsOf(f, nfc);
    if (f.Category == kFatCategory) {
        EvaluateFatSupplement(f);
    } else if (f.Category == kAnimalProteinCategory) {
        EvaluateAnimalProtein(f, d);
    } else if (d.NDF > 0) {
        EvaluateFibrousFeed(f, d);
    } else {
        EvaluateFibrelessFeed(f);
    }
    if (f.Category == kVitaminMineralCategory) {
        f.TDN = 0;
        f.DE = 0;
    }
}

// Multiples of maintenance that the digestible nutrients [kg/day] amount to.
Number IntakeInMultiples(const SimulationRecord& r, Number sumTDN) {
    const Number weight = r.AnimalType == kReplacementHeifer ? r.BodyWeight * 0.96
                          : r.AnimalType == kYoungCalf       ? Number(r.CalfBodyWeight)
                                                             : Number(r.BodyWeight);
    return sumTDN / (Power(weight, 0.75) * 0.035);
}

// The fat, digestible where it is a supplement, that the correction takes out of a fatty ration.
// The plain form serves every class but "Fat", the other way round than in the supplements' TDN.
Number FatTermOf(const FeedRecord& f) {
    if (f.Category != kFatCategory) return f.Fat - 1;
    if (f.EnergyEqClass == "Fat") return (f.Fat - 10) * f.FatDigest + 10;
    return f.FatDigest * f.Fat;
}

// TDN percent of a ration, corrected where it holds more than 3 % fat.
Number CorrectForFat(const SimulationRecord& r, Number tdnPct, Number fatKg, Number fatPct) {
    const Number fatTerm =
        r.TotalDMI > 0
            ? SumOver(FeedsInUse(r), [](const FeedRecord& f) { return FatTermOf(f) * f.Qty; }) /
                  r.TotalDMI
            : Number(0);
    if (!(r.FeedDMINonCalf > 0)) return tdnPct;
    if (!(Single(fatKg / r.FeedDMINonCalf) > Single(0.03))) return tdnPct;
    const Number adjusted =
        fatPct > 0 ? tdnPct - (fatTerm / fatPct) * (fatPct - 3) * 2.25 : Number(0);
    return adjusted / ((100 - (fatPct - 3)) / 100);
}

// A ration that starts at 60 % TDN or above never ends below 60 %.
void ComputeDiscountFactor(SimulationRecord& r, Number tdnPct) {
    Number drop = (tdnPct * 0.18 - 10.3) * (r.IntakeMultiple - 1);
    if (drop < 0) drop = 0;
    if (tdnPct < 60) {
        r.DiscountFactor = 1;
    } else if (tdnPct == 60 || Single(tdnPct - drop) >= 60) {
        r.DiscountFactor = (tdnPct - drop) / tdnPct;
    } else {
        r.DiscountFactor = 60 / tdnPct;
    }
    if (r.DiscountFactor < 0) r.DiscountFactor = 1;
}

void EvaluateMetabolisableEnergy(const SimulationRecord& r, FeedRecord& f) {
    const bool heifer = r.AnimalType == kReplacementHeifer;
    if (f.Fat < 3) {
        f.ME = heifer || r.AnimalType == kYoungCalf ? f.DE * 0.82 : f.DiscountedDE * 1.01 - 0.45;
        f.NEl = f.ME * 0.703 - 0.19;
    } else {
        f.ME = heifer ? f.DE * 0.82 : (f.Fat - 3) * 0.0046 + f.DiscountedDE * 1.01 - 0.45;
        f.NEl = ((f.ME * 0.097 + 0.19) / 97) * (f.Fat - 3) + f.ME * 0.703 - 0.19;
    }
}

// Net energies for gain and maintenance come from the undiscounted DE: growth is not discounted.
void EvaluateNetEnergies(FeedRecord& f) {
    if (f.Category == kFatCategory) {
        f.ME = f.DiscountedDE;
        f.NEl = f.ME * 0.8;
        f.NEm = f.ME * 0.8;
        f.NEg = f.ME * 0.55;
        return;
    }
    f.ME1X = f.DE * 0.82;
    f.NEg = 1.42 * f.ME1X - 0.174 * Square(f.ME1X) + 0.0122 * Cube(f.ME1X) - 1.65;
    f.NEm = 1.37 * f.ME1X - 0.138 * Square(f.ME1X) + 0.0105 * Cube(f.ME1X) - 1.12;
}

void EvaluateAtIntake(SimulationRecord& r, FeedRecord& f) {
    f.DiscountedDE = r.DiscountFactor * f.DE;
    EvaluateMetabolisableEnergy(r, f);
    EvaluateNetEnergies(f);
    for (Single* energy : {&f.ME, &f.NEl, &f.NEm, &f.NEg}) {
        if (*energy < 0) *energy = 0;
    }
    r.TotalME += f.ME * f.Qty;
    r.TotalNEl += f.NEl * f.Qty;
    r.TotalNEg += f.NEg * f.Qty;
    r.TotalNEm += f.NEm * f.Qty;
}

}  // namespace

// The energy values of each feed at the ration's level of intake, and the ration's totals. As
// intake rises above maintenance digestibility falls: TDN at maintenance first, then one discount
// factor for the whole ration, then each feed's discounted values.
//
// Reads    of each feed Qty, Category, EnergyEqClass, PAF, NDF, NDFIP, CP, ADFIP, Fat, Ash,
// CPDigest,
//          NDFDigest, FatDigest; AnimalType, BodyWeight, CalfBodyWeight, TotalDMI
// Writes   of each feed TDN, DE, NFCDigest, DiscountedTDN (all not of calf feeds), DiscountedDE,
// ME1X,
//          ME, NEl, NEg, NEm; TotalME, TotalNEm, TotalNEl, TotalNEg, FeedDMINonCalf, TotalNFC,
//          IntakeMultiple, DietFatPercent, DiscountFactor, DietNEConcentration
// Form     summative TDN equations; energy from TDN and DE by the usual dairy equations
// Raises   11 or 6 for a body weight of 0
// Note     Calf feeds take no part in the digestible nutrients but go through the energy values
// with
//          the DE that they have. A calf's ration of calf feeds only ends at once.
void EvaluateFeedEnergy(SimulationRecord& r) {
    r.TotalME = 0;
    r.TotalNEm = 0;
    r.TotalNEl = 0;
    r.TotalNEg = 0;
    if (r.NumFeeds == 0) return;
    const OrdinaryFeeds ordinary(r);

    r.FeedDMINonCalf = ordinary.Sum([](const FeedRecord& f) { return f.Qty; });
    if (r.AnimalType == kYoungCalf && r.FeedDMINonCalf == 0) return;

    r.TotalNFC = 0;
    for (FeedRecord* f : ordinary.Feeds())
        EvaluateAtMaintenance(r, *f);

    const Number sumTDN = ordinary.Sum([](const FeedRecord& f) { return f.TDN / 100 * f.Qty; });
    r.IntakeMultiple = IntakeInMultiples(r, sumTDN);
    const Number tdnPct = r.FeedDMINonCalf > 0 ? sumTDN / r.FeedDMINonCalf * 100 : Number(0);
    const Number fatKg = ordinary.Sum([](const FeedRecord& f) { return f.Fat / 100 * f.Qty; });
    const Number fatPct = r.FeedDMINonCalf > 0 ? fatKg / r.FeedDMINonCalf * 100 : Number(0);
    ComputeDiscountFactor(r, CorrectForFat(r, tdnPct, fatKg, fatPct));

    for (FeedRecord* f : ordinary.Feeds())
        f->DiscountedTDN = r.DiscountFactor * f->TDN;
    r.DietFatPercent = fatPct;
    for (FeedRecord& f : FeedsInUse(r))
        EvaluateAtIntake(r, f);

    const Number netEnergy = r.AnimalType == kReplacementHeifer ? r.TotalNEm : r.TotalNEl;
    r.DietNEConcentration = GuardedQuotient(netEnergy, r.FeedDMINonCalf);
}

}  // namespace tav
