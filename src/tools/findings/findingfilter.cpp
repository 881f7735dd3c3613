#include "findings/findingfilter.h"

#include "findings/findingmodel.h"

#include <base/index.h>

#include <algorithm>

FindingFilter::FindingFilter(FindingModel &findings, QObject *parent)
    : QSortFilterProxyModel(parent)
    , m_findings(findings) {
  setSourceModel(&findings);
}

void FindingFilter::setText(const QString &text) {
  m_text = text;
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
  const std::vector<FindingList::Group> &groups = m_findings.list().groups();
  const auto says = [this](const Finding &finding) {
    return FindingList::says(finding, m_text);
  };
  if (m_text.isEmpty())
    return true;
  if (parent.isValid())
    return says(groups[fromQt(parent.row())].findings[fromQt(row)]);
  const Findings &findings = groups[fromQt(row)].findings;
  return std::any_of(findings.begin(), findings.end(), says);
}
