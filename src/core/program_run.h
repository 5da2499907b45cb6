// The order of things from the start of the program to its end.
#pragma once

namespace tav {

// The entry: warns of a small screen, fixes the paths and shows the terms of use. From then on the
// program lives from events. Sets Ended when the user doesn't want to go on.
void Main();

// What follows when the terms are accepted: settings, default simulation, main window.
void InitializeProgram();

// The question whether to quit. On Yes saves what is to be saved and returns true. On No returns
// false, after bringing the current screen back. Raises what SaveOnExit raises.
bool ConfirmExit();

// Stores what stands on the open screen, saves the settings and, by the user's choice, the
// simulation as the default one. Returns true. There is no handler: raises what the file system
// raises, after what was already written.
bool SaveOnExit();

}  // namespace tav
