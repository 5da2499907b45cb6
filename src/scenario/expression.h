// What a script looks at: a path of names, each with arguments or without.
//
//   frmInputs.cboSumRes(3).Text     record.Feeds(1).Name     library("Corn")."Ca (%DM)"
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tav {

struct PathPart {
    std::string Name;
    std::vector<std::string> Args;
};

using Expression = std::vector<PathPart>;

// Reads a path. Names and arguments may stand in quotes. Throws ScriptError.
Expression ReadExpression(std::string_view source);

// A whole number; nothing for any other text.
std::optional<int> WholeNumber(std::string_view text);

// A number as a script writes it, with a point; nothing for any other text.
std::optional<double> DecimalNumber(std::string_view text);

}  // namespace tav
