#include "shared/itemtable.h"

#include <QEvent>
#include <QHeaderView>

ItemTable::ItemTable(QWidget *parent)
    : QTableView(parent) {
  connect(this, &QTableView::clicked, this, &ItemTable::itemClicked);
  connect(this, &QTableView::doubleClicked, this,
          [this](const QModelIndex &item) { emit itemDoubleClicked(item, item.column()); });
  fitRowHeight();
}

void ItemTable::fitRowHeight() {
  constexpr int RowMargin = 8; // px around the text
  verticalHeader()->setDefaultSectionSize(QFontInfo(font()).pixelSize() + RowMargin);
}

void ItemTable::changeEvent(QEvent *event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange)
    fitRowHeight();
}

void ItemTable::currentChanged(const QModelIndex &current, const QModelIndex &previous) {
  QTableView::currentChanged(current, previous);
  emit currentItemChanged(current, previous);
}
