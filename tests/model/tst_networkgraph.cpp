#include <model/networkgraph.h>
#include <support/nivratest.h>

using Topology::NetworkGraph;

/// Nodes and ways by their numbers.
class TestNetworkGraph : public QObject {
  Q_OBJECT

private slots:
  void waysStandInTheOrderOfTheEdges();
  void componentsAreRankedBySize();
  void distancesAreTheShortest();

private:
  static std::vector<Index> edgesFrom(const NetworkGraph &graph, Index node) {
    std::vector<Index> edges;
    graph.forEachWay(node, [&](const NetworkGraph::Way &way) { edges.push_back(way.edge); });
    return edges;
  }
};

void TestNetworkGraph::waysStandInTheOrderOfTheEdges() {
  const std::vector<NetworkGraph::Ends> edges{{0, 1}, {1, 2}, {NoIndex, 1}, {2, 1}};
  const NetworkGraph both(3, edges, NetworkGraph::Ways::Both);
  QCOMPARE(edgesFrom(both, 0), (std::vector<Index>{0}));
  QCOMPARE(edgesFrom(both, 1), (std::vector<Index>{0, 1, 3}));
  const NetworkGraph forward(3, edges, NetworkGraph::Ways::Forward);
  QCOMPARE(edgesFrom(forward, 0), (std::vector<Index>{0}));
  QCOMPARE(edgesFrom(forward, 1), (std::vector<Index>{1}));
  QCOMPARE(edgesFrom(forward, 2), (std::vector<Index>{3}));
}

void TestNetworkGraph::componentsAreRankedBySize() {
  // 0-1, 2-3-4, 5 alone, 6 with which no part begins and to which none leads, 7-8 likewise save that 8 begins one.
  const std::vector<NetworkGraph::Ends> edges{{0, 1}, {2, 3}, {3, 4}, {7, 8}};
  const NetworkGraph graph(9, edges, NetworkGraph::Ways::Both);
  const auto begins = [](Index node) {
    return node != 6 && node != 7;
  };
  QCOMPARE(graph.components(begins), (std::vector<int>{2, 2, 1, 1, 1, 4, 0, 3, 3}));
}

void TestNetworkGraph::distancesAreTheShortest() {
  // From 0 to 3 by way of 1 and 2 it is 3 long, directly 10; an edge without length costs nothing; nothing leads to 5.
  const std::vector<NetworkGraph::Ends> edges{{0, 1}, {1, 2}, {2, 3}, {0, 3}, {3, 4}};
  const std::vector<double> lengths{1.0, 1.0, 1.0, 10.0, -1e30};
  const NetworkGraph graph(6, edges, NetworkGraph::Ways::Both);
  QCOMPARE(graph.distances({0}, lengths), (std::vector<double>{0.0, 1.0, 2.0, 3.0, 3.0, -1.0}));
  QCOMPARE(graph.distances({0, 3}, lengths), (std::vector<double>{0.0, 1.0, 1.0, 0.0, 0.0, -1.0}));
  QCOMPARE(graph.distances({}, lengths), (std::vector<double>(6, -1.0)));
}

NIVRA_TEST(TestNetworkGraph);
#include "tst_networkgraph.moc"
