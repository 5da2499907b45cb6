// The commands of the File menu that deal with the simulation as a whole.
//
// SimulationFileName is the full default file name, with its extension, as long as the simulation
// counts as the default one; after a load or a Save As it is a file's name without its last four
// characters. Nothing remembers whether the record was changed.
#pragma once

#include <string>

namespace tav {

// Asks whether to save first, saves under ".rls" by a dialog, or under a run-together name without
// one, and makes a new simulation. A cancel, or a failure to save, leaves everything as it is.
void NewSimulationCommand();

// Lets the user choose a file and loads it. StartDir stays, so a later Save does not go to where
// the file came from. Failures of the reader end in a new simulation under the chosen name.
void LoadSimulationCommand();

// Saves without dialog or message. Raises what the file system raises: there is no handler.
void SaveSimulationCommand();

// Lets the user choose a name and saves under it, ".tav" appended.
void SaveSimulationAsCommand();

// Writes the record as the default simulation, without storing what stands on a screen. Raises what
// the file system raises.
void SaveDefaultSimulation();

// Starts the count of the periodic save.
void StartPeriodicSave();

// The tick of the periodic save: runs the Save command once more than 518.4 seconds have passed.
void AutoSaveTick();

// The title of the main window with the name of a simulation.
std::string TitleOf(const std::string& simulation);

}  // namespace tav
