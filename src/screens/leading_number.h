// Numbers that stand in a control with their unit or percent sign behind them.
#pragma once

#include <string>
#include <string_view>

namespace tav {

// The part of a display text that is the number: "650 kg" gives "650", "75%" gives "75", "1.2.3"
// gives "1.2"; a text such as "N/A" is given back as it is, without the blanks around it. Raises 6
// for more than 255 characters.
std::string LeadingNumberText(std::string_view text);

// That part as a number. Raises 13 where it is none.
double LeadingNumber(std::string_view text);

}  // namespace tav
