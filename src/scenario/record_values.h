// The simulation record by the names of its fields, as a script looks at it.
#pragma once

#include "core/simulation_record.h"
#include "scenario/expression.h"

#include <optional>
#include <string>

namespace tav {

// The value behind record.FIELD, record.FIELD(i) or record.ARRAY(i).FIELD; path begins with
// "record". Places count from 1, those of the header and footer texts from 0. Nothing beyond an
// array. Throws NotPossible for a field that there isn't.
std::optional<std::string> RecordValue(const SimulationRecord& record, const Expression& path);

}  // namespace tav
