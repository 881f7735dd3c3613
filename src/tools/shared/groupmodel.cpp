#include <tools/groupmodel.h>

#include <QFont>

namespace {

constexpr quintptr OfGroup = 0;

} // namespace

GroupModel::GroupModel(QStringList titles, QObject *parent)
    : QAbstractItemModel(parent)
    , m_titles(std::move(titles)) {}

QModelIndex GroupModel::index(int row, int column, const QModelIndex &parent) const {
  if (!hasIndex(row, column, parent))
    return QModelIndex();
  return createIndex(row, column, parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : OfGroup);
}

QModelIndex GroupModel::parent(const QModelIndex &child) const {
  if (!child.isValid() || child.internalId() == OfGroup)
    return QModelIndex();
  return createIndex(static_cast<int>(child.internalId()) - 1, 0, OfGroup);
}

int GroupModel::rowCount(const QModelIndex &parent) const {
  if (!parent.isValid())
    return groupCount();
  return parent.internalId() == OfGroup && parent.column() == 0 ? entryCount(parent.row()) : 0;
}

int GroupModel::columnCount(const QModelIndex & /*parent*/) const {
  return m_titles.size();
}

Qt::ItemFlags GroupModel::flags(const QModelIndex &index) const {
  const bool isEntry = index.isValid() && index.internalId() != OfGroup;
  return QAbstractItemModel::flags(index) | (isEntry ? Qt::ItemNeverHasChildren : Qt::NoItemFlags);
}

QVariant GroupModel::data(const QModelIndex &index, int role) const {
  if (!index.isValid())
    return QVariant();
  if (index.internalId() == OfGroup)
    return groupData(index.row(), index.column(), role);
  return entryData(static_cast<int>(index.internalId()) - 1, index.row(), index.column(), role);
}

QVariant GroupModel::headerData(int section, Qt::Orientation orientation, int role) const {
  return orientation == Qt::Horizontal && role == Qt::DisplayRole ? m_titles.value(section) : QVariant();
}

QVariant GroupModel::boldFont() {
  QFont font;
  font.setBold(true);
  return font;
}
