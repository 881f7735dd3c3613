#include "elementtable/columnlist.h"

#include <QMimeData>

#include <algorithm>

namespace {

const QString MimeType = QStringLiteral("application/x-nivra-column");

} // namespace

void ColumnList::setEntries(std::vector<Entry> entries, const std::vector<PropertyKey> &shown) {
  beginResetModel();
  m_entries.clear();
  for (const PropertyKey key : shown) {
    const auto found = std::find_if(entries.begin(), entries.end(), [key](const Entry &entry) { return entry.key == key; });
    Entry entry = found == entries.end() ? Entry() : *found;
    entry.key = key;
    entry.isShown = true;
    m_entries.push_back(entry);
    if (found != entries.end())
      entries.erase(found);
  }
  m_entries.insert(m_entries.end(), entries.begin(), entries.end());
  endResetModel();
}

std::vector<PropertyKey> ColumnList::shown() const {
  std::vector<PropertyKey> keys;
  for (const Entry &entry : m_entries) {
    if (entry.isShown)
      keys.push_back(entry.key);
  }
  return keys;
}

int ColumnList::shownCount() const {
  return toQt(static_cast<std::size_t>(
      std::count_if(m_entries.begin(), m_entries.end(), [](const Entry &entry) { return entry.isShown; })));
}

/// \param to its row afterwards
void ColumnList::relocate(int row, int to) {
  if (row == to)
    return;
  beginMoveRows(QModelIndex(), row, row, QModelIndex(), to > row ? to + 1 : to);
  const auto at = m_entries.begin() + row;
  if (to > row)
    std::rotate(at, at + 1, m_entries.begin() + to + 1);
  else
    std::rotate(m_entries.begin() + to, at, at + 1);
  endMoveRows();
}

void ColumnList::move(int row, int to) {
  if (row < 0 || row >= shownCount())
    return;
  to = std::clamp(to, 0, shownCount() - 1);
  if (to == row)
    return;
  relocate(row, to);
  emit columnsChanged();
}

int ColumnList::rowCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : toQt(m_entries.size());
}

int ColumnList::columnCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : ColumnCount;
}

QVariant ColumnList::data(const QModelIndex &index, int role) const {
  if (!index.isValid())
    return QVariant();
  const Entry &entry = m_entries[fromQt(index.row())];
  if (role == Qt::CheckStateRole && index.column() == NameColumn)
    return entry.isShown ? Qt::Checked : Qt::Unchecked;
  if (role == Qt::TextAlignmentRole && index.column() == CountColumn)
    return int(Qt::AlignRight | Qt::AlignVCenter);
  if (role != Qt::DisplayRole)
    return QVariant();
  switch (index.column()) {
  case NameColumn:
    return entry.key.name();
  case MeaningColumn:
    return entry.meaning;
  case UnitColumn:
    return entry.unit;
  default:
    return QString::number(entry.count);
  }
}

bool ColumnList::setData(const QModelIndex &index, const QVariant &value, int role) {
  if (!index.isValid() || role != Qt::CheckStateRole || index.column() != NameColumn)
    return false;
  const bool isShown = value.toInt() == Qt::Checked;
  Entry &entry = m_entries[fromQt(index.row())];
  if (entry.isShown == isShown)
    return true;
  const int shownBefore = shownCount();
  entry.isShown = isShown;
  emit dataChanged(index, index, {Qt::CheckStateRole});
  int to = shownBefore; // behind the other columns
  if (!isShown) {
    to = shownBefore - 1;
    while (to + 1 < rowCount() && m_entries[fromQt(to + 1)].key < entry.key)
      ++to;
  }
  relocate(index.row(), to);
  emit columnsChanged();
  return true;
}

QVariant ColumnList::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
    return QVariant();
  switch (section) {
  case NameColumn:
    return tr("Property");
  case MeaningColumn:
    return tr("Meaning");
  case UnitColumn:
    return tr("Unit");
  default:
    return tr("Elements");
  }
}

Qt::ItemFlags ColumnList::flags(const QModelIndex &index) const {
  if (!index.isValid())
    return Qt::ItemIsDropEnabled;
  Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
  if (m_entries[fromQt(index.row())].isShown)
    flags |= Qt::ItemIsDragEnabled;
  return index.column() == NameColumn ? flags | Qt::ItemIsUserCheckable : flags;
}

QStringList ColumnList::mimeTypes() const {
  return {MimeType};
}

QMimeData *ColumnList::mimeData(const QModelIndexList &indexes) const {
  if (indexes.isEmpty())
    return nullptr;
  auto *data = new QMimeData;
  data->setData(MimeType, QByteArray::number(indexes.first().row()));
  return data;
}

/// The view need not take the row away from where it was: it is there no more.
bool ColumnList::dropMimeData(const QMimeData *data, Qt::DropAction, int row, int, const QModelIndex &) {
  if (!data->hasFormat(MimeType))
    return false;
  const int from = data->data(MimeType).toInt();
  const int to = row < 0 ? shownCount() - 1 : row > from ? row - 1 : row;
  move(from, to);
  return false;
}
