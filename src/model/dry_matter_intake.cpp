#include "model/steps.h"

namespace tav {
namespace {

// At exactly 35 degrees no row of the table applies and the factor keeps its value from the
// previous run, which at the first computation is 0. This is meant.
void SetTemperatureFactor(SimulationRecord& r) {
    const Number T = r.Temperature;
    if (T < -15) {
        r.DMITempFactor = 1.16;
    } else if (T < -5) {
        r.DMITempFactor = 1.07;
    } else if (T < 5) {
        r.DMITempFactor = 1.05;
    } else if (T < 15) {
        r.DMITempFactor = 1.03;
    } else if (T < 25) {
        r.DMITempFactor = 1.0;
    } else if (T < 35) {
        r.DMITempFactor = 0.9;
    } else if (T > 35) {
        r.DMITempFactor = r.NightCooling ? 0.9 : 0.65;
    }
}

// Only the divisor has a floor of 0.95 Mcal/kg; the numerator keeps the true concentration. In the
// last three weeks an equation of the days to calving takes the place of the one from diet energy.
void PredictForHeifer(SimulationRecord& r) {
    const Number P = r.DaysPregnant;
    if (r.DaysPregnant >= 259) {
        r.PredDMIHeifer = (1.71 - Exp((P - 280) * 0.35) * 0.69) / 100 * r.BodyWeight;
    } else if (!(r.HeiferDMIDivisor > 0)) {
        r.PredDMIHeifer = 0;
    } else {
        const Number NE = r.DietNEConcentration;
        r.PredDMIHeifer =
            Power(r.BodyWeight, 0.75) *
            ((NE * 0.2435 - Square(NE) * 0.0466 - r.HeiferDMIConstant) / r.HeiferDMIDivisor) *
            r.DMITempFactor * r.DMICoatFactor;
    }
    if (r.DaysPregnant >= 211 && r.DaysPregnant <= 258) r.PredDMIHeifer *= 1 + (210 - P) * 0.0025;
}

void PredictForLactatingCow(SimulationRecord& r) {
    const Number weekOfLactation = Number(r.DaysInMilk) / 7;
    const Number lag = 1 - Exp((weekOfLactation + 3.67) * -0.192);
    r.PredDMILactating = (Power(r.BodyWeight, 0.75) * 0.0968 + r.FCM * 0.372 - 0.293) * lag;
}

void PredictForDryCow(SimulationRecord& r) {
    const Number P = r.DaysPregnant;
    r.PredDMIDry = (1.97 - Exp((P - 280) * 0.16) * 0.75) / 100 * r.BodyWeight;
}

void SelectPrediction(SimulationRecord& r) {
    if (r.AnimalType == kLactatingCow) {
        r.PredictedDMI = r.PredDMILactating;
    } else if (r.AnimalType == kDryCow) {
        r.PredictedDMI = r.PredDMIDry;
    } else if (r.AnimalType == kReplacementHeifer || r.AnimalType == kYoungCalf) {
        r.PredictedDMI = r.PredDMIHeifer;
    }
}

}  // namespace

// Predicts dry matter intake [kg/day]. Evaluates the heifer, lactating and dry cow equations every
// time and selects one by AnimalType. Compares with TotalDMI but never changes it.
//
// Reads    Temperature [deg C], NightCooling, Age [months], TotalDMI, TotalNEm, TotalNEl,
// DaysPregnant,
//          DaysInMilk [days], BodyWeight [kg], FCM [kg/day]
// Writes   DMITempFactor, DMICoatFactor, HeiferDMIConstant, DietNEConcentration [Mcal/kg],
//          HeiferDMIDivisor, the three predictions, PredictedDMI, DMIShortfall [fraction]
// After    the diet supply, whose DietNEConcentration is replaced here by one per kg of TotalDMI.
// Note     The coat never changes the factor, and temperature enters the heifer equation alone.
void PredictDMI(SimulationRecord& r) {
    r.DMICoatFactor = 1;
    SetTemperatureFactor(r);
    r.HeiferDMIConstant = r.Age > 12 ? 0.0869 : 0.1128;
    r.DietNEConcentration =
        GuardedQuotient(r.AnimalType == kReplacementHeifer ? r.TotalNEm : r.TotalNEl, r.TotalDMI);
    r.HeiferDMIDivisor = r.DietNEConcentration < 1 ? Number(0.95) : Number(r.DietNEConcentration);
    PredictForHeifer(r);
    PredictForLactatingCow(r);
    PredictForDryCow(r);
    SelectPrediction(r);
    const bool isShort = r.PredictedDMI > r.TotalDMI && r.PredictedDMI > 0;
    r.DMIShortfall = isShort ? (r.PredictedDMI - r.TotalDMI) / r.PredictedDMI : Number(0);
}

}  // namespace tav
