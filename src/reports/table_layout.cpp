#include "reports/table_layout.h"

#include "reports/number_cell.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace tav {
namespace {

constexpr Twips kBesideCell = 80;     // within a grid, on each side
constexpr Twips kBehindCell = 240;    // between the columns of a table without one
constexpr Twips kAboveLine = 30;      // within a grid, also below
constexpr double kEmptyShare = 0.35;  // of a line, what an empty row is high
constexpr Twips kTolerance = 0.01;
constexpr Twips kLeastWidth = 400;  // of a column that takes what is left

std::size_t At(int column) { return static_cast<std::size_t>(column - 1); }

}  // namespace

Twips TableRowHeight(int lines, float size, int border) {
    const Twips room = border == kFullGrid ? 2 * kAboveLine : 0;
    return (lines == 0 ? kEmptyShare : lines) * LineHeightOf(size) + room;
}

Twips CellPadding(int border) { return border == kFullGrid ? 2 * kBesideCell : kBehindCell; }

TableLayout::TableLayout(const ReportTable& table, const TextStyle& style, int border, Twips width)
    : table_(table), style_(style), hasBorder_(border == kFullGrid) {
    SetEdges(width);
    std::vector<NumberPlace> places;
    for (int column = 1; column <= table.Columns(); ++column)
        places.push_back(PlaceOfNumbers(column));
    for (int row = 1; row <= table.Rows(); ++row)
        rows_.push_back(LayRow(row, places));
}

void TableLayout::SetEdges(Twips width) {
    Twips set = 0;
    int open = 0;
    for (int column = 1; column <= table_.Columns(); ++column) {
        set += table_.Width(column);
        open += table_.Width(column) > 0 ? 0 : 1;
    }
    const Twips share = open == 0 ? 0 : std::max((width - set) / open, kLeastWidth);
    const Twips total = set + share * open;
    const double scale = total > width ? width / total : 1;
    edges_.push_back(0);
    for (int column = 1; column <= table_.Columns(); ++column) {
        const Twips own = table_.Width(column);
        edges_.push_back(edges_.back() + (own > 0 ? own : share) * scale);
    }
}

Twips TableLayout::Inner(int column) const {
    const Twips outer = edges_[At(column) + 1] - edges_[At(column)];
    return std::max(outer - CellPadding(hasBorder_ ? kFullGrid : kNoBorder), 1.0);
}

TableLayout::NumberPlace TableLayout::PlaceOfNumbers(int column) const {
    if (table_.Align(column) != ColumnAlign::Decimal) return {};
    std::vector<std::string_view> cells;
    for (int row = table_.HeadingRows + 1; row <= table_.Rows(); ++row)
        cells.push_back(table_.Text(row, column));
    const NumberColumn numbers =
        MeasureNumbers(cells, [this](std::string_view text) { return TextWidthOf(text, style_); });
    const Twips point = numbers.PointIn(Inner(column));
    return {(hasBorder_ ? kBesideCell : 0) + point, numbers.Least() <= Inner(column) + kTolerance};
}

TableRow TableLayout::LayRow(int row, const std::vector<NumberPlace>& places) const {
    TableRow laid;
    laid.IsEmpty = table_.IsEmptyRow(row);
    for (int column = 1; column <= table_.Columns(); ++column) {
        laid.Cells.push_back(LayCell(row, column, places[At(column)]));
        laid.Lines = std::max(laid.Lines, static_cast<int>(laid.Cells.back().size()));
    }
    return laid;
}

std::vector<TableRow::Line> TableLayout::LayCell(int row, int column,
                                                 const NumberPlace& place) const {
    const bool heading = row <= table_.HeadingRows;
    TextStyle style = style_;
    style.Bold = style.Bold || heading;
    const std::string& text = table_.Text(row, column);
    if (text.empty()) return {};
    const std::size_t whole = WholePartOf(text);
    const bool asNumber = !heading && place.Fits && whole > 0;

    ColumnAlign align = table_.Align(column);
    if (heading && align != ColumnAlign::Left) align = ColumnAlign::Center;
    std::vector<TableRow::Line> lines;
    for (LaidLine& line : BreakLines({{text, style}}, Inner(column), style.Size)) {
        Twips x = StartOf(align, column, line);
        if (asNumber) {
            x = edges_[At(column)] + place.Point -
                TextWidthOf(std::string_view(text).substr(0, whole), style);
        }
        lines.push_back({x, std::move(line)});
    }
    return lines;
}

Twips TableLayout::StartOf(ColumnAlign align, int column, const LaidLine& line) const {
    const Twips start = edges_[At(column)] + (hasBorder_ ? kBesideCell : 0);
    const Twips rest = Inner(column) - line.Width;
    switch (align) {
        case ColumnAlign::Left: return start;
        case ColumnAlign::Right: return start + rest;
        case ColumnAlign::Center:
        case ColumnAlign::Decimal: return start + rest / 2;
    }
    return start;
}

Twips TableLayout::RowHeight(const TableRow& row, int lines) const {
    return TableRowHeight(row.IsEmpty ? 0 : lines, style_.Size, hasBorder_ ? kFullGrid : kNoBorder);
}

Twips TableLayout::RoomAbove() const { return hasBorder_ ? kAboveLine : 0; }

}  // namespace tav
