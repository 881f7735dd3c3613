#include "balance/groupingchoice.h"

#include <model/names.h>
#include <tools/vectorrows.h>

#include <QHash>
#include <QMap>
#include <QSet>

#include <algorithm>

namespace {

QString zone() {
  return QStringLiteral("zone");
}

QString layer() {
  return Names::all().layer.name();
}

/// Names are as many as nodes, and what tells of the drawing says nothing of flows.
bool isGroup(const QString &property) {
  static const QStringList others{QStringLiteral("name"),  QStringLiteral("type"),    QStringLiteral("alias"),
                                  QStringLiteral("text"),  QStringLiteral("comment"), QStringLiteral("CB_info"),
                                  QStringLiteral("refEle")};
  return !others.contains(property, Qt::CaseInsensitive) &&
         !property.startsWith(QLatin1String("vis."), Qt::CaseInsensitive) &&
         !property.startsWith(QLatin1String("figure."), Qt::CaseInsensitive) &&
         property.compare(zone(), Qt::CaseInsensitive) != 0;
}

} // namespace

QString GroupingChoice::title() const {
  switch (by) {
  case By::Whole:
    return tr("Whole network");
  case By::Part:
    return tr("Connected part");
  case By::Category:
    return tr("Category");
  default:
    break;
  }
  if (property == layer())
    return tr("Layer (%1)").arg(property);
  return property == zone() ? tr("Zone (%1)").arg(property) : property;
}

QString GroupingChoice::key() const {
  return QString::number(static_cast<int>(by)) + property;
}

Grouping GroupingChoice::grouping(NetData &net, const NetworkFacts &facts, const std::vector<Category> &categories) const {
  switch (by) {
  case By::Whole:
    return Grouping::whole(facts);
  case By::Part:
    return Grouping::byPart(facts);
  case By::Category:
    return byCategory(net, facts, categories);
  default:
    return Grouping::byProperty(facts, PropertyKey::find(property));
  }
}

std::vector<GroupingChoice> GroupingChoice::all(const NetworkFacts &facts, bool hasCategories) {
  std::vector<GroupingChoice> choices{{By::Property, layer()}, {By::Property, zone()}};
  if (hasCategories)
    choices.push_back({By::Category});
  choices.push_back({By::Part});
  choices.push_back({By::Whole});
  for (const QString &property : textProperties(facts))
    choices.push_back({By::Property, property});
  return choices;
}

/// Of some nodes all over the network: whoever groups by a property has it at many.
QStringList GroupingChoice::textProperties(const NetworkFacts &facts) {
  constexpr std::size_t MostNodes = 2000;
  const std::size_t step = std::max<std::size_t>(1, facts.nodes().size() / MostNodes);
  QMap<QString, QString> found; // by folded name
  for (std::size_t i = 0; i < facts.nodes().size(); i += step) {
    for (const Property &property : facts.nodes()[i].entry->value) {
      const QString name = property.key.name();
      if (isGroup(name) && !property.value.toDouble())
        found.insert(name.toCaseFolded(), name);
    }
  }
  return found.values();
}

Grouping GroupingChoice::byCategory(NetData &net, const NetworkFacts &facts, const std::vector<Category> &categories) {
  QHash<QString, Index> positions;
  positions.reserve(toQt(facts.nodes().size()));
  for (Index i = 0; i < facts.nodes().size(); ++i)
    positions.insert(facts.nodes()[i].entry->name(), i);
  Grouping grouping;
  const Index none = toIndex(categories.size());
  grouping.of.assign(facts.nodes().size(), none);
  VectorRows rows(net);
  for (Index i = 0; i < categories.size(); ++i) {
    VectorRows::Request request;
    request.usesProperty = false;
    request.category = CategoryFile::toMap({categories[i]}).first();
    for (const VectorRows::Row &row : rows.build(request)) {
      const auto position = positions.constFind(row.name);
      if (position != positions.constEnd() && grouping.of[*position] == none)
        grouping.of[*position] = i;
    }
    grouping.names.append(categories[i].category);
  }
  grouping.names.append(tr("(none)"));
  return grouping;
}
