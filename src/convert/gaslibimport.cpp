#include "gaslibnetwork.h"
#include "wholefile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <convert/gaslibimport.h>
#include <iterator>

namespace {

QString tr(const char *text) {
  return QCoreApplication::translate("GasLibImport", text);
}

/// The path that was named, else one beside the network when it is there.
QString companion(const QString &named, const QString &network, const QString &suffix) {
  if (!named.isEmpty())
    return named;
  const QFileInfo info(network);
  const QString path = info.path() + QLatin1Char('/') + info.completeBaseName() + suffix;
  return QFileInfo::exists(path) ? path : QString();
}

QByteArray json(std::initializer_list<QPair<QString, QJsonValue>> members) {
  return QJsonDocument(QJsonObject(members)).toJson();
}

using Record = NetworkFileConverter::Record;

QString valueOf(const Record &record, PropertyKey key) {
  const auto found = std::find_if(record.values.begin(), record.values.end(),
                                  [key](const Property &property) { return property.key == key; });
  return found == record.values.end() ? QString() : found->value.toString();
}

/// The gas of such a network stands at its supplies; the first one stands for all.
Record gasOf(const std::vector<Record> &nodes) {
  static const QStringList ofGas{QStringLiteral("hs"), QStringLiteral("rhon"), QStringLiteral("molarmass"),
                                 QStringLiteral("pcrit"), QStringLiteral("tcrit")};
  Record gas{QStringLiteral("gas"), QStringLiteral("gas"), {}};
  for (const Record &node : nodes) {
    std::copy_if(node.values.begin(), node.values.end(), std::back_inserter(gas.values),
                 [](const Property &property) { return ofGas.contains(property.key.name()); });
    if (!gas.values.empty())
      break;
  }
  return gas;
}

/// A drive as an element. It takes its gas where the station says, else at its inlet, and stands on its line.
/// \param from, to the station's ends; null for one that the network lacks
/// \param share of the way between them at which it stands
Record driveOf(const GasLibNetwork::Station::Drive &source, const Record &station, const Record *from, const Record *to,
               double share) {
  static const PropertyKey node1 = PropertyKey::intern("node1");
  static const PropertyKey gasNode = PropertyKey::intern("gasnode");
  Record drive{QStringLiteral("D_%1_%2").arg(station.name, source.name), QStringLiteral("drive"), {}};
  const auto set = [&drive](const char *property, const QString &value) {
    drive.values.push_back({PropertyKey::intern(property), PropertyText(value)});
  };
  const QString fuel = valueOf(station, gasNode);
  set("gasnode", fuel.isEmpty() ? valueOf(station, node1) : fuel);
  set("driven", station.name);
  set("kind", source.kind);
  set("machine", source.name);
  set("vis.layer", QStringLiteral("stations"));
  if (from == nullptr || to == nullptr)
    return drive;
  for (const char *axis : {"x", "y"}) {
    constexpr int Digits = 14; // what the sum adds beyond is noise
    const PropertyKey key = PropertyKey::intern(axis);
    const double at = valueOf(*from, key).toDouble() * (1.0 - share) + valueOf(*to, key).toDouble() * share;
    drive.values.push_back({key, PropertyText::ofNumber(at, Digits)});
  }
  return drive;
}

/// The drives of all stations, several of one behind one another.
std::vector<Record> drivesOf(GasLibNetwork &net, GasLibNetwork &machines) {
  static const PropertyKey node1 = PropertyKey::intern("node1");
  static const PropertyKey node2 = PropertyKey::intern("node2");
  QHash<QString, const Record *> nodes;
  for (const Record &node : net.nodes)
    nodes.insert(node.name, &node);
  QHash<QString, Record *> edges;
  for (Record &edge : net.edges)
    edges.insert(edge.name, &edge);
  std::vector<Record> drives;
  for (const GasLibNetwork::Station &station : machines.stations) {
    Record *edge = edges.value(station.name);
    if (edge == nullptr || edge->type != QLatin1String("compressor")) {
      machines.tell(tr("%1 is no compressor station of the network; it gets no drives").arg(station.name), station.line);
      continue;
    }
    constexpr double First = 0.7; // of the way, where a single drive would be put
    constexpr double Last = 0.95;
    const double step = (Last - First) / std::max(1.0, static_cast<double>(station.drives.size()));
    double share = First;
    const std::size_t before = drives.size();
    for (const GasLibNetwork::Station::Drive &drive : station.drives) {
      drives.push_back(driveOf(drive, *edge, nodes.value(valueOf(*edge, node1)), nodes.value(valueOf(*edge, node2)), share));
      share += step;
    }
    if (!station.compressor.isEmpty())
      edge->values.push_back({PropertyKey::intern("machine"), PropertyText(station.compressor)});
    if (drives.size() > before)
      edge->values.push_back({PropertyKey::intern("drive"), PropertyText(drives[before].name)});
  }
  return drives;
}

/// Writes the case; an empty text when it did, else the reason.
QString write(const QDir &folder, const GasLibNetwork &net, const GasLibNetwork &nomination,
              const std::vector<Record> &drives, const QString &machines) {
  const QString name = QFileInfo(folder.absolutePath()).fileName();
  if (!folder.mkpath(QStringLiteral("N1")))
    return tr("Cannot make the folder %1").arg(folder.path());
  std::vector<Record> records = net.nodes;
  records.insert(records.end(), drives.begin(), drives.end());
  records.insert(records.end(), net.edges.begin(), net.edges.end());
  QString reason;
  QString database;
  if (!machines.isEmpty()) {
    database = QStringLiteral("../") + name + QStringLiteral(".cs");
    if (!WholeFile::copy(machines, folder.filePath(name + QStringLiteral(".cs")), &reason))
      return reason;
  }
  const QByteArray geometry = "geometry configuration\n" + name.toUtf8() + '\n' + name.toUtf8() + ".geom\n0\n{}\n";
  const QByteArray scenario = json({{QStringLiteral("workDir"), QStringLiteral("N1")},
                                    {QStringLiteral("scenFile"), QStringLiteral("N1.scen")},
                                    {QStringLiteral("gasFile"), QStringLiteral("N1.gas")},
                                    {QStringLiteral("comprDatabase"), database}});
  const auto file = [&folder](const QString &path) {
    return folder.filePath(path);
  };
  if (NetworkFileConverter::write(file(name + QStringLiteral(".geom.jsn")), records, &reason) &&
      WholeFile::write(file(name + QStringLiteral(".geom.cfg")), geometry, &reason) &&
      NetworkFileConverter::write(file(QStringLiteral("N1/N1.scen.jsn")), nomination.setPoints, &reason) &&
      NetworkFileConverter::write(file(QStringLiteral("N1/N1.gas.jsn")), {gasOf(net.nodes)}, &reason) &&
      WholeFile::write(file(QStringLiteral("N1/scenconfig.jsn")), scenario, &reason) &&
      WholeFile::write(file(QStringLiteral("N1/solverconfig.jsn")), "{}\n", &reason))
    return QString();
  return reason;
}

} // namespace

GasLibImport::Result GasLibImport::import(const QString &network, const QString &scenario, const QString &compressors,
                                          const QString &to) {
  Result result;
  const auto fail = [&result](const QString &reason) {
    result.findings.push_back({Finding::Severity::Critical, QString(), 0, reason, QString()});
    return result;
  };
  GasLibNetwork net(network);
  const bool isRead = net.readNetwork();
  append(result.findings, net.findings);
  if (!isRead)
    return fail(tr("%1 holds no network").arg(network));
  const QString scn = companion(scenario, network, QStringLiteral(".scn"));
  GasLibNetwork nomination(scn);
  if (!scn.isEmpty())
    nomination.readScenario();
  append(result.findings, nomination.findings);
  const QString machines = companion(compressors, network, QStringLiteral(".cs"));
  GasLibNetwork stations(machines);
  if (!machines.isEmpty())
    stations.readStations();
  const std::vector<Record> drives = drivesOf(net, stations);
  append(result.findings, stations.findings);
  const QString reason = write(QDir(to), net, nomination, drives, machines);
  if (!reason.isEmpty())
    return fail(reason);
  result.nodes = static_cast<int>(net.nodes.size());
  result.drives = static_cast<int>(drives.size());
  result.edges = static_cast<int>(net.edges.size());
  result.setPoints = static_cast<int>(nomination.setPoints.size());
  result.ok = true;
  return result;
}
