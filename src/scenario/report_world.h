// The document that was assembled last, for a script to look at.
#pragma once

#include "scenario/expression.h"

#include <optional>
#include <string>

namespace tav {

// The value of "report.Text", "report.Header(2)" and so on; nothing for a page that there is not.
// Throws NotPossible for a name that is none.
std::optional<std::string> ReportValueOf(const Expression& path);

}  // namespace tav
