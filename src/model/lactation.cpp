#include "model/steps.h"

namespace tav {

// The energy and protein that milk takes. Runs for every animal of the main route: what a dry cow
// or a heifer has in MilkProduction counts here, and later steps decide whether to use it.
//
// Reads    MilkProduction [kg/day], MilkTrueProtein, MilkFat, Lactose [%]
// Writes   MilkEnergy [Mcal/kg], MilkEnergyYield and NELact [Mcal/day], MilkProteinYield and
//          MilkFatYield [kg/day], MPLact [g/day], FCM [kg/day]
// Form     energy of milk from its components; 0.93 g true protein a gram of crude protein;
// efficiency
//          0.67 of metabolisable protein; 4 % fat corrected milk
// Note     Without milk MilkEnergyYield keeps the value of an earlier run.
void ComputeLactation(SimulationRecord& r) {
    if (r.MilkProduction == 0) {
        r.MilkEnergy = 0;
        r.NELact = 0;
        r.MilkProteinYield = 0;
        r.MilkFatYield = 0;
        r.MPLact = 0;
        r.FCM = 0;
        return;
    }
    const Number lactose = r.Lactose != 0 ? r.Lactose * 0.0395 : Number(0.192);
    r.MilkEnergy = (r.MilkTrueProtein / 0.93) * 0.0547 + r.MilkFat * 0.0929 + lactose;
    r.MilkEnergyYield = r.MilkEnergy * r.MilkProduction;
    r.NELact = r.MilkEnergyYield;
    r.MilkProteinYield = r.MilkTrueProtein / 100 * r.MilkProduction;
    r.MilkFatYield = r.MilkFat / 100 * r.MilkProduction;
    r.MPLact = r.MilkProteinYield / 0.67 * 1000;
    r.FCM = (r.MilkFat / 100) * 15 * r.MilkProduction + r.MilkProduction * 0.4;
}

}  // namespace tav
