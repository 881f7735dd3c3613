#pragma once

#include <base/index.h>

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

namespace Topology {

/// Nodes and the ways between them, by their numbers. It knows no elements: who makes it says which edges lead somewhere,
/// and in which direction. Making it and each walk over it take time in proportion to nodes and edges.
class NetworkGraph {
public:
  /// The nodes that an edge joins; one that is out of use or lacks an end leads nowhere.
  struct Ends {
    Index from = NoIndex;
    Index to = NoIndex;
  };
  struct Way {
    Index node; ///< where it leads
    Index edge;
  };
  enum class Ways { Both, Forward };

  NetworkGraph(std::size_t nodes, const std::vector<Ends> &edges, Ways ways);

  std::size_t size() const { return m_starts.size() - 1; } ///< nodes

  /// Calls visit(way) for each way that leads from the node, in the order of the edges.
  template <typename Visit>
  void forEachWay(Index node, const Visit &visit) const {
    for (std::size_t i = m_starts[node]; i < m_starts[node + 1]; ++i)
      visit(m_ways[i]);
  }

  /// The number of the connected part of each node, from 1 for the one with the most nodes (of equal ones the one with the
  /// first node comes first); 0 for nodes with which no part begins and to which none leads.
  /// \param begins whether a part begins with the node
  std::vector<int> components(const std::function<bool(Index)> &begins) const;

  /// Length of the shortest way from the next source to each node, by Dijkstra's algorithm (1959); negative for nodes that
  /// no way leads to. \param lengths of the edges; what is negative counts as no way at all long
  std::vector<double> distances(const std::vector<Index> &sources, const std::vector<double> &lengths) const;

  /// The shortest way from one node to another, and of ways as long as one another that over the fewest edges; nothing when
  /// none leads there, no ways when both are the same node. \param lengths as of distances()
  std::optional<std::vector<Way>> shortestWay(Index from, Index to, const std::vector<double> &lengths) const;

private:
  // Invariants: the ways of node n are m_ways[m_starts[n]] to m_ways[m_starts[n + 1] - 1]; m_starts ascends from 0 to the
  // number of ways.
  std::vector<std::size_t> m_starts;
  std::vector<Way> m_ways;
};

} // namespace Topology
