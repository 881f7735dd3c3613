#include "machinexml.h"

#include <QCoreApplication>

#include <array>
#include <cmath>

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(MachineXml)
};

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
  tell(Texts::tr("%1 is no number: \"%2\"").arg(m_xml.name().toString(), text));
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
    tell(Texts::tr("the unit \"%1\" of %2 is not known, the value is left out").arg(unit, m_xml.name().toString()));
  return std::nan("");
}

double MachineXml::number() {
  const double value = numberHere();
  m_xml.skipCurrentElement();
  return value;
}

int MachineXml::coefficient(const char *prefix, std::size_t count) const {
  const QLatin1String beginning(prefix);
  if (!m_xml.name().startsWith(beginning))
    return -1;
  const int number = m_xml.name().mid(beginning.size()).toInt();
  return number >= 1 && number <= static_cast<int>(count) ? number - 1 : -1;
}

void MachineXml::skipUnknown() {
  tell(Texts::tr("the element %1 is not known and left out").arg(m_xml.name().toString()));
  m_xml.skipCurrentElement();
}

MachineData MachineXml::read() {
  if (start(QStringLiteral("compressorStations"), QStringLiteral("CompressorStations"))) {
    while (m_xml.readNextStartElement()) {
      if (m_xml.name() == QLatin1String("compressorStation"))
        readStation();
      else
        skipUnknown();
    }
    finish();
  }
  return std::move(m_data);
}

void MachineXml::readStation() {
  m_station = attribute("id");
  while (m_xml.readNextStartElement()) {
    if (m_xml.name() == QLatin1String("compressors"))
      readCompressors();
    else if (m_xml.name() == QLatin1String("drives"))
      readDrives();
    else if (m_xml.name() == QLatin1String("configurations"))
      readConfigurations();
    else
      skipUnknown();
  }
}

void MachineXml::readCompressors() {
  while (m_xml.readNextStartElement()) {
    if (m_xml.name() == QLatin1String("turboCompressor"))
      readTurbo();
    else if (m_xml.name() == QLatin1String("pistonCompressor"))
      readPiston();
    else
      skipUnknown();
  }
}

MeasuredPoint MachineXml::readPoint(double efficiency) {
  MeasuredPoint point;
  point.efficiency = efficiency;
  while (m_xml.readNextStartElement()) {
    if (m_xml.name() == QLatin1String("speed"))
      point.speed = number();
    else if (m_xml.name() == QLatin1String("adiabaticHead"))
      point.head = number();
    else if (m_xml.name() == QLatin1String("volumetricFlowrate"))
      point.flow = number();
    else
      skipUnknown();
  }
  return point;
}

void MachineXml::readPoints(std::vector<MeasuredPoint> &points, double efficiency) {
  while (m_xml.readNextStartElement()) {
    if (m_xml.name() != QLatin1String("measurement")) {
      skipUnknown();
      continue;
    }
    const MeasuredPoint point = readPoint(efficiency);
    if (std::isfinite(point.speed + point.head + point.flow + point.efficiency))
      points.push_back(point);
  }
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
  const auto take = [this](auto &function, auto &target, const char *prefix) {
    const int i = coefficient(prefix, function.c.size());
    if (i < 0)
      return false;
    function.c[static_cast<std::size_t>(i)] = number();
    target = function;
    return true;
  };
  while (m_xml.readNextStartElement()) {
    if (take(head, machine.head, "n_isoline_coeff_") || take(efficiency, machine.efficiency, "eta_ad_isoline_coeff_") ||
        take(surge, machine.surge, "surgeline_coeff_") || take(choke, machine.choke, "chokeline_coeff_"))
      continue;
    if (m_xml.name() == QLatin1String("speedMin")) {
      machine.speedMin = number();
    } else if (m_xml.name() == QLatin1String("speedMax")) {
      machine.speedMax = number();
    } else if (m_xml.name() == QLatin1String("efficiencyOfChokeline")) {
      machine.chokeEfficiency = number();
    } else if (m_xml.name() == QLatin1String("surgelineMeasurements")) {
      readPoints(machine.surgePoints, 0.0);
    } else if (m_xml.name() == QLatin1String("characteristicDiagramMeasurements")) {
      while (m_xml.readNextStartElement()) {
        if (m_xml.name() == QLatin1String("adiabaticEfficiency"))
          readPoints(machine.points, numberHere());
        else
          skipUnknown();
      }
    } else {
      skipUnknown();
    }
  }
  m_data.turbos.push_back(std::move(machine));
}

void MachineXml::readPiston() {
  PistonCompressor machine;
  machine.name = attribute("id");
  machine.station = m_station;
  machine.drive = attribute("drive");
  while (m_xml.readNextStartElement()) {
    if (m_xml.name() == QLatin1String("speedMin"))
      machine.speedMin = number();
    else if (m_xml.name() == QLatin1String("speedMax"))
      machine.speedMax = number();
    else if (m_xml.name() == QLatin1String("operatingVolume"))
      machine.displacement = number();
    else if (m_xml.name() == QLatin1String("maximalTorque"))
      machine.maximalTorque = number();
    else if (m_xml.name() == QLatin1String("maximalCompressionRatio"))
      machine.maximalRatio = number();
    else if (m_xml.name() == QLatin1String("adiabaticEfficiency"))
      machine.efficiency = number();
    else if (m_xml.name() == QLatin1String("additionalReductionVolFlow"))
      m_xml.skipCurrentElement(); // of the solver
    else
      skipUnknown();
  }
  if (!machine.isUsable())
    tell(Texts::tr("%1: a piston compressor needs its displacement and a range of speeds").arg(machine.name));
  m_data.pistons.push_back(std::move(machine));
}

void MachineXml::readDrives() {
  while (m_xml.readNextStartElement()) {
    if (m_xml.name() == QLatin1String("gasTurbine"))
      readDrive(Drive::Kind::GasTurbine);
    else if (m_xml.name() == QLatin1String("steamTurbine"))
      readDrive(Drive::Kind::SteamTurbine);
    else if (m_xml.name() == QLatin1String("gasDrivenMotor"))
      readDrive(Drive::Kind::GasEngine);
    else if (m_xml.name() == QLatin1String("electricMotor"))
      readDrive(Drive::Kind::ElectricMotor);
    else
      skipUnknown();
  }
}

void MachineXml::readDrive(Drive::Kind kind) {
  Drive drive;
  drive.name = attribute("id");
  drive.kind = kind;
  Biquadratic power;
  Quadratic energy;
  while (m_xml.readNextStartElement()) {
    const int ofPower = coefficient("power_fun_coeff_", power.c.size());
    const int ofEnergy = coefficient("energy_rate_fun_coeff_", energy.c.size());
    if (ofPower >= 0) {
      power.c[static_cast<std::size_t>(ofPower)] = number();
      drive.power = power;
    } else if (ofEnergy >= 0) {
      energy.c[static_cast<std::size_t>(ofEnergy)] = number();
      drive.energy = energy;
    } else if (m_xml.name() == QLatin1String("maximalPowerMeasurements")) {
      readPowerPoints(drive);
    } else if (m_xml.name() == QLatin1String("specificEnergyConsumptionMeasurements")) {
      readEnergyPoints(drive);
    } else {
      skipUnknown();
    }
  }
  m_data.drives.push_back(std::move(drive));
}

/// The measurements stand under the ambient temperature at which they were made, or state it themselves; where the power
/// does not depend on it nobody states it.
void MachineXml::readPowerPoints(Drive &drive) {
  while (m_xml.readNextStartElement()) {
    if (m_xml.name() == QLatin1String("measurement")) {
      readPowerPoint(drive, MachineData::UsualTemperature);
    } else if (m_xml.name() == QLatin1String("ambientTemperature")) {
      const double temperature = numberHere();
      while (m_xml.readNextStartElement()) {
        if (m_xml.name() == QLatin1String("measurement"))
          readPowerPoint(drive, temperature);
        else
          skipUnknown();
      }
    } else {
      skipUnknown();
    }
  }
}

void MachineXml::readPowerPoint(Drive &drive, double temperature) {
  const auto line = static_cast<int>(m_xml.lineNumber());
  std::optional<double> speed;
  std::optional<double> power;
  while (m_xml.readNextStartElement()) {
    if (m_xml.name() == QLatin1String("speed"))
      speed = number();
    else if (m_xml.name() == QLatin1String("maximalPower"))
      power = number();
    else if (m_xml.name() == QLatin1String("ambientTemperature"))
      temperature = number();
    else
      skipUnknown();
  }
  if (!speed || !power)
    tell(Texts::tr("%1: a measurement needs its speed and its power; it is left out").arg(drive.name), line);
  else if (std::isfinite(*speed + *power + temperature))
    drive.powerPoints.push_back({*speed, temperature, *power});
}

void MachineXml::readEnergyPoints(Drive &drive) {
  while (m_xml.readNextStartElement()) {
    if (m_xml.name() != QLatin1String("measurement")) {
      skipUnknown();
      continue;
    }
    const auto line = static_cast<int>(m_xml.lineNumber());
    std::optional<double> power;
    std::optional<double> rate;
    while (m_xml.readNextStartElement()) {
      if (m_xml.name() == QLatin1String("compressorPower"))
        power = number();
      else if (m_xml.name() == QLatin1String("fuelConsumption"))
        rate = number();
      else
        skipUnknown();
    }
    if (!power || !rate)
      tell(Texts::tr("%1: a measurement needs its power and its consumption; it is left out").arg(drive.name), line);
    else if (std::isfinite(*power + *rate))
      drive.energyPoints.push_back({*power, *rate});
  }
}

void MachineXml::readConfigurations() {
  while (m_xml.readNextStartElement()) {
    if (m_xml.name() == QLatin1String("configuration"))
      readConfiguration();
    else
      skipUnknown();
  }
}

void MachineXml::readConfiguration() {
  StationConfiguration configuration;
  configuration.station = m_station;
  configuration.name = attribute("confId");
  while (m_xml.readNextStartElement()) {
    if (m_xml.name() != QLatin1String("stage")) {
      skipUnknown();
      continue;
    }
    StationConfiguration::Stage stage;
    while (m_xml.readNextStartElement()) {
      if (m_xml.name() == QLatin1String("compressor")) {
        stage.push_back({attribute("id"), attribute("nominalSpeed").toDouble()});
        m_xml.skipCurrentElement();
      } else {
        skipUnknown();
      }
    }
    if (!stage.empty())
      configuration.stages.push_back(std::move(stage));
  }
  if (configuration.stages.empty())
    tell(Texts::tr("the configuration %1 of %2 names no compressor and is left out").arg(configuration.name, m_station));
  else
    m_data.configurations.push_back(std::move(configuration));
}
