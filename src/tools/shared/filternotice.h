#pragma once

#include <QWidget>

class ElidedLabel;
class QPushButton;
class TableMenu;

/// A line below a table that says how many rows the filters of its header hide, and a button that ends the filters. Not
/// there while nothing is filtered.
class FilterNotice : public QWidget {
  Q_OBJECT
public:
  explicit FilterNotice(QWidget *parent = nullptr);

  void watch(TableMenu &menu);

private:
  void tell(const TableMenu &menu);

  ElidedLabel *m_label;
  QPushButton *m_button;
};
