// The grid of a feed's data: its rows, and the way between them and the feed.
#pragma once

#include "feeds/feed_columns.h"
#include "forms/grid.h"

#include <string_view>
#include <vector>

namespace tav {

struct FeedGridRow {
    std::string_view Label;
    FeedField Field;
    std::string_view Mask;  // of a number
};

// The rows of the two layouts: 66 of an ordinary feed, 29 of a calf feed.
const std::vector<FeedGridRow>& FeedGridRows(bool calfFeed);

// The rows that rules address by number. Those up to kCategoryRow are the same in both layouts.
enum FeedRowNumber : int {
    kNameRow = 0,
    kCategoryRow = 1,
    // ordinary feed
    kClassRow = 3,
    kForageRow = 4,
    kPAFRow = 5,
    kTDNRow = 6,
    kDERow = 7,
    kNDFRow = 9,
    kADFRow = 10,
    kLigninRow = 11,
    kCPRow = 12,
    kNDFIPRow = 13,
    kADFIPRow = 14,
    kPrtARow = 15,
    kPrtBRow = 16,
    kPrtCRow = 17,
    kFatRow = 20,
    kAshRow = 21,
    kCPDigestRow = 22,
    kNDFDigestRow = 23,
    kFatDigestRow = 24,
    // calf feed
    kCalfDERow = 4,
    kCalfNEmRow = 5,
    kCalfGERow = 6,
    kCalfMERow = 7,
    kCalfNEgRow = 8,
    kCalfCPRow = 9,
    kCalfFatRow = 10,
    kCalfAshRow = 11,
};

inline constexpr int kLabelColumn = 0;
inline constexpr int kValueColumn = 1;

// Whether the grid shows a calf feed, by the category in it.
bool ShowsCalfFeed(const Grid& grid);

// The value cell of a row, as text and as a number (error 13 for a text that is none).
const std::string& CellText(const Grid& grid, int row);
Number CellNumber(const Grid& grid, int row);
// Shows a number in it with two decimals.
void SetCellNumber(Grid& grid, int row, Single value);

// Sets the grid's rows and columns and fills them from the feed.
void FillFeedGrid(Grid& grid, const FeedRecord& feed);

// Copies the grid's cells into the feed. Raises 13 for a number's cell that holds none, with the
// fields above it taken.
void RetrieveFeedGrid(const Grid& grid, FeedRecord& feed);

}  // namespace tav
