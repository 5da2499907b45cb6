// The version of the program as it is shown.
#pragma once

#include <string_view>

namespace tav {

// Major, minor, revision.
inline constexpr std::string_view kVersion = "1.1.9";

}  // namespace tav
