#include "machinexml.h"

#include <base/fileaccess.h>
#include <io/tablefile.h>

#include <QCoreApplication>
#include <QFile>

#include <cmath>
#include <machines/machinereader.h>

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(MachineReader)
};

/// Puts the rows of text tables together.
class TableBuilder {
public:
  explicit TableBuilder(QString path)
      : m_path(std::move(path)) {}

  void take(const TableFile::Row &row) {
    if (row.type == QLatin1String("turbo compressor"))
      takeTurbo(row);
    else if (row.type == QLatin1String("piston compressor"))
      takePiston(row);
    else if (row.type == QLatin1String("gas turbine"))
      takeDrive(row, Drive::Kind::GasTurbine);
    else if (row.type == QLatin1String("gas engine"))
      takeDrive(row, Drive::Kind::GasEngine);
    else if (row.type == QLatin1String("steam turbine"))
      takeDrive(row, Drive::Kind::SteamTurbine);
    else if (row.type == QLatin1String("electric motor"))
      takeDrive(row, Drive::Kind::ElectricMotor);
    else
      takePoint(row);
  }

  MachineReader::Result result;

private:
  void tell(const TableFile::Row &row, const QString &text) {
    result.findings.push_back(
        {Finding::Severity::Warning, m_path, row.line, row.name + QStringLiteral(": ") + text, QString(), false, row.name});
  }

  /// 0 when there is none; a text in place of a number is told.
  double number(const TableFile::Row &row, const char *column) {
    const PropertyText *text = row.values.find(PropertyKey::find(column));
    if (text == nullptr)
      return 0.0;
    const std::optional<double> found = text->toDouble();
    if (found && std::isfinite(*found))
      return *found;
    tell(row, Texts::tr("\"%1\" is no number: %2").arg(QLatin1String(column), text->toString()));
    return std::nan("");
  }

  template <typename Function>
  std::optional<Function> coefficients(const TableFile::Row &row, const char *name) {
    Function function;
    bool hasSome = false;
    for (std::size_t i = 0; i < function.c.size(); ++i) {
      const std::string column = name + std::to_string(i + 1);
      function.c[i] = number(row, column.c_str());
      if (std::isnan(function.c[i]))
        return std::nullopt;
      hasSome = hasSome || function.c[i] != 0.0;
    }
    return hasSome ? std::optional<Function>(function) : std::nullopt;
  }

  /// What both kinds of compressors have.
  template <typename Machine>
  Machine compressor(const TableFile::Row &row) {
    Machine machine;
    machine.name = row.name;
    machine.station = row.values.value(QStringLiteral("station"));
    machine.drive = row.values.value(QStringLiteral("drive"));
    machine.speedMin = number(row, "speedmin");
    machine.speedMax = number(row, "speedmax");
    return machine;
  }

  void takeTurbo(const TableFile::Row &row) {
    auto machine = compressor<TurboCompressor>(row);
    machine.head = coefficients<Biquadratic>(row, "head");
    machine.efficiency = coefficients<Biquadratic>(row, "efficiency");
    machine.surge = coefficients<Quadratic>(row, "surge");
    machine.choke = coefficients<Quadratic>(row, "choke");
    result.data.turbos.push_back(machine);
  }

  void takePiston(const TableFile::Row &row) {
    auto machine = compressor<PistonCompressor>(row);
    machine.displacement = number(row, "displacement");
    machine.maximalTorque = number(row, "torque");
    machine.maximalRatio = number(row, "ratio");
    machine.efficiency = number(row, "efficiency");
    if (!machine.isUsable())
      tell(row, Texts::tr("a piston compressor needs its displacement and a range of speeds"));
    result.data.pistons.push_back(machine);
  }

  void takeDrive(const TableFile::Row &row, Drive::Kind kind) {
    Drive drive;
    drive.name = row.name;
    drive.kind = kind;
    drive.power = coefficients<Biquadratic>(row, "power");
    drive.energy = coefficients<Quadratic>(row, "energy");
    result.data.drives.push_back(drive);
  }

  void takePoint(const TableFile::Row &row) {
    const auto turbo = std::find_if(result.data.turbos.begin(), result.data.turbos.end(),
                                    [&row](const TurboCompressor &machine) { return machine.name == row.name; });
    const auto drive = std::find_if(result.data.drives.begin(), result.data.drives.end(),
                                    [&row](const Drive &machine) { return machine.name == row.name; });
    const std::size_t before = result.findings.size();
    const bool isOfTurbo = row.type == QLatin1String("points") || row.type == QLatin1String("surge points");
    if (isOfTurbo && turbo != result.data.turbos.end()) {
      const MeasuredPoint point{number(row, "speed"), number(row, "flow"), number(row, "head"), number(row, "efficiency")};
      if (result.findings.size() == before)
        (row.type == QLatin1String("points") ? turbo->points : turbo->surgePoints).push_back(point);
    } else if (row.type == QLatin1String("power points") && drive != result.data.drives.end()) {
      const Drive::PowerPoint point{number(row, "speed"), number(row, "temperature"), number(row, "power")};
      if (result.findings.size() == before)
        drive->powerPoints.push_back(point);
    } else if (row.type == QLatin1String("energy points") && drive != result.data.drives.end()) {
      const Drive::EnergyPoint point{number(row, "power"), number(row, "rate")};
      if (result.findings.size() == before)
        drive->energyPoints.push_back(point);
    } else {
      tell(row, Texts::tr("no machine of this name stands above this row of the table \"%1\"").arg(row.type));
    }
  }

  QString m_path;
};

MachineReader::Result readTables(const QString &path) {
  TableFile::Contents contents = TableFile::read(path);
  TableBuilder builder(path);
  builder.result.ok = contents.ok;
  builder.result.findings = std::move(contents.findings);
  for (const TableFile::Row &row : contents.rows)
    builder.take(row);
  return std::move(builder.result);
}

} // namespace

MachineReader::Result MachineReader::read(const QString &path) {
  QFile file(path);
  Result result;
  QString reason;
  if (!FileAccess::openForReading(file, FileAccess::Source::Workspace, FileAccess::LargestConfiguration, &reason)) {
    result.findings.push_back(
        {Finding::Severity::Warning, path, 0, Texts::tr("The machine data cannot be read: %1").arg(reason)});
    return result;
  }
  constexpr qint64 Looked = 1024;
  const QByteArray beginning = file.read(Looked).trimmed();
  file.close();
  const bool isXml = beginning.startsWith('<') || beginning.startsWith("\xEF\xBB\xBF<");
  if (isXml) {
    MachineXml xml(path);
    result.data = xml.read();
    result.findings = std::move(xml.findings);
    result.ok = true;
  } else {
    result = readTables(path);
  }
  const auto tell = [&](Findings findings) {
    for (Finding &finding : findings) {
      finding.file = path;
      result.findings.push_back(std::move(finding));
    }
  };
  for (TurboCompressor &machine : result.data.turbos)
    tell(machine.fit());
  for (Drive &drive : result.data.drives)
    tell(drive.fit());
  return result;
}
