#include "model/steps.h"

namespace tav {
namespace {

// Net energy for walking and grazing. No distance enters for a heifer.
void ComputeActivity(SimulationRecord& r, bool heifer) {
    if (!r.Grazing) {
        r.ActivityNE = 0;
        return;
    }
    if (heifer) {
        r.ActivityNE = r.BodyWeight * 0.0009 + r.BodyWeight * 0.0016;
    } else {
        r.ActivityNE =
            (r.Distance / 1000 * r.Trips) * (r.BodyWeight * 0.00045) + r.BodyWeight * 0.0012;
    }
    if (r.Topography == "Hilly") r.ActivityNE += r.BodyWeight * 0.006;
}

// The basal need without cold or heat. A heifer's rests on her shrunk weight, a cow's on live
// weight.
void ComputeThermoneutral(SimulationRecord& r, bool heifer) {
    r.MaintCoefficient = r.AnimalType == kLactatingCow || r.AnimalType == kDryCow ? 0.08 : 0.086;
    r.CS9 = (r.ConditionScore - 1) + (r.ConditionScore - 1) + 1;
    r.CompensationFactor = heifer ? (r.CS9 - 1) * 0.05 + 0.8 : Number(1);
    r.PreviousTempAdjust = heifer ? (20 - r.PreviousTemperature) * 0.0007 : Number(0);
    ComputeActivity(r, heifer);
    if (heifer) {
        r.NEMaintThermoneutral =
            Power(r.SBW - r.ConceptusWeight, 0.75) *
                (r.CompensationFactor * r.MaintCoefficient + r.PreviousTempAdjust) +
            r.ActivityNE;
    } else {
        r.NEMaintThermoneutral = Power(r.BodyWeight - r.ConceptusWeight, 0.75) *
                                     (r.CompensationFactor * r.MaintCoefficient) +
                                 r.ActivityNE;
    }
}

// Heat produced a square metre of surface: what is eaten less what is retained.
void ComputeHeatProduction(SimulationRecord& r, bool heifer) {
    r.DietNEConcentration = GuardedQuotient(heifer ? r.TotalNEm : r.TotalNEl, r.TotalDMI);
    r.DMIThermoneutral = GuardedQuotient(r.NEMaintThermoneutral, r.DietNEConcentration);
    const bool fed = r.TotalDMI > 0;
    r.GrowthRE = fed ? (r.TotalDMI - r.DMIThermoneutral) * (r.TotalNEg / r.TotalDMI) : Number(0);
    if (heifer) {
        r.RetainedEnergy = r.GrowthRE;
    } else {
        r.RetainedEnergy =
            fed ? (r.TotalDMI - r.DMIThermoneutral) * (r.TotalNEl / r.TotalDMI) * 0.65 : Number(0);
    }
    r.MEIntake = r.TotalME;
    r.SurfaceArea = Power(r.SBW, 0.67) * 0.09;
    r.HeatProduction = GuardedQuotient(r.MEIntake - r.RetainedEnergy, r.SurfaceArea);
}

// A coat of any other description leaves the factor of the previous run.
void SetCoatInsulationFactor(SimulationRecord& r) {
    if (r.CoatCondition == "Clean/Dry") {
        r.CoatInsulationFactor = 1.0;
    } else if (r.CoatCondition == "Some Mud") {
        r.CoatInsulationFactor = 0.8;
    } else if (r.CoatCondition == "Wet/Matted") {
        r.CoatInsulationFactor = 0.5;
    } else if (r.CoatCondition == "Covered with Snow/Mud") {
        r.CoatInsulationFactor = 0.2;
    }
}

void ComputeInsulation(SimulationRecord& r) {
    r.AgeDays = r.Age * 30.4;
    if (r.AgeDays <= 30) {
        r.TissueInsulation = 2.5;
    } else if (r.AgeDays < 183) {
        r.TissueInsulation = 6.5;
    } else if (r.AgeDays < 363) {
        r.TissueInsulation = r.CS9 * 0.3125 + 5.1875;
    } else {
        r.TissueInsulation = r.CS9 * 0.75 + 5.25;
    }
    SetCoatInsulationFactor(r);
    r.ExternalInsulation =
        (7.36 - r.WindSpeed * 0.296 + r.HairDepth * 2.55) * r.CoatInsulationFactor * 0.8;
    if (r.ExternalInsulation < 0) r.ExternalInsulation = 0;
    r.TotalInsulation = r.ExternalInsulation + r.TissueInsulation;
}

void ComputeColdStress(SimulationRecord& r) {
    r.LowerCriticalTemp = 39 - (r.TotalInsulation * r.HeatProduction) * 0.85;
    r.MECold = r.LowerCriticalTemp > r.Temperature
                   ? (r.LowerCriticalTemp - r.Temperature) * r.SurfaceArea / r.TotalInsulation
                   : Number(0);
    r.NECold = r.TotalME > 0 && r.TotalDMI > 0
                   ? (r.DietNEConcentration / (r.TotalME / r.TotalDMI)) * r.MECold
                   : Number(0);
}

// From 30 degrees panting counts; a description of any other kind leaves the factor of the previous
// run.
void SetHeatStressFactor(SimulationRecord& r) {
    if (!(r.Temperature >= 30) || r.HeatStress == "None") {
        r.HeatStressFactor = 1;
    } else if (r.HeatStress == "Rapid/Shallow") {
        r.HeatStressFactor = 1.07;
    } else if (r.HeatStress == "Open Mouth") {
        r.HeatStressFactor = 1.18;
    }
}

// What maintenance and pregnancy take of the dry matter, and the energy for gain in what is left.
void ComputeEnergyLeftForGrowth(SimulationRecord& r) {
    r.DMIMaint = GuardedQuotient(r.NEMaint, r.DietNEConcentration);
    r.DMIPreg = r.DaysPregnant > 0 && r.TotalME > 0 && r.TotalDMI > 0
                    ? r.MEPreg / (r.TotalME / r.TotalDMI)
                    : Number(0);
    r.NEAvailableGrowth = r.TotalDMI > 0
                              ? (r.TotalDMI - r.DMIMaint - r.DMIPreg) * (r.TotalNEg / r.TotalDMI)
                              : Number(0);
    if (r.NEAvailableGrowth < 0) r.NEAvailableGrowth = 0;
}

// Protein lost with skin, urine and faeces. The live weight without the conceptus serves heifers
// too.
void ComputeMaintenanceProtein(SimulationRecord& r) {
    const Number W = r.BodyWeight - r.ConceptusWeight;
    const Number scurf = Power(W, 0.6) * 0.3;
    r.MPScurf = scurf;
    const Number urine = Power(W, 0.5) * 4.1;
    r.MPUrine = urine;
    r.MPFecal = (r.TotalDMI * 1000) * 0.03 - (r.MPBacterial / 0.8 - r.MPBacterial) * 0.5;
    r.MPMaint = scurf + urine + r.MPFecal + r.EndogenousMPRequired;
}

}  // namespace

// The maintenance requirement of energy and protein, with activity, cold and heat, and what it
// leaves for growth. Serves every animal but the young calf.
//
// Reads    AnimalType, ConditionScore, Temperature, PreviousTemperature [deg C], Grazing, Distance
// [m],
//          Trips, Topography, BodyWeight, SBW, ConceptusWeight [kg], Age [months], CoatCondition,
//          WindSpeed [km/h], HairDepth [cm], HeatStress, DaysPregnant, MEPreg, TotalDMI, the energy
//          totals, EffNEmME, MPBacterial, EndogenousMPRequired
// Writes   the fields of the group "Maintenance" and DietNEConcentration
// Form     0.08 (heifers 0.086) Mcal of net energy a kilogram of metabolic weight; heat balance by
//          surface, insulation of tissue and coat, and lower critical temperature
// Raises   5 for a conceptus heavier than its mother, 11 for no insulation at all in the cold
void ComputeMaintenance(SimulationRecord& r) {
    const bool heifer = r.AnimalType == kReplacementHeifer;
    ComputeThermoneutral(r, heifer);
    ComputeHeatProduction(r, heifer);
    ComputeInsulation(r);
    ComputeColdStress(r);
    SetHeatStressFactor(r);
    r.NEMaint = (r.NECold + r.NEMaintThermoneutral) * r.HeatStressFactor;
    ComputeEnergyLeftForGrowth(r);
    ComputeMaintenanceProtein(r);
    r.MEMaint = GuardedQuotient(r.NEMaint, r.EffNEmME);
}

}  // namespace tav
