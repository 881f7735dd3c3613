#pragma once

#include <io/gaslibxml.h>
#include <io/networkfileconverter.h>

#include <vector>

/// Reads the XML of a public network instance into records of our own, converting units.
class GasLibNetwork : public GasLibXml {
public:
  using GasLibXml::GasLibXml;

  /// False when the file cannot be used at all. What is wrong is in the findings, with its line.
  bool readNetwork();
  bool readScenario();
  bool readStations();

  /// What a compressor station consists of, apart from the data of its machines.
  struct Station {
    struct Drive {
      QString name;
      QString kind; ///< "gasTurbine", "gasDrivenMotor" or "electricMotor"
    };
    QString name;
    QString compressor; ///< the first one
    std::vector<Drive> drives;
    int line = 0;
  };

  std::vector<NetworkFileConverter::Record> nodes;
  std::vector<NetworkFileConverter::Record> edges;
  std::vector<NetworkFileConverter::SetPoint> setPoints;
  std::vector<Station> stations;

private:
  struct Known {
    const char *element; ///< in the XML
    const char *property;
    const char *unit; ///< in which the property is stored, empty for none
  };

  void readNodes();
  void readConnections();
  void readRecord(NetworkFileConverter::Record &record, const Known *known, std::size_t count);
  void readBoundary(const QString &node, bool isEntry);
  /// The number of the current element in a unit of ours; false and a finding when there is none.
  bool number(const char *unit, double &value);
  void readStation();
};
