#include "desktop/grid_cells.h"

#include "core/number_text.h"
#include "desktop/text.h"

namespace tav {
namespace {

std::vector<std::string> CellsOf(const Grid& grid) {
    std::vector<std::string> cells;
    cells.reserve(static_cast<std::size_t>(grid.Rows()) * static_cast<std::size_t>(grid.Cols()));
    for (int row = 0; row < grid.Rows(); ++row) {
        for (int col = 0; col < grid.Cols(); ++col)
            cells.push_back(grid.TextMatrix(row, col));
    }
    return cells;
}

}  // namespace

bool GridCells::Refresh() {
    const bool sameShape = rows_ == grid_.Rows() && cols_ == grid_.Cols() &&
                           fixedRows_ == grid_.FixedRows && fixedCols_ == grid_.FixedCols;
    std::vector<std::string> cells = CellsOf(grid_);
    if (sameShape && cells == shown_) return false;
    if (!sameShape) beginResetModel();
    rows_ = grid_.Rows();
    cols_ = grid_.Cols();
    fixedRows_ = grid_.FixedRows;
    fixedCols_ = grid_.FixedCols;
    shown_ = std::move(cells);
    if (!sameShape) {
        endResetModel();
    } else if (rowCount() > 0 && columnCount() > 0) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
        Q_EMIT headerDataChanged(Qt::Vertical, 0, rowCount() - 1);
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    }
    return true;
}

QModelIndex GridCells::IndexOf(int gridRow, int gridCol) const {
    return index(gridRow - fixedRows_, gridCol - fixedCols_);
}

QString GridCells::TextAt(int gridRow, int gridCol) const {
    const std::size_t place = static_cast<std::size_t>(gridRow) * static_cast<std::size_t>(cols_) +
                              static_cast<std::size_t>(gridCol);
    return place < shown_.size() ? ToQt(shown_[place]) : QString();
}

int GridCells::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : std::max(0, rows_ - fixedRows_);
}

int GridCells::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : std::max(0, cols_ - fixedCols_);
}

// Numbers stand under each other whatever the column says of its texts.
Qt::Alignment GridCells::AlignmentOf(int gridRow, int gridCol) const {
    const QString text = TextAt(gridRow, gridCol);
    switch (grid_.ColAlignment(gridCol)) {
        case Alignment::Right: return Qt::AlignRight | Qt::AlignVCenter;
        case Alignment::Center: return Qt::AlignHCenter | Qt::AlignVCenter;
        case Alignment::Left: break;
    }
    return (IsNumeric(text.toStdString()) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
}

QVariant GridCells::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const int row = GridRow(index);
    const int col = GridCol(index);
    switch (role) {
        case Qt::DisplayRole:
        case Qt::AccessibleTextRole: return TextAt(row, col);
        case Qt::TextAlignmentRole: return QVariant::fromValue(AlignmentOf(row, col));
        default: return {};
    }
}

QVariant GridCells::headerData(int section, Qt::Orientation orientation, int role) const {
    const bool rows = orientation == Qt::Vertical;
    if (section < 0 || section >= (rows ? rowCount() : columnCount())) return {};
    const int row = rows ? section + fixedRows_ : 0;
    const int col = rows ? 0 : section + fixedCols_;
    const bool fixed = rows ? fixedCols_ > 0 : fixedRows_ > 0;
    switch (role) {
        case Qt::DisplayRole: return fixed ? TextAt(row, col) : QString();
        case Qt::ToolTipRole: return fixed ? QVariant(ToolTipText(TextAt(row, col))) : QVariant();
        case Qt::TextAlignmentRole:
            if (rows) return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
            return QVariant::fromValue(rowCount() == 0
                                           ? Qt::Alignment(Qt::AlignLeft | Qt::AlignVCenter)
                                           : AlignmentOf(rows_ - 1, col));
        default: return {};
    }
}

Qt::ItemFlags GridCells::flags(const QModelIndex& index) const {
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
}

}  // namespace tav
