#include "shell/grid_view.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QScrollBar>
#include <algorithm>
#include <map>

namespace kelvaro::shell {

GridView::GridView(QWidget* parent) : QTableView(parent) {
  setModel(&model_);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setAlternatingRowColors(true);
  setWordWrap(false);
  verticalHeader()->setVisible(false);
  verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  horizontalHeader()->setStretchLastSection(true);
}

void GridView::SetGrid(const Grid& grid, int first, int last) {
  model_.SetGrid(grid, first, last);
  resizeColumnsToContents();
}

QString GridView::SelectionText() const {
  QModelIndexList cells = selectionModel() ? selectionModel()->selectedIndexes() : QModelIndexList();
  if (cells.isEmpty()) {
    for (int r = 0; r < model_.rowCount(); ++r) {
      for (int c = 0; c < model_.columnCount(); ++c) cells.append(model_.index(r, c));
    }
  }
  std::map<int, std::map<int, QString>> rows;
  for (const QModelIndex& i : cells) rows[i.row()][i.column()] = model_.data(i, Qt::DisplayRole).toString().trimmed();
  QStringList lines;
  for (const auto& [row, columns] : rows) {
    QStringList texts;
    const int last = columns.rbegin()->first;
    for (int c = columns.begin()->first; c <= last; ++c) {
      const auto it = columns.find(c);
      texts.append(it == columns.end() ? QString() : it->second);
    }
    lines.append(texts.join('\t'));
  }
  return lines.join('\n');
}

QSize GridView::sizeHint() const {
  int width = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
  for (int c = 0; c < model_.columnCount(); ++c) {
    width += std::max(sizeHintForColumn(c), horizontalHeader()->sectionSizeHint(c));
  }
  return {std::max(width, 120), QTableView::sizeHint().height()};
}

void GridView::CopySelection() const { QApplication::clipboard()->setText(SelectionText()); }

void GridView::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    CopySelection();
    return;
  }
  QTableView::keyPressEvent(event);
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
  QMenu menu(this);
  menu.addAction(tr("Copy"), QKeySequence(QKeySequence::Copy), this, &GridView::CopySelection);
  menu.exec(event->globalPos());
}

}  // namespace kelvaro::shell
