// The simulation data file (.tav): reading it into the record and writing the record to it.
//
// One item a line, ended by carriage return and line feed; a line's place gives its meaning:
//
//   "TAV Dairy Cattle Simulation Data File"
//   header left, centre, right; footer left, centre, right
//   comments: one empty line, or the text and "** End of Comments **" behind it
//   33 fields of the animal and its surroundings, then the number of feeds
//   79 lines for each feed
//   the dry matter intake
//   "TAV Dairy Cattle Simulation Data File - END"
//
// Quantities are metric, whatever the user's display. Text is kept byte for byte.
#pragma once

#include "core/line_file.h"
#include "core/platform.h"
#include "core/simulation_record.h"

#include <string>

namespace tav {

inline constexpr std::string_view kDefaultSimulationFile =
    "TAV Dairy Cattle Default Simulation Data File.tav";

// Replaces the whole record by the file's simulation. Whatever fails ends, after a message, in a
// new default simulation, so that the record is always complete; nothing is reported to the caller.
void LoadSimulationData(const std::string& fileName);

// Writes the record to the file, which is emptied at once. Raises what the file system raises; the
// record is not changed.
void SaveSimulationData(const std::string& fileName);

// The reading and writing alone. ReadSimulation throws a FileFault and leaves the record as far as
// reading got; a bad first or last line counts as a type mismatch. WriteSimulation closes the file.
void ReadSimulation(const std::string& fileName, SimulationRecord& record);
void ReadSimulation(LineReader& file, SimulationRecord& record);
void WriteSimulation(const std::string& fileName, const SimulationRecord& record);
void WriteSimulation(LineWriter& file, const SimulationRecord& record);

// Gives `to` what ReadSimulation has read into `from`, as if it had read it into `to`: everything
// else in `to` stands. What `from` holds afterwards is of no use but for reading another file into
// it.
void TakeSimulation(SimulationRecord& from, SimulationRecord& to);

// What LoadSimulationData does when reading has failed: shows the message, then makes a new
// simulation.
void RecoverFromLoadFailure(const RuntimeError& error);

// The message that goes with a failure to read. consequence ends it where it tells the error's
// number.
inline constexpr std::string_view kDefaultFileNotLoaded =
    "Cannot Load Default Data File.  Creating a new simulation instead.";
Message LoadFailureMessage(const RuntimeError& error,
                           std::string_view consequence = kDefaultFileNotLoaded);

}  // namespace tav
