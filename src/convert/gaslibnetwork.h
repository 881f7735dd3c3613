#pragma once

#include <base/finding.h>
#include <io/networkfileconverter.h>

#include <QXmlStreamReader>

#include <vector>

/// Reads the XML of a public network instance into records of our own, converting units.
class GasLibNetwork {
public:
  explicit GasLibNetwork(QString path)
      : m_path(std::move(path)) {}

  /// False when the file cannot be used at all. What is wrong is in the findings, with its line.
  bool readNetwork();
  bool readScenario();

  std::vector<NetworkFileConverter::Record> nodes;
  std::vector<NetworkFileConverter::Record> edges;
  std::vector<NetworkFileConverter::SetPoint> setPoints;
  Findings findings;

private:
  struct Known {
    const char *element; ///< in the XML
    const char *property;
    const char *unit; ///< in which the property is stored, empty for none
  };

  bool open(QIODevice &device, const QString &root);
  void readNodes();
  void readConnections();
  void readRecord(NetworkFileConverter::Record &record, const Known *known, std::size_t count);
  void readBoundary(const QString &node, bool isEntry);
  /// The number of the current element in a unit of ours; false and a finding when there is none.
  bool number(const char *unit, double &value);
  void finish();
  void tell(const QString &text);

  QString m_path;
  QXmlStreamReader m_xml;
};
