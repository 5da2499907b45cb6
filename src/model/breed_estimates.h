// Estimates that the user may take instead of an entry of their own.
#pragma once

#include "core/simulation_record.h"

#include <cstdint>
#include <string_view>

namespace tav {

// The mature weight of a breed [kg], 0 for a name that is none of the six breeds.
std::int16_t MatureWeightFromBreed(std::string_view breed);

// The expected birth weight of a calf [kg], 6.275 % of the record's MatureWeight.
Single CalfBirthWeightFromMW(const SimulationRecord& record);

}  // namespace tav
