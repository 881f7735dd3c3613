#pragma once

#include <drawing/netgeometry.h>
#include <model/networkgraph.h>

#include <vector>

/// What is drawn as a graph: what hangs together and how far the gas has come. Elements out of use let nothing through.
class DrawnGraph {
public:
  explicit DrawnGraph(const NetGeometry &geometry);

  /// The number of the connected part of each node, from 1 for the one with the most nodes; NetData::NoValue for drives,
  /// which stand among the nodes, but no gas flows through them.
  std::vector<double> components() const;

  /// Length of the shortest way from the next node of supply (of held pressure where nothing is supplied);
  /// NetData::NoValue for nodes that no way leads to.
  /// \param lengths of the edges; what has none counts as no way at all long
  std::vector<double> distances(const std::vector<double> &lengths) const;

private:
  std::vector<Index> sources() const;

  const NetGeometry &m_geometry;
  Topology::NetworkGraph m_graph;
};
