// What an edit of a feed's composition does to its energy rows, in the grid alone.
#pragma once

#include "forms/grid.h"

namespace tav {

// Ordinary feed: TDN, DE and the digestibility of the fibre from the cells of composition, energy
// class, category and processing. Raises 13 for a cell that holds no number.
void RecomputeFeedEnergyRows(Grid& grid);

// Calf feed: the five energy rows from the one that was edited, or all of them from protein, fat
// and ash if one of these was. An edit of any other row changes nothing.
void RecomputeCalfEnergyRows(Grid& grid, int editedRow);

}  // namespace tav
