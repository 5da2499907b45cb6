// The steps of the model, in the order in which a computation runs them. Each reads and writes the
// record and keeps no state of its own; each is described where it is defined.
#pragma once

#include "core/simulation_record.h"

namespace tav {

void ComputePregnancy(SimulationRecord& record);
void ComputeLactation(SimulationRecord& record);
void ComputeTargetWeights(SimulationRecord& record);
void EvaluateFeedEnergy(SimulationRecord& record);
void ComputeDietSupply(SimulationRecord& record);
void ComputeAminoAcidSupply(SimulationRecord& record);
void PredictDMI(SimulationRecord& record);
void ComputeMaintenance(SimulationRecord& record);
void ComputeGrowth(SimulationRecord& record);
void ComputeMineralsAndVitamins(SimulationRecord& record);
void ComputeBalances(SimulationRecord& record);
void ComputeReserves(SimulationRecord& record);
void ComputePerformance(SimulationRecord& record);
void ComputeYoungCalf(SimulationRecord& record);

}  // namespace tav
