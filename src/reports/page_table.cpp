// How a table flows down the pages.
#include "core/display_text.h"
#include "reports/page_furniture.h"
#include "reports/page_layout.h"
#include "reports/table_layout.h"

#include <algorithm>

namespace tav {
namespace {

constexpr Twips kGridThickness = 8;
constexpr Twips kTolerance = 0.01;
// Headings that take more of a page than this share are not repeated.
constexpr double kHeadingShare = 0.5;

std::string_view Trimmed(std::string_view text) {
    const std::size_t begin = text.find_first_not_of(' ');
    if (begin == std::string_view::npos) return {};
    return text.substr(begin, text.find_last_not_of(' ') + 1 - begin);
}

std::string RowText(const ReportTable& table, int row) {
    std::string text;
    if (table.IsEmptyRow(row)) return text;
    for (int column = 1; column <= table.Columns(); ++column) {
        if (column > 1) text += " | ";
        text += Trimmed(table.Text(row, column));
    }
    return text;
}

Twips HeightOfRows(const TableLayout& layout, int first, int count) {
    Twips height = 0;
    for (int i = first; i < first + count && i < static_cast<int>(layout.Rows().size()); ++i) {
        const TableRow& row = layout.Rows()[static_cast<std::size_t>(i)];
        height += layout.RowHeight(row, row.Lines);
    }
    return height;
}

}  // namespace

void PageLayout::StartTable() {
    RequireOpen();
    if (!line_.empty()) EndLine();
    table_.SetSize(0, 0);
    TableBorder = kNoBorder;
}

void PageLayout::EndTable() {
    RequireOpen();
    for (int row = 1; row <= table_.Rows(); ++row) {
        for (int column = 1; column <= table_.Columns(); ++column)
            table_.SetText(row, column, OneLine(DisplayText(table_.Text(row, column))));
    }
    TextStyle style = Style();
    style.Underline = false;
    const TableLayout layout(table_, style, TableBorder, BodyWidth());
    const Twips page = Bottom() - MarginTop;
    const int headings = std::min(table_.HeadingRows, table_.Rows());
    const bool repeated = HeightOfRows(layout, 0, headings) < page * kHeadingShare;
    const int repeatedRows = repeated ? headings : 0;

    // The headings don't stand alone at the foot of a page.
    const int together = table_.KeepWhole ? table_.Rows() : headings + 1;
    const Twips start = HeightOfRows(layout, 0, together);
    if (y_ > MarginTop && y_ + start > Bottom() + kTolerance && start <= page) BreakPage();
    gridTop_ = y_;
    for (int i = 0; i < table_.Rows(); ++i) {
        const TableRow& row = layout.Rows()[static_cast<std::size_t>(i)];
        const Twips height = layout.RowHeight(row, row.Lines);
        const Twips top = MarginTop + (i < headings ? 0 : HeightOfRows(layout, 0, repeatedRows));
        // A row that no page holds begins where it is.
        const bool isLong = height > Bottom() - top + kTolerance;
        const Twips needed = isLong ? layout.RowHeight(row, 1) : height;
        if (y_ + needed > Bottom() + kTolerance && y_ > top + kTolerance) {
            BreakTable(layout, i < headings ? 0 : repeatedRows);
        }
        Page().Text += RowText(table_, i + 1) + '\n';
        if (y_ + height > Bottom() + kTolerance) {
            PlaceLongRow(layout, row, repeatedRows);
        } else {
            PlaceRow(layout, row, 0, row.Lines);
        }
    }
    CloseGrid(layout);
}

void PageLayout::BreakTable(const TableLayout& layout, int headingRows) {
    CloseGrid(layout);
    BreakPage();
    gridTop_ = y_;
    PlaceHeadings(layout, headingRows);
}

void PageLayout::PlaceHeadings(const TableLayout& layout, int rows) {
    for (int i = 0; i < rows; ++i) {
        const TableRow& row = layout.Rows()[static_cast<std::size_t>(i)];
        PlaceRow(layout, row, 0, row.Lines);
    }
}

// A row that is higher than a page goes on, line by line, on the next ones.
void PageLayout::PlaceLongRow(const TableLayout& layout, const TableRow& row, int headingRows) {
    int line = 0;
    while (line < row.Lines) {
        int fitting = 1;
        while (line + fitting < row.Lines &&
               y_ + layout.RowHeight(row, fitting + 1) <= Bottom() + kTolerance) {
            ++fitting;
        }
        PlaceRow(layout, row, line, fitting);
        line += fitting;
        if (line < row.Lines) BreakTable(layout, headingRows);
    }
}

void PageLayout::PlaceRow(const TableLayout& layout, const TableRow& row, int firstLine,
                          int lines) {
    for (const auto& cell : row.Cells) {
        const int end = std::min(firstLine + lines, static_cast<int>(cell.size()));
        for (int i = firstLine; i < end; ++i) {
            const TableRow::Line& line = cell[static_cast<std::size_t>(i)];
            const Twips top = y_ + layout.RoomAbove() + (i - firstLine) * layout.LineHeight();
            Place(line.Text, MarginLeft + line.X, top);
        }
    }
    const auto rule = [&](Twips y) {
        Page().Rules.push_back(
            {MarginLeft, y, MarginLeft + layout.Edges().back(), y, kGridThickness});
    };
    const bool grid = TableBorder == kFullGrid;
    if (grid && y_ == gridTop_) rule(y_);
    y_ += layout.RowHeight(row, lines);
    if (grid) rule(y_);
}

void PageLayout::CloseGrid(const TableLayout& layout) {
    if (TableBorder != kFullGrid || y_ == gridTop_) return;
    for (const Twips edge : layout.Edges()) {
        const Twips x = MarginLeft + edge;
        Page().Rules.push_back({x, gridTop_, x, y_, kGridThickness});
    }
}

}  // namespace tav
