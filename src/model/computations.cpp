#include "model/computations.h"

#include "model/steps.h"

namespace tav {
namespace {

void RunCalfComputations(SimulationRecord& r) {
    if (r.TotalDMI == 0) return;  // the intake that stands, before the calf model sums it up anew
    ComputeYoungCalf(r);
    ComputeMineralsAndVitamins(r);
}

}  // namespace

void RunComputations(SimulationRecord& r) {
    if (r.AnimalType == kYoungCalf) {
        RunCalfComputations(r);
        return;
    }
    ComputePregnancy(r);  // first: clamps DaysPregnant, which later steps read
    ComputeLactation(r);
    ComputeTargetWeights(r);
    if (r.TotalDMI == 0 || r.NumFeeds == 0) return;
    ComputeDietSupply(r);
    ComputeAminoAcidSupply(r);
    PredictDMI(r);
    ComputeMaintenance(r);
    ComputeGrowth(r);
    ComputeMineralsAndVitamins(r);
    ComputeBalances(r);
    ComputeReserves(r);
    ComputePerformance(r);
}

void RunComputations() { RunComputations(TheSimulation()); }

}  // namespace tav
