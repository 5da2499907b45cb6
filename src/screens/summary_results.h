// The lines of the summary panel: one result of the model as a ready-made text.
#pragma once

#include "core/simulation_record.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace tav {

inline constexpr std::size_t kSummaryLines = 10;

using SummaryChoices = std::array<std::string_view, kSummaryLines>;

// The ten choices that the panel shows for an animal type unless the user has made their own; all
// "Blank" for a text that is no animal type.
SummaryChoices DefaultSummaryChoices(std::string_view animalType);

// All 32 choices in the order in which they are offered to the user.
std::vector<std::string_view> SummaryChoiceNames();

// Makes the user's choices those of the animal type at hand. A text that is no animal type leaves
// them as they are.
void TakeDefaultSummaryChoices();

// What stands in the fifth and sixth line of the panel instead of any result, where there is no
// ration.
inline constexpr std::array<std::string_view, 2> kNoRationTexts = {"No Ration Specified",
                                                                   "Cannot Run Computations"};

// The line of a choice such as "MP Balance", in metric or English units. A choice that does not fit
// the animal type gives an "N/A" text, "Blank" and any unknown text an empty line. Leaves the unit
// of weight a day as the shared working unit.
std::string SummaryResultText(const SimulationRecord& record, std::string_view choice, bool metric);

// True when degraded protein falls so far short that energy estimates may be wrong: more than 20
// g/day, and never for a young calf.
bool DegradedProteinIsLimiting(const SimulationRecord& record);

}  // namespace tav
