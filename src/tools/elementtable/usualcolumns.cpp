#include "elementtable/usualcolumns.h"

#include <model/names.h>
#include <model/netmetadata.h>
#include <model/titles.h>
#include <model/units.h>
#include <tools/displayvalue.h>

#include <algorithm>

std::vector<PropertyKey> UsualColumns::of(const PropertyCensus &census, const NetMetaData &metaData,
                                          const QStringList &types) {
  constexpr std::size_t MostColumns = 12;
  constexpr std::size_t FewColumns = 3;
  constexpr Index Many = 3; // one of so many elements
  const std::vector<PropertyCensus::Property> there = census.properties(types);
  Index count = 0;
  for (const PropertyCensus::Type &type : census.types())
    count += types.contains(type.code) ? type.count : 0;
  std::vector<PropertyKey> columns;
  if (types.size() > 1)
    columns.push_back(Names::all().type);
  const auto add = [&](PropertyKey key, Index least) {
    const auto found = std::find_if(there.begin(), there.end(), [key](const auto &property) { return property.key == key; });
    if (key != Names::all().name && found != there.end() && found->count >= least && columns.size() < MostColumns &&
        std::find(columns.begin(), columns.end(), key) == columns.end())
      columns.push_back(key);
  };
  for (const NetMetaData::Attribute &attribute : metaData.attributes()) {
    if (attribute.favourite && types.contains(attribute.type))
      add(PropertyKey::find(attribute.property), types.size() > 1 ? count / Many : 1);
  }
  for (const PropertyCensus::Property &property : there) {
    if (columns.size() < FewColumns && property.key != Names::all().type)
      add(property.key, 1);
  }
  return columns;
}

std::vector<ColumnList::Entry> UsualColumns::entries(const PropertyCensus &census, const NetMetaData &metaData,
                                                     const QStringList &types) {
  DisplayValue display(metaData);
  std::vector<ColumnList::Entry> entries;
  for (const PropertyCensus::Property &property : census.properties(types)) {
    if (property.key == Names::all().name)
      continue;
    ColumnList::Entry entry;
    entry.key = property.key;
    entry.count = property.count;
    for (const QString &type : types) {
      const NetMetaData::Attribute *attribute = metaData.attribute(type, property.key.name());
      if (entry.meaning.isEmpty() && attribute != nullptr)
        entry.meaning = Titles::of(*attribute);
      if (entry.unit.isEmpty())
        entry.unit = Units::written(display.unit(type, property.key));
    }
    entries.push_back(entry);
  }
  return entries;
}
