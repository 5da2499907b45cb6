#include "feeds/feed_grid.h"

#include "core/number_text.h"

namespace tav {
namespace {

constexpr std::string_view kMask = "0.00";
constexpr std::string_view kBioavailabilityMask = "0.0000";
constexpr std::string_view kCalfIfnLabel = "Int-Ref-Num";

void AddRow(std::vector<FeedGridRow>& rows, const FeedColumn& column) {
    const bool fine = column.Group == ColumnGroup::Bioavailability;
    rows.push_back({column.Label, column.Field, fine ? kBioavailabilityMask : kMask});
}

void AddNamed(std::vector<FeedGridRow>& rows, std::initializer_list<std::string_view> names) {
    for (const std::string_view name : names)
        AddRow(rows, *FindFeedColumn(name));
}

void AddGroups(std::vector<FeedGridRow>& rows, std::initializer_list<ColumnGroup> groups) {
    for (const ColumnGroup group : groups) {
        for (const FeedColumn* const column : ShownColumns(group))
            AddRow(rows, *column);
    }
}

std::vector<FeedGridRow> MakeOrdinaryRows() {
    std::vector<FeedGridRow> rows;
    AddNamed(rows, {kFeedNameColumn, kCategoryColumn, kIfnColumn});
    AddGroups(rows, {ColumnGroup::Composition, ColumnGroup::Minerals, ColumnGroup::Vitamins,
                     ColumnGroup::AminoAcids, ColumnGroup::Bioavailability});
    return rows;
}

std::vector<FeedGridRow> MakeCalfRows() {
    std::vector<FeedGridRow> rows;
    AddNamed(rows, {kFeedNameColumn, kCategoryColumn, kIfnColumn});
    rows.back().Label = kCalfIfnLabel;
    AddNamed(rows, {"cDM (%)", "cDE (Mcal/kg)", "cNEm (Mcal/kg)", "cGE (Mcal/kg)", "cME (Mcal/kg)",
                    "cNEg (Mcal/kg)", "cCP (%DM)", "cEE (%DM)", "cAsh (%DM)"});
    AddGroups(rows, {ColumnGroup::Minerals, ColumnGroup::Vitamins});
    return rows;
}

std::string CellOf(const std::string& value, std::string_view) { return value; }
std::string CellOf(bool value, std::string_view) { return std::string(BooleanText(value)); }
std::string CellOf(Single value, std::string_view mask) { return FormatNumber(value, mask); }

void Take(const std::string& cell, std::string& field) { field = cell; }
void Take(const std::string& cell, bool& field) { field = TextToBoolean(cell); }
void Take(const std::string& cell, Single& field) { field = TextToSingle(cell); }

}  // namespace

const std::vector<FeedGridRow>& FeedGridRows(bool calfFeed) {
    static const std::vector<FeedGridRow> ordinary = MakeOrdinaryRows();
    static const std::vector<FeedGridRow> calf = MakeCalfRows();
    return calfFeed ? calf : ordinary;
}

bool ShowsCalfFeed(const Grid& grid) {
    return grid.Rows() > kCategoryRow && IsCalfCategory(CellText(grid, kCategoryRow));
}

const std::string& CellText(const Grid& grid, int row) {
    return grid.TextMatrix(row, kValueColumn);
}

Number CellNumber(const Grid& grid, int row) { return TextToNumber(CellText(grid, row)); }

void SetCellNumber(Grid& grid, int row, Single value) {
    grid.SetTextMatrix(row, kValueColumn, FormatNumber(value, kMask));
}

void FillFeedGrid(Grid& grid, const FeedRecord& feed) {
    const auto& rows = FeedGridRows(IsCalfCategory(feed.Category));
    grid.SetRows(static_cast<int>(rows.size()));
    grid.SetCols(2);
    for (int i = 0; i < grid.Rows(); ++i) {
        const FeedGridRow& row = rows[static_cast<std::size_t>(i)];
        grid.SetTextMatrix(i, kLabelColumn, std::string(row.Label));
        std::visit(
            [&](auto member) {
                grid.SetTextMatrix(i, kValueColumn, CellOf(feed.*member, row.Mask));
            },
            row.Field);
    }
}

void RetrieveFeedGrid(const Grid& grid, FeedRecord& feed) {
    const auto& rows = FeedGridRows(ShowsCalfFeed(grid));
    for (int i = 0; i < grid.Rows(); ++i) {
        std::visit([&](auto member) { Take(CellText(grid, i), feed.*member); },
                   rows.at(static_cast<std::size_t>(i)).Field);
    }
}

}  // namespace tav
