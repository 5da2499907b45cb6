// Plays a script on the program.
#pragma once

#include "scenario/world.h"

#include <iosfwd>
#include <string>

namespace tav {

enum class Outcome : int { Held = 0, Failed = 1, Unreadable = 2 };

// Plays one script: a run of the program from its start to its end. What print shows goes to out;
// each expectation that doesn't hold, and the statement that stopped the script, to errors as
// "NAME:LINE: ...". The expectations behind a stop count as failed.
Outcome PlayScript(const std::string& fileName, World& world, std::ostream& out,
                   std::ostream& errors);

// The same with the text of a script, which stands in the given folder.
Outcome PlayText(const std::string& text, const std::string& name, const std::string& folder,
                 World& world, std::ostream& out, std::ostream& errors);

}  // namespace tav
