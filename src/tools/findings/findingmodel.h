#pragma once

#include <tools/findinglist.h>
#include <tools/groupmodel.h>

using FindingGroups = NamedGroups<FindingList::Group, &FindingList::Group::findings>;

/// Findings below the stages that made them.
class FindingModel final : public FindingGroups {
  Q_OBJECT
public:
  enum Columns { TextColumn, ElementColumn, RuleColumn, FileColumn };
  enum Roles { ElementsRole = Qt::UserRole }; ///< names of all elements that a finding is about

  explicit FindingModel(QObject *parent = nullptr);

  void set(std::vector<FindingList::Group> groups);
  const FindingList &list() const { return m_list; }
  using FindingGroups::at;

protected:
  const std::vector<FindingList::Group> &groups() const final { return m_list.groups(); }
  QVariant groupData(int group, int column, int role) const final;
  QVariant entryData(int group, int entry, int column, int role) const final;

private:
  QString text(int group, int entry, int column) const;

  FindingList m_list;
};
