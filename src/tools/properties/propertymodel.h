#pragma once

#include "properties/propertylist.h"

#include <tools/groupmodel.h>

using PropertyGroups = NamedGroups<PropertyList::Group, &PropertyList::Group::rows>;

/// The properties of one element below their groups.
class PropertyModel final : public PropertyGroups {
  Q_OBJECT
public:
  enum Columns { PropertyColumn, ValueColumn, UnitColumn };

  explicit PropertyModel(QObject *parent = nullptr);

  void set(std::vector<PropertyList::Group> groups);

protected:
  const std::vector<PropertyList::Group> &groups() const final { return m_groups; }
  QVariant groupData(int group, int column, int role) const final;
  QVariant entryData(int group, int entry, int column, int role) const final;

private:
  std::vector<PropertyList::Group> m_groups;
};
