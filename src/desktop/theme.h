// The looks of the program, in light and dark.
#pragma once

#include <QPalette>

namespace tav {

// Style, colours and letters for the whole program. Dark where the user's desktop is dark. Needs an
// application object.
void ApplyTheme();

// The colours of a note on what was refused.
QPalette RefusalPalette();

}  // namespace tav
