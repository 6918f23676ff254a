#include "shell/grid_model.h"

#include <QFont>
#include <algorithm>

#include "shell/messages.h"

namespace kelvaro::shell {

void GridModel::SetGrid(const Grid& grid, int first, int last) {
  beginResetModel();
  grid_ = grid;
  const int header = std::min(grid_.FixedRows, grid_.Rows());
  first_ = first < 0 ? header : std::max(first, header);
  const int end = last < 0 ? grid_.Rows() - 1 : std::min(last, grid_.Rows() - 1);
  count_ = std::max(0, end - first_ + 1);
  endResetModel();
}

int GridModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : count_; }

int GridModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : grid_.Cols(); }

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= count_ || index.column() >= grid_.Cols()) return {};
  const int row = GridRow(index.row());
  switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
      return Qs(grid_.Text(row, index.column()));
    case Qt::FontRole:
      if (grid_.Bold(row, index.column())) {
        QFont bold;
        bold.setBold(true);
        return bold;
      }
      return {};
    default:
      return {};
  }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole) return {};
  if (orientation == Qt::Vertical) return section + 1;
  if (grid_.FixedRows < 1 || grid_.Rows() < 1 || section >= grid_.Cols()) return {};
  // The captions carry the blanks that widened the old grid's columns.
  return Qs(grid_.Text(0, section)).trimmed();
}

}  // namespace kelvaro::shell
