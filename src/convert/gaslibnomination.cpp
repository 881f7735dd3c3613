#include "gaslibnomination.h"

#include <QSet>

#include <algorithm>
#include <iterator>
#include <utility>

GasLibNomination::GasLibNomination(const QString &path, const GasLibNetwork &network)
    : GasLibReader(path)
    , m_network(network) {}

bool GasLibNomination::read() {
  if (!start(QStringLiteral("boundaryValue"), QStringLiteral("Gas")))
    return false;
  while (m_xml.readNextStartElement()) {
    if (m_xml.name() == QLatin1String("scenario"))
      readScenario();
    else
      drop(tr("not known"));
  }
  if (!finish())
    return false;
  if (scenarios.empty())
    tell(tr("The file holds no scenario"), 0);
  return !scenarios.empty() && belongsToNetwork();
}

void GasLibNomination::readScenario() {
  Scenario scenario{attribute("id"), {}};
  report.take(QStringLiteral("scenario"));
  QSet<QString> named; // nodes and pipes may be named alike
  while (m_xml.readNextStartElement()) {
    const QString kind = m_xml.name().toString();
    const QString name = attribute("id");
    const bool isPipe = kind == QLatin1String("pipe");
    if (kind != QLatin1String("node") && !isPipe) {
      drop(tr("has no place in a scenario"));
    } else if (name.isEmpty() || named.contains(kind + name)) {
      tell(name.isEmpty() ? tr("A %1 without id is left out").arg(kind)
                          : tr("%1 is named again; what follows is left out").arg(name));
      drop(tr("named twice or not at all"));
    } else {
      named.insert(kind + name);
      isPipe ? readPipe(scenario) : readNode(scenario);
    }
  }
  scenarios.push_back(std::move(scenario));
}

/// Pipes come in with the temperature of their soil.
void GasLibNomination::readPipe(Scenario &scenario) {
  const QString name = attribute("id");
  // A set point names its element alone, and nodes come first.
  if (m_network.kindOfConnection(name) != QLatin1String("pipe") || !m_network.kindOf(name).isEmpty()) {
    tell(tr("%1 is no pipe of the network; what is said of it is left out").arg(name));
    drop(tr("not in the network"));
    return;
  }
  report.take(QStringLiteral("pipe"));
  while (m_xml.readNextStartElement()) {
    if (m_xml.name() != QLatin1String("soilTemperature"))
      drop(tr("not known"));
    else if (const auto temperature = number("K"))
      set(scenario, name, "tsoil", *temperature, "K");
  }
}

void GasLibNomination::readNode(Scenario &scenario) {
  const QString node = attribute("id");
  const QString type = attribute("type");
  const QString kind = m_network.kindOf(node);
  ++m_nodes;
  if (kind.isEmpty()) {
    ++m_unknown;
    tell(tr("%1 is no node of the network; what is said of it is left out").arg(node));
    drop(tr("not in the network"));
    return;
  }
  bool isEntry = type == QLatin1String("entry");
  if (!isEntry && type != QLatin1String("exit")) {
    isEntry = kind == QLatin1String("source");
    tell(tr("%1 is neither entry nor exit but \"%2\"; it counts as the %3 that it is").arg(node, type, kind));
  } else if (kind == (isEntry ? QLatin1String("sink") : QLatin1String("source"))) {
    ++m_otherwise;
    tell(tr("%1 is an %2 in the nomination and a %3 of the network; the nomination holds").arg(node, type, kind));
  }
  report.take(QStringLiteral("node"));
  Bounds flow;
  Bounds pressure;
  const Units::Gas gas = m_network.conversionGas(node);
  while (m_xml.readNextStartElement()) {
    if (m_xml.name() == QLatin1String("flow"))
      readBound(flow, "1000 m3/h", gas, isEntry); // what leaves the network counts
    else if (m_xml.name() == QLatin1String("pressure"))
      readBound(pressure, "bar", gas, false);
    else
      readQuality(scenario, node);
  }
  if (isEntry)
    std::swap(flow.lower, flow.upper);
  set(scenario, node, 'p', pressure, "bar");
  set(scenario, node, 'q', flow, "1000 m3/h");
}

/// What a supply is said to deliver.
void GasLibNomination::readQuality(Scenario &scenario, const QString &node) {
  struct Known {
    const char *element;
    const char *property;
    const char *unit;
  };
  static constexpr Known known[] = {{"gasTemperature", "tset", "degC"},
                                    {"calorificValue", "hs", "MJ/m3"},
                                    {"normDensity", "rhon", "kg/m3"},
                                    {"molarMass", "molarmass", "g/mol"}};
  const auto found = std::find_if(std::begin(known), std::end(known),
                                  [this](const Known &one) { return m_xml.name() == QLatin1String(one.element); });
  if (found == std::end(known))
    drop(tr("not known"));
  else if (const auto value = number(found->unit))
    set(scenario, node, found->property, *value, found->unit);
}

void GasLibNomination::readBound(Bounds &bounds, const char *unit, const Units::Gas &gas, bool isNegated) {
  const QString bound = attribute("bound");
  const bool isBoth = bound == QLatin1String("both") || bound.isEmpty();
  const bool isLower = bound == QLatin1String("lower");
  if (!isBoth && !isLower && bound != QLatin1String("upper")) {
    tell(tr("The bound \"%1\" is neither lower, upper nor both; it is left out").arg(bound));
    drop(tr("the bound \"%1\"").arg(bound));
    return;
  }
  const std::optional<GasLibUnits::Number> value = number(unit, gas, isNegated);
  if (!value)
    return;
  if (isBoth || isLower)
    bounds.lower = value;
  if (isBoth || !isLower)
    bounds.upper = value;
}

void GasLibNomination::set(Scenario &scenario, const QString &node, const char *property, const GasLibUnits::Number &number,
                           const char *unit) {
  NetworkRecord::Value value{PropertyKey::intern(property), number.text, true};
  scenario.setPoints.push_back({node, std::move(value), QString::fromLatin1(unit)});
}

/// Bounds that meet are a set value.
void GasLibNomination::set(Scenario &scenario, const QString &node, char quantity, const Bounds &bounds, const char *unit) {
  const std::string name(1, quantity);
  if (bounds.lower && bounds.upper && bounds.lower->value == bounds.upper->value) {
    set(scenario, node, (name + "set").c_str(), *bounds.lower, unit);
    return;
  }
  if (bounds.lower)
    set(scenario, node, (name + "min").c_str(), *bounds.lower, unit);
  if (bounds.upper)
    set(scenario, node, (name + "max").c_str(), *bounds.upper, unit);
}

/// Single nodes may be wrong; a file most of whose nodes are is that of another network. So is a long one that leaves most
/// entries and exits without a word: networks of one family number their nodes alike.
bool GasLibNomination::belongsToNetwork() {
  constexpr int Long = 10; // a shorter one may have been written by hand for some of the nodes
  const auto count = static_cast<int>(scenarios.size());
  const int known = m_nodes - m_unknown;
  const int ends = m_network.boundaryNodes() * count;
  const bool isOfOthers = 2 * (m_unknown + m_otherwise) > m_nodes;
  if (isOfOthers || (m_nodes >= Long * count && 2 * known < ends)) {
    tell(tr("The nomination belongs to another network: of its %1 nodes %2 are not there and %3 are of the other kind, and "
            "the network has %4 entries and exits")
             .arg(m_nodes)
             .arg(m_unknown)
             .arg(m_otherwise)
             .arg(ends),
         0);
    return false;
  }
  if (known < ends)
    tell(tr("The nomination names %1 of the %2 entries and exits of the network").arg(known).arg(ends), 0);
  return true;
}
