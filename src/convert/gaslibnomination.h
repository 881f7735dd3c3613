#pragma once

#include "gaslibnetwork.h"

#include <QCoreApplication>

#include <vector>

/// Reads the nominations of a public instance (".scn") into set points.
class GasLibNomination : public GasLibReader {
  Q_DECLARE_TR_FUNCTIONS(GasLibNomination)
public:
  /// \param network to which it is to belong; must stay
  GasLibNomination(const QString &path, const GasLibNetwork &network);

  struct Scenario {
    QString id; ///< as the file calls it
    std::vector<NetworkSetPoint> setPoints;
  };

  /// False when the file holds no nomination, not all of it, or one of another network. What is wrong is in the findings.
  bool read();

  std::vector<Scenario> scenarios; ///< a file may hold several

private:
  /// What is said of one quantity of a node.
  struct Bounds {
    std::optional<GasLibUnits::Number> lower;
    std::optional<GasLibUnits::Number> upper;
  };

  void readScenario();
  void readNode(Scenario &scenario);
  void readPipe(Scenario &scenario);
  void readQuality(Scenario &scenario, const QString &node);
  void readBound(Bounds &bounds, const char *unit, const Units::Gas &gas, bool isNegated);
  void set(Scenario &scenario, const QString &node, const char *property, const GasLibUnits::Number &number,
           const char *unit);
  void set(Scenario &scenario, const QString &node, char quantity, const Bounds &bounds, const char *unit);
  bool belongsToNetwork();

  const GasLibNetwork &m_network;
  int m_nodes = 0;     ///< number of nodes that were named
  int m_unknown = 0;   ///< of these, those that the network lacks
  int m_otherwise = 0; ///< of these, those that are entries here and exits there
};
