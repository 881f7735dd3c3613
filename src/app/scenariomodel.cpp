#include "scenariomodel.h"

#include <tools/plaintip.h>

#include <QDir>
#include <QFont>

namespace {

constexpr quintptr OfSection = 0; // the internal id of a section; a setting has the number of its section, from 1 on

} // namespace

ScenarioModel::ScenarioModel(QObject *parent)
    : QAbstractItemModel(parent) {}

QString ScenarioModel::shown(const QString &text) {
  constexpr int Longest = 10000;
  return text.size() > Longest ? text.left(Longest) + QStringLiteral("…") : text;
}

void ScenarioModel::set(const ScenarioSummary &summary) {
  beginResetModel();
  m_root = summary.root;
  m_sections.clear();
  for (const ScenarioSummary::Row &row : summary.rows) {
    if (m_sections.empty() || m_sections.back().name != row.section)
      m_sections.push_back({row.section, {}});
    m_sections.back().rows.push_back(row);
  }
  endResetModel();
}

QModelIndex ScenarioModel::index(int row, int column, const QModelIndex &parent) const {
  if (!hasIndex(row, column, parent))
    return QModelIndex();
  return createIndex(row, column, parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : OfSection);
}

QModelIndex ScenarioModel::parent(const QModelIndex &child) const {
  if (!child.isValid() || child.internalId() == OfSection)
    return QModelIndex();
  return createIndex(static_cast<int>(child.internalId()) - 1, 0, OfSection);
}

int ScenarioModel::rowCount(const QModelIndex &parent) const {
  if (!parent.isValid())
    return static_cast<int>(m_sections.size());
  if (parent.internalId() != OfSection || parent.column() != NameColumn)
    return 0;
  return static_cast<int>(m_sections[static_cast<std::size_t>(parent.row())].rows.size());
}

int ScenarioModel::columnCount(const QModelIndex & /*parent*/) const {
  return ColumnCount;
}

const ScenarioSummary::Row *ScenarioModel::rowAt(const QModelIndex &index) const {
  if (index.internalId() == OfSection)
    return nullptr;
  return &m_sections[static_cast<std::size_t>(index.internalId()) - 1].rows[static_cast<std::size_t>(index.row())];
}

QString ScenarioModel::text(const ScenarioSummary::Row &row, int column) const {
  switch (column) {
  case NameColumn:
    return shown(row.name);
  case ValueColumn:
    return shown(row.value);
  case SourceColumn:
    return row.source.isEmpty() ? tr("default") : QDir(m_root).relativeFilePath(row.source);
  default:
    return shown(row.comment);
  }
}

QVariant ScenarioModel::data(const QModelIndex &index, int role) const {
  if (!index.isValid())
    return QVariant();
  const ScenarioSummary::Row *row = rowAt(index);
  if (row == nullptr) {
    if (role == Qt::DisplayRole && index.column() == NameColumn)
      return m_sections[static_cast<std::size_t>(index.row())].name;
    if (role == Qt::FontRole) {
      QFont font;
      font.setBold(true);
      return font;
    }
    return QVariant();
  }
  switch (role) {
  case Qt::DisplayRole:
    return text(*row, index.column());
  case Qt::ToolTipRole:
    return PlainTip::of(index.column() == SourceColumn && !row->source.isEmpty() ? row->source : text(*row, index.column()));
  case FilterRole: {
    QStringList all{row->section};
    for (int column = 0; column < ColumnCount; ++column)
      all.append(text(*row, column));
    return all.join(QLatin1Char('\n'));
  }
  default:
    return QVariant();
  }
}

QVariant ScenarioModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
    return QVariant();
  return QStringList{tr("setting"), tr("value"), tr("source"), tr("comment")}.value(section);
}
