#include "findings/findingfilter.h"

#include "findings/findingmodel.h"

FindingFilter::FindingFilter(FindingModel &findings, QObject *parent)
    : QSortFilterProxyModel(parent)
    , m_findings(findings) {
  setRecursiveFilteringEnabled(true); // a stage is shown for its findings
  setSourceModel(&findings);
}

void FindingFilter::setText(const QString &text) {
  m_text = text;
  invalidate();
}

void FindingFilter::setGroup(const QString &name) {
  m_group = name;
  invalidate();
}

int FindingFilter::count() const {
  int count = 0;
  for (int group = 0; group < rowCount(); ++group)
    count += rowCount(index(group, 0));
  return count;
}

QVariant FindingFilter::data(const QModelIndex &index, int role) const {
  QVariant data = QSortFilterProxyModel::data(index, role);
  const bool isStage = index.isValid() && !index.parent().isValid();
  if (role != Qt::DisplayRole || !isStage || index.column() != FindingModel::TextColumn)
    return data;
  return tr("%1 (%2)").arg(data.toString()).arg(rowCount(index));
}

bool FindingFilter::filterAcceptsRow(int row, const QModelIndex &parent) const {
  const FindingList::Group &group = m_findings.at(parent.isValid() ? parent.row() : row);
  if (!m_group.isEmpty() && group.name != m_group)
    return false;
  if (m_text.isEmpty())
    return true;
  return parent.isValid() && (FindingList::says(m_findings.at(parent.row(), row), m_text) ||
                              (group.isRule() && group.name.contains(m_text, Qt::CaseInsensitive)));
}
