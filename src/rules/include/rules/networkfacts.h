#pragma once

#include <base/index.h>
#include <model/netdata.h>

#include <cmath>
#include <limits>
#include <vector>

/// What balance and rules ask of a network, read once into plain arrays, so that a thread can work on them while the network
/// is shown and its values change. Only the names of elements are still asked for: the elements must stay meanwhile.
///
/// Flows are in the stored unit of "qset", which the files have in 1000 m3/h, out of the network: supplies are negative.
/// Mass and energy flows are converted by the gas of the node; a node that states none has that of the supplies, on average.
class NetworkFacts {
public:
  static constexpr double Unknown = std::numeric_limits<double>::quiet_NaN();
  static bool isKnown(double value) { return !std::isnan(value); }

  struct Range {
    double lowest = Unknown;
    double highest = Unknown;
  };
  enum class Kind { Inner, Source, Sink };

  struct Node {
    const elements::Entry *entry = nullptr;
    Kind kind = Kind::Inner;
    bool isInUse = true;
    double x = 0.0;            ///< plot units
    double y = 0.0;            ///< plot units
    double height = Unknown;   ///< m
    double flow = Unknown;     ///< stated by the scenario
    double pressure = Unknown; ///< that is held, bar; positive
    Range pressures;           ///< bar
    Range flows;
    Range contracted;
    double capacity = Unknown; ///< of the connection, positive
    double inflow = 0.0;       ///< by the results, from the edges less into them; unknown where one in use says nothing
    double through = 0.0;      ///< by the results, all that flows in its edges
    double fuel = 0.0;         ///< of the drives that it feeds
    double fuelBeside = 0.0;   ///< the part of it that the stated flow does not count

    bool holdsPressure() const { return isKnown(pressure); }
    /// Gas may enter or leave here, but nobody says how much.
    bool isFlowUnknown() const { return !isKnown(flow) && (kind != Kind::Inner || holdsPressure()); }
    double statedFlow() const { return isKnown(flow) ? flow : 0.0; }
    /// The part of the fuel that the stated flow counts.
    double fuelWithin() const { return fuel - fuelBeside; }
  };

  struct Edge {
    const elements::Entry *entry = nullptr;
    Index from = NoIndex; ///< of nodes()
    Index to = NoIndex;
    char type = '\0'; ///< its code; of longer codes the first letter
    bool isInUse = true;
    bool holdsPressure = false;
    double length = Unknown;   ///< m
    double diameter = Unknown; ///< mm
    double flow = Unknown;     ///< by the results, from the first node to the second
    Range flows;
  };

  struct Drive {
    const elements::Entry *entry = nullptr;
    Index node = NoIndex; ///< that feeds it
    double fuel = 0.0;
  };

  explicit NetworkFacts(const NetData &net);

  const std::vector<Node> &nodes() const { return m_nodes; }    ///< without drives, in name order
  const std::vector<Edge> &edges() const { return m_edges; }    ///< in name order
  const std::vector<Drive> &drives() const { return m_drives; } ///< that burn gas
  /// Whether a scenario says anything of flows or pressures.
  bool isNominated() const;

private:
  void readNodes(const NetData &net);
  void convertFlows(const NetData &net);
  void readEdges(const NetData &net);
  void readDrives(const NetData &net);
  void sumFlows();
  Index nodeNamed(const NetData &net, const PropertyText *name) const;

  struct OtherFlow { ///< as it is stated, and the gas to convert it with
    double mass = Unknown;
    double power = Unknown;
    double normDensity = Unknown;
    double calorificValue = Unknown;
  };

  std::vector<Index> m_positions; ///< in m_nodes of all nodes, by their index in name order; none for drives
  std::vector<const elements::Entry *> m_driveEntries;
  std::vector<OtherFlow> m_otherFlows;
  std::vector<Node> m_nodes;
  std::vector<Edge> m_edges;
  std::vector<Drive> m_drives;
};
