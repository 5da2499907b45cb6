// The feed library as comma-separated text: the library's own column names in the first line, then
// a row a feed. An empty cell is Null, an empty text stands as "".
#pragma once

#include "feeds/csv_text.h"
#include "feeds/feed_columns.h"
#include "feeds/feed_library.h"

#include <string>
#include <string_view>
#include <vector>

namespace tav {

using ColumnList = std::vector<const FeedColumn*>;

struct LibraryRow {
    int Line = 0;  // of the file that it was read from
    std::vector<FieldValue> Values;
};

// Rows, and the columns that they have values of.
struct LibraryRows {
    ColumnList Columns;
    std::vector<LibraryRow> Rows;
};

// The whole of a file of at most 4 MiB. Raises 53, 70, 75 or 57 as any reader does, and throws
// CsvFault for a larger one.
std::string ReadCsvFile(const std::string& path);

// Reads the rows. Throws CsvFault for a column that the library doesn't have or that stands there
// twice, a row with more or fewer cells than the first line, a number or Boolean that is none.
// Columns may stand in any order, and only some
// of them. Rows of empty cells are passed over.
LibraryRows ReadLibraryCsv(std::string_view text);

// All rows of a table, from the first one, as such a text. It begins with a byte order mark if a
// text in it is not ASCII, without which spreadsheets would take it for something else.
std::string LibraryCsv(Recordset& table);

// The values of the current row in those columns.
LibraryRow CurrentRow(const Recordset& table, const ColumnList& columns);

// The same rows in all of the library's columns, those that they lack being Null.
LibraryRows WithAllColumns(const LibraryRows& rows);

// A value of a row by its column, null where the row has no such column.
const FieldValue* Find(const LibraryRow& row, const ColumnList& columns, std::string_view name);

// The feed's name, empty for a Null.
std::string NameOf(const LibraryRow& row, const ColumnList& columns);

}  // namespace tav
