#include "properties/propertymodel.h"

#include <QSize>

PropertyModel::PropertyModel(QObject *parent)
    : PropertyGroups({tr("prop"), tr("value"), tr("unit")}, parent) {}

void PropertyModel::set(std::vector<PropertyList::Group> groups) {
  beginResetModel();
  m_groups = std::move(groups);
  endResetModel();
}

/// The names of groups are those of "Attribute.csv", or of the network's own where it has subnets.
QVariant PropertyModel::groupData(int group, int column, int role) const {
  QVariant data = PropertyGroups::groupData(group, column, role);
  if (role != Qt::DisplayRole || column != PropertyColumn)
    return data;
  for (const char *known : {QT_TR_NOOP("favorites"), QT_TR_NOOP("scenario"), QT_TR_NOOP("geometry"), QT_TR_NOOP("results"),
                            QT_TR_NOOP("extra"), QT_TR_NOOP("hidden")}) {
    if (at(group).name == QLatin1String(known))
      return tr(known);
  }
  return data;
}

QVariant PropertyModel::entryData(int group, int entry, int column, int role) const {
  const PropertyList::Row &row = at(group, entry);
  if (role == Qt::SizeHintRole && column == ValueColumn && row.isLong)
    return QSize(0, 0); // so that the column is as wide as the others and the header need
  if (role != Qt::DisplayRole)
    return QVariant();
  return column == PropertyColumn ? row.property : column == ValueColumn ? row.value : row.unit;
}
