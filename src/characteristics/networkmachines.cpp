#include <characteristics/networkmachines.h>

#include <algorithm>

namespace {

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

} // namespace

const element *NetworkMachines::driven(const element &e) const {
  const bool isDrive = e.value(QStringLiteral("type")) == QLatin1String("d");
  return isDrive ? m_net.edges().find(e.value(QStringLiteral("driven"))) : nullptr;
}

const Drive *NetworkMachines::driveNamedBy(const QString &compressor) const {
  if (const TurboCompressor *turbo = m_data.turbo(compressor))
    return m_data.drive(turbo->drive);
  const PistonCompressor *piston = m_data.piston(compressor);
  return piston == nullptr ? nullptr : m_data.drive(piston->drive);
}

QStringList NetworkMachines::names(const element &e) const {
  const QString machine = e.value(QStringLiteral("machine"));
  const QString own = machine.isEmpty() ? e.value(QStringLiteral("name")) : machine;
  if (const element *compressor = driven(e)) {
    if (m_data.drive(own) != nullptr)
      return {own};
    const Drive *drive = driveNamedBy(machine.isEmpty() ? names(*compressor).first() : machine);
    return {drive == nullptr ? own : drive->name};
  }
  QStringList all = m_data.ofStation(e.value(QStringLiteral("name")));
  const auto first = std::find_if(all.begin(), all.end(),
                                  [&own](const QString &name) { return name.compare(own, Qt::CaseInsensitive) == 0; });
  if (first != all.end())
    std::rotate(all.begin(), first, first + 1);
  else if (all.isEmpty() || m_data.turbo(own) != nullptr || m_data.piston(own) != nullptr)
    return {own};
  return all;
}

const Drive *NetworkMachines::driveOf(const element &compressor, const QString &named) const {
  const element *drive = m_net.nodes().find(compressor.value(QStringLiteral("drive")));
  const bool isOneOfSeveral = names(compressor).size() > 1; // the drive that the network names is that of the first
  const Drive *own = drive == nullptr || isOneOfSeveral ? nullptr : m_data.drive(names(*drive).first());
  return own != nullptr ? own : m_data.drive(named);
}

NetworkMachines::Machine NetworkMachines::machine(const element &e, const QString &name) const {
  Machine found;
  const double ambient = m_data.ambientTemperature;
  found.ambientTemperature = ambient;
  found.ofStation = names(e).size();
  found.turbo = m_data.turbo(name);
  found.piston = found.turbo == nullptr ? m_data.piston(name) : nullptr;
  found.drive = found.turbo == nullptr && found.piston == nullptr ? m_data.drive(name) : nullptr;
  const element *compressor = found.drive == nullptr ? &e : driven(e); // a drive works where its compressor does
  const auto compression = compressor == nullptr ? std::nullopt : Compression::of(m_net, *compressor);
  if (!compression)
    return found;
  const TurboCompressor *turbo = found.turbo;
  const PistonCompressor *piston = found.piston;
  if (found.drive != nullptr) {
    turbo = m_data.turboOf(*found.drive);
    piston = m_data.pistonOf(*found.drive);
    if (turbo == nullptr && piston == nullptr) {
      turbo = m_data.turbo(names(*compressor).first());
      piston = m_data.piston(names(*compressor).first());
    }
  }
  const auto drive = [&](const QString &named) {
    return found.drive != nullptr ? found.drive : driveOf(e, named);
  };
  if (turbo != nullptr) {
    found.point = WorkingPoint::of(*turbo, drive(turbo->drive), *compression, ambient);
  } else if (piston != nullptr) {
    found.point = WorkingPoint::of(*piston, drive(piston->drive), *compression, ambient);
    if (found.piston != nullptr)
      found.limits = limitsOf(*piston, drive(piston->drive), *compression, ambient);
  }
  return found;
}
