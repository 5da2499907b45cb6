// The columns of the feed library, and what each of them is in a feed.
//
// The table is the only list of them: the reader and the writer of a row, the CSV form of the
// library, the picker's table of values and the grid of a feed's data are all taken from it.
#pragma once

#include "core/simulation_record.h"

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tav {

// A field of a feed: a text, a Boolean or a number.
using FeedField = std::variant<std::string FeedRecord::*, bool FeedRecord::*, Single FeedRecord::*>;

// The groups in which columns are shown together.
enum class ColumnGroup {
    Key,          // of every feed
    Composition,  // of an ordinary feed
    Minerals,     // of every feed, down to the vitamins
    Bioavailability,
    Vitamins,
    AminoAcids,  // of an ordinary feed
    Calf         // of a calf feed
};

enum ColumnTraits : unsigned {
    kPlainColumn = 0,
    kHidden = 1,        // on no screen
    kNotRead = 2,       // written, and never read into a feed
    kZeroMeansOne = 4,  // a stored 0 stands for a missing value and is read as 1
    kComputed = 8,      // set by the program's energy equations, so not bound to an entry's limits
};

struct FeedColumn {
    std::string_view Name;  // in the library
    ColumnGroup Group;
    FeedField Field;          // what it is read into
    FeedField WrittenFrom;    // and written from: another one for the ash of a calf feed
    std::string_view Label;   // of its row in the grid of a feed's data; decides its limits
    std::string_view Header;  // of the picker's column that shows it
    unsigned Traits;

    bool IsText() const { return std::holds_alternative<std::string FeedRecord::*>(Field); }
    bool IsBoolean() const { return std::holds_alternative<bool FeedRecord::*>(Field); }
    bool IsNumber() const { return std::holds_alternative<Single FeedRecord::*>(Field); }
    bool Has(ColumnTraits trait) const { return (Traits & trait) != 0; }

    // Whether a feed of that kind reads and writes the column.
    bool BelongsTo(bool calfFeed) const;
};

// All columns in the order in which they stand in the library.
const std::vector<FeedColumn>& FeedColumns();

// The column of that name, null if there is none.
const FeedColumn* FindFeedColumn(std::string_view name);

// The columns that are shown of a group, in order.
std::vector<const FeedColumn*> ShownColumns(ColumnGroup group);

// The columns that everything is found by.
inline constexpr std::string_view kFeedNameColumn = "Feed Name";
inline constexpr std::string_view kIfnColumn = "IFN";
inline constexpr std::string_view kCategoryColumn = "Category";
inline constexpr std::string_view kReadOnlyColumn = "Read Only";

// What stands for a feed number that isn't known.
inline constexpr std::string_view kNoIfn = "None";

}  // namespace tav
