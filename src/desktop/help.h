// The help that the program asks for.
#pragma once

#include "core/platform.h"

namespace tav {

// Opens what the dialog says: contents, the page of a control, or the short text on a control
// beside the mouse. A help file that is missing or damaged is told to the user.
void OpenHelp(const CommonDialog& dialog);

}  // namespace tav
