#pragma once

#include <QTableView>

/// A table whose items are the cells of its model: it tells which one was clicked or became the current one, unless its
/// signals are blocked. Where whole rows are selected, Home and End go to the first and the last of them.
class ItemTable : public QTableView {
  Q_OBJECT
public:
  explicit ItemTable(QWidget *parent = nullptr);

signals:
  void itemClicked(const QModelIndex &item);
  void itemDoubleClicked(const QModelIndex &item, int column);
  void currentItemChanged(const QModelIndex &current, const QModelIndex &previous);

protected:
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
};
