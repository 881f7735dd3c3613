#pragma once

#include <drawing/netgeometry.h>
#include <vector>

/// The network as a graph: what hangs together and how far the gas has come. Elements out of use let nothing through.
class NetworkGraph {
public:
  explicit NetworkGraph(const NetGeometry &geometry);

  /// The number of the connected part of each node, from 1 for the one with the most nodes; NetData::NoValue for drives.
  std::vector<double> components() const;

  /// Length of the shortest way from the next node of supply (of held pressure where nothing is supplied), by Dijkstra's
  /// algorithm (1959); NetData::NoValue for nodes that no way leads to.
  /// \param lengths of the edges; what has none counts as no way at all long
  std::vector<double> distances(const std::vector<double> &lengths) const;

private:
  struct Way {
    int node; ///< where it leads
    int edge;
  };

  std::vector<int> sources() const;

  const NetGeometry &m_geometry;
  std::vector<int> m_starts; ///< of the ways of each node in m_ways; one more at the end
  std::vector<Way> m_ways;
};
