#include "reports/report_table.h"

#include "core/runtime_error.h"

namespace tav {

void ReportTable::SetSize(int rows, int columns) {
    rows_ = rows;
    columns_.assign(static_cast<std::size_t>(columns), {});
    cells_.assign(static_cast<std::size_t>(rows) * columns_.size(), {});
    HeadingRows = 0;
    KeepWhole = false;
}

std::size_t ReportTable::ColumnIndex(int column) const {
    if (column < 1 || column > Columns()) Raise(kSubscriptOutOfRange);
    return static_cast<std::size_t>(column - 1);
}

std::size_t ReportTable::CellIndex(int row, int column) const {
    if (row < 1 || row > rows_) Raise(kSubscriptOutOfRange);
    return static_cast<std::size_t>(row - 1) * columns_.size() + ColumnIndex(column);
}

void ReportTable::SetText(int row, int column, std::string text) {
    cells_[CellIndex(row, column)] = std::move(text);
}

const std::string& ReportTable::Text(int row, int column) const {
    return cells_[CellIndex(row, column)];
}

void ReportTable::SetWidth(int column, Twips width) { columns_[ColumnIndex(column)].Width = width; }
Twips ReportTable::Width(int column) const { return columns_[ColumnIndex(column)].Width; }

void ReportTable::SetAlign(int column, ColumnAlign align) {
    columns_[ColumnIndex(column)].Align = align;
}
ColumnAlign ReportTable::Align(int column) const { return columns_[ColumnIndex(column)].Align; }

bool ReportTable::IsEmptyRow(int row) const {
    for (int column = 1; column <= Columns(); ++column) {
        if (!Text(row, column).empty()) return false;
    }
    return true;
}

}  // namespace tav
