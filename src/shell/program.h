// The program as a whole.
#pragma once

#include "core/platform.h"

namespace tav {

// Begins a run on the given platform, which must outlive it: an empty record and state, all forms
// made known, the main window in place, then Main. Returns when the first screen stands or the
// program has ended (Ended in the program's state). What the user does from then on goes through
// TheForms().Run.
void StartProgram(Platform& platform);

}  // namespace tav
