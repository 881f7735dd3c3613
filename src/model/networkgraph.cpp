#include <model/networkgraph.h>

#include <queue>

#include <algorithm>
#include <numeric>

namespace Topology {

NetworkGraph::NetworkGraph(std::size_t nodes, const std::vector<Ends> &edges, Ways ways)
    : m_starts(nodes + 1, 0) {
  const auto forEach = [&](const auto &visit) {
    for (std::size_t i = 0; i < edges.size(); ++i) {
      const auto &[from, to] = edges[i];
      if (from == Nowhere || to == Nowhere)
        continue;
      visit(static_cast<std::size_t>(from), Way{to, static_cast<int>(i)});
      if (ways == Ways::Both)
        visit(static_cast<std::size_t>(to), Way{from, static_cast<int>(i)});
    }
  };
  forEach([this](std::size_t node, const Way &) { ++m_starts[node + 1]; });
  std::partial_sum(m_starts.begin(), m_starts.end(), m_starts.begin());
  m_ways.resize(m_starts.back());
  std::vector<std::size_t> next(m_starts.begin(), m_starts.end() - 1);
  forEach([&](std::size_t node, const Way &way) { m_ways[next[node]++] = way; });
}

std::vector<int> NetworkGraph::components(const std::function<bool(int)> &begins) const {
  constexpr int None = -1;
  std::vector<int> part(size(), None);
  std::vector<int> sizes;
  std::vector<int> open;
  const auto reach = [&](int node) {
    int &own = part[static_cast<std::size_t>(node)];
    if (own != None)
      return;
    own = static_cast<int>(sizes.size()) - 1;
    ++sizes.back();
    open.push_back(node);
  };
  for (int first = 0; first < static_cast<int>(size()); ++first) {
    if (part[static_cast<std::size_t>(first)] != None || !begins(first))
      continue;
    sizes.push_back(0);
    reach(first);
    while (!open.empty()) {
      const int node = open.back();
      open.pop_back();
      forEachWay(node, [&](const Way &way) { reach(way.node); });
    }
  }
  std::vector<std::size_t> order(sizes.size());
  std::iota(order.begin(), order.end(), std::size_t(0));
  std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return sizes[a] > sizes[b]; });
  std::vector<int> rank(sizes.size());
  for (std::size_t i = 0; i < order.size(); ++i)
    rank[order[i]] = static_cast<int>(i) + 1;
  std::transform(part.begin(), part.end(), part.begin(),
                 [&](int p) { return p == None ? 0 : rank[static_cast<std::size_t>(p)]; });
  return part;
}

std::vector<double> NetworkGraph::distances(const std::vector<int> &sources, const std::vector<double> &lengths) const {
  constexpr double Unreached = -1.0;
  std::vector<double> values(size(), Unreached);
  using Reached = std::pair<double, int>; // length and node
  std::priority_queue<Reached, std::vector<Reached>, std::greater<Reached>> open;
  for (const int source : sources) {
    values[static_cast<std::size_t>(source)] = 0.0;
    open.push({0.0, source});
  }
  while (!open.empty()) {
    const auto [length, node] = open.top();
    open.pop();
    if (length > values[static_cast<std::size_t>(node)])
      continue; // a shorter way was found meanwhile
    const double here = length;
    forEachWay(node, [&](const Way &way) {
      const double further = here + std::max(0.0, lengths[static_cast<std::size_t>(way.edge)]);
      double &known = values[static_cast<std::size_t>(way.node)];
      if (known >= 0.0 && known <= further)
        return;
      known = further;
      open.push({further, way.node});
    });
  }
  return values;
}

} // namespace Topology
