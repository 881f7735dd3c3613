#pragma once

#include <characteristics/machinereader.h>

#include <QXmlStreamReader>

/// The XML of compressor stations of public gas network instances (namespace http://gaslib.zib.de/CompressorStations).
/// Document types are refused, so that no entity is expanded or loaded.
class MachineXml {
public:
  MachineXml(QIODevice &device, QString path);

  MachineReader::Result read();

private:
  void readStation();
  void readCompressors();
  void readTurbo();
  void readPiston();
  void readDrives();
  void readDrive(Drive::Kind kind);
  /// The numbers of a "measurement" by the names of its children.
  MeasuredPoint readPoint(double efficiency);
  void readPoints(std::vector<MeasuredPoint> &points, double efficiency);
  double number();
  /// "head_coeff_3" for "head_coeff_" gives 2; -1 for another name or a number beyond the count.
  int coefficient(const char *prefix, std::size_t count) const;
  void skipUnknown();
  void tell(const QString &text);

  QXmlStreamReader m_xml;
  QString m_path;
  QString m_station; ///< being read
  MachineReader::Result m_result;
};
