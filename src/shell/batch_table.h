// The columns of the batch result file and the text of its lines, without line ends: fields
// separated by commas, texts in quotes, numbers bare and with a point.
#pragma once

#include "core/simulation_record.h"

#include <string>
#include <vector>

namespace tav {

inline constexpr std::string_view kBatchHeading = "TAV DAIRY BATCH FILE UTILITY OUTPUT";

// A text as a field: in quotes, a quote in it doubled, and guarded where a spreadsheet would take
// it for a formula.
std::string BatchText(std::string_view text);

// The line of titles, with a column for each of the feeds.
std::string BatchTitles(const std::vector<std::string>& feeds, bool metric);

// The line of one simulation, with as many quantities as it has feeds. path may have folders, which
// aren't written. Raises 6 when a converted value is beyond the range of 32 bits.
std::string BatchRow(const std::string& path, const SimulationRecord& record, bool metric);

}  // namespace tav
