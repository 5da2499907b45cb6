#include "feeds/picker_values.h"

#include "core/number_text.h"
#include "core/simulation_record.h"
#include "feeds/feed_columns.h"

#include <algorithm>

namespace tav {
namespace {

constexpr std::string_view kNotApplicable = "N/A";
constexpr std::string_view kMask = "0.00";
constexpr std::size_t kOnesAtEnd = 2;  // columns at the end whose missing value is shown as 1

// A column of the table with the library's columns that fill it; null: not applicable.
struct PickerColumn {
    std::string_view Header;
    const FeedColumn* Ordinary;
    const FeedColumn* Calf;
};

// The calf column of a header, null if there is none.
const FeedColumn* CalfColumn(std::string_view header) {
    for (const FeedColumn* const column : ShownColumns(ColumnGroup::Calf)) {
        if (column->Header == header) return column;
    }
    return nullptr;
}

std::vector<PickerColumn> MakeColumns() {
    std::vector<PickerColumn> columns;
    for (const ColumnGroup group :
         {ColumnGroup::Key, ColumnGroup::Composition, ColumnGroup::Minerals, ColumnGroup::Vitamins,
          ColumnGroup::Bioavailability, ColumnGroup::AminoAcids}) {
        const bool shared = group == ColumnGroup::Key || group == ColumnGroup::Minerals ||
                            group == ColumnGroup::Vitamins;
        for (const FeedColumn* const column : ShownColumns(group)) {
            columns.push_back(
                {column->Header, column, shared ? column : CalfColumn(column->Header)});
        }
    }
    for (const FeedColumn* const column : ShownColumns(ColumnGroup::Calf)) {
        const bool placed =
            std::any_of(columns.begin(), columns.end(),
                        [&](const PickerColumn& other) { return other.Calf == column; });
        if (!placed) columns.push_back({column->Header, nullptr, column});
    }
    return columns;
}

const std::vector<PickerColumn>& Columns() {
    static const std::vector<PickerColumn> columns = MakeColumns();
    return columns;
}

std::string TextOf(const Recordset& row, const FeedColumn* column) {
    if (column == nullptr) return std::string(kNotApplicable);
    const FieldValue value = row.Value(column->Name);
    if (column->Name == kIfnColumn && IsNull(value)) return std::string(kNoIfn);
    return ShownText(value);
}

}  // namespace

std::vector<std::string> PickerHeaders() {
    std::vector<std::string> headers;
    for (const PickerColumn& column : Columns())
        headers.emplace_back(column.Header);
    return headers;
}

// A name that is a number is shown as one, too. This is meant.
std::vector<std::string> PickerCells(const Recordset& row) {
    const bool calf = IsCalfCategory(ShownText(row.Value(kCategoryColumn)));
    std::vector<std::string> cells;
    for (const PickerColumn& column : Columns()) {
        std::string text = TextOf(row, calf ? column.Calf : column.Ordinary);
        if (text.empty()) {
            text = cells.size() + kOnesAtEnd >= Columns().size() ? "1.00" : "0.00";
        } else if (IsNumeric(text)) {
            text = FormatNumber(TextToNumber(text), kMask);
        }
        cells.push_back(std::move(text));
    }
    return cells;
}

}  // namespace tav
