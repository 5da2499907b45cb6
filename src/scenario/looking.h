// What a script sees: the value of an expression.
#pragma once

#include "scenario/expression.h"
#include "scenario/surroundings.h"
#include "scenario/world.h"

#include <optional>
#include <string>

namespace tav {

// The value as text in UTF-8. Nothing where there is nothing to see: a line behind the end of a
// file, a message when none has been shown. Throws NotPossible for what can't be looked at at all.
std::optional<std::string> Look(const Expression& path, const Surroundings& surroundings,
                                World& world);

}  // namespace tav
