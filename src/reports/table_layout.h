// A table measured: what stands on which line of a cell, and where in its row.
#pragma once

#include "reports/line_breaker.h"
#include "reports/report_table.h"

#include <vector>

namespace tav {

struct TableRow {
    struct Line {
        Twips X = 0;  // from the left edge of the table
        LaidLine Text;
    };
    std::vector<std::vector<Line>> Cells;
    int Lines = 1;  // of the highest cell
    bool IsEmpty = false;
};

class TableLayout {
  public:
    // style is the font of the body; a row with a border has some room around its cells. A table
    // that would be wider than the given width is narrowed.
    TableLayout(const ReportTable& table, const TextStyle& style, int border, Twips width);

    const std::vector<TableRow>& Rows() const { return rows_; }
    // The left edges of the columns and the right edge of the last one, from the left of the table.
    const std::vector<Twips>& Edges() const { return edges_; }

    // The height of a row of that many lines, and the room above its first line.
    Twips RowHeight(const TableRow& row, int lines) const;
    Twips RoomAbove() const;
    Twips LineHeight() const { return LineHeightOf(style_.Size); }

  private:
    // Where the numbers of a column have their decimal point, from the column's left edge.
    struct NumberPlace {
        Twips Point = 0;
        bool Fits = false;
    };

    void SetEdges(Twips width);
    NumberPlace PlaceOfNumbers(int column) const;
    TableRow LayRow(int row, const std::vector<NumberPlace>& places) const;
    std::vector<TableRow::Line> LayCell(int row, int column, const NumberPlace& place) const;
    Twips Inner(int column) const;
    Twips StartOf(ColumnAlign align, int column, const LaidLine& line) const;

    const ReportTable& table_;
    TextStyle style_;
    bool hasBorder_;
    std::vector<Twips> edges_;
    std::vector<TableRow> rows_;
};

// The height of a row of that many lines, or of an empty one where there are none.
Twips TableRowHeight(int lines, float size, int border);

// The room beside the text of a cell, on both sides together.
Twips CellPadding(int border);

}  // namespace tav
