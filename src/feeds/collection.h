// The feeds of the simulation.
#pragma once

#include "core/simulation_record.h"

#include <cstddef>
#include <string_view>

namespace tav {

// A feed by its place, from 1. Raises 9 where there is none.
FeedRecord& FeedAt(int index);

// Adds an empty feed at the end and returns it. Raises 6 for more feeds than NumFeeds can count.
FeedRecord& AddFeed();

// Takes a feed away; TotalDMI becomes the sum of the quantities that remain. When the last one goes
// the list keeps one empty element. Raises 9 where there is no such feed.
void RemoveFeed(int index);

// How many characters a text of the record is shown with.
std::size_t LengthOf(std::string_view text);

}  // namespace tav
