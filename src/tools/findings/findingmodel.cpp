#include "findings/findingmodel.h"

#include <tools/plaintip.h>

namespace {

QString text(const Finding &finding, int column) {
  switch (column) {
  case FindingModel::TextColumn:
    return finding.text;
  case FindingModel::ElementColumn:
    return finding.element;
  default:
    return FindingList::location(finding);
  }
}

} // namespace

FindingModel::FindingModel(QObject *parent)
    : GroupModel({tr("finding"), tr("element"), tr("file")}, parent) {}

void FindingModel::set(std::vector<FindingList::Group> groups) {
  beginResetModel();
  m_list.set(std::move(groups));
  endResetModel();
}

int FindingModel::groupCount() const {
  return toQt(m_list.groups().size());
}

int FindingModel::entryCount(int group) const {
  return toQt(at(group).findings.size());
}

QVariant FindingModel::groupData(int group, int column, int role) const {
  if (role == Qt::DisplayRole && column == TextColumn)
    return at(group).name;
  return role == Qt::FontRole ? boldFont() : QVariant();
}

QVariant FindingModel::entryData(int group, int entry, int column, int role) const {
  const Finding &finding = at(group).findings[fromQt(entry)];
  switch (role) {
  case Qt::DisplayRole:
    return text(finding, column);
  case Qt::ToolTipRole:
    return column == ElementColumn ? QVariant() : PlainTip::of(column == TextColumn ? finding.text : finding.logText());
  default:
    return QVariant();
  }
}
