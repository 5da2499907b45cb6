// The texts that name the work behind the program and the terms of its use.
#pragma once

#include <string_view>

namespace tav {

inline constexpr std::string_view kProgramName = "TAV Dairy Cattle Program";
inline constexpr std::string_view kProgramSubject = "Feeding Standards for Milking Herds";

extern const std::string_view kSourceOfFigures;
extern const std::string_view kCommittee;
extern const std::string_view kCommitteeMembers;
extern const std::string_view kDisclaimer;

}  // namespace tav
