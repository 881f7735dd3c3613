#include <model/displayunits.h>
#include <model/netdata.h>
#include <model/netmetadata.h>
#include <model/quantities.h>
#include <model/titles.h>

#include <map>
#include <scenarioset/scenarioset.h>
#include <scenarioset/setproperties.h>
#include <set>

namespace {

using Kind = SetStatistic::Kind;

PropertyText textOf(const ScenarioSet &set, const SetFigures &figures, Kind kind) {
  constexpr int Digits = 12; // of what is computed
  if (SetStatistic::isScenario(kind))
    return PropertyText(set.scenarioName(kind == Kind::MinimumAt ? figures.minimumAt : figures.maximumAt));
  const double number = SetStatistic::of(figures, kind);
  const bool isGiven = kind == Kind::Minimum || kind == Kind::Maximum;
  return isGiven ? PropertyText::shortest(number) : PropertyText::ofNumber(number, Digits);
}

/// The row of a figure: like that of its property, but for what only the figure is.
NetMetaData::Attribute rowOf(const NetMetaData::Attribute *source, const QString &type, const QString &property, Kind kind) {
  NetMetaData::Attribute row;
  const bool hasUnit = source != nullptr && kind != Kind::Count && !SetStatistic::isScenario(kind);
  if (hasUnit) {
    row.storedUnit = source->storedUnit;
    row.displayUnit = source->displayUnit;
    row.quantity = source->quantity;
  }
  if (hasUnit && SetStatistic::isDifference(kind) && !Quantities::isDifference(row.quantity)) {
    const QString difference = row.quantity + QStringLiteral(" difference");
    const bool isKnown = Quantities::find(difference) != nullptr;
    row.quantity = isKnown ? difference : row.quantity;
    if (!isKnown && DisplayUnits::of(*source).toDisplay.offset != 0.0L)
      row.quantity.clear();
    if (DisplayUnits::ofTable(*source).toDisplay.offset != 0.0L)
      row.displayUnit = row.storedUnit;
  }
  row.type = type;
  row.property = SetStatistic::propertyName(property, kind);
  row.longName = QStringLiteral("%1, %2").arg(source == nullptr ? property : Titles::of(*source), SetStatistic::title(kind));
  row.group = QStringLiteral("results");
  row.category = SetStatistic::isScenario(kind) ? QStringLiteral("identity") : QStringLiteral("function");
  row.description = SetStatistic::title(kind) + QStringLiteral(": ") + property;
  return row;
}

} // namespace

std::vector<ElementChange> SetProperties::put(const ScenarioSet &set, const std::vector<Kind> &kinds, NetData &net) {
  std::vector<ElementChange> changes = takeOut(net);
  m_leftOut.clear();
  const std::vector<PropertyKey> present = net.propertyKeys();
  const std::set<PropertyKey> taken(present.begin(), present.end());
  const std::vector<Index> columns = set.sortedColumns();
  std::map<QString, std::vector<Index>> byProperty;
  for (const Index column : columns)
    byProperty[set.propertyName(column)].push_back(column);
  for (const auto &[property, ofProperty] : byProperty) {
    QStringList names;
    for (const Index column : ofProperty)
      names.append(set.elementName(column));
    std::vector<PropertyKey> keys(kinds.size());
    for (std::size_t i = 0; i < kinds.size(); ++i) {
      const QString name = SetStatistic::propertyName(property, kinds[i]);
      const PropertyKey key = PropertyKey::intern(name);
      if (taken.count(key) > 0) {
        m_leftOut.append(name);
        continue;
      }
      keys[i] = key;
      m_put.push_back({names, key});
    }
    for (std::size_t row = 0; row < ofProperty.size(); ++row) {
      element *target = net.element(names[toQt(row)]);
      const SetFigures figures = set.figures(ofProperty[row]);
      if (target == nullptr || figures.count == 0)
        continue;
      for (std::size_t i = 0; i < kinds.size(); ++i) {
        if (!keys[i].isNull())
          target->set(keys[i], textOf(set, figures, kinds[i]));
      }
    }
  }
  describe(set, kinds, net);
  changes.insert(changes.end(), m_put.begin(), m_put.end());
  return changes;
}

std::vector<ElementChange> SetProperties::takeOut(NetData &net) {
  for (const ElementChange &change : m_put) {
    for (const QString &name : change.elements) {
      if (element *target = net.element(name))
        target->erase(change.property);
    }
  }
  return std::exchange(m_put, {});
}

void SetProperties::describe(const ScenarioSet &set, const std::vector<Kind> &kinds, NetData &net) {
  auto metaData = std::make_shared<NetMetaData>(*net.metaData());
  std::set<std::pair<QString, QString>> described;
  for (Index column = 0; column < set.columns().size(); ++column) {
    const QString &type = set.elementType(column);
    const QString &property = set.propertyName(column);
    if (!described.insert({type, property}).second)
      continue;
    for (const Kind kind : kinds) {
      if (metaData->attribute(type, SetStatistic::propertyName(property, kind)) == nullptr)
        metaData->add(rowOf(metaData->attribute(type, property), type, property, kind));
    }
  }
  net.setMetaData(metaData);
}
