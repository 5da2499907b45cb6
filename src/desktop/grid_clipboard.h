// Cells to the clipboard and from it, as text with tabs.
#pragma once

#include "desktop/grid_cells.h"
#include "forms/grid.h"

#include <QItemSelection>
#include <functional>

namespace tav {

// Copies the smallest block that holds the selection; cells that aren't selected stay empty. With
// headers, the texts of the fixed rows and columns stand above and before.
void CopyCells(const GridCells& cells, const QItemSelection& selection, bool withHeaders);

// Enters the clipboard's cells one after the other from a cell on, each as if it had been typed.
// Those that were refused are listed at the end, with what the program had to say. perform runs an
// action of the user's.
void PasteCells(Grid& grid, int row, int col,
                const std::function<void(const std::function<void()>&)>& perform);

}  // namespace tav
