#pragma once

#include "profile/networkpath.h"

#include <model/netdata.h>
#include <model/networkgraph.h>

#include <QCoreApplication>
#include <QStringList>

#include <vector>

/// Finds ways through a network. What it needs to know of all edges is read once; it points into the network, and is made
/// anew when elements or their values change.
class PathSearch {
  Q_DECLARE_TR_FUNCTIONS(PathSearch)
public:
  struct Found {
    NetworkPath path;   ///< empty when there is a fault
    QStringList faults; ///< whole sentences: which names are no nodes, which pairs no way joins and why
  };

  explicit PathSearch(const NetData &net);

  /// From each way point to the next. At least two that differ are needed; drives are no nodes of the pipes.
  Found find(const QStringList &wayPoints, PathChoice choice) const;

  /// The nodes in an order in which a way may pass them: by their distance from one that lies outermost, and in the
  /// direction of the flow where that joins the first and the last.
  QStringList inOrder(QStringList nodes) const;

private:
  using Graph = Topology::NetworkGraph;

  struct Edge {
    Index node1 = NoIndex;
    Index node2 = NoIndex;
    signed char flow = 0; ///< 1 from node1 to node2, -1 the other way, 0 where none is known
    bool isClosed = false;
  };

  Index find(const QString &node) const;
  Graph graph(PathChoice choice) const;
  const std::vector<double> &costs(PathChoice choice) const;
  bool isJoined(Index from, Index to, PathChoice choice) const;
  QString whyNot(Index from, Index to, PathChoice choice) const;
  void add(NetworkPath &path, const std::vector<Graph::Way> &ways) const;

  const NetData &m_net;
  std::vector<const elements::Entry *> m_nodes; ///< in name order, as are the edges
  std::vector<const elements::Entry *> m_entries;
  std::vector<Edge> m_edges;
  std::vector<double> m_lengths; ///< km, 0 of what has none
  std::vector<double> m_ones;
};
