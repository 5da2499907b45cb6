// The settings of a table: its size, the text of its cells, its columns.
#pragma once

#include "reports/times_metrics.h"

#include <string>
#include <vector>

namespace tav {

enum TableBorders : int { kNoBorder = 0, kFullGrid = 7 };

// How the cells of a column stand in it. Decimal brings the decimal points of its numbers under
// each other, whatever stands behind a number, and centres what is no number.
enum class ColumnAlign { Left, Center, Right, Decimal };

// Rows and columns count from 1. Each operation raises error 9 outside of the table.
class ReportTable {
  public:
    // Empties the table and gives it that many rows and columns.
    void SetSize(int rows, int columns);
    int Rows() const { return rows_; }
    int Columns() const { return static_cast<int>(columns_.size()); }

    void SetText(int row, int column, std::string text);
    const std::string& Text(int row, int column) const;

    // A column is as wide as its share of the page until it is set.
    void SetWidth(int column, Twips width);
    Twips Width(int column) const;
    void SetAlign(int column, ColumnAlign align);
    ColumnAlign Align(int column) const;

    // The rows at the top that are printed bold and again on each page that the table goes on.
    int HeadingRows = 0;

    // The table does not begin on a page that has no room for all of it, if a page has.
    bool KeepWhole = false;

    bool IsEmptyRow(int row) const;

  private:
    struct Column {
        Twips Width = 0;
        ColumnAlign Align = ColumnAlign::Left;
    };

    std::size_t CellIndex(int row, int column) const;
    std::size_t ColumnIndex(int column) const;

    int rows_ = 0;
    std::vector<Column> columns_;
    std::vector<std::string> cells_;
};

}  // namespace tav
