#include "gaslibnetwork.h"

#include "nodeplaces.h"

#include <model/names.h>

#include <algorithm>
#include <iterator>

namespace {

/// So that the layers of an imported network are worth having.
QString layerOf(const QString &kind) {
  static const QHash<QString, QString> layers{{QStringLiteral("source"), QStringLiteral("entries")},
                                              {QStringLiteral("sink"), QStringLiteral("exits")},
                                              {QStringLiteral("innode"), QStringLiteral("junctions")},
                                              {QStringLiteral("pipe"), QStringLiteral("pipes")}};
  return layers.value(kind, QStringLiteral("stations"));
}

/// The type words of connections.
QString wordOf(const QString &kind) {
  static const QHash<QString, QString> words{{QStringLiteral("pipe"), QStringLiteral("pipe")},
                                             {QStringLiteral("shortPipe"), QStringLiteral("shortcut")},
                                             {QStringLiteral("resistor"), QStringLiteral("resistor")},
                                             {QStringLiteral("valve"), QStringLiteral("valve")},
                                             {QStringLiteral("controlValve"), QStringLiteral("regulator")},
                                             {QStringLiteral("compressorStation"), QStringLiteral("compressor")}};
  return words.value(kind);
}

} // namespace

bool GasLibNetwork::read() {
  if (!start(QStringLiteral("network"), QStringLiteral("Gas")))
    return false;
  while (m_xml.readNextStartElement()) {
    if (m_xml.name() == QLatin1String("nodes"))
      readNodes();
    else if (m_xml.name() == QLatin1String("connections"))
      readConnections();
    else if (m_xml.name() == QLatin1String("information"))
      readInformation();
    else
      drop(tr("not known"));
  }
  if (!finish())
    return false;
  leaveOutLooseEnds();
  placeNodes();
  return !nodes.empty();
}

void GasLibNetwork::readInformation() {
  while (m_xml.readNextStartElement()) {
    const QString kind = m_xml.name().toString();
    report.take(kind);
    information.insert(kind, m_xml.readElementText(QXmlStreamReader::SkipChildElements).simplified());
  }
}

/// Whether an element can become a record; else it is told and left out. Names are one regardless of case.
bool GasLibNetwork::isUsable(const QString &kind, bool isKnown, QHash<QString, int> &names) {
  const QString name = attribute("id");
  QString why;
  if (!isKnown)
    why = tr("The element %1 is not known and left out").arg(kind);
  else if (name.isEmpty())
    why = tr("A %1 without id is left out").arg(kind);
  else if (names.contains(name.toLower()))
    why = tr("%1 is left out: one of this name, regardless of case, stands in line %2")
              .arg(name)
              .arg(names.value(name.toLower()));
  if (why.isEmpty()) {
    names.insert(name.toLower(), static_cast<int>(m_xml.lineNumber()));
    return true;
  }
  tell(why);
  drop(isKnown ? tr("without a name of its own") : tr("not known"));
  return false;
}

void GasLibNetwork::readAttributes(Record &record, const std::vector<Attribute> &known) {
  static const QStringList read{QStringLiteral("id"),          QStringLiteral("from"), QStringLiteral("to"),
                                QStringLiteral("x"),           QStringLiteral("y"),    QStringLiteral("geoWGS84Lat"),
                                QStringLiteral("geoWGS84Long")};
  for (const QXmlStreamAttribute &attribute : m_xml.attributes()) {
    const QString name = attribute.name().toString();
    const QString value = attribute.value().toString();
    const auto found =
        std::find_if(known.begin(), known.end(), [&name](const Attribute &one) { return name == QLatin1String(one.name); });
    if (value.isEmpty() || read.contains(name))
      continue;
    if (found == known.end()) {
      report.drop(name, tr("not known"));
      continue;
    }
    report.take(name);
    add(record, found->property, value);
  }
}

void GasLibNetwork::readValues(Record &record, const std::vector<Known> &known) {
  while (m_xml.readNextStartElement()) {
    const auto found = std::find_if(known.begin(), known.end(),
                                    [this](const Known &one) { return m_xml.name() == QLatin1String(one.element); });
    if (found == known.end())
      drop(tr("not known"));
    else if (const auto value = number(found->unit, {}, found->isNegated))
      add(record, found->property, *value);
  }
}

void GasLibNetwork::readNodes() {
  static const std::vector<Known> common{{"height", "height", "m"},
                                         {"pressureMin", "pmin", "bar"},
                                         {"pressureMax", "pmax", "bar"},
                                         {"gasTemperature", "tset", "degC"},
                                         {"calorificValue", "hs", "MJ/m3"},
                                         {"normDensity", "rhon", "kg/m3"},
                                         {"molarMass", "molarmass", "g/mol"},
                                         {"pseudocriticalPressure", "pcrit", "bar"},
                                         {"pseudocriticalTemperature", "tcrit", "K"},
                                         {"coefficient-A-heatCapacity", "cpa", ""},
                                         {"coefficient-B-heatCapacity", "cpb", ""},
                                         {"coefficient-C-heatCapacity", "cpc", ""}};
  // What leaves the network counts, so that a supply's smallest flow is the largest one of a node, with the other sign.
  static const auto with = [](std::vector<Known> flows) {
    flows.insert(flows.end(), common.begin(), common.end());
    return flows;
  };
  static const std::vector<Known> ofSources =
      with({{"flowMin", "qmax", "1000 m3/h", true}, {"flowMax", "qmin", "1000 m3/h", true}});
  static const std::vector<Known> ofOthers = with({{"flowMin", "qmin", "1000 m3/h"}, {"flowMax", "qmax", "1000 m3/h"}});
  QHash<QString, int> names;
  while (m_xml.readNextStartElement()) {
    const QString kind = m_xml.name().toString();
    const bool isSource = kind == QLatin1String("source");
    const bool isSink = kind == QLatin1String("sink");
    if (!isUsable(kind, isSource || isSink || kind == QLatin1String("innode"), names))
      continue;
    Record record{attribute("id"), QStringLiteral("node"), {}};
    for (const auto &[property, name] :
         {std::make_pair("x", "x"), {"y", "y"}, {"lat", "geoWGS84Lat"}, {"lon", "geoWGS84Long"}}) {
      if (const auto at = GasLibUnits::read(attribute(name)))
        add(record, property, *at);
      else if (!attribute(name).isEmpty())
        tell(tr("The %1 of %2 is no number: %3").arg(QLatin1String(name), record.name, attribute(name)));
    }
    add(record, "kind", kind);
    add(record, "vis.layer", layerOf(kind));
    readAttributes(record, {{"alias", "alias"}});
    readValues(record, isSource ? ofSources : ofOthers);
    report.take(kind);
    m_boundaryNodes += isSource || isSink ? 1 : 0;
    m_kinds.insert(record.name, kind);
    noteGas(record);
    nodes.push_back(std::move(record));
  }
}

void GasLibNetwork::readConnections() {
  static const std::vector<Known> known{{"flowMin", "qmin", "1000 m3/h"},
                                        {"flowMax", "qmax", "1000 m3/h"},
                                        {"length", "length", "m"},
                                        {"diameter", "diameter", "mm"},
                                        {"roughness", "roughness", "mm"},
                                        {"pressureMin", "pmin", "bar"},
                                        {"pressureMax", "pmax", "bar"},
                                        {"heatTransferCoefficient", "htc", "W/(m2 K)"},
                                        {"soilTemperature", "tsoil", "K"},
                                        {"dragFactor", "zeta", ""},
                                        {"pressureLoss", "dploss", "bar"},
                                        {"pressureInMin", "pinmin", "bar"},
                                        {"pressureOutMax", "poutmax", "bar"},
                                        {"pressureDifferentialMin", "dpmin", "bar"},
                                        {"pressureDifferentialMax", "dpmax", "bar"},
                                        {"pressureLossIn", "dpin", "bar"},
                                        {"pressureLossOut", "dpout", "bar"},
                                        {"dragFactorIn", "zetain", ""},
                                        {"dragFactorOut", "zetaout", ""},
                                        {"diameterIn", "diameterin", "mm"},
                                        {"diameterOut", "diameterout", "mm"}};
  QHash<QString, int> names;
  while (m_xml.readNextStartElement()) {
    const QString kind = m_xml.name().toString();
    if (!isUsable(kind, !wordOf(kind).isEmpty(), names))
      continue;
    m_edgeOrigins.push_back({kind, static_cast<int>(m_xml.lineNumber())});
    Record record{attribute("id"), wordOf(kind), {}};
    add(record, "node1", attribute("from"));
    add(record, "node2", attribute("to"));
    add(record, "vis.layer", layerOf(kind));
    readAttributes(record, {{"alias", "alias"},
                            {"fuelGasVertex", "gasnode"},
                            {"gasPreheaterExisting", "preheat"},
                            {"gasCoolerExisting", "cooler"},
                            {"internalBypassRequired", "bypassrequired"}});
    readValues(record, known);
    edges.push_back(std::move(record));
  }
}

/// Connections without both ends cannot be drawn, nor can anyone say where they lie.
void GasLibNetwork::leaveOutLooseEnds() {
  std::vector<Record> kept;
  for (std::size_t i = 0; i < edges.size(); ++i) {
    const QString from = edges[i].find(Names::all().node1)->text.toString();
    const QString to = edges[i].find(Names::all().node2)->text.toString();
    const auto &[kind, line] = m_edgeOrigins[i];
    if (m_kinds.contains(from) && m_kinds.contains(to)) {
      report.take(kind);
      m_connections.insert(edges[i].name, kind);
      kept.push_back(std::move(edges[i]));
      continue;
    }
    tell(tr("%1 is left out: it leads from \"%2\" to \"%3\", which are not both there").arg(edges[i].name, from, to), line);
    report.drop(kind, tr("without both ends"));
  }
  edges = std::move(kept);
}

/// The diagram has its own coordinates; where it lacks them, those of the neighbours or of the map serve.
void GasLibNetwork::placeNodes() {
  const QString note = NodePlaces::complete(nodes, edges);
  if (!note.isEmpty())
    tell(note, 0);
}

Units::Gas GasLibNetwork::conversionGas(const QString &node) const {
  const Units::Gas first = m_gases.value(QString());
  Units::Gas gas = m_gases.value(node);
  if (!gas.normDensity)
    gas.normDensity = first.normDensity;
  if (!gas.calorificValue)
    gas.calorificValue = first.calorificValue;
  return gas;
}

/// Nodes without any are not kept; the first that states one stands for all under no name.
void GasLibNetwork::noteGas(const Record &node) {
  Units::Gas gas;
  if (const auto *value = node.find(Names::all().normDensity))
    gas.normDensity = value->text.toDouble();
  if (const auto *value = node.find(Names::all().calorificValue))
    gas.calorificValue = value->text.toDouble();
  if (!gas.normDensity && !gas.calorificValue)
    return;
  m_gases.insert(node.name, gas);
  if (!m_gases.contains(QString()))
    m_gases.insert(QString(), gas);
}

GasLibReader::Record GasLibNetwork::gas() const {
  static const QStringList ofGas{QStringLiteral("hs"),    QStringLiteral("rhon"),  QStringLiteral("molarmass"),
                                 QStringLiteral("pcrit"), QStringLiteral("tcrit"), QStringLiteral("cpa"),
                                 QStringLiteral("cpb"),   QStringLiteral("cpc")};
  Record gas{QStringLiteral("gas"), QStringLiteral("gas"), {}};
  for (const Record &node : nodes) {
    std::copy_if(node.values.begin(), node.values.end(), std::back_inserter(gas.values),
                 [](const NetworkRecord::Value &value) { return ofGas.contains(value.key.name()); });
    if (!gas.values.empty())
      break;
  }
  return gas;
}
