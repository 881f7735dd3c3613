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

const Drive *NetworkMachines::driveOfMachine(const element &compressor, const QString &machine) const {
  if (const TurboCompressor *turbo = m_data.turbo(machine))
    return driveOf(compressor, turbo->drive);
  const PistonCompressor *piston = m_data.piston(machine);
  return piston == nullptr ? nullptr : driveOf(compressor, piston->drive);
}

std::optional<WorkingPoint> NetworkMachines::pointOf(const element &compressor, const QString &machine,
                                                     const Compression &compression) const {
  const Drive *drive = driveOfMachine(compressor, machine);
  if (const TurboCompressor *turbo = m_data.turbo(machine))
    return WorkingPoint::of(*turbo, drive, compression, m_data.ambientTemperature);
  if (const PistonCompressor *piston = m_data.piston(machine))
    return WorkingPoint::of(*piston, drive, compression, m_data.ambientTemperature);
  return std::nullopt;
}

bool NetworkMachines::Station::isWell() const {
  return !units.empty() && std::all_of(units.begin(), units.end(), [](const Unit &unit) { return unit.point.isInside; });
}

double NetworkMachines::Station::power() const {
  double sum = 0.0;
  for (const Unit &unit : units) {
    if (!unit.point.power)
      return 0.0;
    sum += *unit.point.power;
  }
  return sum;
}

std::optional<WorkingPoint> NetworkMachines::Station::pointOf(const QString &machine) const {
  for (const Unit &unit : units) {
    if (isSame(unit.machine, machine))
      return unit.point;
  }
  return std::nullopt;
}

NetworkMachines::Station NetworkMachines::run(const element &compressor, const StationConfiguration &configuration,
                                              const Compression &compression) const {
  Station station;
  const StationSplit split(m_data, configuration);
  for (const StationConfiguration::Stage &stage : configuration.stages) {
    for (const StationConfiguration::Unit &unit : stage) {
      const auto part = split.part(unit.compressor, compression);
      const auto point = part ? pointOf(compressor, unit.compressor, part->compression) : std::nullopt;
      if (point)
        station.units.push_back({unit.compressor, part->stage, part->share, part->compression, *point});
    }
  }
  station.configuration = configuration;
  return station;
}

/// The configuration that is chosen, else the first in which all machines work inside of their maps, else the first.
NetworkMachines::Station NetworkMachines::station(const element &compressor, const Compression &compression,
                                                  const MachineChoice &choice) const {
  const std::vector<StationConfiguration> all = configurations(compressor);
  if (all.empty()) {
    Station single;
    const QString name = names(compressor).first();
    if (const auto point = pointOf(compressor, name, compression))
      single.units.push_back({name, 0, 1.0, compression, *point});
    return single;
  }
  std::optional<Station> first;
  for (const StationConfiguration &configuration : all) {
    Station station = run(compressor, configuration, compression);
    if (configuration.name == choice.configuration || (choice.configuration.isEmpty() && station.isWell()))
      return station;
    if (!first)
      first = std::move(station);
  }
  return *first;
}

std::optional<Compression> NetworkMachines::compression(const element &e) const {
  const element *compressor = driven(e);
  return Compression::of(m_net, compressor == nullptr ? e : *compressor, m_gases);
}

std::optional<NetworkMachines::Station> NetworkMachines::station(const element &compressor,
                                                                 const MachineChoice &choice) const {
  const auto flowing = Compression::of(m_net, compressor, m_gases);
  return flowing ? std::optional<Station>(station(compressor, *flowing, choice)) : std::nullopt;
}

/// What the machine data say of a machine.
NetworkMachines::Machine NetworkMachines::described(const QString &name) const {
  Machine machine;
  machine.ambientTemperature = m_data.ambientTemperature;
  if (const TurboCompressor *turbo = m_data.turbo(name))
    machine.turbo = *turbo;
  else if (const PistonCompressor *piston = m_data.piston(name))
    machine.piston = *piston;
  else if (const Drive *drive = m_data.drive(name))
    machine.drive = *drive;
  return machine;
}

/// The running machine that a drive drives; where there is none, the first of the compressor.
QString NetworkMachines::drivenBy(const QString &driveName, const element &compressor, const Station &station) const {
  const auto found = std::find_if(station.units.begin(), station.units.end(), [&](const Unit &unit) {
    const Drive *drive = driveNamedBy(unit.machine);
    return drive != nullptr && isSame(drive->name, driveName);
  });
  return found != station.units.end() ? found->machine : names(compressor).first();
}

std::optional<std::pair<double, double>> NetworkMachines::speeds(const QString &machine) const {
  if (const TurboCompressor *turbo = m_data.turbo(machine))
    return std::pair(turbo->speedMin, turbo->speedMax);
  if (const PistonCompressor *piston = m_data.piston(machine))
    return std::pair(piston->speedMin, piston->speedMax);
  return std::nullopt;
}

NetworkMachines::Machine NetworkMachines::machine(const element &e, const QString &name, const MachineChoice &choice) const {
  Machine found = described(name);
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
  found.compression = own;
  const Drive *drive = driveOfMachine(*compressor, name);
  if (drive != nullptr)
    found.drivenBy = *drive;
  if (found.piston)
    found.limits = limitsOf(*found.piston, drive, own, found.ambientTemperature);
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
  const bool isCompressing =
      std::all_of(station.units.begin(), station.units.end(), [](const Unit &unit) { return unit.point.isCompressing(); });
  if (station.units.empty() || !isCompressing)
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
  if (station.units.size() == 1)
    take("speed", tr("speed"), QStringLiteral("1/min"), 1.0, station.units.front().point.speed.value_or(0.0));
  return comparisons;
}

NetworkMachines::Judgement NetworkMachines::judge() const {
  if (m_data.isEmpty())
    return {};
  Judgement judgement;
  judgement.findings = m_gases.findings();
  for (const elements::Entry &entry : m_net.edges()) {
    if (entry.value.value(Names::all().type) == QLatin1String("c"))
      judge(entry.value, judgement);
  }
  return judgement;
}

void NetworkMachines::judge(const element &compressor, Judgement &judgement) const {
  const QString name = compressor.value(Names::all().name);
  const auto tell = [&](const QString &text) {
    judgement.findings.push_back(Finding::about(name, name + QStringLiteral(": ") + text));
  };
  const QStringList all = names(compressor);
  const bool isKnown = std::any_of(all.begin(), all.end(), [this](const QString &machine) {
    return m_data.turbo(machine) != nullptr || m_data.piston(machine) != nullptr;
  });
  const auto compression = isKnown ? Compression::of(m_net, compressor, m_gases) : std::nullopt;
  if (!compression)
    return;
  const GasSource::Gas &usual = m_gases.scenario();
  for (const QString &remark : compression->remarks) {
    if (!usual.law->remarks().contains(remark)) // told once for the scenario
      tell(remark);
  }
  const Station whole = station(compressor, *compression, MachineChoice());
  for (const Unit &unit : whole.units) {
    for (const QString &remark : unit.point.remarks)
      tell(whole.units.size() > 1 ? unit.machine + QStringLiteral(": ") + remark : remark);
  }
  for (const Comparison &comparison : compare(compressor, *compression, whole)) {
    if (comparison.isApart())
      tell(tr("The results state %1 = %2 %4, the map tells %3 %4")
               .arg(comparison.name, DisplayFormat::number(comparison.stored, 4),
                    DisplayFormat::number(comparison.computed, 4), comparison.unit));
  }
  takeNearness(compressor, whole, judgement);
}

/// Of the compressor, and of the drive that it names.
void NetworkMachines::takeNearness(const element &compressor, const Station &station, Judgement &judgement) const {
  Nearness all{compressor.value(Names::all().name), {}};
  for (const Unit &unit : station.units)
    all.margins.takeNearer(unit.point.margins);
  judgement.machines.push_back(all);
  const QString driveName = compressor.value(Names::all().drive);
  const element *drive = m_net.nodes().find(driveName);
  if (drive == nullptr || drive->value(Names::all().type) != QLatin1String("d"))
    return;
  const auto point = station.pointOf(drivenBy(names(*drive).first(), compressor, station));
  if (!point)
    return;
  MachineMargins margins;
  margins.speed = point->margins.speed;
  margins.power = point->margins.power;
  judgement.machines.push_back({driveName, margins});
}
