// The rules of the grid of a feed's data: which cells open, which entries are taken, and what an
// entry changes. The rule of the feed's name is the form's, because it concerns the whole
// collection.
#pragma once

#include "forms/grid.h"

namespace tav {

// The cell is about to open: sets the drop-down list, and refuses what can't be edited.
void BeforeFeedEdit(Grid& grid, int row, int col, bool& cancel);

// The edit is about to close with grid.EditText: limits of the row, then relations between rows. A
// refusal does not end the checks, so that one entry may lead to two messages.
void ValidateFeedEdit(const Grid& grid, int row, int col, bool& cancel);

// The edit has closed: recomputes the rows that follow from the edited one.
void AfterFeedEdit(Grid& grid, int row);

}  // namespace tav
