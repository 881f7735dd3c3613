#pragma once

#include <tools/elidedlabel.h>

class ElementTableModel;
class ElementTableView;

/// The line below the element table: how many elements are shown and selected, and count, sum, mean, smallest and largest of
/// the column in which the cursor is: of the selected rows when there are several, else of all that are shown.
class TableSummary : public ElidedLabel {
  Q_OBJECT
public:
  TableSummary(const ElementTableView &view, const ElementTableModel &model);

  void tell();

private:
  QString figuresOf(int column) const;
  int column() const;

  const ElementTableView &m_view;
  const ElementTableModel &m_model;
};
