// Text of the record as it is shown and handed to other programs.
#pragma once

#include <string>
#include <string_view>

namespace tav {

// The bytes of a file's text as UTF-8: what is valid UTF-8 stays, every other byte is taken as
// Windows-1252.
std::string DisplayText(std::string_view bytes);

}  // namespace tav
