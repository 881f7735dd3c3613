#pragma once

#include <io/gaslibxml.h>
#include <model/units.h>

#include <QHash>

#include <machines/machinedata.h>

/// The XML of compressor stations of public gas network instances (namespace http://gaslib.zib.de/CompressorStations).
class MachineXml : private GasLibXml {
public:
  explicit MachineXml(const QString &path)
      : GasLibXml(path, FileAccess::Source::Workspace) {}

  MachineData read();
  using GasLibXml::findings;

private:
  void readStation();
  void readCompressors();
  void readTurbo();
  void readPiston();
  void readDrives();
  void readDrive(Drive::Kind kind);
  void readPowerPoints(Drive &drive);
  void readPowerPoint(Drive &drive, double temperature);
  void readEnergyPoints(Drive &drive);
  void readConfigurations();
  void readConfiguration();
  /// The numbers of a "measurement" by the names of its children.
  MeasuredPoint readPoint(double efficiency);
  void readPoints(std::vector<MeasuredPoint> &points, double efficiency);
  /// The number that the current element states; no number, and a message, where it states none.
  double valueHere();
  /// The number of the current element in our units. The reader stays at the element.
  double numberHere();
  /// As numberHere(), and passes over the element.
  double number();
  /// "head_coeff_3" for "head_coeff_" gives 2; -1 for another name or a number beyond the count.
  int coefficient(const char *prefix, std::size_t count) const;
  void skipUnknown();

  QString m_station;                                    ///< being read
  QHash<QString, std::optional<Units::Linear>> m_units; ///< of the file, to those of machine data
  MachineData m_data;
};
