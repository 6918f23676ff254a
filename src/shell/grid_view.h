#pragma once
// A read-only table over a GridModel, with Copy (Ctrl+C and the context
// menu): the chosen cells as tab-separated lines, ready for a spreadsheet.
#include <QTableView>

#include "shell/grid_model.h"

namespace kelvaro::shell {

class GridView : public QTableView {
  Q_OBJECT

 public:
  explicit GridView(QWidget* parent = nullptr);

  GridModel& Model() { return model_; }
  void SetGrid(const Grid& grid, int first = -1, int last = -1);
  // The chosen cells (all of them when none is chosen) as text.
  QString SelectionText() const;
  void CopySelection() const;
  // As wide as the columns, so that a pane starts without a scroll bar.
  QSize sizeHint() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  GridModel model_;
};

}  // namespace kelvaro::shell
