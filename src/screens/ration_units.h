// The unit and basis in which the ration screen shows a quantity.
#pragma once

#include "core/simulation_record.h"

#include <string>
#include <string_view>

namespace tav {

// A feed by its place, from 1.
FeedRecord& RationFeed(int feed);

// "kg/day" or "lbs/day", as the user has chosen, and the factor from the record to it.
std::string_view RationUnit();
Single RationFactor();

// What of a feed as it is given is dry matter, 0 to 1; 1 on dry matter basis. A calf feed has a dry
// matter of its own.
Number DryMatterShare(const FeedRecord& feed);

// A quantity in the unit and basis on show, as kg of dry matter a day.
Number StoredQuantity(const FeedRecord& feed, double shown);

// The text of a feed's quantity in the unit and basis on show.
std::string ShownQuantity(const FeedRecord& feed);

// The mask of a quantity of that kind of feed.
std::string_view QuantityMask(std::string_view category);

}  // namespace tav
