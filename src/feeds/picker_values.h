// The picker's table of library values: a row of text for each feed that is marked.
#pragma once

#include "feeds/feed_library.h"

#include <string>
#include <vector>

namespace tav {

// The 70 headers in order.
std::vector<std::string> PickerHeaders();

// The cells of the current row under them, straight from the library: numbers with two decimals,
// "N/A" for what the feed's kind doesn't have.
std::vector<std::string> PickerCells(const Recordset& row);

}  // namespace tav
