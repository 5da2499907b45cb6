// Dates and times as they are written for people.
#pragma once

#include "core/program_state.h"

#include <functional>
#include <string>

namespace tav {

enum class DateForm {
    General,     // 11/22/2026 3:27:05 PM
    LongDate,    // Sunday, November 22, 2026
    MediumDate,  // 22-Nov-26
    LongTime,    // 3:27:05 PM
    MediumTime,  // 03:27 PM
    ShortTime,   // 15:27
};

// The time in that form: by the writer that is set, else in the English of the United States, as
// the examples above show it.
std::string DateText(DateTime time, DateForm form);

// Writes dates as the user's locale has them, in UTF-8. A program that knows that locale sets one;
// an empty one takes it away.
using DateWriter = std::function<std::string(DateTime time, DateForm form)>;
void SetDateWriter(DateWriter writer);

}  // namespace tav
