#include "style/boundload.h"

#include <drawing/colormap.h>
#include <drawing/drawfunctions.h>
#include <model/displayunits.h>
#include <model/netmetadata.h>
#include <model/titles.h>

#include <QCoreApplication>
#include <QSet>

#include <algorithm>
#include <array>
#include <set>

namespace {

/// Whether the property tells elements of the collection apart, judged by the first ones that have it.
bool varies(const NetData &net, const elements &collection, const QString &property) {
  constexpr int MostValues = 2000;
  const PropertyKey key = PropertyKey::find(property);
  if (key.isNull())
    return false;
  double first = NetData::NoValue;
  int asked = 0;
  for (const elements::Entry &entry : collection) {
    const double value = net.value(entry.value, key);
    if (value == NetData::NoValue)
      continue;
    if (first == NetData::NoValue)
      first = value;
    else if (value != first)
      return true;
    if (++asked > MostValues)
      break;
  }
  return false;
}

QString firstThatVaries(const NetData &net, const elements &collection, std::initializer_list<const char *> properties) {
  for (const char *property : properties) {
    QString name = QString::fromLatin1(property);
    if (varies(net, collection, name))
      return name;
  }
  return QString();
}

struct NamedFunction {
  const char *name;
  const char *property;
};

constexpr std::array<NamedFunction, 15> NamedFunctions{{{"connectivity", "connectivity"},
                                                        {"accum. length", "acclength"},
                                                        {"mass flow", "m"},
                                                        {"roughness", "roughness"},
                                                        {"demand", "qset"},
                                                        {"volume flow", "q"},
                                                        {"height", "height"},
                                                        {"input temperature", "tin"},
                                                        {"temperature", "t"},
                                                        {"input pressure", "pin"},
                                                        {"pressure", "p"},
                                                        {"temperature diff", "dt"},
                                                        {"pressure diff", "dp"},
                                                        {"pipe length", "length"},
                                                        {"pipe diameter", "diameter"}}};

/// How a property that no element carries comes about, and from which property of the end nodes.
struct ComputedFunction {
  const char *property;
  DrawFunction::Computed computed;
  const char *ofEnds;
};

constexpr std::array<ComputedFunction, 6> ComputedFunctions{{{"connectivity", DrawFunction::Computed::Connectivity, ""},
                                                             {"acclength", DrawFunction::Computed::AccumulatedLength, ""},
                                                             {"pin", DrawFunction::Computed::AtInlet, "p"},
                                                             {"tin", DrawFunction::Computed::AtInlet, "t"},
                                                             {"dp", DrawFunction::Computed::Difference, "p"},
                                                             {"dt", DrawFunction::Computed::Difference, "t"}}};

/// A property of drives alone counts as one of edges: drives are no part of what nodes show.
bool isOfDrivesOnly(const NetMetaData &metaData, const QString &property) {
  const auto &rows = metaData.attributes();
  return std::none_of(rows.begin(), rows.end(), [&](const NetMetaData::Attribute &row) {
    return row.property.compare(property, Qt::CaseInsensitive) == 0 && row.type != QLatin1String("d") &&
           (row.type == QLatin1String("*") || metaData.kindOf(row.type) == NetData::Node);
  });
}

/// Properties that say what or where an element is, or how it looks, though they may be written as numbers.
bool isNoQuantity(const NetMetaData &metaData, const QString &property) {
  static const QSet<QString> categories{QStringLiteral("identity"), QStringLiteral("drawing"), QStringLiteral("position"),
                                        QStringLiteral("topology"), QStringLiteral("check"),   QStringLiteral("state")};
  const QString name = property.toLower();
  if (name.startsWith(QLatin1String("vis.")) || name.startsWith(QLatin1String("figure.")))
    return true;
  const NetMetaData::Attribute *row = metaData.anyAttribute(property);
  return row != nullptr && (row->group == QLatin1String("hidden") || categories.contains(row->category));
}

/// The properties in which some element of the collection holds a number, unless hundreds before it held none. Drives are
/// passed over.
void addNumeric(const elements &collection, std::set<PropertyKey> &numeric) {
  static const PropertyKey type = PropertyKey::intern("type");
  constexpr int MostTries = 500;
  std::vector<int> asked; // by spelling: tries in vain, or MostTries once there was a number
  for (const elements::Entry &entry : collection) {
    const PropertyText *code = entry.value.find(type);
    if (code != nullptr && code->utf8() == "d")
      continue;
    for (const Property &property : entry.value) {
      if (property.key.index() >= asked.size())
        asked.resize(property.key.index() + 1, 0);
      int &count = asked[property.key.index()];
      if (count >= MostTries)
        continue;
      ++count;
      if (NetData::number(&property.value) == NetData::NoValue)
        continue;
      count = MostTries;
      numeric.insert(property.key);
    }
  }
}

/// The names of the properties, without those that have a fixed name and those that are no quantities.
QStringList namesOf(const std::set<PropertyKey> &properties, const NetMetaData &metaData) {
  QStringList names;
  for (const PropertyKey key : properties) {
    const QString name = key.name();
    const bool isFixed = std::any_of(NamedFunctions.begin(), NamedFunctions.end(), [&name](const NamedFunction &named) {
      return name.compare(QLatin1String(named.property), Qt::CaseInsensitive) == 0;
    });
    if (!isFixed && !isNoQuantity(metaData, name))
      names.append(name);
  }
  return names;
}

/// Where values and bounds are there to compute it from.
void addLoad(DrawFunction::OfNetwork &found) {
  const auto haveAll = [](const std::set<PropertyKey> &numbers, std::initializer_list<const char *> names) {
    return std::all_of(names.begin(), names.end(), [&numbers](const char *name) {
      const PropertyKey key = PropertyKey::find(name);
      return !key.isNull() && numbers.count(key) > 0;
    });
  };
  const auto add = [](QStringList &names) {
    if (!names.contains(DrawFunction::load(), Qt::CaseInsensitive))
      names.insert(std::lower_bound(names.begin(), names.end(), DrawFunction::load()), DrawFunction::load());
  };
  if (haveAll(found.numbersOfNodes, {"p", "pmin", "pmax"}))
    add(found.ofNodes);
  if (haveAll(found.numbersOfEdges, {"q", "qmax"}))
    add(found.ofEdges);
}

} // namespace

const QStringList &DrawFunction::fixedNames() {
  static const QStringList names = [] {
    QStringList list;
    for (const NamedFunction &function : NamedFunctions)
      list.append(QString::fromLatin1(function.name));
    return list;
  }();
  return names;
}

QString DrawFunction::propertyName(const QString &function) {
  const auto *found = std::find_if(NamedFunctions.begin(), NamedFunctions.end(), [&function](const NamedFunction &named) {
    return function == QLatin1String(named.name);
  });
  return found == NamedFunctions.end() ? function : QString::fromLatin1(found->property);
}

DrawFunction::OfNetwork DrawFunction::ofNetwork(const NetData &net) {
  OfNetwork found;
  addNumeric(net.nodes(), found.numbersOfNodes);
  addNumeric(net.edges(), found.numbersOfEdges);
  found.ofNodes = namesOf(found.numbersOfNodes, *net.metaData());
  std::set<PropertyKey> ofBoth = found.numbersOfNodes;
  ofBoth.insert(found.numbersOfEdges.begin(), found.numbersOfEdges.end());
  found.ofEdges = namesOf(ofBoth, *net.metaData());
  addLoad(found);
  return found;
}

DrawFunction DrawFunction::find(const QString &function, const NetData &net) {
  const QString name = propertyName(function);
  DrawFunction found;
  found.property = PropertyKey::find(name);
  found.title = function;
  for (const ComputedFunction &known : ComputedFunctions) {
    if (name.compare(QLatin1String(known.property), Qt::CaseInsensitive) != 0)
      continue;
    found.computed = known.computed;
    found.ofEnds = PropertyKey::find(known.ofEnds);
  }
  if (name.compare(load(), Qt::CaseInsensitive) == 0 && BoundLoad::isKnown()) {
    found.computed = Computed::Load;
    found.unit = QStringLiteral("%");
    found.title = QCoreApplication::translate("DrawFunction", "load against the bounds [%]");
  }
  const NetMetaData *metaData = net.metaData();
  found.isOfNodes = metaData->nodeFunctions().contains(name, Qt::CaseInsensitive) && !isOfDrivesOnly(*metaData, name);
  const NetMetaData::Attribute *attribute = metaData->anyAttribute(name);
  if (attribute == nullptr)
    return found;
  found.title = Titles::of(*attribute);
  const DisplayUnits::Shown display = DisplayUnits::of(*attribute);
  found.toDisplay = display.toDisplay;
  found.unit = display.unit;
  found.toTable = DisplayUnits::ofTable(*attribute).toDisplay;
  if (!found.unit.isEmpty())
    found.title += QStringLiteral(" [") + Units::written(found.unit) + QLatin1Char(']');
  return found;
}

void chooseDefaults(PlotSettings &settings, const NetData &net) {
  const QString ofNodes = firstThatVaries(net, net.nodes(), {"p", "height"});
  const QString ofEdges = firstThatVaries(net, net.edges(), {"q", "m", "diameter", "length"});
  const QString width = firstThatVaries(net, net.edges(), {"diameter", "q", "m"});
  const QString color = ofNodes == QLatin1String("p") || ofEdges.isEmpty() ? ofNodes : ofEdges;
  settings.functions[Aspect::EdgeColor].name = color;
  settings.functions[Aspect::EdgeWidth].name = width;
  settings.functions[Aspect::NodeColor].name = ofNodes;
  settings.quantileBounds = true;
  settings.showsLegend = true;
  settings.colorScalePos = 0; // the legend has the colours
  // High values warm, as people expect of pressures, also for who chooses hues instead; of these a darker ramp keeps yellow
  // and cyan readable on white.
  settings.colorRamp = ColorRamp::names().at(static_cast<int>(ColorRamp::Kind::Plasma));
  constexpr int BlueHue = 240;
  constexpr int DarkerLightness = 215;
  settings.firstColor = BlueHue;
  settings.lastColor = 0;
  settings.lightness = DarkerLightness;
  constexpr int DenseLabels = 4; // px: people want to see many labels, and these have a ground of their own
  settings.labelMargin = DenseLabels;
}
