// The desktop program from start to end.
#pragma once

namespace tav {

// Returns the exit status: 0, or 1 when a run-time error ended it.
int RunDesktop(int argc, char** argv);

// What stands before the first window: looks, feed library, printing, the help keys. Needs an
// application object.
void SetUpDesktop();

}  // namespace tav
