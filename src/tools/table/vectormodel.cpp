#include "table/vectormodel.h"

#include "shared/namedelement.h"

#include <base/index.h>

void VectorModel::setTitles(const QStringList &titles) {
  m_titles = titles;
  emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

QVariant VectorModel::data(const QModelIndex &index, int role) const {
  if (!index.isValid())
    return QVariant();
  if (role == ElementRole)
    return namedElement(index);
  if (role == Qt::TextAlignmentRole && index.column() == NumsortColumn)
    return int(Qt::AlignRight | Qt::AlignVCenter);
  return VectorTexts::data(index, role);
}

Qt::ItemFlags VectorModel::flags(const QModelIndex &index) const {
  const Qt::ItemFlags flags = VectorTexts::flags(index);
  return index.isValid() ? flags | Qt::ItemIsDragEnabled : flags;
}

QString VectorModel::namedElement(const QModelIndex &cell) const {
  const VectorRows::Row &row = m_rows[fromQt(cell.row())];
  if (cell.column() == NameColumn)
    return row.name;
  return cell.column() == ValueColumn && namesElements(PropertyKey::find(row.property)) ? row.value : QString();
}
