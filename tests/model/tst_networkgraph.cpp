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
  void shortestWayIsFound();

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

void TestNetworkGraph::shortestWayIsFound() {
  // Two ways from 0 to 3 are 3 long: over 1 and 2, and over 4 alone; the direct one is longer. Nothing leads to 5.
  const std::vector<NetworkGraph::Ends> edges{{0, 1}, {1, 2}, {2, 3}, {0, 3}, {4, 0}, {4, 3}, {NoIndex, 5}};
  const std::vector<double> lengths{1.0, 1.0, 1.0, 10.0, 2.0, 1.0, 1.0};
  const auto edgesOf = [&](NetworkGraph::Ways ways, Index from, Index to) {
    std::vector<Index> found;
    const auto way = NetworkGraph(6, edges, ways).shortestWay(from, to, lengths);
    for (const NetworkGraph::Way &step : way.value_or(std::vector<NetworkGraph::Way>{{NoIndex, NoIndex}}))
      found.push_back(step.edge);
    return found;
  };
  QCOMPARE(edgesOf(NetworkGraph::Ways::Both, 0, 3), (std::vector<Index>{4, 5}));
  QCOMPARE(edgesOf(NetworkGraph::Ways::Forward, 0, 3), (std::vector<Index>{0, 1, 2}));
  QCOMPARE(edgesOf(NetworkGraph::Ways::Forward, 4, 1), (std::vector<Index>{4, 0}));
  QCOMPARE(edgesOf(NetworkGraph::Ways::Both, 2, 2), std::vector<Index>());
  QCOMPARE(edgesOf(NetworkGraph::Ways::Both, 0, 5), (std::vector<Index>{NoIndex}));
  QCOMPARE(edgesOf(NetworkGraph::Ways::Forward, 3, 0), (std::vector<Index>{NoIndex}));
}

NIVRA_TEST(TestNetworkGraph);
#include "tst_networkgraph.moc"
