#include "layers/layermodel.h"

LayerModel::LayerModel(const Layers &layers, QObject *parent)
    : QAbstractTableModel(parent)
    , m_layers(layers)
    , m_names(layers.all().keys()) {}

void LayerModel::refresh() {
  beginResetModel();
  m_names = m_layers.all().keys();
  endResetModel();
}

void LayerModel::setHidden(const QSet<QString> &hidden) {
  if (hidden == m_hidden)
    return;
  m_hidden = hidden;
  if (!m_names.isEmpty())
    emit dataChanged(index(0, VisibleColumn), index(rowCount() - 1, VisibleColumn), {Qt::CheckStateRole});
}

void LayerModel::setRenamable(bool isRenamable) {
  m_isRenamable = isRenamable;
}

int LayerModel::rowCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : m_names.size();
}

int LayerModel::columnCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : ColumnCount;
}

Qt::ItemFlags LayerModel::flags(const QModelIndex &index) const {
  const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  if (index.column() == VisibleColumn)
    return flags | Qt::ItemIsUserCheckable;
  const bool isEditable = index.column() == LayerColumn && m_isRenamable && layer(index.row()) != Layers::newLayer();
  return isEditable ? flags | Qt::ItemIsEditable : flags;
}

QVariant LayerModel::data(const QModelIndex &index, int role) const {
  if (!index.isValid())
    return QVariant();
  const QString &name = m_names.at(index.row());
  switch (index.column()) {
  case VisibleColumn:
    return role == Qt::CheckStateRole ? m_hidden.contains(name) ? Qt::Unchecked : Qt::Checked : QVariant();
  case LayerColumn:
    return role == Qt::DisplayRole || role == Qt::EditRole || role == SortRole ? name : QVariant();
  default:
    if (role == Qt::TextAlignmentRole)
      return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return role == Qt::DisplayRole || role == SortRole ? m_layers.all().value(name).size() : QVariant();
  }
}

bool LayerModel::setData(const QModelIndex &index, const QVariant &value, int role) {
  if (!index.isValid() || data(index, role) == value ||
      role != (index.column() == VisibleColumn ? Qt::CheckStateRole : Qt::EditRole))
    return false;
  emit cellEdited(index.row(), index.column(), value);
  return true;
}

QVariant LayerModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
    return QAbstractTableModel::headerData(section, orientation, role);
  return QStringList{QStringLiteral(" "), tr("Layer"), tr("count")}.value(section);
}
