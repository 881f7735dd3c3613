#include "gaslibnetwork.h"

#include <model/units.h>

#include <QCoreApplication>
#include <QFile>
#include <QHash>

#include <cmath>

namespace {

QString tr(const char *text) {
  return QCoreApplication::translate("GasLibNetwork", text);
}

void add(NetworkFileConverter::Record &record, const char *property, const QString &value) {
  record.values.push_back({PropertyKey::intern(property), PropertyText(value)});
}

void add(NetworkFileConverter::Record &record, const char *property, double value) {
  constexpr int Digits = 14; // what a conversion adds beyond is noise
  record.values.push_back({PropertyKey::intern(property), PropertyText::ofNumber(value, Digits)});
}

/// The units of the format as UDUNITS-2 writes them; null for one that is not known.
QString unitOf(const QString &name) {
  static const QHash<QString, QString> units{{QStringLiteral("1000m_cube_per_hour"), QStringLiteral("1000 m3/h")},
                                             {QStringLiteral("m_cube_per_hour"), QStringLiteral("m3/h")},
                                             {QStringLiteral("m_cube_per_s"), QStringLiteral("m3/s")},
                                             {QStringLiteral("bar"), QStringLiteral("bar")},
                                             {QStringLiteral("km"), QStringLiteral("km")},
                                             {QStringLiteral("m"), QStringLiteral("m")},
                                             {QStringLiteral("meter"), QStringLiteral("m")},
                                             {QStringLiteral("mm"), QStringLiteral("mm")},
                                             {QStringLiteral("K"), QStringLiteral("K")},
                                             {QStringLiteral("C"), QStringLiteral("degC")},
                                             {QStringLiteral("Celsius"), QStringLiteral("degC")},
                                             {QStringLiteral("MJ_per_m_cube"), QStringLiteral("MJ/m3")},
                                             {QStringLiteral("kg_per_m_cube"), QStringLiteral("kg/m3")},
                                             {QStringLiteral("kg_per_kmol"), QStringLiteral("kg/kmol")},
                                             {QStringLiteral("W_per_m_square_per_K"), QStringLiteral("W/m2/K")}};
  return units.value(name);
}

/// So that the layers of an imported network are worth having.
QString layerOf(const QString &kind) {
  static const QHash<QString, QString> layers{{QStringLiteral("source"), QStringLiteral("entries")},
                                              {QStringLiteral("sink"), QStringLiteral("exits")},
                                              {QStringLiteral("innode"), QStringLiteral("junctions")},
                                              {QStringLiteral("pipe"), QStringLiteral("pipes")}};
  return layers.value(kind, QStringLiteral("stations"));
}

} // namespace

bool GasLibNetwork::number(const char *unit, double &value) {
  const QXmlStreamAttributes attributes = m_xml.attributes();
  const QString element = m_xml.name().toString();
  const QString text = attributes.value(QStringLiteral("value")).toString();
  QString given = attributes.value(QStringLiteral("unit")).toString();
  bool isNumber = false;
  value = text.toDouble(&isNumber);
  if (!isNumber || !std::isfinite(value)) {
    tell(tr("%1 is no number: \"%2\"; left out").arg(element, text));
    m_xml.skipCurrentElement();
    return false;
  }
  if (given == QLatin1String("barg")) { // above the air's pressure
    constexpr double Atmosphere = 1.01325;
    value += Atmosphere;
    given = QStringLiteral("bar");
  }
  const QString wanted = QString::fromLatin1(unit);
  if (!given.isEmpty() && !wanted.isEmpty()) {
    const QString known = unitOf(given);
    const std::optional<double> converted = known.isEmpty()   ? std::nullopt
                                            : known == wanted ? value
                                                              : Units::convert(value, known, wanted);
    if (converted)
      value = *converted;
    else
      tell(tr("%1: the unit \"%2\" cannot be converted to \"%3\"; the value is kept").arg(element, given, wanted));
  }
  m_xml.skipCurrentElement();
  return true;
}

void GasLibNetwork::readRecord(NetworkFileConverter::Record &record, const Known *known, std::size_t count) {
  while (m_xml.readNextStartElement()) {
    const Known *found = nullptr;
    for (std::size_t i = 0; i < count; ++i) {
      if (m_xml.name() == QLatin1String(known[i].element))
        found = &known[i];
    }
    if (found == nullptr) { // much of the format is for solvers
      m_xml.skipCurrentElement();
      continue;
    }
    double value = 0.0;
    if (number(found->unit, value))
      add(record, found->property, value);
  }
}

bool GasLibNetwork::readNetwork() {
  QFile file(m_path);
  if (!start(file, QStringLiteral("network"), QStringLiteral("Gas")))
    return false;
  while (m_xml.readNextStartElement()) {
    if (m_xml.name() == QLatin1String("nodes"))
      readNodes();
    else if (m_xml.name() == QLatin1String("connections"))
      readConnections();
    else
      m_xml.skipCurrentElement();
  }
  finish();
  return !nodes.empty();
}

void GasLibNetwork::readNodes() {
  static constexpr Known properties[] = {{"height", "height", "m"},
                                         {"pressureMin", "pmin", "bar"},
                                         {"pressureMax", "pmax", "bar"},
                                         {"flowMin", "qmin", "1000 m3/h"},
                                         {"flowMax", "qmax", "1000 m3/h"},
                                         {"gasTemperature", "tset", "degC"},
                                         {"calorificValue", "hs", "MJ/m3"},
                                         {"normDensity", "rhon", "kg/m3"},
                                         {"molarMass", "molarmass", "kg/kmol"},
                                         {"pseudocriticalPressure", "pcrit", "bar"},
                                         {"pseudocriticalTemperature", "tcrit", "K"}};
  while (m_xml.readNextStartElement()) {
    const QString kind = m_xml.name().toString();
    const QXmlStreamAttributes attributes = m_xml.attributes();
    const QString name = attributes.value(QStringLiteral("id")).toString();
    const bool isNode = kind == QLatin1String("source") || kind == QLatin1String("sink") || kind == QLatin1String("innode");
    if (!isNode || name.isEmpty()) {
      tell(isNode ? tr("A node without id is left out") : tr("The node type %1 is not known and left out").arg(kind));
      m_xml.skipCurrentElement();
      continue;
    }
    NetworkFileConverter::Record record{name, QStringLiteral("node"), {}};
    for (const char *axis : {"x", "y"}) {
      bool isNumber = false;
      const double at = attributes.value(QLatin1String(axis)).toDouble(&isNumber);
      if (isNumber)
        add(record, axis, at);
      else
        tell(tr("%1 has no %2").arg(name, QLatin1String(axis)));
    }
    for (const auto &[property, attribute] : {std::make_pair("lat", "geoWGS84Lat"), {"lon", "geoWGS84Long"}}) {
      bool isNumber = false;
      const double degrees = attributes.value(QLatin1String(attribute)).toDouble(&isNumber);
      if (isNumber)
        add(record, property, degrees);
    }
    add(record, "kind", kind);
    add(record, "vis.layer", layerOf(kind));
    readRecord(record, properties, std::size(properties));
    nodes.push_back(std::move(record));
  }
}

void GasLibNetwork::readConnections() {
  static const QHash<QString, QString> words{{QStringLiteral("pipe"), QStringLiteral("pipe")},
                                             {QStringLiteral("shortPipe"), QStringLiteral("shortcut")},
                                             {QStringLiteral("resistor"), QStringLiteral("resistor")},
                                             {QStringLiteral("valve"), QStringLiteral("valve")},
                                             {QStringLiteral("controlValve"), QStringLiteral("regulator")},
                                             {QStringLiteral("compressorStation"), QStringLiteral("compressor")}};
  static constexpr Known properties[] = {{"flowMin", "qmin", "1000 m3/h"},
                                         {"flowMax", "qmax", "1000 m3/h"},
                                         {"length", "length", "m"},
                                         {"diameter", "diameter", "mm"},
                                         {"roughness", "roughness", "mm"},
                                         {"pressureMax", "pmax", "bar"},
                                         {"heatTransferCoefficient", "htc", "W/m2/K"},
                                         {"dragFactor", "zeta", ""},
                                         {"pressureLoss", "dpset", "bar"},
                                         {"pressureInMin", "pinmin", "bar"},
                                         {"pressureOutMax", "poutmax", "bar"},
                                         {"pressureDifferentialMax", "dpmax", "bar"},
                                         {"pressureLossIn", "dpin", "bar"},
                                         {"pressureLossOut", "dpout", "bar"}};
  while (m_xml.readNextStartElement()) {
    const QString kind = m_xml.name().toString();
    const QXmlStreamAttributes attributes = m_xml.attributes();
    const auto text = [&attributes](const char *name) {
      return attributes.value(QLatin1String(name)).toString();
    };
    if (!words.contains(kind) || text("id").isEmpty() || text("from").isEmpty() || text("to").isEmpty()) {
      tell(words.contains(kind) ? tr("A %1 without id, from or to is left out").arg(kind)
                                : tr("The connection type %1 is not known and left out").arg(kind));
      m_xml.skipCurrentElement();
      continue;
    }
    NetworkFileConverter::Record record{text("id"), words.value(kind), {}};
    add(record, "node1", text("from"));
    add(record, "node2", text("to"));
    add(record, "vis.layer", layerOf(kind));
    if (kind == QLatin1String("compressorStation") && !text("fuelGasVertex").isEmpty())
      add(record, "gasnode", text("fuelGasVertex"));
    readRecord(record, properties, std::size(properties));
    edges.push_back(std::move(record));
  }
}

bool GasLibNetwork::readScenario() {
  QFile file(m_path);
  if (!start(file, QStringLiteral("boundaryValue"), QStringLiteral("Gas")))
    return false;
  bool hasScenario = false;
  while (m_xml.readNextStartElement()) {
    if (m_xml.name() != QLatin1String("scenario") || hasScenario) {
      if (m_xml.name() == QLatin1String("scenario"))
        tell(tr("The file holds more than one scenario; the first is taken"));
      m_xml.skipCurrentElement();
      continue;
    }
    hasScenario = true;
    while (m_xml.readNextStartElement()) {
      if (m_xml.name() == QLatin1String("node"))
        readBoundary(m_xml.attributes().value(QStringLiteral("id")).toString(),
                     m_xml.attributes().value(QStringLiteral("type")) == QLatin1String("entry"));
      else
        m_xml.skipCurrentElement();
    }
  }
  finish();
  return true;
}

void GasLibNetwork::readBoundary(const QString &node, bool isEntry) {
  const auto set = [&](const char *property, double value, const char *unit) {
    setPoints.push_back({node, QString::fromLatin1(property), PropertyText::ofNumber(value), QString::fromLatin1(unit)});
  };
  while (m_xml.readNextStartElement()) {
    const QString what = m_xml.name().toString();
    const QString bound = m_xml.attributes().value(QStringLiteral("bound")).toString();
    double value = 0.0;
    if (what == QLatin1String("flow")) {
      if (!number("1000 m3/h", value))
        continue;
      if (bound == QLatin1String("both"))
        set("qset", isEntry ? -value : value, "1000 m3/h"); // what leaves the network counts
      else
        set(bound == QLatin1String("lower") ? "qmin" : "qmax", value, "1000 m3/h");
    } else if (what == QLatin1String("pressure")) {
      if (!number("bar", value))
        continue;
      if (bound == QLatin1String("both"))
        set("pset", value, "bar");
      else
        set(bound == QLatin1String("lower") ? "pmin" : "pmax", value, "bar");
    } else {
      m_xml.skipCurrentElement();
    }
  }
}

bool GasLibNetwork::readStations() {
  QFile file(m_path);
  if (!start(file, QStringLiteral("compressorStations"), QStringLiteral("CompressorStations")))
    return false;
  while (m_xml.readNextStartElement()) {
    if (m_xml.name() == QLatin1String("compressorStation"))
      readStation();
    else
      m_xml.skipCurrentElement();
  }
  finish();
  return true;
}

void GasLibNetwork::readStation() {
  Station station{attribute("id"), QString(), {}, static_cast<int>(m_xml.lineNumber())};
  while (m_xml.readNextStartElement()) {
    const bool areDrives = m_xml.name() == QLatin1String("drives");
    if (!areDrives && m_xml.name() != QLatin1String("compressors")) {
      m_xml.skipCurrentElement();
      continue;
    }
    while (m_xml.readNextStartElement()) {
      if (attribute("id").isEmpty())
        tell(tr("A %1 without id is left out").arg(m_xml.name().toString()));
      else if (areDrives)
        station.drives.push_back({attribute("id"), m_xml.name().toString()});
      else if (station.compressor.isEmpty())
        station.compressor = attribute("id");
      m_xml.skipCurrentElement();
    }
  }
  stations.push_back(std::move(station));
}
