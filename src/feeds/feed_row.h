// A feed and its row in the library.
#pragma once

#include "core/simulation_record.h"
#include "feeds/feed_library.h"

namespace tav {

// Fills a feed whose fields are all zero or empty from the current row. A field that can't be read
// (a Null number, a text that is none) keeps what it held, and reading goes on with the next one.
// Values that the row lacks are supplied: bioavailabilities and digestibilities are 1, the
// digestibility of the fibre comes from its composition. A calf's starter or supplement comes out
// with three quarters of the protein that is stored, every time. This is meant.
//
// Qty is not touched: a feed fresh from the library is in the ration with nothing.
void ReadFeedRow(const Recordset& row, FeedRecord& feed);

// Makes the feed a user's feed and writes it into the row that AddNew or Edit has opened, then
// updates it. The columns of the other kind of feed (ordinary or calf) are left as they are.
void StoreFeedRow(Recordset& row, FeedRecord& feed);

}  // namespace tav
