#include "model/breed_estimates.h"
#include "model/steps.h"

namespace tav {
namespace {

// Weight at which the reference animal has its standard composition [kg].
constexpr double kStandardReferenceWeight = 478;

// The gain that the energy left after maintenance and pregnancy allows. For an animal that has
// calved the gain with the conceptus rests on EBG, which here still is that of the previous run.
// This is meant.
void ComputeEnergyAllowableGain(SimulationRecord& r) {
    const Number matureWeight =
        r.MatureWeight > 0 ? Number(r.MatureWeight) : Number(MatureWeightFromBreed(r.Breed));
    r.SRWRatio = kStandardReferenceWeight / (matureWeight * 0.96);
    r.EqSBW = (r.SBW - r.ConceptusWeight) * r.SRWRatio;
    const Number gain = Power(r.NEAvailableGrowth, 0.9116) * 13.91 * Power(r.EqSBW, -0.6837);
    r.EnergyGain = gain.Value();
    r.ADGEnergy = gain / 0.96;
    const Number ownGain = r.Age < r.AgeAtFirstCalving ? Number(r.ADGEnergy) : r.EBG / 0.956;
    r.ADGEnergyConceptus = r.ADGPreg / 1000 + ownGain;
}

// Energy and protein in the gain aimed at, and what of the diet they take.
void ComputeGrowthRequirement(SimulationRecord& r) {
    const Number targetGain = r.UseTargetADG ? Number(r.TargetADG) : Number(r.DesiredADG) / 1000;
    r.TargetSWG = targetGain * 0.96;
    r.ReserveWeightChange = 0;
    r.EqEBW = r.EqSBW * 0.891;
    r.EBG = r.TargetSWG * 0.956;
    r.RE = Power(r.EqEBW, 0.75) * 0.0635 * Power(r.EBG, 1.097);
    if (!(r.TotalNEg > 0)) {
        r.NEGrowthDiet = 0;
    } else if (r.AnimalType == kReplacementHeifer) {
        r.NEGrowthDiet = r.RE;
    } else {
        r.NEGrowthDiet = (r.TotalNEm / r.TotalNEg) * r.RE;
    }
    r.NPg = r.TargetSWG != 0 ? (268 - (r.RE / r.TargetSWG) * 29.4) * r.TargetSWG : Number(0);
    r.EffMPNPg = r.EqSBW <= kStandardReferenceWeight ? (83.4 - r.EqSBW * 0.114) / 100
                                                     : Number(Single(0.28908));
    r.MPGrowth = r.NPg / r.EffMPNPg;
}

}  // namespace

// The cost of the gain aimed at, and the gain that the energy left would allow, on the scale of a
// reference animal of 478 kg. Serves every animal but the young calf, mature cows too.
//
// Reads    MatureWeight, SBW, ConceptusWeight [kg], Breed, NEAvailableGrowth, Age,
// AgeAtFirstCalving
//          [months], ADGPreg, DesiredADG [g/day], UseTargetADG, TargetADG [kg/day], TotalNEg,
//          TotalNEm, AnimalType, TotalDMI, DMIMaint, DMIPreg, PredDMILactating, EffNEgME
// Writes   the fields of the group "Growth"; EnergyGain keeps 64 bits
// Form     retained energy and gain as powers of equivalent weight and of each other
// Raises   5 for an equivalent weight of 0 or below and for a negative gain aimed at, 11 for a
// mature
//          weight of 0 with an unknown breed
// Note     Reserves are not treated here: their change is always 0. DMIGrowth of every animal but a
//          heifer subtracts the intake predicted for a lactating cow, that of a dry cow too.
void ComputeGrowth(SimulationRecord& r) {
    ComputeEnergyAllowableGain(r);
    ComputeGrowthRequirement(r);
    r.NEReserves =
        r.ReserveWeightChange > 0 ? r.ReserveWeightChange * 5.12 : r.ReserveWeightChange * 4.92;
    const Number left = r.TotalDMI - r.DMIMaint - r.DMIPreg;
    r.DMIGrowth = r.AnimalType == kReplacementHeifer ? left : left - r.PredDMILactating;
    r.MEGrowth = GuardedQuotient(r.NEGrowthDiet, r.EffNEgME);
}

}  // namespace tav
