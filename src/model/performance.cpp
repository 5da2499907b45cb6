#include "core/number_text.h"
#include "model/mineral_requirements.h"
#include "model/ration.h"
#include "model/steps.h"

namespace tav {
namespace {

void WriteDaysToChangeCS(SimulationRecord& r) {
    if (r.AnimalType == kReplacementHeifer) {
        r.DaysToChangeCSText = "No changes in condition score for heifers.";
        return;
    }
    const Single days = Abs(r.DaysToChangeCS);
    r.DaysToChangeCSText = r.BalanceTable[2].Total < 0 ? "Days to lose one condition score :  "
                                                       : "Days to gain one condition score :  ";
    if (days <= 305) {
        r.DaysToChangeCSText += SignedText(int{ToInteger(days.Value())});
    } else {
        r.DaysToChangeCSText += "> 305";
    }
}

void ComputeConcentrations(SimulationRecord& r) {
    r.DietNDF = GuardedQuotient(r.TotalNDF, r.TotalDMI);
    r.DietADF = GuardedQuotient(r.TotalADF, r.TotalDMI);
    r.ForageNDFTotal = SumOver(FeedsInUse(r), [](const FeedRecord& f) {
        return f.EnergyEqClass == "Forage" ? f.NDF / 100 * f.Qty : Number(0);
    });
    r.DietME = GuardedQuotient(r.TotalME, r.TotalDMI);
    r.DietNEl = GuardedQuotient(r.TotalNEl, r.TotalDMI);
    r.DietNEg = GuardedQuotient(r.TotalNEg, r.TotalDMI);
}

// Energy that all uses leave [Mcal/day], metabolisable for heifers and net for all others.
Number EnergyLeft(const SimulationRecord& r) {
    if (r.AnimalType == kReplacementHeifer) return r.TotalME - (r.MEPreg + r.MEMaint + r.MEGrowth);
    return r.TotalNEl - (r.NEPreg + r.NEMaint + r.NELact + r.NEGrowthDiet);
}

// Weight that goes to reserves or comes from them: 4.92 Mcal of net energy a kilogram lost, 5.12 a
// kilogram gained in milk and 6.4 when dry.
Number ReserveWeight(const SimulationRecord& r, Number energyLeft) {
    const bool dry = r.AnimalType == kDryCow;
    if (!dry && r.AnimalType != kLactatingCow) return 0;
    if (energyLeft < 0) return energyLeft / 4.92;
    return energyLeft / (dry ? 6.4 : 5.12);
}

void ComputeReserveProtein(SimulationRecord& r, Number energyLeft) {
    if (energyLeft <= 0) {
        r.MPReservesRequired = 0;
        r.RUPReservesRequired = 0;
        r.MPReservesProvided = (r.ReserveWeightPerDay * -1) * r.NPPerGain * 0.67;
        r.RUPReservesProvided = GuardedQuotient(r.MPReservesProvided, r.DietRUPDigest);
    } else {
        r.MPReservesProvided = 0;
        r.RUPReservesProvided = 0;
        r.MPReservesRequired = r.NPPerGain * r.ReserveWeightPerDay / 0.492;
        r.RUPReservesRequired = GuardedQuotient(r.MPReservesRequired, r.DietRUPDigest);
    }
}

// Milk that a supply allows, from what maintenance and pregnancy leave of it. The test leaves
// growth out while the value subtracts it, so that the result may be negative.
Number AllowableMilk(const SimulationRecord& r, Number left, Number growth, Number lactation) {
    if (r.MilkProduction <= 0) return 0;
    if (!(Single(left) > 0 && lactation > 0)) return 0;
    return (left - growth) / lactation * r.MilkProduction;
}

void ComputeAllowableMilk(SimulationRecord& r) {
    r.EnergyAllowableMilk =
        AllowableMilk(r, r.TotalNEl - r.NEMaint - r.NEPreg, r.NEGrowthDiet, r.NELact);
    r.ProteinAllowableMilk =
        AllowableMilk(r, r.MPFeed * 1000 + r.MPBacterial + r.EndogenousMP - r.MPMaint - r.MPPreg,
                      r.MPGrowth, r.MPLact);
}

void ComputeDensitiesRequired(SimulationRecord& r) {
    const bool growing = r.AnimalType == kReplacementHeifer && r.DaysPregnant <= 259;
    const Number intake = r.PredictedDMI;
    const auto in = [&](Number amount) { return GuardedQuotient(amount, intake); };
    r.EnergyDensityRequired = in(growing ? r.MEPreg + r.MEMaint + r.MEGrowth
                                         : r.NEPreg + r.NEMaint + r.NELact + r.NEGrowthDiet);
    r.MPDensityRequired = in(r.MPPreg + r.MPMaint + r.MPLact + r.MPGrowth);
    r.CaDensityRequired = in(r.MineralRows[kCa].TAR);
    r.PDensityRequired = in(r.MineralRows[kP].TAR);
}

// Milliequivalents of the strong cations less those of the anions in a kilogram of dry matter.
void ComputeDCAD(SimulationRecord& r) {
    const auto density = [&](std::size_t row) { return r.MineralRows[row].RationDensity; };
    r.DCAD = density(kNa) * 100 * 435 + density(kK) * 100 * 256 -
             (density(kS) * 100 * 624 + density(kCl) * 100 * 282);
}

}  // namespace

// The figures that close a computation: concentrations of the diet, allowable milk, the change of
// body reserves, the densities that a ration needs, the cation-anion difference.
//
// Reads    the totals, requirements and balances of all steps before, DaysToChangeCS, MineralRows
// Writes   the fields of the group "Performance"
void ComputePerformance(SimulationRecord& r) {
    WriteDaysToChangeCS(r);
    ComputeConcentrations(r);
    r.EnteredMilk = r.AnimalType == kLactatingCow ? Number(r.MilkProduction) : Number(0);
    const Number energyLeft = EnergyLeft(r);
    r.ReserveWeightPerDay = ReserveWeight(r, energyLeft);
    ComputeReserveProtein(r, energyLeft);
    r.TargetADGNoConceptus = r.TargetADG;
    r.TargetADGConceptus = r.ADGPreg / 1000 + r.TargetADG;
    ComputeAllowableMilk(r);
    ComputeDensitiesRequired(r);
    ComputeDCAD(r);
}

}  // namespace tav
