#pragma once

#include <model/elementchange.h>

#include <QSet>
#include <QStringList>

#include <scenarioset/setstatistic.h>
#include <vector>

class NetData;
class ScenarioSet;

/// The figures of a set as properties of a network's elements, "p.max" of p and so on, in the units of p: so everything that
/// knows properties can colour by them, search and list them. They are of this program alone and go into no file of a
/// workspace.
class SetProperties {
public:
  /// Those of a set before go. What the network has by itself under such a name stays, and the figure is left out.
  /// Returns what has changed.
  std::vector<ElementChange> put(const ScenarioSet &set, const std::vector<SetStatistic::Kind> &kinds, NetData &net);
  /// Takes them out again.
  std::vector<ElementChange> takeOut(NetData &net);
  /// The network that had them is gone.
  void forget() { m_put.clear(); }
  const QStringList &leftOut() const { return m_leftOut; } ///< names that were taken

private:
  static void describe(const ScenarioSet &set, const std::vector<SetStatistic::Kind> &kinds, NetData &net);

  std::vector<ElementChange> m_put;
  QStringList m_leftOut;
};
