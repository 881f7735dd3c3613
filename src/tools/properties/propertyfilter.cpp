#include "properties/propertyfilter.h"

#include "properties/propertymodel.h"

void PropertyFilter::setText(const QString &text) {
  m_text = text;
  invalidate();
}

bool PropertyFilter::filterAcceptsRow(int row, const QModelIndex &parent) const {
  const auto says = [&](int column) {
    return sourceModel()->index(row, column, parent).data().toString().contains(m_text, Qt::CaseInsensitive);
  };
  return !parent.isValid() || m_text.isEmpty() || says(PropertyModel::PropertyColumn) || says(PropertyModel::ValueColumn);
}
