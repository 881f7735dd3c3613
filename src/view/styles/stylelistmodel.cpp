#include "styles/stylelistmodel.h"

#include <base/index.h>

#include <algorithm>

StyleListModel::StyleListModel(StyleStore &store, QObject *parent)
    : QAbstractListModel(parent)
    , m_store(store) {
  refresh();
}

void StyleListModel::refresh() {
  beginResetModel();
  m_names.clear();
  for (const StyleStore::Style &style : m_store.all())
    m_names.push_back(style.name);
  endResetModel();
}

int StyleListModel::rowOf(const QString &name) const {
  const auto found = std::find(m_names.begin(), m_names.end(), name);
  return found == m_names.end() ? -1 : static_cast<int>(found - m_names.begin());
}

int StyleListModel::rowCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : toQt(m_names.size());
}

QVariant StyleListModel::data(const QModelIndex &index, int role) const {
  if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole))
    return QVariant();
  return nameAt(index.row());
}

/// The list is refreshed by whoever hears of it: the row may stand elsewhere then.
bool StyleListModel::setData(const QModelIndex &index, const QVariant &value, int role) {
  if (!index.isValid() || role != Qt::EditRole)
    return false;
  const QString from = nameAt(index.row());
  const QString to = value.toString().trimmed();
  if (to == from)
    return false;
  QString reason;
  if (!m_store.rename(from, to, &reason)) {
    emit refused(reason);
    return false;
  }
  m_names[static_cast<std::size_t>(index.row())] = to;
  emit dataChanged(index, index);
  emit renamed(from, to);
  return true;
}

Qt::ItemFlags StyleListModel::flags(const QModelIndex &index) const {
  return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemNeverHasChildren
                         : Qt::NoItemFlags;
}
