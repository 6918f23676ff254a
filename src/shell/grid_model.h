#pragma once
// A read-only table model over a Grid: its header row (FixedRows) becomes
// the column headings, its bold cells a bold font. The model keeps its own
// copy of the grid, so a failed calculation, which leaves the grids of the
// last complete run, can never show half a table.
#include <QAbstractTableModel>

#include "analysis/grid.h"

namespace kelvaro::shell {

class GridModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  explicit GridModel(QObject* parent = nullptr) : QAbstractTableModel(parent) {}

  // Takes the rows from `first` to `last` (inclusive, body rows after the
  // header) or all of them.
  void SetGrid(const Grid& grid, int first = -1, int last = -1);
  const Grid& Source() const { return grid_; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  int GridRow(int row) const { return first_ + row; }

  Grid grid_;
  int first_ = 0;
  int count_ = 0;
};

}  // namespace kelvaro::shell
