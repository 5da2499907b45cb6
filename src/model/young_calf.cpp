#include "model/ration.h"
#include "model/steps.h"

namespace tav {
namespace {

// Sums over the ration: protein and fat in kg/day, energy in Mcal/day.
struct CalfSums {
    Number CP, DCP, Fat, NEm, NEg, ME, MilkCP, StarterCP, MilkDCP, StarterDCP, MilkME, StarterME;
};

void AddOrdinaryFeed(SimulationRecord& r, FeedRecord& f, CalfSums& sums) {
    const Number Q = f.Qty;
    r.CalfStarterDMI += Q;
    f.cCP = f.CP;
    f.cDCP = f.CP * 0.75;
    sums.CP += f.cCP / 100 * Q;
    sums.DCP += f.cDCP / 100 * Q;
    sums.StarterDCP += f.cDCP / 100 * Q;
    sums.StarterCP += f.cCP / 100 * Q;
}

void AddCalfFeed(SimulationRecord& r, const FeedRecord& f, CalfSums& sums) {
    const Number Q = f.Qty;
    sums.NEm += f.cNEm * Q;
    sums.NEg += f.cNEg * Q;
    sums.ME += Q * f.cME;
    sums.CP += f.cCP / 100 * Q;
    sums.DCP += f.cDCP / 100 * Q;
    sums.Fat += f.cEE / 100 * Q;
    if (f.Category == kCalfMilkCategory) {
        r.CalfMilkDMI += Q;
        sums.MilkME += Q * f.cME;
        sums.MilkDCP += f.cDCP / 100 * Q;
        sums.MilkCP += f.cCP / 100 * Q;
    } else {
        r.CalfStarterDMI += Q;
        sums.StarterME += Q * f.cME;
        sums.StarterDCP += f.cDCP / 100 * Q;
        sums.StarterCP += f.cCP / 100 * Q;
    }
}

// Efficiencies of metabolisable energy, weighted by the energy of each feed: 0.75 and 0.57 in
// ordinary feeds, 0.86 and 0.69 in calf feeds. An ordinary feed's NEm and NEg hold Mcal/day from
// here on.
void ComputeEfficiencies(SimulationRecord& r) {
    r.CalfEffNEmME = 0;
    r.CalfEffNEgME = 0;
    r.TotalNEg = 0;
    r.TotalNEm = 0;
    Number sumEnergy;
    for (FeedRecord& f : FeedsInUse(r)) {
        const bool calfFeed = IsCalfCategory(f.Category);
        if (!calfFeed && f.ME != 0) {
            const Number M = f.ME * f.Qty;
            r.CalfEffNEmME += M * 0.75;
            r.CalfEffNEgME += M * 0.57;
            f.NEm = M * 0.75;
            f.NEg = M * 0.57;
            sumEnergy += M;
            r.TotalNEg += f.NEg;
            r.TotalNEm += f.NEm;
        } else if (calfFeed && f.cME != 0) {
            const Number M = f.cME * f.Qty;
            r.CalfEffNEmME += M * 0.86;
            r.CalfEffNEgME += M * 0.69;
            sumEnergy += M;
        }
    }
    r.CalfEffNEmME = GuardedQuotient(r.CalfEffNEmME, sumEnergy);
    r.CalfEffNEgME = GuardedQuotient(r.CalfEffNEgME, sumEnergy);
}

// What cold adds to maintenance, by temperature and for calves up to and over two months of age.
Number ColdMultiplier(Number temperature, bool older) {
    struct Row {
        double Above, Older, Younger;
    };
    static constexpr std::array<Row, 10> kTable = {{{15, 0, 0},
                                                    {10, 0, 0.13},
                                                    {5, 0, 0.27},
                                                    {0, 0.13, 0.40},
                                                    {-5, 0.27, 0.54},
                                                    {-10, 0.40, 0.68},
                                                    {-15, 0.54, 0.86},
                                                    {-20, 0.68, 0.94},
                                                    {-25, 0.81, 1.08},
                                                    {-30, 0.94, 1.21}}};
    for (const Row& row : kTable) {
        if (temperature > row.Above) return older ? row.Older : row.Younger;
    }
    return older ? 1.07 : 1.34;
}

Number QuotientUnlessZero(Number dividend, Number divisor) {
    return divisor == 0 ? Number(0) : dividend / divisor;
}

// Maintenance and the gain that the energy left allows; -9999 marks a calf that loses weight.
void ComputeEnergyAllowableGain(SimulationRecord& r) {
    r.CalfTempMultiplier = ColdMultiplier(r.CalfTemperature, r.Age > 2);
    r.CalfNEMaint = (r.CalfTempMultiplier + 1) * r.CalfNEMaint;
    r.MEMaint = QuotientUnlessZero(r.CalfNEMaint, r.CalfEffNEmME);
    r.CalfDMIMaint = QuotientUnlessZero(r.CalfNEMaint, r.CalfDietNEm);
    r.CalfDMIGrowth = r.TotalDMI - r.CalfDMIMaint;
    r.CalfNEGrowth = r.CalfDMIGrowth * r.CalfDietNEg;
    r.CalfMEGrowth = QuotientUnlessZero(r.CalfNEGrowth, r.CalfEffNEgME);
    if (r.CalfNEGrowth > 0) {
        r.CalfEnergyGainRaw =
            Exp(Log((r.CalfNEGrowth * 1.19) / (Power(r.CalfBodyWeight, 0.355) * 0.69)) * 0.8333);
    } else {
        r.CalfEnergyGainRaw = -9999;
    }
    r.CalfEnergyGain = r.CalfEnergyGainRaw > 0 ? Number(r.CalfEnergyGainRaw) : Number(0);
    r.CalfNPGrowth = r.CalfEnergyGain * 0.188;
}

// Apparently digested protein: supply, maintenance by endogenous and metabolic nitrogen, growth.
void ComputeProtein(SimulationRecord& r, const CalfSums& sums) {
    const Number intake = (sums.MilkCP * 0.93 + sums.StarterCP * 0.75) * 1000;
    const Number fed = sums.MilkCP + sums.StarterCP;
    const Number digestibility = Single(fed) > 0 ? intake / (fed * 1000) : Number(1);
    r.CalfMetabolicFecalN = Power(r.CalfBodyWeight, 0.75) * 0.2;
    r.CalfEndogenousN = r.CalfStarterDMI * 3.3 + r.CalfMilkDMI * 1.9;
    r.CalfBiologicalValue =
        sums.CP > 0 ? (sums.MilkCP / sums.CP) * 0.8 + (sums.StarterCP / sums.CP) * 0.7 : Number(1);
    if (!(r.CalfBiologicalValue > 0)) r.CalfBiologicalValue = 1;
    r.CalfADPMaint = ((r.CalfEndogenousN + r.CalfMetabolicFecalN) * (1 / r.CalfBiologicalValue) -
                      r.CalfEndogenousN) *
                     6.25;
    r.CalfCPMaint = GuardedQuotient(r.CalfADPMaint, digestibility);
    r.CalfADPGrowth = r.CalfNPGrowth * 1000 / r.CalfBiologicalValue;
    r.CalfCPGrowth = GuardedQuotient(r.CalfADPGrowth, digestibility);
    r.CalfADPBalance = intake - r.CalfADPMaint - r.CalfADPGrowth;
    r.CalfCPBalance = sums.CP * 1000 - r.CalfCPMaint - r.CalfCPGrowth;
    r.CalfADPGain = (intake - r.CalfADPMaint) * r.CalfBiologicalValue / 0.188;
}

}  // namespace

// The pre-weaned calf, a model of its own: energy from the values that calf feeds carry,
// maintenance by the calf's weight and a table of cold, gain from an inverted growth equation,
// protein as apparently digested protein with a biological value.
//
// Reads    Age [months], CalfBodyWeight [kg], CalfTemperature [deg C]; of calf feeds Qty, cME,
// cNEm,
//          cNEg, cCP, cDCP, cEE; of ordinary feeds Qty, CP and the energy values, evaluated first
// Writes   TotalDMI, the fields of the group "The young calf", MEMaint, TotalNEg, TotalNEm; of
// ordinary
//          feeds cCP, cDCP, and NEm and NEg as Mcal/day
// Form     0.086 Mcal a kilogram of metabolic weight; 188 g net protein a kilogram of gain
// Raises   11 for a CalfBodyWeight of 0 when there is energy for growth
// Note     A calf feed is one of exactly three categories here.
void ComputeYoungCalf(SimulationRecord& r) {
    for (Single* sum :
         {&r.CalfMilkDMI, &r.CalfStarterDMI, &r.CalfDietNEm, &r.CalfDietME, &r.CalfDietNEg}) {
        *sum = 0;
    }
    if (r.NumFeeds == 0) return;
    r.TotalDMI = SumOver(FeedsInUse(r), [](const FeedRecord& f) { return f.Qty; });
    if (r.TotalDMI == 0) return;
    EvaluateFeedEnergy(r);

    CalfSums sums;
    for (FeedRecord& f : FeedsInUse(r)) {
        if (IsCalfCategory(f.Category)) {
            AddCalfFeed(r, f, sums);
        } else {
            AddOrdinaryFeed(r, f, sums);
        }
    }
    const bool fed = r.TotalDMI > 0;
    r.CalfDietCP = fed ? sums.CP / r.TotalDMI * 100 : Number(0);
    r.CalfDietDCP = fed ? sums.DCP / r.TotalDMI * 100 : Number(0);
    r.CalfNEMaint = Power(r.CalfBodyWeight, 0.75) * 0.086;
    ComputeEfficiencies(r);

    sums.NEm += r.TotalNEm;
    sums.NEg += r.TotalNEg;
    sums.ME += r.TotalME;
    r.CalfDietNEm = GuardedQuotient(sums.NEm, r.TotalDMI);
    r.CalfDietNEg = GuardedQuotient(sums.NEg, r.TotalDMI);
    r.CalfDietME = GuardedQuotient(sums.ME, r.TotalDMI);

    ComputeEnergyAllowableGain(r);
    ComputeProtein(r, sums);
    r.CalfTotalFat = r.DietFatPercent / 100 * r.FeedDMINonCalf + sums.Fat;
    r.CalfDietFat = GuardedQuotient(r.CalfTotalFat, r.TotalDMI);
}

}  // namespace tav
