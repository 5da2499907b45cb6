#include "forms/sample_form.h"

namespace tav {
namespace {

class GridForm : public SampleForm {
  public:
    GridForm(const std::string& name, EventLog& log) : SampleForm(name, log) {
        grdRation.SetRows(4);
        grdRation.SetCols(3);
        grdRation.FixedRows = 1;
        grdRation.SetTextMatrix(2, 1, "12.000");
        grdRation.SetTextMatrix(2, 2, "40.00 %");
        grdRation.BeforeEdit = [this](int row, int col, bool& cancel) {
            Note("before", row, col);
            cancel = row == 3;
        };
        grdRation.ValidateEdit = [this](int row, int col, bool& cancel) {
            Note("validate " + grdRation.EditText, row, col);
            cancel = grdRation.EditText == "bad";
        };
        grdRation.AfterEdit = [this](int row, int col) {
            Note("after " + grdRation.TextMatrix(row, col), row, col);
        };
        grdRation.LeaveCell = [this](int row, int col) { Note("leave", row, col); };
    }

    void Note(const std::string& what, int row, int col) {
        Events.push_back(what + " " + std::to_string(row) + "," + std::to_string(col));
    }

    Grid grdRation{*this, "grdRation"};
};

class GridTest : public FormsTest {
  protected:
    GridForm& Form = Open<GridForm>();
    Grid& TheGrid = Form.grdRation;
};

TEST_F(GridTest, EditRaisesItsEventsInOrder) {
    TheGrid.UserEdit(2, 1, "15");
    EXPECT_EQ(Events, (EventLog{"before 2,1", "validate 15 2,1", "after 15 2,1", "leave 2,1"}));
    EXPECT_EQ(TheGrid.TextMatrix(2, 1), "15");
}

TEST_F(GridTest, RefusedEditKeepsTheOldTextAndTheCellIsStillLeft) {
    TheGrid.UserEdit(2, 1, "bad");
    EXPECT_EQ(Events, (EventLog{"before 2,1", "validate bad 2,1", "leave 2,1"}));
    EXPECT_EQ(TheGrid.TextMatrix(2, 1), "12.000");
    EXPECT_FALSE(TheGrid.IsEditing());
}

TEST_F(GridTest, RefusedOpeningAsksNothingMore) {
    TheGrid.UserEdit(3, 1, "15");
    EXPECT_EQ(Events, (EventLog{"before 3,1", "leave 3,1"}));
}

TEST_F(GridTest, FixedCellsDontOpenAndOthersDontExist) {
    TheGrid.UserEdit(0, 1, "x");
    EXPECT_EQ(TheGrid.TextMatrix(0, 1), "");
    EXPECT_EQ(Events, (EventLog{"leave 0,1"}));
    EXPECT_THROW(TheGrid.UserEdit(4, 0, "x"), NotPossible);
    EXPECT_THROW(TheGrid.TextMatrix(0, 3), RuntimeError);
}

TEST_F(GridTest, DropDownTakesItsOwnEntriesOnly) {
    TheGrid.BeforeEdit = [this](int, int, bool&) { TheGrid.ComboList = "Dry|Wet"; };
    TheGrid.UserEdit(2, 1, "Moist");
    EXPECT_EQ(TheGrid.TextMatrix(2, 1), "12.000");
    TheGrid.UserEdit(2, 1, "Wet");
    EXPECT_EQ(TheGrid.TextMatrix(2, 1), "Wet");
    EXPECT_EQ(TheGrid.ComboEntries(), (std::vector<std::string>{"Dry", "Wet"}));
}

TEST_F(GridTest, OpeningEventMayChangeTheCell) {
    TheGrid.BeforeEdit = [this](int row, int col, bool&) {
        TheGrid.SetTextMatrix(row, col, "40.00");
    };
    TheGrid.UserMoveCursor(2, 2);
    ASSERT_TRUE(TheGrid.UserOpenEdit());
    EXPECT_EQ(TheGrid.EditText, "40.00");
    TheGrid.UserCancelEdit();
    EXPECT_EQ(TheGrid.TextMatrix(2, 2), "40.00");
}

TEST_F(GridTest, CursorLeavesEachCellOnce) {
    TheGrid.UserMoveCursor(2, 1);
    TheGrid.UserMoveCursor(2, 1);
    TheGrid.UserMoveCursor(2, 2);
    Form.cmdOK.UserClick();
    EXPECT_EQ(Events, (EventLog{"leave 2,1", "leave 2,2"}));
}

TEST_F(GridTest, RefusedTextMayBeTypedAnew) {
    TheGrid.UserMoveCursor(2, 1);
    ASSERT_TRUE(TheGrid.UserOpenEdit());
    EXPECT_FALSE(TheGrid.UserCloseEdit("bad"));
    EXPECT_TRUE(TheGrid.IsEditing());
    EXPECT_TRUE(TheGrid.UserCloseEdit("16"));
    EXPECT_THROW(TheGrid.UserCloseEdit("17"), NotPossible);
}

TEST_F(GridTest, ProgramThatShrinksTheGridDuringAnEditLosesNothingElse) {
    TheGrid.ValidateEdit = [this](int, int, bool&) { TheGrid.SetRows(1); };
    TheGrid.UserEdit(2, 1, "15");
    EXPECT_EQ(TheGrid.Rows(), 1);
    EXPECT_EQ(Events, (EventLog{"before 2,1"}));
}

TEST_F(GridTest, ResizingKeepsTheCells) {
    TheGrid.SetCols(5);
    TheGrid.SetRows(6);
    EXPECT_EQ(TheGrid.TextMatrix(2, 1), "12.000");
    EXPECT_EQ(TheGrid.TextMatrix(2, 2), "40.00 %");
    EXPECT_EQ(TheGrid.TextMatrix(5, 4), "");
    TheGrid.SetCols(2);
    EXPECT_EQ(TheGrid.TextMatrix(2, 1), "12.000");
}

}  // namespace
}  // namespace tav
