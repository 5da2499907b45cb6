// What the fields of header and footer stand for.
#pragma once

#include "core/program_state.h"
#include "core/simulation_record.h"

#include <string>
#include <string_view>

namespace tav {

// The name of the simulation's file without its last four characters where ".tav" stands anywhere
// in it.
std::string FileStem(std::string_view fileName);

// The text of a field at that time. A field that is no name of a text is the text; so is the choice
// of the settings screen that shows an example behind its name, which is meant.
std::string FieldText(std::string_view field, DateTime now);

// Left, centre and right, joined with bars.
std::string JoinedFields(const Texts3& fields, DateTime now);

}  // namespace tav
