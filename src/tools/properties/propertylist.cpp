#include "properties/propertylist.h"

#include <model/displayformat.h>
#include <model/names.h>
#include <tools/searchcriteria.h>

#include <QRegularExpression>

#include <algorithm>

namespace {

const QString Favorites = QStringLiteral("favorites");
const QString Hidden = QStringLiteral("hidden");
const QString Extra = QStringLiteral("extra");

bool isSubnet(const QString &type) {
  return type.compare(QLatin1String("sub"), Qt::CaseInsensitive) == 0;
}

/// Says something of another property: its unit, bounds, default and so on.
bool isCompanion(const QString &property) {
  static const QRegularExpression Suffix(QStringLiteral("[.](unit|minval|maxval|default|cat|rules|text|tooltip)$"),
                                         QRegularExpression::CaseInsensitiveOption);
  return Suffix.match(property).hasMatch();
}

} // namespace

QString PropertyList::groupOf(const element &shown, const QString &type, const QString &property) const {
  if (isSubnet(type)) {
    if (property.compare(QLatin1String("subassemblies"), Qt::CaseInsensitive) == 0 ||
        SearchedProperties::isNeverSearched(PropertyKey::find(property)) || isCompanion(property))
      return QString();
    const PropertyText *group = shown.find(property + QStringLiteral(".cat"));
    return group == nullptr ? Extra : group->toString();
  }
  const NetMetaData::Attribute *attribute = m_metaData.attribute(type, property);
  return attribute == nullptr ? Extra : attribute->group;
}

PropertyList::Row PropertyList::rowOf(const QString &type, const Property &property) {
  constexpr int LongestText = 15;
  const QString name = property.key.name();
  const bool isText = name.startsWith(QLatin1String("vis.")) || name.endsWith(QLatin1String(".text"));
  const bool isRaw = isText || name.contains(QLatin1String(".transient"), Qt::CaseInsensitive);
  const DisplayValue::Shown shown = m_display.of(type, property.key, property.value);
  Row row{name, isRaw ? property.value.toString() : shown.value, shown.unit, false};
  row.isLong = isText || DisplayFormat::shown(row.value, false).size() > LongestText;
  return row;
}

std::vector<PropertyList::Group> PropertyList::of(const element &shown) {
  const QString type = shown.value(Names::all().type);
  std::vector<Group> groups;
  if (!isSubnet(type))
    groups.push_back({Favorites, {}});
  for (const QString &name : {QStringLiteral("scenario"), QStringLiteral("geometry"), QStringLiteral("results"), Extra})
    groups.push_back({name, {}});
  if (m_showsHidden)
    groups.push_back({Hidden, {}});
  const auto find = [&groups](const QString &name) {
    return std::find_if(groups.begin(), groups.end(), [&name](const Group &group) { return group.name == name; });
  };
  for (const Property &property : shown) {
    const QString name = groupOf(shown, type, property.key.name());
    if (name.isEmpty() || (name == Hidden && !m_showsHidden))
      continue;
    auto group = find(name);
    if (group == groups.end())
      group = find(Extra); // a group that is not listed, such as that of gas data
    group->rows.push_back(rowOf(type, property));
    const NetMetaData::Attribute *attribute = m_metaData.attribute(type, property.key.name());
    if (!isSubnet(type) && attribute != nullptr && attribute->favourite)
      groups.front().rows.push_back(group->rows.back());
  }
  return groups;
}
