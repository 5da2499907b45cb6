// The page of results for people.
#pragma once

#include "core/simulation_record.h"

#include <string>

namespace tav {

// The animal, its ration, the ten lines of the summary, supply against requirement with what is
// short marked, and the warning on degradable protein when it is due. Metric units, UTF-8. Without
// a ration it says so instead of showing results.
std::string ResultPage(const std::string& file, const SimulationRecord& record);

// The same without results, for a computation that was aborted.
std::string InputPage(const std::string& file, const SimulationRecord& record);

}  // namespace tav
