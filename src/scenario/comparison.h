// How a script compares what it sees with what it expects.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tav {

// Whether the value fits. Operators: == and != compare numbers as numbers if both sides are
// numbers, otherwise the texts; "is" compares the texts to the letter; ~ and !~ look for the
// expected text in the value; "near" takes a number and a tolerance. A value that isn't there fits
// nothing.
bool Fits(const std::optional<std::string>& value, std::string_view comparison,
          const std::vector<std::string>& expected);

// The text as a script would write it, in quotes and with its escapes.
std::string Quoted(std::string_view text);

}  // namespace tav
