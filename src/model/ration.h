// The feeds of the ration at hand and their kinds, as the model's steps see them.
#pragma once

#include "core/simulation_record.h"

#include <span>

namespace tav {

// The feeds in use: the first NumFeeds of the record's list.
inline std::span<FeedRecord> FeedsInUse(SimulationRecord& r) {
    return std::span(r.Feeds).first(r.NumFeeds);
}
inline std::span<const FeedRecord> FeedsInUse(const SimulationRecord& r) {
    return std::span(r.Feeds).first(r.NumFeeds);
}

// The energy equations' test of a calf feed: a category that holds these words. The young calf
// model has a stricter one of its own.
inline bool IsCalfFeed(const FeedRecord& feed) {
    return feed.Category.find("Calf Feed") != std::string::npos;
}

// One 64-bit sum of a term over feeds.
template <class Feeds, class Term>
Number SumOver(const Feeds& feeds, Term&& term) {
    Number sum;
    for (const auto& feed : feeds)
        sum += term(feed);
    return sum;
}

}  // namespace tav
