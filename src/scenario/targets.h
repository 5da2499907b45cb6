// The forms and controls that a script names.
#pragma once

#include "forms/form.h"
#include "scenario/expression.h"

#include <string>

namespace tav {

// Whether a target names a form alone, and not a control.
bool IsFormName(const std::string& target);

// The loaded form of that name. Throws NotPossible when there is none, or it isn't loaded.
Form& FormAt(const std::string& name);

// The control of a loaded form: "frmParent.mnuExitProgram", "frmInputs.cboSumRes(3)".
Control& ControlAt(const std::string& target);
Control& ControlAt(const PathPart& form, const PathPart& control);

}  // namespace tav
