#include "scenariomodel.h"

#include <tools/plaintip.h>

#include <QDir>

ScenarioModel::ScenarioModel(QObject *parent)
    : GroupModel({tr("setting"), tr("value"), tr("source"), tr("comment")}, parent) {}

QString ScenarioModel::shortened(const QString &text) {
  constexpr int LongestCell = 10000;
  return text.size() > LongestCell ? text.left(LongestCell) + QStringLiteral("…") : text;
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

int ScenarioModel::groupCount() const {
  return toQt(m_sections.size());
}

int ScenarioModel::entryCount(int group) const {
  return toQt(at(group).rows.size());
}

QString ScenarioModel::text(const ScenarioSummary::Row &row, int column) const {
  switch (column) {
  case NameColumn:
    return shortened(row.name);
  case ValueColumn:
    return shortened(row.value);
  case SourceColumn:
    return row.source.isEmpty() ? tr("default") : QDir(m_root).relativeFilePath(row.source);
  default:
    return shortened(row.comment);
  }
}

QVariant ScenarioModel::groupData(int group, int column, int role) const {
  if (role == Qt::DisplayRole && column == NameColumn)
    return at(group).name;
  return role == Qt::FontRole ? boldFont() : QVariant();
}

QVariant ScenarioModel::entryData(int group, int entry, int column, int role) const {
  const ScenarioSummary::Row &row = at(group).rows[fromQt(entry)];
  switch (role) {
  case Qt::DisplayRole:
    return text(row, column);
  case Qt::ToolTipRole:
    return PlainTip::of(column == SourceColumn && !row.source.isEmpty() ? row.source : text(row, column));
  case FilterRole: {
    QStringList all{row.section};
    for (int shownColumn = 0; shownColumn < columnCount(); ++shownColumn)
      all.append(text(row, shownColumn));
    return all.join(QLatin1Char('\n'));
  }
  default:
    return QVariant();
  }
}
