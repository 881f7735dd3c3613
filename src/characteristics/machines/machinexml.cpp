#include "machinexml.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

/// To the one of the units of machine data that fits; nothing for a unit that is not known, or of something else.
std::optional<Units::Linear> conversionOf(const QString &unit) {
  static const std::array<QString, 8> ours{QStringLiteral("1/min"), QStringLiteral("kJ/kg"), QStringLiteral("m3/s"),
                                           QStringLiteral("m3"),    QStringLiteral("kN m"),  QStringLiteral("kW"),
                                           QStringLiteral("degC"),  QStringLiteral("1")};
  const QString known = GasLibXml::unitOf(unit);
  for (const QString &wanted : ours) {
    if (known == wanted)
      return Units::Linear();
    if (const auto conversion = Units::conversion(known, wanted); conversion && !known.isEmpty())
      return conversion;
  }
  return std::nullopt;
}

} // namespace

double MachineXml::valueHere() {
  bool isNumber = false;
  const QString text = attribute("value");
  const double value = text.toDouble(&isNumber);
  if (isNumber && std::isfinite(value))
    return value;
  tell(tr("%1 is no number: \"%2\"").arg(m_xml.name().toString(), text));
  return std::nan("");
}

double MachineXml::numberHere() {
  const double value = valueHere();
  const QString unit = attribute("unit");
  if (unit.isEmpty())
    return value;
  if (!m_units.contains(unit))
    m_units.insert(unit, conversionOf(unit));
  if (const std::optional<Units::Linear> toOurs = m_units.value(unit))
    return (*toOurs)(value);
  if (!std::isnan(value))
    tell(tr("the unit \"%1\" of %2 is not known, the value is left out").arg(unit, m_xml.name().toString()));
  return std::nan("");
}

double MachineXml::number() {
  const double value = numberHere();
  m_xml.skipCurrentElement();
  return value;
}

template <typename Target>
MachineXml::Child MachineXml::numberIn(const char *name, Target &target) {
  return {name, [this, &target] {
            target = number();
          }};
}

template <typename Function>
bool MachineXml::readCoefficient(const char *prefix, Function &function, std::optional<Function> &target) {
  const QLatin1String beginning(prefix);
  const int position = m_xml.name().startsWith(beginning) ? m_xml.name().mid(beginning.size()).toInt() : 0;
  if (position < 1 || position > static_cast<int>(function.c.size()))
    return false;
  function.c[static_cast<std::size_t>(position - 1)] = number();
  target = function;
  return true;
}

void MachineXml::readChildren(std::initializer_list<Child> known, const std::function<bool()> &isRead) {
  while (m_xml.readNextStartElement()) {
    if (isRead && isRead())
      continue;
    const auto child = std::find_if(known.begin(), known.end(),
                                    [this](const Child &one) { return m_xml.name() == QLatin1String(one.name); });
    if (child != known.end()) {
      child->read();
    } else {
      tell(tr("the element %1 is not known and left out").arg(m_xml.name().toString()));
      m_xml.skipCurrentElement();
    }
  }
}

MachineData MachineXml::read() {
  if (start(QStringLiteral("compressorStations"), QStringLiteral("CompressorStations"))) {
    readChildren({{"compressorStation", [this] {
                     readStation();
                   }}});
    finish();
  }
  return std::move(m_data);
}

void MachineXml::readStation() {
  m_station = attribute("id");
  const auto drive = [this](const char *name, Drive::Kind kind) {
    return Child{name, [this, kind] {
                   readDrive(kind);
                 }};
  };
  readChildren({{"compressors",
                 [this] {
                   readChildren({{"turboCompressor",
                                  [this] {
                                    readTurbo();
                                  }},
                                 {"pistonCompressor", [this] {
                                    readPiston();
                                  }}});
                 }},
                {"drives",
                 [&] {
                   readChildren({drive("gasTurbine", Drive::Kind::GasTurbine),
                                 drive("steamTurbine", Drive::Kind::SteamTurbine),
                                 drive("gasDrivenMotor", Drive::Kind::GasEngine),
                                 drive("electricMotor", Drive::Kind::ElectricMotor)});
                 }},
                {"configurations", [this] {
                   readChildren({{"configuration", [this] {
                                    readConfiguration();
                                  }}});
                 }}});
}

void MachineXml::readPoints(std::vector<MeasuredPoint> &points, double efficiency) {
  readChildren({{"measurement", [&] {
                   MeasuredPoint point;
                   point.efficiency = efficiency;
                   readChildren({numberIn("speed", point.speed), numberIn("adiabaticHead", point.head),
                                 numberIn("volumetricFlowrate", point.flow)});
                   if (std::isfinite(point.speed + point.head + point.flow + point.efficiency))
                     points.push_back(point);
                 }}});
}

void MachineXml::readTurbo() {
  TurboCompressor machine;
  machine.name = attribute("id");
  machine.station = m_station;
  machine.drive = attribute("drive");
  Biquadratic head;
  Biquadratic efficiency;
  Quadratic surge;
  Quadratic choke;
  readChildren({numberIn("speedMin", machine.speedMin),
                numberIn("speedMax", machine.speedMax),
                numberIn("efficiencyOfChokeline", machine.chokeEfficiency),
                {"surgelineMeasurements",
                 [&] {
                   readPoints(machine.surgePoints, 0.0);
                 }},
                {"characteristicDiagramMeasurements",
                 [&] {
                   readChildren({{"adiabaticEfficiency", [&] {
                                    readPoints(machine.points, numberHere());
                                  }}});
                 }}},
               [&] {
                 return readCoefficient("n_isoline_coeff_", head, machine.head) ||
                        readCoefficient("eta_ad_isoline_coeff_", efficiency, machine.efficiency) ||
                        readCoefficient("surgeline_coeff_", surge, machine.surge) ||
                        readCoefficient("chokeline_coeff_", choke, machine.choke);
               });
  m_data.turbos.push_back(std::move(machine));
}

void MachineXml::readPiston() {
  PistonCompressor machine;
  machine.name = attribute("id");
  machine.station = m_station;
  machine.drive = attribute("drive");
  readChildren({numberIn("speedMin", machine.speedMin),
                numberIn("speedMax", machine.speedMax),
                numberIn("operatingVolume", machine.displacement),
                numberIn("maximalTorque", machine.maximalTorque),
                numberIn("maximalCompressionRatio", machine.maximalRatio),
                numberIn("adiabaticEfficiency", machine.efficiency),
                {"additionalReductionVolFlow", // of the solver
                 [this] {
                   m_xml.skipCurrentElement();
                 }}});
  if (!machine.isUsable())
    tell(tr("%1: a piston compressor needs its displacement and a range of speeds").arg(machine.name));
  m_data.pistons.push_back(std::move(machine));
}

void MachineXml::readDrive(Drive::Kind kind) {
  Drive drive;
  drive.name = attribute("id");
  drive.kind = kind;
  Biquadratic power;
  Quadratic energy;
  readChildren({{"maximalPowerMeasurements",
                 [&] {
                   readPowerPoints(drive);
                 }},
                {"specificEnergyConsumptionMeasurements",
                 [&] {
                   readEnergyPoints(drive);
                 }}},
               [&] {
                 return readCoefficient("power_fun_coeff_", power, drive.power) ||
                        readCoefficient("energy_rate_fun_coeff_", energy, drive.energy);
               });
  m_data.drives.push_back(std::move(drive));
}

/// The measurements stand under the ambient temperature at which they were made, or state it themselves; where the power
/// does not depend on it nobody states it.
void MachineXml::readPowerPoints(Drive &drive) {
  const auto measurement = [&](double ambient) {
    return Child{"measurement", [this, &drive, ambient] {
                   readPowerPoint(drive, ambient);
                 }};
  };
  readChildren({measurement(MachineData::UsualTemperature), {"ambientTemperature", [&] {
                                                               readChildren({measurement(numberHere())});
                                                             }}});
}

void MachineXml::readPowerPoint(Drive &drive, double temperature) {
  const auto line = static_cast<int>(m_xml.lineNumber());
  std::optional<double> speed;
  std::optional<double> power;
  readChildren({numberIn("speed", speed), numberIn("maximalPower", power), numberIn("ambientTemperature", temperature)});
  if (!speed || !power)
    tell(tr("%1: a measurement needs its speed and its power; it is left out").arg(drive.name), line);
  else if (std::isfinite(*speed + *power + temperature))
    drive.powerPoints.push_back({*speed, temperature, *power});
}

void MachineXml::readEnergyPoints(Drive &drive) {
  readChildren({{"measurement", [&] {
                   const auto line = static_cast<int>(m_xml.lineNumber());
                   std::optional<double> power;
                   std::optional<double> rate;
                   readChildren({numberIn("compressorPower", power), numberIn("fuelConsumption", rate)});
                   if (!power || !rate)
                     tell(tr("%1: a measurement needs its power and its consumption; it is left out").arg(drive.name), line);
                   else if (std::isfinite(*power + *rate))
                     drive.energyPoints.push_back({*power, *rate});
                 }}});
}

void MachineXml::readConfiguration() {
  StationConfiguration configuration;
  configuration.station = m_station;
  configuration.name = attribute("confId");
  readChildren({{"stage", [&] {
                   StationConfiguration::Stage stage;
                   readChildren({{"compressor", [&] {
                                    stage.push_back({attribute("id"), attribute("nominalSpeed").toDouble()});
                                    m_xml.skipCurrentElement();
                                  }}});
                   if (!stage.empty())
                     configuration.stages.push_back(std::move(stage));
                 }}});
  if (configuration.stages.empty())
    tell(tr("the configuration %1 of %2 names no compressor and is left out").arg(configuration.name, m_station));
  else
    m_data.configurations.push_back(std::move(configuration));
}
