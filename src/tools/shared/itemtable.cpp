#include "shared/itemtable.h"

ItemTable::ItemTable(QWidget *parent)
    : QTableView(parent) {
  connect(this, &QTableView::clicked, this, &ItemTable::itemClicked);
  connect(this, &QTableView::doubleClicked, this,
          [this](const QModelIndex &item) { emit itemDoubleClicked(item, item.column()); });
}

QModelIndex ItemTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  if (selectionBehavior() != SelectRows || (action != MoveHome && action != MoveEnd))
    return QTableView::moveCursor(action, modifiers);
  return QTableView::moveCursor(action, modifiers | Qt::ControlModifier).siblingAtColumn(currentIndex().column());
}

void ItemTable::currentChanged(const QModelIndex &current, const QModelIndex &previous) {
  QTableView::currentChanged(current, previous);
  emit currentItemChanged(current, previous);
}
