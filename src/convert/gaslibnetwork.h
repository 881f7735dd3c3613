#pragma once

#include "gaslibreader.h"

#include <QCoreApplication>
#include <QHash>
#include <QJsonObject>

#include <vector>

/// Reads the network of a public instance (".net") into records of our own.
class GasLibNetwork : public GasLibReader {
  Q_DECLARE_TR_FUNCTIONS(GasLibNetwork)
public:
  using GasLibReader::GasLibReader;

  /// False when the file holds no network, or not all of it. What is wrong is in the findings, with its line.
  bool read();

  /// "source", "sink" or "innode"; empty for a node that is not there.
  QString kindOf(const QString &node) const { return m_kinds.value(node); }
  /// "pipe", "valve" and so on; empty for a connection that is not there.
  QString kindOfConnection(const QString &name) const { return m_connections.value(name); }
  /// The number of nodes at which gas enters or leaves.
  int boundaryNodes() const { return m_boundaryNodes; }
  /// The gas of the first supply, which stands for all.
  Record gas() const;
  /// What conversions between volume, mass and energy need: what the node states, else what the first supply does.
  Units::Gas conversionGas(const QString &node) const;

  std::vector<Record> nodes;
  std::vector<Record> edges;
  QJsonObject information; ///< title, date and documentation

private:
  struct Known {
    const char *element; ///< in the XML
    const char *property;
    const char *unit; ///< in which the property is stored, empty for none
    bool isNegated = false;
  };
  struct Attribute {
    const char *name; ///< in the XML
    const char *property;
  };

  void readInformation();
  void readNodes();
  void noteGas(const Record &node);
  void readConnections();
  bool isUsable(const QString &kind, bool isKnown, QHash<QString, int> &names);
  void readAttributes(Record &record, const std::vector<Attribute> &known);
  void readValues(Record &record, const std::vector<Known> &known);
  void leaveOutLooseEnds();
  void placeNodes();

  QHash<QString, QString> m_kinds;                    ///< of nodes, by name
  QHash<QString, QString> m_connections;              ///< their kinds, by name
  QHash<QString, Units::Gas> m_gases;                 ///< of the nodes that state one, by name; the first supply's without
  std::vector<std::pair<QString, int>> m_edgeOrigins; ///< kind in the XML, and line
  int m_boundaryNodes = 0;
};
