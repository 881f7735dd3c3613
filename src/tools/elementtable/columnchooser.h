#pragma once

#include "elementtable/columnlist.h"

#include <QDialog>

class QLineEdit;
class QSortFilterProxyModel;
class QTreeView;

/// The window in which a person chooses and orders the columns of the element table. What is changed shows at once.
class ColumnChooser : public QDialog {
  Q_OBJECT
public:
  explicit ColumnChooser(QWidget *parent = nullptr);

  void setEntries(std::vector<ColumnList::Entry> entries, const std::vector<PropertyKey> &shown);

signals:
  void columnsChosen(const std::vector<PropertyKey> &columns);
  void usualWanted();

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  void moveCurrent(int by);
  void fillLayout();

  ColumnList m_list;
  QSortFilterProxyModel *m_found;
  QLineEdit *m_search;
  QTreeView *m_view;
};
