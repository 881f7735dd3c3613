#pragma once

#include <memory>
#include <rules/grouping.h>
#include <vector>

/// What enters and leaves a network, in sum and by groups of nodes. All flows in the unit of NetworkFacts, none negative but
/// what is left, comes from others or is unknown.
class Balance {
public:
  enum class Figure { Nodes, Entries, Exits, Fuel, Unknown, FromOthers, Imbalance };

  struct Sums {
    Index nodes = 0;
    Index entryCount = 0; ///< nodes that supply
    Index exitCount = 0;
    Index fuelCount = 0; ///< nodes that feed drives
    Index unknownCount = 0;
    double entries = 0.0;
    double exits = 0.0;
    double fuel = 0.0;       ///< which exits do not count
    double unknown = 0.0;    ///< into the network at nodes of which nobody states the flow, as far as results tell it
    double fromOthers = 0.0; ///< net, by the results; NetworkFacts::Unknown where these do not tell it
    /// What enters less what leaves; unknown where fromOthers is.
    double imbalance() const { return entries - exits - fuel + unknown + fromOthers; }
  };
  struct Group {
    QString name;
    Sums sums;
  };

  Balance(std::shared_ptr<const NetworkFacts> facts, Grouping grouping);

  const std::vector<Group> &groups() const { return m_groups; } ///< those without any node left out
  const Sums &total() const { return m_total; }
  /// The names behind a figure. \param group of groups(), NoIndex for all
  QStringList elements(Index group, Figure figure) const;

private:
  void addNodes();
  void addExchange();
  void leaveOutEmpty();
  bool isIn(const NetworkFacts::Node &node, Figure figure) const;
  QStringList borders(Index group) const;

  std::shared_ptr<const NetworkFacts> m_facts;
  Grouping m_grouping;
  std::vector<Group> m_groups;
  Sums m_total;
};
