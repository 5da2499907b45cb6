// A grid's cells as Qt's views read them.
#pragma once

#include "forms/grid.h"

#include <QAbstractTableModel>
#include <string>
#include <vector>

namespace tav {

// Fixed rows and columns are the headers; the other cells count from 0 behind them. Reads the grid
// itself: Refresh tells the view what has changed.
class GridCells : public QAbstractTableModel {
  public:
    explicit GridCells(const Grid& grid) : grid_(grid) {}

    // Compares with what was shown last. True if anything has changed.
    bool Refresh();

    QModelIndex IndexOf(int gridRow, int gridCol) const;
    int GridRow(const QModelIndex& index) const { return index.row() + fixedRows_; }
    int GridCol(const QModelIndex& index) const { return index.column() + fixedCols_; }
    QString TextAt(int gridRow, int gridCol) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  private:
    Qt::Alignment AlignmentOf(int gridRow, int gridCol) const;

    const Grid& grid_;
    int rows_ = 0;
    int cols_ = 0;
    int fixedRows_ = 0;
    int fixedCols_ = 0;
    std::vector<std::string> shown_;
};

}  // namespace tav
