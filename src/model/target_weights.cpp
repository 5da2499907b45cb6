#include "model/steps.h"

namespace tav {
namespace {

constexpr double kDaysPerMonth = 30.4;

// The gain that the animal needs now. A cow younger than first breeding keeps the TargetADG of the
// previous run; from the third calving on there is nothing left to grow.
void SelectTargetADG(SimulationRecord& r) {
    if (r.AnimalType == kReplacementHeifer) {
        r.TargetADG = r.DaysPregnant > 0 ? r.ADGTo1stCalving : r.ADGBeforeBreeding;
    } else if (r.Age >= r.Age3rdCalving) {
        r.TargetADG = 0;
        return;
    } else if (r.Age >= r.Age2ndCalving) {
        r.TargetADG = r.ADG2ndTo3rdCalving;
    } else if (r.Age >= r.Age1stCalving) {
        r.TargetADG = r.ADG1stTo2ndCalving;
    } else if (r.Age >= r.Age1stBreeding) {
        r.TargetADG = r.ADGTo1stCalving;
    }
    if (r.TargetADG < 0) r.TargetADG = 0;
}

}  // namespace

// The path of growth to maturity: ages and weights at first breeding and the first three calvings,
// and the gain of the full body that each stage asks for.
//
// Reads    BodyWeight, MatureWeight, ConceptusWeight [kg], Age, AgeAtFirstCalving, CalvingInterval
//          [months], AnimalType, DaysPregnant
// Writes   SBW [kg], the ages [months], weights [kg] and gains [kg/day] of the stages, TargetADG
// Form     55 % of mature weight at first breeding, 82, 92 and 100 % at the first three calvings
// Note     A stage that is over, and a calving interval of 0, leave their gains as they were. The
// gain
//          to first calving leaves the conceptus out of the present weight, that to breeding does
//          not.
void ComputeTargetWeights(SimulationRecord& r) {
    r.SBW = r.BodyWeight * 0.96;
    r.Weight3rdCalving = r.MatureWeight;
    r.Age1stCalving = r.AgeAtFirstCalving;
    r.Age2ndCalving = r.AgeAtFirstCalving + r.CalvingInterval;
    r.Age3rdCalving = r.Age2ndCalving + r.CalvingInterval;
    r.Age1stBreeding = r.AgeAtFirstCalving - 280 / kDaysPerMonth;
    r.Weight1stBreeding = r.MatureWeight * 0.55;
    r.Weight1stCalving = r.MatureWeight * 0.82;
    r.Weight2ndCalving = r.MatureWeight * 0.92;
    if (Single(r.Age1stBreeding - r.Age) > 0) {
        r.ADGBeforeBreeding =
            (r.Weight1stBreeding - r.BodyWeight) / ((r.Age1stBreeding - r.Age) * kDaysPerMonth);
    }
    if (Single(r.Age1stCalving - r.Age) > 0) {
        r.ADGTo1stCalving = (r.Weight1stCalving - (r.BodyWeight - r.ConceptusWeight)) /
                            ((r.Age1stCalving - r.Age) * kDaysPerMonth);
    }
    if (r.CalvingInterval > 0) {
        r.ADG1stTo2ndCalving =
            (r.Weight2ndCalving - r.Weight1stCalving) / (r.CalvingInterval * kDaysPerMonth);
        r.ADG2ndTo3rdCalving =
            (r.Weight3rdCalving - r.Weight2ndCalving) / (r.CalvingInterval * kDaysPerMonth);
    }
    if (r.AnimalType == kReplacementHeifer && r.Age < r.Age1stBreeding) {
        r.ADGTo1stBreeding =
            (r.Weight1stBreeding - r.BodyWeight) / ((r.Age1stBreeding - r.Age) * kDaysPerMonth);
        if (r.ADGTo1stBreeding < 0) r.ADGTo1stBreeding = 0;
    } else {
        r.ADGTo1stBreeding = 0;
    }
    SelectTargetADG(r);
}

}  // namespace tav
