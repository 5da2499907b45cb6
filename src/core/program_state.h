// State that the program's parts share beside the simulation record.
#pragma once

#include "core/number.h"

#include <array>
#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace tav {

using DateTime = std::chrono::local_seconds;
using SummaryNames = std::array<std::string, 10>;

struct ProgramState {
#define FIELD(type, name, meaning) type name{};
#include "core/program_fields.def"
};

// The process-wide state: empty, zero and false at the start.
ProgramState& TheProgram();

// The value of a field by its name, as text: "True" and "False", numbers in their shortest form, a
// time as "2026-11-22 15:27:05". index is for SummaryResultsNames. Nothing for an unknown name or
// an index out of range.
std::optional<std::string> ProgramValue(std::string_view name, std::size_t index = 0);

// The keys of the four screens, as CurrentScreen and the toolbar have them.
inline constexpr std::array<std::string_view, 4> kScreenKeys = {"Inputs", "Feeds", "Ration",
                                                                "Reports"};

// Whether the text is one of the four.
bool IsScreen(std::string_view key);

}  // namespace tav
