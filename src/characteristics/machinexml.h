#pragma once

#include <characteristics/machinereader.h>
#include <io/gaslibxml.h>

/// The XML of compressor stations of public gas network instances (namespace http://gaslib.zib.de/CompressorStations).
class MachineXml : private GasLibXml {
public:
  using GasLibXml::GasLibXml;

  MachineReader::Result read(QIODevice &device);

private:
  void readStation();
  void readCompressors();
  void readTurbo();
  void readPiston();
  void readDrives();
  void readDrive(Drive::Kind kind);
  void readConfigurations();
  void readConfiguration();
  /// The numbers of a "measurement" by the names of its children.
  MeasuredPoint readPoint(double efficiency);
  void readPoints(std::vector<MeasuredPoint> &points, double efficiency);
  /// The number that the current element states; no number, and a message, where it states none.
  double valueHere();
  /// The same in our units, and past the element.
  double number();
  /// "head_coeff_3" for "head_coeff_" gives 2; -1 for another name or a number beyond the count.
  int coefficient(const char *prefix, std::size_t count) const;
  void skipUnknown();

  QString m_station; ///< being read
  MachineReader::Result m_result;
};
