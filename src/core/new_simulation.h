// A new simulation and the defaults of the four animal types.
#pragma once

#include "core/simulation_record.h"

#include <string_view>

namespace tav {

// Closes the screen that is open, fills the process-wide record with the values of a new simulation
// and shows the inputs screen. Results are not cleared, the feeds are merely no longer counted.
void NewSimulation();

// The values of a new simulation: a lactating cow without feeds.
void SetNewSimulationValues(SimulationRecord& record);

// Overwrites the animal, its production and its surroundings with the defaults of one of the four
// animal types, which are not those of a new simulation. Leaves AnimalType itself, and whatever the
// type has no default for, alone. Raises 5 for a text that is no animal type.
void SetAnimalTypeDefaults(SimulationRecord& record, std::string_view animalType);

}  // namespace tav
