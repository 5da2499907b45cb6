// Standard output and standard error of the headless program.
#pragma once

#include <string_view>

namespace tav {

// Thrown when whoever read the output has gone away, so that the program can end quietly.
struct OutputClosed {};

// Writes to standard output. Throws OutputClosed for a closed pipe, std::runtime_error when the
// output can't be written, such as on a full disk.
void WriteOutput(std::string_view text);
void FlushOutput();

// Writes "tav: TEXT" and a line end to standard error.
void WriteMessage(std::string_view text);

}  // namespace tav
