#pragma once

#include "properties/propertylist.h"

#include <base/index.h>
#include <tools/groupmodel.h>

/// The properties of one element below their groups.
class PropertyModel final : public GroupModel {
  Q_OBJECT
public:
  enum Columns { PropertyColumn, ValueColumn, UnitColumn };

  explicit PropertyModel(QObject *parent = nullptr);

  void set(std::vector<PropertyList::Group> groups);

protected:
  int groupCount() const final;
  int entryCount(int group) const final;
  QVariant groupData(int group, int column, int role) const final;
  QVariant entryData(int group, int entry, int column, int role) const final;

private:
  const PropertyList::Group &at(int group) const { return m_groups[fromQt(group)]; }

  std::vector<PropertyList::Group> m_groups;
};
