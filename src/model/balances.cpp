#include "model/steps.h"

namespace tav {
namespace {

// The columns through which a supply passes, each getting what the one before has left.
constexpr std::array<Single BalanceRow::*, 5> kColumns = {
    &BalanceRow::Maintenance, &BalanceRow::Pregnancy, &BalanceRow::Lactation, &BalanceRow::Growth,
    &BalanceRow::Reserves};

// Three lines of the table that belong together.
struct Account {
    BalanceRow& Supply;
    BalanceRow& Required;
    BalanceRow& Difference;
};

// Books a requirement in a column and hands what is left to the next column's supply.
void Book(Account account, std::size_t column, Number required) {
    const auto here = kColumns[column];
    account.Required.*here = required;
    account.Difference.*here = account.Supply.*here - account.Required.*here;
    account.Supply.*kColumns[column + 1] = account.Difference.*here;
}

void WriteLabels(SimulationRecord& r, bool heifer) {
    auto& rows = r.BalanceTable;
    rows[0].Label = heifer ? "ME Supplied" : "NE Supplied";
    rows[1].Label = heifer ? "ME Required" : "NE Required";
    rows[2].Label = heifer ? "ME (Diet - Req.)" : "NE (Diet - Req.)";
    rows[3].Label = "MP Diet";
    rows[4].Label = "MP Required";
    rows[5].Label = "MP (Diet - Req.)";
    for (std::size_t i = 0; i < rows.size(); ++i)
        rows[i].Unit = i < 3 ? "Mcal/day" : "g/day";
}

// Heifers are reckoned on metabolisable energy and spend on growth all that is left, so that their
// difference ends at 0; all others on net energy. The difference of the reserves is not written.
void ComputeEnergyAccount(SimulationRecord& r, bool heifer) {
    const Account energy{r.BalanceTable[0], r.BalanceTable[1], r.BalanceTable[2]};
    energy.Supply.Total = heifer ? r.TotalME : r.TotalNEl;
    energy.Supply.Maintenance = energy.Supply.Total;
    Book(energy, 0, heifer ? GuardedQuotient(r.NEMaint, r.EffNEmME) : Number(r.NEMaint));
    Book(energy, 1, heifer ? r.MEPreg : r.NEPreg);
    Book(energy, 2, heifer ? Number(0) : Number(r.NELact));
    const Number growthOfOthers = r.EBG > 0 ? Number(r.NEGrowthDiet) : Number(0);
    Book(energy, 3, heifer ? Number(energy.Supply.Growth) : growthOfOthers);
    const BalanceRow& required = energy.Required;
    energy.Required.Reserves = r.NEReserves;
    energy.Required.Total = required.Pregnancy + required.Maintenance + required.Lactation +
                            required.Growth + required.Reserves;
    energy.Difference.Total = energy.Supply.Total - energy.Required.Total;
}

Number ProteinForGrowth(const SimulationRecord& r) {
    if (r.Age > r.AgeAtFirstCalving) return r.EBG > 0 ? Number(r.MPGrowth) : Number(0);
    if (!(r.EnergyGain.value_or(0) > 0 && r.EffMPNPg > 0 && r.TargetSWG > 0)) return 0;
    return ((268 - (r.RE / r.TargetSWG) * 29.4) * r.TargetSWG) / r.EffMPNPg;
}

// The table's supply adds MPFeed in kg to MPBacterial in g and leaves endogenous protein out. This
// is meant: MPBalance is the balance that counts them properly.
void ComputeProteinAccount(SimulationRecord& r) {
    const Account protein{r.BalanceTable[3], r.BalanceTable[4], r.BalanceTable[5]};
    r.MPBacterial = r.MCP * 0.64;
    r.MPFeed = r.TotalDigestedRUP;
    protein.Supply.Total = r.TotalDigestedRUP + r.MPBacterial;
    protein.Supply.Maintenance = protein.Supply.Total;
    Book(protein, 0, r.MPMaint);
    Book(protein, 1, r.MPPreg);
    Book(protein, 2, r.MPLact);
    Book(protein, 3, ProteinForGrowth(r));
    const BalanceRow& required = protein.Required;
    protein.Required.Total =
        required.Pregnancy + required.Maintenance + required.Lactation + required.Growth;
    protein.Difference.Total = protein.Supply.Total - protein.Required.Total;
}

void ComputeDegradedAndUndegraded(SimulationRecord& r) {
    r.DietCP = r.TotalDMI > 0 ? r.TotalCP / (r.TotalDMI * 1000) : Number(0);
    r.DietRDP = GuardedQuotient(r.TotalRDP * 1000, r.TotalCP);
    r.DietRUP = GuardedQuotient(r.TotalCP - r.TotalRDP * 1000, r.TotalCP);
    r.RDPRequired = r.TotalDiscTDN * 0.15294;
    r.RDPSupplied = r.TotalDMI * 1000 * r.DietCP * r.DietRDP;
    r.RDPBalance = r.RDPSupplied - r.RDPRequired;
    r.RUPSupplied = r.TotalCP - r.RDPSupplied;
    r.RUPRequired = GuardedQuotient(r.BalanceTable[4].Total - (r.EndogenousMP + r.MPBacterial),
                                    r.DietRUPDigest);
    r.RUPBalance = r.RUPSupplied - r.RUPRequired;
}

// Metabolisable protein of all sources [g/day].
Number MetabolisableProtein(const SimulationRecord& r) {
    return r.MPFeed * 1000 + r.MPBacterial + r.EndogenousMP;
}

void ComputeProteinAllowableGain(SimulationRecord& r) {
    r.MPBalance = MetabolisableProtein(r) - (r.MPPreg + r.MPMaint + r.MPLact + r.MPGrowth);
    const Number gain = r.EnergyGain.value_or(0);
    r.NPPerGain = gain > 0 ? 268 - (r.NEAvailableGrowth / gain) * 29.4 : Number(0);
    const Number left = MetabolisableProtein(r) - (r.MPPreg + r.MPMaint + r.MPLact);
    r.ADGMP = r.NPPerGain > 0 ? (r.EffMPNPg * left) / r.NPPerGain / 0.96 : Number(0);
    r.ADGMPConceptus = r.ADGPreg / 1000 + r.ADGMP;
}

}  // namespace

// Lays supply against requirement, use by use, for energy and metabolisable protein, and works out
// the balances of protein and the gain that protein allows.
//
// Reads    the energy totals, the requirements of all uses, EBG, RE, TargetSWG, EnergyGain,
// EffMPNPg,
//          NEAvailableGrowth, MCP, the protein totals, TotalDMI, PredictedDMI, Age,
//          AgeAtFirstCalving
// Writes   BalanceTable (not the reserves' differences), MPBacterial, MPFeed, and the fields of the
//          group "Balances"
// Form     15.294 % of discounted TDN as degraded protein required; net protein in gain from its
// energy
void ComputeBalances(SimulationRecord& r) {
    const bool heifer = r.AnimalType == kReplacementHeifer;
    WriteLabels(r, heifer);
    ComputeEnergyAccount(r, heifer);
    ComputeProteinAccount(r);
    r.PredDMI = r.PredictedDMI;
    r.ActualDMI = r.TotalDMI;
    ComputeDegradedAndUndegraded(r);
    ComputeProteinAllowableGain(r);
}

}  // namespace tav
