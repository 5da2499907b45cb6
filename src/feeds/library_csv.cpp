#include "feeds/library_csv.h"

#include "core/display_text.h"
#include "core/line_file.h"
#include "core/number_text.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>

namespace tav {
namespace {

constexpr std::size_t kMostBytes = std::size_t{4} << 20;  // a hundred times the delivered library
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

int ErrorOfOpening() {
    switch (errno) {
        case ENOENT: return kFileNotFound;
        case EACCES: return kPermissionDenied;
        default: return kPathFileAccessError;
    }
}

ColumnList ReadHeader(const std::vector<CsvCell>& row) {
    ColumnList columns;
    for (const CsvCell& cell : row) {
        const int place = static_cast<int>(columns.size()) + 1;
        const FeedColumn* const column = FindFeedColumn(cell.Text);
        if (column == nullptr) {
            throw CsvFault(cell.Line, place,
                           "the feed library has no column \"" + DisplayText(cell.Text) + "\"");
        }
        if (std::find(columns.begin(), columns.end(), column) != columns.end()) {
            throw CsvFault(cell.Line, place, "the column \"" + cell.Text + "\" stands here twice");
        }
        columns.push_back(column);
    }
    return columns;
}

FieldValue ReadValue(const CsvCell& cell, const FeedColumn& column, int place) {
    if (cell.Text.empty() && !(cell.Quoted && column.IsText())) return {};
    if (column.IsText()) return WithoutGuard(DisplayText(cell.Text));
    try {
        if (column.IsBoolean()) return TextToBoolean(cell.Text);
        return TextToNumber(cell.Text);
    } catch (const RuntimeError&) {
        throw CsvFault(
            cell.Line, place,
            std::string(column.Name) + ": \"" + DisplayText(cell.Text) +
                (column.IsBoolean() ? "\" is neither True nor False" : "\" is not a number"));
    }
}

// Spreadsheets write such rows behind the last one that was used.
bool IsBlank(const std::vector<CsvCell>& cells) {
    return std::all_of(cells.begin(), cells.end(),
                       [](const CsvCell& cell) { return cell.Text.empty(); });
}

LibraryRow ReadRowValues(const std::vector<CsvCell>& cells, const ColumnList& columns) {
    if (cells.size() != columns.size()) {
        // At the first cell that is missing, or too many.
        throw CsvFault(cells.front().Line,
                       static_cast<int>(std::min(cells.size(), columns.size())) + 1,
                       "the row has " + std::to_string(cells.size()) + " cells, not " +
                           std::to_string(columns.size()));
    }
    LibraryRow row;
    row.Line = cells.front().Line;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        row.Values.push_back(ReadValue(cells[i], *columns[i], static_cast<int>(i) + 1));
    }
    return row;
}

// The shortest text that reads back to the same number. A field of a feed has 32 bits; a library
// may hold more. Written out as far as that stays short.
std::string NumberCell(double number) {
    std::array<char, 24> buffer{};
    char* const last = buffer.data() + buffer.size();
    auto written = std::to_chars(buffer.data(), last, number, std::chars_format::fixed);
    if (written.ec != std::errc()) written = std::to_chars(buffer.data(), last, number);
    return {buffer.data(), written.ptr};
}

std::string Cell(const FieldValue& value) {
    if (const auto* const text = std::get_if<std::string>(&value)) {
        return text->empty() ? "\"\"" : CsvText(WithGuard(DisplayText(*text)));
    }
    if (const auto* const number = std::get_if<double>(&value)) return NumberCell(*number);
    return ShownText(value);
}

std::string Line(const std::vector<std::string>& cells) {
    std::string line;
    for (const std::string& cell : cells) {
        line += cell;
        line += &cell == &cells.back() ? '\n' : ',';
    }
    return line;
}

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

}  // namespace

std::string ReadCsvFile(const std::string& path) {
    const FileHandle file(std::fopen(path.c_str(), "rb"));
    if (!file) Raise(ErrorOfOpening());
    std::string text;
    std::array<char, 65536> buffer{};
    std::size_t count = 0;
    errno = 0;
    while ((count = std::fread(buffer.data(), 1, buffer.size(), file.get())) > 0) {
        text.append(buffer.data(), count);
        if (text.size() > kMostBytes) throw CsvFault(0, 0, "the file has more than 4 MiB");
    }
    if (std::ferror(file.get()) != 0)
        Raise(errno == EISDIR ? kPathFileAccessError : kDeviceIOError);
    return text;
}

LibraryRows ReadLibraryCsv(std::string_view text) {
    CsvReader reader(text);
    std::vector<CsvCell> cells;
    if (!reader.ReadRow(cells)) throw CsvFault(1, 0, "the file has no first line of column names");
    LibraryRows rows;
    rows.Columns = ReadHeader(cells);
    while (reader.ReadRow(cells)) {
        if (!IsBlank(cells)) rows.Rows.push_back(ReadRowValues(cells, rows.Columns));
    }
    return rows;
}

std::string LibraryCsv(Recordset& table) {
    const LibraryRows all = WithAllColumns({});
    std::vector<std::string> cells;
    for (const FeedColumn* const column : all.Columns)
        cells.push_back(CsvText(column->Name));
    std::string text = Line(cells);
    GoToFirst(table);
    for (; !table.AtEnd(); table.MoveNext()) {
        const LibraryRow row = CurrentRow(table, all.Columns);
        std::transform(row.Values.begin(), row.Values.end(), cells.begin(), Cell);
        text += Line(cells);
    }
    return IsAscii(text) ? text : std::string(kByteOrderMark) + text;
}

LibraryRow CurrentRow(const Recordset& table, const ColumnList& columns) {
    LibraryRow row;
    for (const FeedColumn* const column : columns)
        row.Values.push_back(table.Value(column->Name));
    return row;
}

LibraryRows WithAllColumns(const LibraryRows& rows) {
    LibraryRows all;
    for (const FeedColumn& column : FeedColumns())
        all.Columns.push_back(&column);
    for (const LibraryRow& row : rows.Rows) {
        LibraryRow& wide = all.Rows.emplace_back();
        wide.Line = row.Line;
        for (const FeedColumn* const column : all.Columns) {
            const FieldValue* const value = Find(row, rows.Columns, column->Name);
            wide.Values.push_back(value == nullptr ? FieldValue() : *value);
        }
    }
    return all;
}

const FieldValue* Find(const LibraryRow& row, const ColumnList& columns, std::string_view name) {
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (columns[i]->Name == name) return &row.Values[i];
    }
    return nullptr;
}

std::string NameOf(const LibraryRow& row, const ColumnList& columns) {
    const FieldValue* const name = Find(row, columns, kFeedNameColumn);
    return name == nullptr ? std::string() : ShownText(*name);
}

}  // namespace tav
