#pragma once

#include <QTableView>

/// A table whose items are the cells of its model: it tells which one was clicked or became the current one, unless its
/// signals are blocked, and its rows are as high as a line of its font needs.
class ItemTable : public QTableView {
  Q_OBJECT
public:
  explicit ItemTable(QWidget *parent = nullptr);

signals:
  void itemClicked(const QModelIndex &item);
  void itemDoubleClicked(const QModelIndex &item, int column);
  void currentItemChanged(const QModelIndex &current, const QModelIndex &previous);

protected:
  void changeEvent(QEvent *event) override;
  void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

private:
  void fitRowHeight();
};
