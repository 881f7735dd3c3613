#include "elementtable/propertycensus.h"

#include <model/elementtypes.h>
#include <model/names.h>
#include <model/netdata.h>
#include <model/titles.h>
#include <tools/searchcriteria.h>

#include <algorithm>
#include <map>

namespace {

QString titleOf(const QString &code) {
  const ElementType *type = ElementTypes::byCode(code);
  QString title = type == nullptr ? code : Titles::ofSeveral(*type);
  if (!title.isEmpty())
    title[0] = title[0].toUpper();
  return title;
}

/// Where the type stands in the list of all.
std::ptrdiff_t placeOf(const QString &code) {
  const auto &all = ElementTypes::all();
  return std::find_if(all.begin(), all.end(), [&](const ElementType &type) { return type.code == code; }) - all.begin();
}

} // namespace

PropertyCensus::PropertyCensus(NetData &net) {
  for (const auto &[kind, collection] : net.typeMap()) {
    for (const elements::Entry &entry : *collection)
      add(entry.value, kind);
  }
}

void PropertyCensus::add(const element &source, ElementKinds::EleType kind) {
  const PropertyText *code = source.find(Names::all().type);
  const QString type = code == nullptr ? QString() : code->toString();
  auto counted =
      std::find_if(m_types.rbegin(), m_types.rend(), [&](const Counted &known) { return known.type.code == type; });
  if (counted == m_types.rend()) {
    m_types.push_back({{type, titleOf(type), kind, 0}, {}});
    counted = m_types.rbegin();
  }
  ++counted->type.count;
  for (const ::Property &property : source) {
    const std::size_t key = property.key.index();
    if (key >= counted->byKey.size())
      counted->byKey.resize(key + 1);
    if (key >= m_keys.size())
      m_keys.resize(key + 1);
    ++counted->byKey[key];
    m_keys[key] = property.key;
  }
}

std::vector<PropertyCensus::Type> PropertyCensus::types() const {
  std::vector<Type> types;
  for (const Counted &counted : m_types)
    types.push_back(counted.type);
  std::stable_sort(types.begin(), types.end(),
                   [](const Type &a, const Type &b) { return placeOf(a.code) < placeOf(b.code); });
  return types;
}

std::vector<PropertyCensus::Property> PropertyCensus::properties(const QStringList &types) const {
  std::map<PropertyKey, Index> counts; // spellings of one name are one property
  for (const Counted &counted : m_types) {
    if (!types.contains(counted.type.code))
      continue;
    for (std::size_t key = 0; key < counted.byKey.size(); ++key) {
      if (counted.byKey[key] > 0 && !SearchedProperties::isNeverSearched(m_keys[key]))
        counts[m_keys[key]] += counted.byKey[key];
    }
  }
  std::vector<Property> properties;
  properties.reserve(counts.size());
  for (const auto &[key, count] : counts)
    properties.push_back({key, count});
  return properties;
}
