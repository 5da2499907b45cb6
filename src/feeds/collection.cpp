#include "feeds/collection.h"

#include "core/display_text.h"

#include <algorithm>

namespace tav {

FeedRecord& FeedAt(int index) {
    FeedList& feeds = TheSimulation().Feeds;
    if (index < 1 || static_cast<std::size_t>(index) > feeds.size()) Raise(kSubscriptOutOfRange);
    return feeds[static_cast<std::size_t>(index) - 1];
}

FeedRecord& AddFeed() {
    SimulationRecord& r = TheSimulation();
    r.NumFeeds = ToByte(r.NumFeeds + 1.0);
    if (r.NumFeeds == 1) r.Feeds.clear();
    r.Feeds.resize(r.NumFeeds);
    return r.Feeds.back();
}

void RemoveFeed(int index) {
    SimulationRecord& r = TheSimulation();
    FeedAt(index);
    r.Feeds.erase(r.Feeds.begin() + (index - 1));
    --r.NumFeeds;
    r.Feeds.resize(std::max<std::size_t>(r.NumFeeds, 1));
    Number total = 0;
    for (int i = 1; i <= r.NumFeeds; ++i)
        total += FeedAt(i).Qty;
    r.TotalDMI = total;
}

std::size_t LengthOf(std::string_view text) {
    const std::string shown = DisplayText(text);
    return static_cast<std::size_t>(std::count_if(shown.begin(), shown.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
    }));
}

}  // namespace tav
