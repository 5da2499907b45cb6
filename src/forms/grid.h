// A grid of text cells with its edit events.
#pragma once

#include "forms/control.h"

#include <string>
#include <string_view>
#include <vector>

namespace tav {

class Grid : public Control {
  public:
    using Control::Control;
    ControlKind Kind() const override { return ControlKind::Grid; }

    bool Editable = true;
    int FixedRows = 0;  // rows and columns at the top and left that take no cursor
    int FixedCols = 0;

    // Setting the counts keeps the cells that remain and adds empty ones. Rows and columns count
    // from 0. Error 5 for a count below 0.
    int Rows() const { return rows_; }
    int Cols() const { return cols_; }
    void SetRows(int rows);
    void SetCols(int cols);

    // The text of a cell. Error 9 beyond the grid. Setting it raises no event.
    const std::string& TextMatrix(int row, int col) const;
    void SetTextMatrix(int row, int col, std::string text);

    // Column widths in layout units, 0 for one that fits its contents; row height likewise.
    Single ColWidth(int col) const;
    void SetColWidth(int col, Number width);
    Single RowHeight = 255;
    tav::Alignment ColAlignment(int col) const;
    void SetColAlignment(int col, tav::Alignment alignment);

    // The cursor. Setting it raises no event.
    int Row() const { return row_; }
    int Col() const { return col_; }
    void SetCursor(int row, int col);

    // Set in BeforeEdit: entries separated by bars make the cell a drop-down list, an empty text a
    // free cell.
    std::string ComboList;
    // What the user has typed, while an edit is open.
    std::string EditText;

    // A cell is about to open, with cancel to keep it closed; an edit is about to close, with
    // cancel to keep the old text; an edit has closed with a new text in the cell; the cursor
    // leaves a cell.
    std::function<void(int row, int col, bool& cancel)> BeforeEdit;
    std::function<void(int row, int col, bool& cancel)> ValidateEdit;
    std::function<void(int row, int col)> AfterEdit;
    std::function<void(int row, int col)> LeaveCell;

    // Moves the cursor. Raises LeaveCell if the user's cursor stood in another cell.
    void UserMoveCursor(int row, int col);
    // Opens the cell under the cursor. False if BeforeEdit refused.
    bool UserOpenEdit();
    // Closes the edit with that text. False if it was refused, and then the cell stays open until
    // it is closed with another text or UserCancelEdit. A drop-down takes its own entries only; any
    // other text leaves the cell as it was.
    bool UserCloseEdit(std::string_view text);
    void UserCancelEdit();
    // All of it: the cursor to the cell, open, close, and the cursor out of the grid. A refused
    // edit leaves the old text.
    void UserEdit(int row, int col, std::string_view text);
    // The cursor leaves the cell that it stands in.
    void UserLeaveCell();

    bool IsEditing() const { return editing_; }
    // The entries of the drop-down list of the open cell, empty for a free cell.
    std::vector<std::string> ComboEntries() const;

    void FinishEntry() override { UserLeaveCell(); }

  private:
    std::size_t At(int row, int col) const;
    void RequireCell(int row, int col) const;

    int rows_ = 0;
    int cols_ = 0;
    std::vector<std::string> cells_;
    std::vector<Single> colWidths_;
    std::vector<tav::Alignment> colAlignments_;
    int row_ = 0;
    int col_ = 0;
    bool cursorInside_ = false;  // the user has moved it there and not left it
    bool editing_ = false;
};

}  // namespace tav
