// The system's requests to end: from a terminal, a closing session, a shutdown.
#pragma once

namespace tav {

// From now on such a request ends the program between two events, so that a file that is just being
// written is written to its end. The exit status is that of the signal, 128 and its number. Nothing
// is saved and nothing is asked. Needs an application object.
void EndOnSignals();

}  // namespace tav
