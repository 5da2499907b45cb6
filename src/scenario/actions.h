// What a user's hands do, by the statements of a script.
#pragma once

#include <string>
#include <vector>

namespace tav {

// Carries out a statement such as click, type or edit on the forms that are loaded. Throws
// NotPossible, with the name of the control, when a user couldn't do it. False if the name is none
// of these statements.
bool Act(const std::string& statement, const std::vector<std::string>& args);

}  // namespace tav
