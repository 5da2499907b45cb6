// Dates and times as they are written for people.
#pragma once

#include "core/program_state.h"

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

std::string DateText(DateTime time, DateForm form);

}  // namespace tav
