#include "findings/findingmodel.h"

#include <tools/plaintip.h>

FindingModel::FindingModel(QObject *parent)
    : FindingGroups({tr("finding"), tr("element"), tr("rule"), tr("file")}, parent) {}

void FindingModel::set(std::vector<FindingList::Group> groups) {
  beginResetModel();
  m_list.set(std::move(groups));
  endResetModel();
}

QVariant FindingModel::groupData(int group, int column, int role) const {
  const FindingList::Group &shown = at(group);
  if (role == Qt::DisplayRole && column == TextColumn && shown.isRule())
    return QStringLiteral("%1: %2").arg(shown.name, shown.title);
  return FindingGroups::groupData(group, column, role);
}

QString FindingModel::text(int group, int entry, int column) const {
  const Finding &finding = at(group, entry);
  switch (column) {
  case TextColumn:
    return finding.text;
  case ElementColumn: {
    const int others = FindingList::elements(at(group), entry).size() - 1;
    return others > 0 ? tr("%1 and %2 more").arg(finding.element).arg(others) : finding.element;
  }
  case RuleColumn:
    return at(group).isRule() ? at(group).name : QString();
  default:
    return FindingList::location(finding);
  }
}

QVariant FindingModel::entryData(int group, int entry, int column, int role) const {
  const Finding &finding = at(group, entry);
  switch (role) {
  case Qt::DisplayRole:
    return text(group, entry, column);
  case ElementsRole:
    return FindingList::elements(at(group), entry);
  case Qt::ToolTipRole:
    if (column == RuleColumn)
      return PlainTip::of(at(group).title);
    return column == ElementColumn ? QVariant() : PlainTip::of(column == TextColumn ? finding.text : finding.logText());
  default:
    return QVariant();
  }
}
