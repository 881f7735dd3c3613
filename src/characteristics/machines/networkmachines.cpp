#include "stationsplit.h"

#include <model/displayformat.h>
#include <model/names.h>

#include <algorithm>
#include <cmath>
#include <machines/networkmachines.h>

namespace {

constexpr double KilowattsPerMegawatt = 1000.0;

/// Names of machines and stations do not tell capitals.
bool isSame(const QString &a, const QString &b) {
  return a.compare(b, Qt::CaseInsensitive) == 0;
}

QVector<QPointF> limitsOf(const PistonCompressor &machine, const Drive *drive, const Compression &compression,
                          double ambientTemperature) {
  constexpr int Steps = 40;
  QVector<QPointF> limits;
  for (int i = 0; i <= Steps; ++i) {
    const double speed = machine.speedMin + (machine.speedMax - machine.speedMin) * i / Steps;
    const auto ratio = WorkingPoint::largestRatio(machine, speed, drive, compression, ambientTemperature);
    if (ratio)
      limits.append(QPointF(speed, *ratio));
  }
  return limits;
}

StationConfiguration sideBySide(const QStringList &machines) {
  StationConfiguration all;
  all.name = NetworkMachines::tr("all side by side");
  all.stages.emplace_back();
  for (const QString &name : machines)
    all.stages.front().push_back({name});
  return all;
}

StationConfiguration alone(const QString &machine) {
  StationConfiguration one;
  one.name = NetworkMachines::tr("%1 alone").arg(machine);
  one.stages.push_back({{machine}});
  return one;
}

} // namespace

bool NetworkMachines::Comparison::isApart() const {
  constexpr double Near = 0.01;
  return std::abs(difference()) > Near * std::max(std::abs(stored), std::abs(computed));
}

NetworkMachines::NetworkMachines(const NetData &net, MachineData data)
    : m_net(net)
    , m_gases(net) {
  set(std::move(data));
}

void NetworkMachines::set(MachineData data) {
  m_data = std::move(data);
  m_gases.set(m_data.gas);
}

const element *NetworkMachines::driven(const element &e) const {
  const bool isDrive = e.value(Names::all().type) == QLatin1String("d");
  return isDrive ? m_net.edges().find(e.value(Names::all().driven)) : nullptr;
}

const Drive *NetworkMachines::driveNamedBy(const QString &compressor) const {
  if (const TurboCompressor *turbo = m_data.turbo(compressor))
    return m_data.drive(turbo->drive);
  const PistonCompressor *piston = m_data.piston(compressor);
  return piston == nullptr ? nullptr : m_data.drive(piston->drive);
}

QStringList NetworkMachines::names(const element &e) const {
  const QString machine = e.value(Names::all().machine);
  const QString own = machine.isEmpty() ? e.value(Names::all().name) : machine;
  if (const element *compressor = driven(e)) {
    if (m_data.drive(own) != nullptr)
      return {own};
    const Drive *drive = driveNamedBy(machine.isEmpty() ? names(*compressor).first() : machine);
    return {drive == nullptr ? own : drive->name};
  }
  QStringList all = m_data.ofStation(e.value(Names::all().name));
  const auto first = std::find_if(all.begin(), all.end(), [&own](const QString &name) { return isSame(name, own); });
  if (first != all.end())
    std::rotate(all.begin(), first, first + 1);
  else if (all.isEmpty() || m_data.turbo(own) != nullptr || m_data.piston(own) != nullptr)
    return {own};
  return all;
}

const Drive *NetworkMachines::driveOf(const element &compressor, const QString &named) const {
  const element *drive = m_net.nodes().find(compressor.value(Names::all().drive));
  const bool isOneOfSeveral = names(compressor).size() > 1; // the drive that the network names is that of the first
  const Drive *own = drive == nullptr || isOneOfSeveral ? nullptr : m_data.drive(names(*drive).first());
  return own != nullptr ? own : m_data.drive(named);
}

std::vector<StationConfiguration> NetworkMachines::configurations(const element &e) const {
  const element *compressor = driven(e);
  if (compressor == nullptr)
    compressor = &e;
  const QStringList all = names(*compressor);
  const QString own = compressor->value(Names::all().name);
  if (all.size() < 2)
    return {};
  std::vector<StationConfiguration> found;
  for (const StationConfiguration &configuration : m_data.configurations) {
    if (isSame(configuration.station, own))
      found.push_back(configuration);
  }
  if (found.empty()) {
    found.push_back(sideBySide(all));
    for (const QString &name : all)
      found.push_back(alone(name));
  }
  // Two of the same name could not be told apart.
  for (std::size_t i = 0; i < found.size(); ++i) {
    if (found[i].name.isEmpty())
      found[i].name = QString::number(i + 1);
  }
  return found;
}

std::optional<WorkingPoint> NetworkMachines::pointOf(const element &compressor, const QString &machine,
                                                     const Compression &compression, FunctionSource source) const {
  const auto drive = [&](const QString &named) -> std::optional<Drive> {
    const Drive *found = driveOf(compressor, named);
    return found == nullptr ? std::nullopt : std::optional<Drive>(found->by(source));
  };
  const double ambient = m_data.ambientTemperature;
  if (const TurboCompressor *turbo = m_data.turbo(machine)) {
    const std::optional<Drive> by = drive(turbo->drive);
    return WorkingPoint::of(turbo->by(source), by ? &*by : nullptr, compression, ambient);
  }
  if (const PistonCompressor *piston = m_data.piston(machine)) {
    const std::optional<Drive> by = drive(piston->drive);
    return WorkingPoint::of(*piston, by ? &*by : nullptr, compression, ambient);
  }
  return std::nullopt;
}

double NetworkMachines::Station::power() const {
  double sum = 0.0;
  for (const WorkingPoint &point : points) {
    if (!point.power)
      return 0.0;
    sum += *point.power;
  }
  return sum;
}

/// The configuration that is chosen, else the first in which all machines work inside of their maps, else the first.
NetworkMachines::Station NetworkMachines::station(const element &compressor, const Compression &compression,
                                                  const MachineChoice &choice) const {
  const auto run = [&](const StationConfiguration &configuration) {
    Station station;
    const StationSplit split(m_data, configuration);
    for (const StationConfiguration::Stage &stage : configuration.stages) {
      for (const StationConfiguration::Unit &unit : stage) {
        const auto part = split.part(unit.compressor, compression);
        const auto point = part ? pointOf(compressor, unit.compressor, part->compression, choice.source) : std::nullopt;
        if (!point)
          continue;
        station.running.push_back(unit.compressor);
        station.points.push_back(*point);
      }
    }
    station.configuration = configuration;
    return station;
  };
  const std::vector<StationConfiguration> all = configurations(compressor);
  if (all.empty()) {
    Station single;
    const QString name = names(compressor).first();
    if (const auto point = pointOf(compressor, name, compression, choice.source)) {
      single.running.push_back(name);
      single.points.push_back(*point);
    }
    return single;
  }
  std::optional<Station> first;
  for (const StationConfiguration &configuration : all) {
    Station station = run(configuration);
    const bool isWell = !station.points.empty() && std::all_of(station.points.begin(), station.points.end(),
                                                               [](const WorkingPoint &point) { return point.isInside; });
    if (configuration.name == choice.configuration || (choice.configuration.isEmpty() && isWell))
      return station;
    if (!first)
      first = std::move(station);
  }
  return *first;
}

std::optional<WorkingPoint> NetworkMachines::Station::pointOf(const QString &machine) const {
  for (std::size_t i = 0; i < running.size(); ++i) {
    if (isSame(running[i], machine))
      return points[i];
  }
  return std::nullopt;
}

/// What the machine data say of a machine.
NetworkMachines::Machine NetworkMachines::described(const QString &name, FunctionSource source) const {
  Machine machine;
  machine.ambientTemperature = m_data.ambientTemperature;
  if (const TurboCompressor *turbo = m_data.turbo(name))
    machine.turbo = turbo->by(source);
  else if (const PistonCompressor *piston = m_data.piston(name))
    machine.piston = *piston;
  else if (const Drive *drive = m_data.drive(name))
    machine.drive = drive->by(source);
  return machine;
}

/// The running machine that a drive drives; where there is none, the first of the compressor.
QString NetworkMachines::drivenBy(const QString &driveName, const element &compressor, const Station &station) const {
  const auto found = std::find_if(station.running.begin(), station.running.end(), [&](const QString &running) {
    const Drive *drive = driveNamedBy(running);
    return drive != nullptr && isSame(drive->name, driveName);
  });
  return found != station.running.end() ? *found : names(compressor).first();
}

std::optional<std::pair<double, double>> NetworkMachines::speeds(const QString &machine) const {
  if (const TurboCompressor *turbo = m_data.turbo(machine))
    return std::pair(turbo->speedMin, turbo->speedMax);
  if (const PistonCompressor *piston = m_data.piston(machine))
    return std::pair(piston->speedMin, piston->speedMax);
  return std::nullopt;
}

NetworkMachines::Machine NetworkMachines::machine(const element &e, const QString &name, const MachineChoice &choice) const {
  Machine found = described(name, choice.source);
  const element *compressor = found.drive ? driven(e) : &e; // a drive works where its compressor does
  const auto compression = compressor == nullptr ? std::nullopt : Compression::of(m_net, *compressor, m_gases);
  if (!found.isThere() || !compression)
    return found;
  found.gas = tr("%1 (%2)").arg(compression->gas->name(), compression->gasOrigin);
  found.remarks = compression->remarks;
  const Station whole = station(*compressor, *compression, choice);
  const QString working = found.drive ? drivenBy(name, *compressor, whole) : name; // the compressor whose point it is
  found.point = whole.pointOf(working);
  Compression own = *compression;
  if (whole.configuration) {
    const StationSplit split(m_data, *whole.configuration);
    const auto part = split.part(working, *compression);
    found.configuration = whole.configuration->name;
    found.split = split.text(working, part);
    if (part)
      own = part->compression;
  }
  if (found.piston)
    found.limits = limitsOf(*found.piston, driveOf(*compressor, found.piston->drive), own, found.ambientTemperature);
  if (found.drive)
    found.driven = speeds(working);
  found.comparisons = found.drive ? compareDrive(e, found.point) : compare(*compressor, *compression, whole);
  return found;
}

/// What results state of an element. 0 is what they say of what they do not tell.
std::optional<double> NetworkMachines::stated(const element &e, const char *property) const {
  const double value = m_net.value(e, PropertyKey::find(property));
  return value == NetData::NoValue || value == 0.0 ? std::nullopt : std::optional<double>(value);
}

std::vector<NetworkMachines::Comparison> NetworkMachines::compareDrive(const element &drive,
                                                                       const std::optional<WorkingPoint> &point) const {
  const std::optional<double> power = stated(drive, "power");
  if (!power || !point || !point->power)
    return {};
  return {{QStringLiteral("power"), tr("shaft power"), QStringLiteral("kW"), KilowattsPerMegawatt * *power, *point->power}};
}

std::vector<NetworkMachines::Comparison> NetworkMachines::compare(const element &compressor, const Compression &compression,
                                                                  const Station &station) const {
  std::vector<Comparison> comparisons;
  const auto take = [&](const char *property, const QString &name, const QString &unit, double factor, double computed) {
    const std::optional<double> stored = stated(compressor, property);
    if (stored && computed != 0.0)
      comparisons.push_back({QLatin1String(property), name, unit, factor * *stored, computed});
  };
  const bool isCompressing = std::all_of(station.points.begin(), station.points.end(),
                                         [](const WorkingPoint &point) { return point.isCompressing(); });
  if (station.points.empty() || !isCompressing)
    return comparisons;
  const double head = compression.adiabaticHead();
  const double power = station.power();
  take("head", tr("adiabatic head"), QStringLiteral("kJ/kg"), 1.0, head);
  take("ratio", tr("pressure ratio"), QString(), 1.0, compression.ratio());
  take("vflow", tr("volume flow"), QStringLiteral("m³/s"), 1.0, compression.volumeFlow());
  take("power", tr("shaft power"), QStringLiteral("kW"), KilowattsPerMegawatt, power);
  constexpr double Percent = 100.0;
  take("efficiency", tr("efficiency"), QStringLiteral("%"), Percent,
       power > 0.0 ? Percent * compression.massFlow * head / power : 0.0);
  if (station.points.size() == 1)
    take("speed", tr("speed"), QStringLiteral("1/min"), 1.0, station.points.front().speed.value_or(0.0));
  return comparisons;
}

Findings NetworkMachines::findings() const {
  if (m_data.isEmpty())
    return {};
  Findings found = m_gases.findings();
  for (const elements::Entry &entry : m_net.edges()) {
    if (entry.value.value(Names::all().type) == QLatin1String("c"))
      append(found, findings(entry.value));
  }
  return found;
}

Findings NetworkMachines::findings(const element &compressor) const {
  Findings found;
  const QString name = compressor.value(Names::all().name);
  const auto tell = [&](const QString &text) {
    found.push_back(Finding::about(name, name + QStringLiteral(": ") + text));
  };
  const QStringList all = names(compressor);
  const bool isKnown = std::any_of(all.begin(), all.end(), [this](const QString &machine) {
    return m_data.turbo(machine) != nullptr || m_data.piston(machine) != nullptr;
  });
  const auto compression = isKnown ? Compression::of(m_net, compressor, m_gases) : std::nullopt;
  if (!compression)
    return found;
  const GasSource::Gas &usual = m_gases.scenario();
  for (const QString &remark : compression->remarks) {
    if (!usual.law->remarks().contains(remark)) // told once for the scenario
      tell(remark);
  }
  const Station whole = station(compressor, *compression, MachineChoice());
  for (std::size_t i = 0; i < whole.points.size(); ++i) {
    for (const QString &remark : whole.points[i].remarks)
      tell(whole.points.size() > 1 ? whole.running[i] + QStringLiteral(": ") + remark : remark);
  }
  for (const Comparison &comparison : compare(compressor, *compression, whole)) {
    if (comparison.isApart())
      tell(tr("The results state %1 = %2 %4, the map tells %3 %4")
               .arg(comparison.name, DisplayFormat::number(comparison.stored, 4),
                    DisplayFormat::number(comparison.computed, 4), comparison.unit));
  }
  return found;
}
