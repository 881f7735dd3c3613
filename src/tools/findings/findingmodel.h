#pragma once

#include <base/index.h>
#include <tools/findinglist.h>
#include <tools/groupmodel.h>

/// Findings below the stages that made them.
class FindingModel final : public GroupModel {
  Q_OBJECT
public:
  enum Columns { TextColumn, ElementColumn, FileColumn };

  explicit FindingModel(QObject *parent = nullptr);

  void set(std::vector<FindingList::Group> groups);
  const FindingList &list() const { return m_list; }

protected:
  int groupCount() const final;
  int entryCount(int group) const final;
  QVariant groupData(int group, int column, int role) const final;
  QVariant entryData(int group, int entry, int column, int role) const final;

private:
  const FindingList::Group &at(int group) const { return m_list.groups()[fromQt(group)]; }

  FindingList m_list;
};
