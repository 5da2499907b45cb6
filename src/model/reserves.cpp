#include "model/steps.h"

namespace tav {
namespace {

// The mark that a score can't be lost or gained [Mcal].
constexpr double kCannotChange = 1000000;

// Place of a score in the nine tables. Raises 9 for a score outside the scale.
std::size_t ScoreIndex(Number score) {
    const double rounded = RoundHalfEven(score.Value());
    if (!(rounded >= 1 && rounded <= kConditionScores)) Raise(kSubscriptOutOfRange);
    return static_cast<std::size_t>(rounded) - 1;
}

// Weight, fat, protein and energy of the empty body at each score.
void ComputeBodyComposition(SimulationRecord& r) {
    for (std::size_t i = 0; i < kConditionScores; ++i) {
        const Number s = i + 1;
        r.CSEBW[i] = r.EBWAtCS3 * r.CSWeightFactor[i];
        r.CSFatFraction[i] = s * 0.037683;
        r.CSFat[i] = r.CSFatFraction[i] * r.CSEBW[i];
        r.CSProteinFraction[i] = 0.200886 - s * 0.0066762;
        r.CSProtein[i] = r.CSProteinFraction[i] * r.CSEBW[i];
        r.CSBodyEnergy[i] = r.CSFat[i] * 9.4 + r.CSProtein[i] * 5.55;
    }
}

}  // namespace

// The energy in body reserves: what the loss of one condition score releases, what the gain of one
// takes, the diet's net energy that this amounts to, and the days until the present balance changes
// the score.
//
// Reads    CS9, SBW [kg], AnimalType, the energy balance left for growth in BalanceTable [Mcal/day]
// Writes   the nine-entry tables, EBWAtCS3, EnergyLoss1CS, EnergyGain1CS, DietNElLoss1CS,
//          DietNElGain1CS, DeltaER [Mcal], DaysToChangeCS [days]
// Form     body composition linear in the nine-point score; one score of five is two of nine;
//          9.4 Mcal a kilogram of fat and 5.55 of protein; efficiencies 0.82 of loss, 0.644/0.75 of
//          gain
// Raises   9 for a condition score outside 1 to 5, 11 or 6 for a balance of exactly 0
void ComputeReserves(SimulationRecord& r) {
    static constexpr std::array<double, kConditionScores> kWeightFactors = {
        0.726, 0.794, 0.863, 0.931, 1.0, 1.069, 1.137, 1.206, 1.274};
    const Number balance = r.BalanceTable[2].Growth;
    std::copy(kWeightFactors.begin(), kWeightFactors.end(), r.CSWeightFactor.begin());
    const std::size_t present = ScoreIndex(r.CS9);
    const bool canLose = !(r.CS9 < 3);
    const bool canGain = r.CS9 <= 7;

    r.EBWAtCS3 = r.SBW * 0.851 / r.CSWeightFactor[present];
    ComputeBodyComposition(r);
    r.EnergyLoss1CS = canLose ? r.CSBodyEnergy[present] - r.CSBodyEnergy[ScoreIndex(r.CS9 - 2)]
                              : Number(kCannotChange);
    r.EnergyGain1CS = canGain ? r.CSBodyEnergy[ScoreIndex(r.CS9 + 2)] - r.CSBodyEnergy[present]
                              : Number(kCannotChange);
    const Number loss =
        canLose ? Number(r.EnergyLoss1CS) : r.CSBodyEnergy[present] - r.CSBodyEnergy.front();
    r.DietNElLoss1CS = 0.82 * loss;
    const Number gain =
        canGain ? Number(r.EnergyGain1CS) : r.CSBodyEnergy.back() - r.CSBodyEnergy[present];
    r.DietNElGain1CS = (0.644 / 0.75) * gain;
    r.DeltaER = balance <= 0 ? r.DietNElLoss1CS : r.DietNElGain1CS;
    r.DaysToChangeCS = r.AnimalType == kReplacementHeifer ? Number(0) : r.DeltaER / balance;
}

}  // namespace tav
