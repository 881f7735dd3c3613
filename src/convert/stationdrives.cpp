#include "stationdrives.h"

#include <model/names.h>

#include <QCoreApplication>
#include <QHash>
#include <QSet>

#include <algorithm>

namespace {

using Record = NetworkRecord;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(StationDrives)
};

QString valueOf(const Record &record, PropertyKey property) {
  const NetworkRecord::Value *found = record.find(property);
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
  const auto set = [&drive](PropertyKey property, const QString &value) {
    drive.values.push_back({property, PropertyText(value), false});
  };
  set(Names::all().gasNode, fuel);
  set(Names::all().driven, station.name);
  set(PropertyKey::intern("kind"), source.kind);
  set(Names::all().machine, source.name);
  set(Names::all().layer, QStringLiteral("stations"));
  for (const PropertyKey axis : {PropertyKey::intern("x"), PropertyKey::intern("y")}) { // as the nodes are written
    constexpr int Digits = 14;                                                          // what the sum adds beyond is noise
    const double at = valueOf(from, axis).toDouble() * (1.0 - share) + valueOf(to, axis).toDouble() * share;
    drive.values.push_back({axis, PropertyText::ofNumber(at, Digits), true});
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
    QString fuel = valueOf(*edge, Names::all().gasNode);
    if (!nodes.contains(fuel)) {
      if (!fuel.isEmpty())
        machines.tell(
            Texts::tr("%1 takes its fuel at %2, which is not there; its inlet feeds the drives").arg(edge->name, fuel),
            station.line);
      fuel = valueOf(*edge, Names::all().node1);
    }
    constexpr double FirstShare = 0.7; // of the way, where a single drive would be put
    constexpr double LastShare = 0.95;
    const double step = (LastShare - FirstShare) / std::max(1.0, static_cast<double>(station.drives.size()));
    double share = FirstShare;
    const std::size_t before = drives.size();
    for (const GasLibStations::Station::Drive &drive : station.drives) {
      drives.push_back(driveOf(drive, *edge, fuel, *nodes.value(valueOf(*edge, Names::all().node1)),
                               *nodes.value(valueOf(*edge, Names::all().node2)), share));
      drives.back().name = names.take(drives.back().name);
      share += step;
    }
    if (!station.compressor.isEmpty())
      edge->values.push_back({Names::all().machine, PropertyText(station.compressor), false});
    if (drives.size() > before)
      edge->values.push_back({Names::all().drive, PropertyText(drives[before].name), false});
  }
  return drives;
}
