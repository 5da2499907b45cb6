// The program settings file: what belongs to the user and not to a simulation.
//
// Twenty lines, each ended by carriage return and line feed; a line's place gives its meaning:
//
//   1        "TAV Dairy Cattle Program Settings File"
//   2 - 5    AutoSaveDefault, PeriodicAutoSave, UseMetric, DryMatterBasis
//   6 - 15   SummaryResultsNames
//   16 - 19  DefaultSummaryResults, DefaultZoom, CurrentScreen, UseMilkTrueProtein
//   20       "TAV Dairy Cattle Program Settings File - END"
//
// It is read once, when the program starts, and written once, when it ends in good order.
#pragma once

#include <string_view>

namespace tav {

inline constexpr std::string_view kProgramSettingsFile =
    "TAV Dairy Cattle Program Settings Data File";

// Reads the file in AppPath into the shared settings. Whatever fails ends, after a message, in the
// defaults; nothing is reported to the caller. DefaultZoom may be empty afterwards.
void LoadProgramSettings();

// Writes the file in AppPath, which is emptied at once. Raises what the file system raises.
void SaveProgramSettings();

// Sets the defaults. There is none for DefaultZoom, which keeps what it holds.
void CreateDefaultProgramSettings();

}  // namespace tav
