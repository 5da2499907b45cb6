// Taking feeds from comma-separated text into the library.
#pragma once

#include "feeds/library_csv.h"

#include <string>
#include <vector>

namespace tav {

struct ImportResult {
    int Added = 0;
    int Replaced = 0;
    int Unchanged = 0;
    std::vector<LibraryRow> PassedOver;  // rows of default feeds, which are left as they are
};

// Adds the feeds that the library doesn't have, and replaces users' feeds of the same name; columns
// that the rows don't have keep their values. What is written is a user's feed. A row that says
// nothing new is unchanged, whatever it holds.
//
// Throws CsvFault, before anything is written, for a row without a name or with one that another
// row has, an unknown category, energy class or forage description, a control character in a text,
// or a value outside of its limits. All rows are one transaction.
ImportResult ImportFeeds(FeedLibrary& library, const LibraryRows& rows);

}  // namespace tav
