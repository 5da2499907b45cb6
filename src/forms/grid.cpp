#include "forms/grid.h"

#include "core/runtime_error.h"
#include "forms/form.h"

#include <algorithm>

namespace tav {

void Grid::SetRows(int rows) {
    if (rows < 0) tav::Raise(kInvalidProcedureCall);
    rows_ = rows;
    cells_.resize(static_cast<std::size_t>(rows_) * static_cast<std::size_t>(cols_));
}

void Grid::SetCols(int cols) {
    if (cols < 0) tav::Raise(kInvalidProcedureCall);
    std::vector<std::string> cells(static_cast<std::size_t>(rows_) *
                                   static_cast<std::size_t>(cols));
    for (int row = 0; row < rows_; ++row) {
        for (int col = 0; col < std::min(cols, cols_); ++col) {
            cells[static_cast<std::size_t>(row) * static_cast<std::size_t>(cols) +
                  static_cast<std::size_t>(col)] = std::move(cells_[At(row, col)]);
        }
    }
    cells_ = std::move(cells);
    cols_ = cols;
    colWidths_.resize(static_cast<std::size_t>(cols));
    colAlignments_.resize(static_cast<std::size_t>(cols), tav::Alignment::Left);
}

std::size_t Grid::At(int row, int col) const {
    if (row < 0 || row >= rows_ || col < 0 || col >= cols_) tav::Raise(kSubscriptOutOfRange);
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(cols_) +
           static_cast<std::size_t>(col);
}

const std::string& Grid::TextMatrix(int row, int col) const { return cells_[At(row, col)]; }

void Grid::SetTextMatrix(int row, int col, std::string text) {
    cells_[At(row, col)] = std::move(text);
}

Single Grid::ColWidth(int col) const { return colWidths_.at(static_cast<std::size_t>(col)); }

void Grid::SetColWidth(int col, Number width) {
    colWidths_.at(static_cast<std::size_t>(col)) = width;
}

Alignment Grid::ColAlignment(int col) const {
    return colAlignments_.at(static_cast<std::size_t>(col));
}

void Grid::SetColAlignment(int col, tav::Alignment alignment) {
    colAlignments_.at(static_cast<std::size_t>(col)) = alignment;
}

void Grid::SetCursor(int row, int col) {
    At(row, col);
    row_ = row;
    col_ = col;
    cursorInside_ = false;
}

void Grid::RequireCell(int row, int col) const {
    if (row < 0 || row >= rows_ || col < 0 || col >= cols_) {
        throw NotPossible(FullName() + " has no cell (" + std::to_string(row) + "," +
                          std::to_string(col) + ")");
    }
}

void Grid::UserMoveCursor(int row, int col) {
    RequireUsable();
    RequireCell(row, col);
    Form::DismissPopUps();
    TakeFocus();
    if (cursorInside_ && row == row_ && col == col_) return;
    UserLeaveCell();
    RequireCell(row, col);
    row_ = row;
    col_ = col;
    cursorInside_ = true;
}

bool Grid::UserOpenEdit() {
    RequireUsable();
    RequireCell(row_, col_);
    if (editing_) return true;
    if (!Editable || row_ < FixedRows || col_ < FixedCols) return false;
    const int row = row_;
    const int col = col_;
    bool cancel = false;
    Fire(BeforeEdit, row, col, cancel);
    if (cancel || row >= rows_ || col >= cols_) return false;
    row_ = row;
    col_ = col;
    EditText = TextMatrix(row, col);
    editing_ = true;
    return true;
}

bool Grid::UserCloseEdit(std::string_view text) {
    if (!editing_) throw NotPossible(FullName() + " has no open cell");
    const std::vector<std::string> entries = ComboEntries();
    if (!entries.empty() && std::find(entries.begin(), entries.end(), text) == entries.end()) {
        UserCancelEdit();
        return false;
    }
    const int row = row_;
    const int col = col_;
    EditText = text;
    bool cancel = false;
    Fire(ValidateEdit, row, col, cancel);
    if (cancel) return false;
    editing_ = false;
    if (row >= rows_ || col >= cols_) return false;
    SetTextMatrix(row, col, EditText);
    Fire(AfterEdit, row, col);
    return true;
}

void Grid::UserCancelEdit() { editing_ = false; }

void Grid::UserLeaveCell() {
    editing_ = false;
    if (!cursorInside_) return;
    cursorInside_ = false;
    if (row_ < rows_ && col_ < cols_) Fire(LeaveCell, row_, col_);
}

void Grid::UserEdit(int row, int col, std::string_view text) {
    UserMoveCursor(row, col);
    if (UserOpenEdit() && !UserCloseEdit(text)) UserCancelEdit();
    // The cell that is left is the edited one, wherever the events have put the cursor.
    cursorInside_ = false;
    if (row < rows_ && col < cols_) Fire(LeaveCell, row, col);
}

std::vector<std::string> Grid::ComboEntries() const {
    std::vector<std::string> entries;
    if (ComboList.empty()) return entries;
    for (std::size_t begin = 0; begin <= ComboList.size();) {
        const std::size_t end = std::min(ComboList.find('|', begin), ComboList.size());
        entries.push_back(ComboList.substr(begin, end - begin));
        begin = end + 1;
    }
    return entries;
}

}  // namespace tav
