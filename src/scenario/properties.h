// The properties of forms and controls by name, as a script looks at them.
#pragma once

#include "forms/form.h"
#include "scenario/expression.h"

#include <optional>
#include <string>
#include <vector>

namespace tav {

// The value of a property such as Text, List(2) or Cell(1,0), with Booleans as True and False and
// numbers in their shortest form. Nothing beyond a list or grid. Throws NotPossible for a property
// that the control hasn't got.
std::optional<std::string> PropertyOf(const Control& control, const PathPart& property);

// The same of a form: Caption, Visible, Width, Focus, WindowState and so on.
std::optional<std::string> PropertyOf(const Form& form, const PathPart& property);

}  // namespace tav
