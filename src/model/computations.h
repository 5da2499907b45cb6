// The sequence of the model's steps.
#pragma once

#include "core/simulation_record.h"

namespace tav {

// Brings every result of the record up to date with its inputs and feeds. A young calf takes a
// route of its own; every other text in AnimalType takes the main one. Without a ration (TotalDMI
// or NumFeeds 0) only pregnancy, lactation and target weights are computed and all else stands as
// it was. A few steps read values of the previous run, so running twice may change a result.
//
// Raises 5, 6, 9 or 11 at the first fault that no equation guards against and leaves the record as
// far as it got.
void RunComputations(SimulationRecord& record);

// The same on the process-wide record.
void RunComputations();

}  // namespace tav
