#include "networkparts.h"

#include <model/networkgraph.h>

#include <algorithm>

NetworkParts::NetworkParts(const NetworkFacts &facts) {
  using Topology::NetworkGraph;
  std::vector<NetworkGraph::Ends> ends;
  ends.reserve(facts.edges().size());
  for (const NetworkFacts::Edge &edge : facts.edges())
    ends.push_back(edge.isInUse ? NetworkGraph::Ends{edge.from, edge.to} : NetworkGraph::Ends());
  const NetworkGraph graph(facts.nodes().size(), ends, NetworkGraph::Ways::Both);
  const std::vector<int> numbers = graph.components([](Index) { return true; });
  partOf.reserve(numbers.size());
  for (Index i = 0; i < numbers.size(); ++i) {
    partOf.push_back(toIndex(static_cast<std::size_t>(numbers[i]) - 1));
    if (partOf[i] >= parts.size())
      parts.resize(partOf[i] + std::size_t(1));
    Part &part = parts[partOf[i]];
    const NetworkFacts::Node &node = facts.nodes()[i];
    part.nodes.push_back(i);
    if (!node.isInUse)
      continue;
    const double flow = node.statedFlow();
    part.supplied += std::max(-flow, 0.0);
    part.taken += std::max(flow, 0.0) + node.fuelBeside;
    part.hasSource = part.hasSource || flow < 0.0 || node.kind == NetworkFacts::Kind::Source;
    part.hasUnknownFlow = part.hasUnknownFlow || node.isFlowUnknown();
    part.hasPressure = part.hasPressure || node.holdsPressure();
  }
  for (const NetworkFacts::Edge &edge : facts.edges()) {
    if (edge.isInUse && edge.holdsPressure)
      parts[partOf[edge.from]].hasPressure = true;
  }
}
