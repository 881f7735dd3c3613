#include "properties/propertymodel.h"

#include <QSize>

PropertyModel::PropertyModel(QObject *parent)
    : GroupModel({tr("prop"), tr("value"), tr("unit")}, parent) {}

void PropertyModel::set(std::vector<PropertyList::Group> groups) {
  beginResetModel();
  m_groups = std::move(groups);
  endResetModel();
}

int PropertyModel::groupCount() const {
  return toQt(m_groups.size());
}

int PropertyModel::entryCount(int group) const {
  return toQt(at(group).rows.size());
}

QVariant PropertyModel::groupData(int group, int column, int role) const {
  if (column != PropertyColumn)
    return QVariant();
  if (role == Qt::DisplayRole)
    return at(group).name;
  return role == Qt::FontRole ? boldFont() : QVariant();
}

QVariant PropertyModel::entryData(int group, int entry, int column, int role) const {
  const PropertyList::Row &row = at(group).rows[fromQt(entry)];
  if (role == Qt::SizeHintRole && column == ValueColumn && row.isLong)
    return QSize(0, 0); // so that the column is as wide as the others and the header need
  if (role != Qt::DisplayRole)
    return QVariant();
  return column == PropertyColumn ? row.property : column == ValueColumn ? row.value : row.unit;
}
