// What is wrong with a file that can't be read, in a line for people.
#pragma once

#include "core/line_file.h"

#include <string>

namespace tav {

// "a.tav, line 17: BodyWeight: "heavy" is not a number": which file, where, what was to be read and
// what stands there instead.
std::string LoadFaultText(const std::string& file, const FileFault& fault);

}  // namespace tav
