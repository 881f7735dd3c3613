#include "stationdrives.h"

#include <QCoreApplication>
#include <QHash>
#include <QSet>

#include <algorithm>

namespace {

using Record = NetworkRecord;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(StationDrives)
};

QString valueOf(const Record &record, const char *property) {
  const NetworkRecord::Value *found = record.find(PropertyKey::intern(property));
  return found == nullptr ? QString() : found->text.toString();
}

/// Names, which are one regardless of case, with a number behind those that are taken.
class FreeNames {
public:
  QString take(const QString &wanted) {
    QString name = wanted;
    int &last = m_last[wanted.toLower()]; // so that each costs a step, however many are alike
    while (m_taken.contains(name.toLower()))
      name = wanted + QLatin1Char('_') + QString::number(++last + 1);
    m_taken.insert(name.toLower());
    return name;
  }

private:
  QSet<QString> m_taken;
  QHash<QString, int> m_last;
};

/// A drive as an element. It takes its gas where the station says, else at its inlet, and stands on its line.
/// \param fuel node that feeds it \param share of the way between the ends of the station at which it stands
Record driveOf(const GasLibStations::Station::Drive &source, const Record &station, const QString &fuel, const Record &from,
               const Record &to, double share) {
  Record drive{QStringLiteral("D_%1_%2").arg(station.name, source.name), QStringLiteral("drive"), {}};
  const auto set = [&drive](const char *property, const QString &value) {
    drive.values.push_back({PropertyKey::intern(property), PropertyText(value), false});
  };
  set("gasnode", fuel);
  set("driven", station.name);
  set("kind", source.kind);
  set("machine", source.name);
  set("vis.layer", QStringLiteral("stations"));
  for (const char *axis : {"x", "y"}) {
    constexpr int Digits = 14; // what the sum adds beyond is noise
    const double at = valueOf(from, axis).toDouble() * (1.0 - share) + valueOf(to, axis).toDouble() * share;
    drive.values.push_back({PropertyKey::intern(axis), PropertyText::ofNumber(at, Digits), true});
  }
  return drive;
}

} // namespace

std::vector<Record> StationDrives::make(GasLibNetwork &net, GasLibStations &machines) {
  QHash<QString, const Record *> nodes;
  FreeNames names;
  for (const Record &node : net.nodes) {
    nodes.insert(node.name, &node);
    names.take(node.name);
  }
  QHash<QString, Record *> edges;
  for (Record &edge : net.edges)
    edges.insert(edge.name, &edge);
  std::vector<Record> drives;
  for (const GasLibStations::Station &station : machines.stations) {
    Record *edge = edges.value(station.name);
    if (edge == nullptr || edge->type != QLatin1String("compressor")) {
      machines.tell(Texts::tr("%1 is no compressor station of the network; it gets no drives").arg(station.name),
                    station.line);
      machines.report.drop(QStringLiteral("compressorStation"), Texts::tr("not in the network"));
      continue;
    }
    QString fuel = valueOf(*edge, "gasnode");
    if (!nodes.contains(fuel)) {
      if (!fuel.isEmpty())
        machines.tell(
            Texts::tr("%1 takes its fuel at %2, which is not there; its inlet feeds the drives").arg(edge->name, fuel),
            station.line);
      fuel = valueOf(*edge, "node1");
    }
    constexpr double FirstShare = 0.7; // of the way, where a single drive would be put
    constexpr double LastShare = 0.95;
    const double step = (LastShare - FirstShare) / std::max(1.0, static_cast<double>(station.drives.size()));
    double share = FirstShare;
    const std::size_t before = drives.size();
    for (const GasLibStations::Station::Drive &drive : station.drives) {
      drives.push_back(
          driveOf(drive, *edge, fuel, *nodes.value(valueOf(*edge, "node1")), *nodes.value(valueOf(*edge, "node2")), share));
      drives.back().name = names.take(drives.back().name);
      share += step;
    }
    if (!station.compressor.isEmpty())
      edge->values.push_back({PropertyKey::intern("machine"), PropertyText(station.compressor), false});
    if (drives.size() > before)
      edge->values.push_back({PropertyKey::intern("drive"), PropertyText(drives[before].name), false});
  }
  return drives;
}
