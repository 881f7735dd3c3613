#include "machinexml.h"

#include <QCoreApplication>

#include <cmath>

namespace {

QString tr(const char *text) {
  return QCoreApplication::translate("MachineXml", text);
}

/// To the units of machine data; 0 for a unit that is not known.
double factorOf(const QStringRef &unit) {
  static const std::pair<QLatin1String, double> factors[] = {{QLatin1String(""), 1.0},
                                                             {QLatin1String("per_min"), 1.0},
                                                             {QLatin1String("per_s"), 60.0},
                                                             {QLatin1String("kJ_per_kg"), 1.0},
                                                             {QLatin1String("J_per_kg"), 1e-3},
                                                             {QLatin1String("m_cube_per_s"), 1.0},
                                                             {QLatin1String("m_cube_per_hour"), 1.0 / 3600.0},
                                                             {QLatin1String("m_cube"), 1.0},
                                                             {QLatin1String("kNm"), 1.0},
                                                             {QLatin1String("Nm"), 1e-3},
                                                             {QLatin1String("kW"), 1.0},
                                                             {QLatin1String("MW"), 1e3},
                                                             {QLatin1String("W"), 1e-3},
                                                             {QLatin1String("C"), 1.0},
                                                             {QLatin1String("Celsius"), 1.0}};
  for (const auto &[name, factor] : factors) {
    if (unit == name)
      return factor;
  }
  return 0.0;
}

} // namespace

MachineXml::MachineXml(QIODevice &device, QString path)
    : m_xml(&device)
    , m_path(std::move(path)) {}

void MachineXml::tell(const QString &text) {
  constexpr std::size_t Most = 1000; // a file that is wrong altogether must not fill the memory
  if (m_result.findings.size() > Most)
    return;
  if (m_result.findings.size() == Most) {
    m_result.findings.push_back({Finding::Severity::Warning, m_path, 0, tr("... and more, which are not told"), QString()});
    return;
  }
  m_result.findings.push_back({Finding::Severity::Warning, m_path, static_cast<int>(m_xml.lineNumber()), text, QString()});
}

double MachineXml::number() {
  const QXmlStreamAttributes attributes = m_xml.attributes();
  const QString element = m_xml.name().toString();
  bool isNumber = false;
  const double value = attributes.value(QStringLiteral("value")).toDouble(&isNumber);
  const double factor = factorOf(attributes.value(QStringLiteral("unit")));
  if (!isNumber || !std::isfinite(value))
    tell(tr("%1 is no number: \"%2\"").arg(element, attributes.value(QStringLiteral("value")).toString()));
  else if (factor == 0.0)
    tell(tr("the unit \"%1\" of %2 is not known, the value is taken as it stands")
             .arg(attributes.value(QStringLiteral("unit")).toString(), element));
  m_xml.skipCurrentElement();
  return isNumber && std::isfinite(value) ? value * (factor == 0.0 ? 1.0 : factor) : std::nan("");
}

int MachineXml::coefficient(const char *prefix, std::size_t count) const {
  const QLatin1String beginning(prefix);
  if (!m_xml.name().startsWith(beginning))
    return -1;
  const int number = m_xml.name().mid(beginning.size()).toInt();
  return number >= 1 && number <= static_cast<int>(count) ? number - 1 : -1;
}

void MachineXml::skipUnknown() {
  tell(tr("the element %1 is not known and left out").arg(m_xml.name().toString()));
  m_xml.skipCurrentElement();
}

MachineReader::Result MachineXml::read() {
  constexpr auto Namespace = "http://gaslib.zib.de/CompressorStations";
  m_result.ok = true;
  while (!m_xml.atEnd() && m_xml.readNext() != QXmlStreamReader::StartElement) {
    if (m_xml.isDTD()) { // before anything in it is used
      tell(tr("The file has a document type, which is not allowed: nothing is read."));
      return m_result;
    }
  }
  if (m_xml.isStartElement() && m_xml.name() != QLatin1String("compressorStations")) {
    tell(tr("The file holds %1 instead of compressorStations: nothing is read.").arg(m_xml.name().toString()));
    return m_result;
  }
  if (m_xml.isStartElement() && m_xml.namespaceUri() != QLatin1String(Namespace))
    tell(tr("The namespace is \"%1\" instead of \"%2\".").arg(m_xml.namespaceUri().toString(), QLatin1String(Namespace)));
  while (m_xml.readNextStartElement()) {
    if (m_xml.name() == QLatin1String("compressorStation"))
      readStation();
    else
      skipUnknown();
  }
  if (m_xml.hasError())
    tell(tr("The file cannot be read any further: %1").arg(m_xml.errorString()));
  return m_result;
}

void MachineXml::readStation() {
  m_station = m_xml.attributes().value(QStringLiteral("id")).toString();
  while (m_xml.readNextStartElement()) {
    if (m_xml.name() == QLatin1String("compressors"))
      readCompressors();
    else if (m_xml.name() == QLatin1String("drives"))
      readDrives();
    else if (m_xml.name() == QLatin1String("configurations"))
      m_xml.skipCurrentElement(); // how machines work together is the solver's
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
  machine.name = m_xml.attributes().value(QStringLiteral("id")).toString();
  machine.station = m_station;
  machine.drive = m_xml.attributes().value(QStringLiteral("drive")).toString();
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
          readPoints(machine.points, m_xml.attributes().value(QStringLiteral("value")).toDouble());
        else
          skipUnknown();
      }
    } else {
      skipUnknown();
    }
  }
  m_result.data.turbos.push_back(std::move(machine));
}

void MachineXml::readPiston() {
  PistonCompressor machine;
  machine.name = m_xml.attributes().value(QStringLiteral("id")).toString();
  machine.station = m_station;
  machine.drive = m_xml.attributes().value(QStringLiteral("drive")).toString();
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
    tell(tr("%1: a piston compressor needs its displacement and a range of speeds").arg(machine.name));
  m_result.data.pistons.push_back(std::move(machine));
}

void MachineXml::readDrives() {
  while (m_xml.readNextStartElement()) {
    if (m_xml.name() == QLatin1String("gasTurbine"))
      readDrive(Drive::Kind::GasTurbine);
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
  drive.name = m_xml.attributes().value(QStringLiteral("id")).toString();
  drive.kind = kind;
  Biquadratic power;
  Quadratic energy;
  const auto readPair = [this](const char *first, const char *second, const char *third) {
    std::array<double, 3> values{};
    while (m_xml.readNextStartElement()) {
      if (m_xml.name() == QLatin1String(first))
        values[0] = number();
      else if (m_xml.name() == QLatin1String(second))
        values[1] = number();
      else if (m_xml.name() == QLatin1String(third))
        values[2] = number();
      else
        skipUnknown();
    }
    return values;
  };
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
      while (m_xml.readNextStartElement()) {
        const auto values = readPair("speed", "ambientTemperature", "maximalPower");
        if (std::isfinite(values[0] + values[1] + values[2]))
          drive.powerPoints.push_back({values[0], values[1], values[2]});
      }
    } else if (m_xml.name() == QLatin1String("specificEnergyConsumptionMeasurements")) {
      while (m_xml.readNextStartElement()) {
        const auto values = readPair("compressorPower", "fuelConsumption", "");
        if (std::isfinite(values[0] + values[1]))
          drive.energyPoints.push_back({values[0], values[1]});
      }
    } else {
      skipUnknown();
    }
  }
  m_result.data.drives.push_back(std::move(drive));
}
