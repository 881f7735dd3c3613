#include "table/vectormodel.h"

#include "shared/namedelement.h"

#include <base/index.h>

namespace {

using Row = VectorRows::Row;

constexpr QString Row::*Texts[] = {&Row::name, &Row::type,   &Row::property, &Row::value,
                                   &Row::unit, &Row::result, &Row::numsort};

} // namespace

void VectorModel::setRows(std::vector<VectorRows::Row> rows) {
  beginResetModel();
  m_rows = std::move(rows);
  sortNewRows();
  endResetModel();
}

void VectorModel::setTitles(const QStringList &titles) {
  m_titles = titles;
  emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

const QString &VectorModel::text(int row, int column) const {
  return m_rows[fromQt(row)].*Texts[column];
}

int VectorModel::rowCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : toQt(m_rows.size());
}

int VectorModel::columnCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : ColumnCount;
}

QVariant VectorModel::data(const QModelIndex &index, int role) const {
  if (!index.isValid())
    return QVariant();
  if (role == ElementRole)
    return namedElement(index);
  if (role == Qt::TextAlignmentRole && index.column() == NumsortColumn)
    return int(Qt::AlignRight | Qt::AlignVCenter);
  return TextTableModel::data(index, role);
}

Qt::ItemFlags VectorModel::flags(const QModelIndex &index) const {
  const Qt::ItemFlags flags = TextTableModel::flags(index);
  return index.isValid() ? flags | Qt::ItemIsDragEnabled : flags;
}

QString VectorModel::namedElement(const QModelIndex &cell) const {
  const Row &row = m_rows[fromQt(cell.row())];
  if (cell.column() == NameColumn)
    return row.name;
  return cell.column() == ValueColumn && namesElements(PropertyKey::find(row.property)) ? row.value : QString();
}
