// The results of a simulation as one line of JSON.
#pragma once

#include "core/line_file.h"
#include "core/platform.h"
#include "core/simulation_record.h"

#include <optional>
#include <string>

namespace tav {

// Why a file could not be loaded: the failure and the message that the screen would show.
struct LoadError {
    FileFault Fault;
    Message Shown;
};

// What became of one file: it could not be loaded, or it was computed, up to a fault if there is
// one.
struct Outcome {
    std::string File;
    std::optional<LoadError> Error;
    std::optional<RuntimeError> Fault;
};

// {"file": ..., "error": ..., "fault": ..., "record": ...} and a line feed. A 32-bit float is
// written as the shortest decimal that reads back to it. The record is null when there is an error.
std::string JsonLine(const Outcome& outcome, const SimulationRecord& record);

}  // namespace tav
