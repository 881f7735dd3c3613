#include "scenarios/scenariolistmodel.h"

#include <QDir>
#include <QFont>

void ScenarioListModel::setList(const ScenarioList &list) {
  beginResetModel();
  m_list = list;
  endResetModel();
}

void ScenarioListModel::setMarks(const QString &shown, const QString &reference) {
  m_shown = shown;
  m_reference = reference;
  if (m_list.size() > 0)
    emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

int ScenarioListModel::rowCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : toQt(m_list.size());
}

int ScenarioListModel::columnCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : ColumnCount;
}

QString ScenarioListModel::mark(const ScenarioEntry &entry) const {
  const bool isShown = entry.name == m_shown;
  if (entry.name == m_reference)
    return isShown ? tr("shown, reference") : tr("reference");
  return isShown ? tr("shown") : QString();
}

QVariant ScenarioListModel::shown(const ScenarioEntry &entry, int column) const {
  switch (column) {
  case DateColumn:
    return ScenarioDate::shown(entry.date);
  case MarkColumn:
    return mark(entry);
  default:
    return entry.name;
  }
}

QVariant ScenarioListModel::data(const QModelIndex &index, int role) const {
  if (!index.isValid())
    return {};
  const ScenarioEntry &entry = m_list[toIndex(fromQt(index.row()))];
  switch (role) {
  case Qt::DisplayRole:
    return shown(entry, index.column());
  case SortRole: // by date the list is in order already
    return index.column() == DateColumn ? QVariant(index.row()) : shown(entry, index.column());
  case FileRole:
    return entry.file;
  case Qt::ToolTipRole:
    return QDir::toNativeSeparators(entry.file);
  case Qt::FontRole: {
    QFont font;
    font.setBold(entry.name == m_shown);
    return font;
  }
  default:
    return {};
  }
}

QVariant ScenarioListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
    return {};
  switch (section) {
  case DateColumn:
    return tr("date");
  case MarkColumn:
    return tr("mark");
  default:
    return tr("scenario");
  }
}
