#include <model/networkgraph.h>

#include <queue>

#include <algorithm>
#include <numeric>
#include <tuple>

namespace Topology {

NetworkGraph::NetworkGraph(std::size_t nodes, const std::vector<Ends> &edges, Ways ways)
    : m_starts(nodes + 1, 0) {
  const auto forEach = [&](const auto &visit) {
    for (Index i = 0; i < edges.size(); ++i) {
      const auto &[from, to] = edges[i];
      if (from == NoIndex || to == NoIndex)
        continue;
      visit(from, Way{to, i});
      if (ways == Ways::Both)
        visit(to, Way{from, i});
    }
  };
  forEach([this](Index node, const Way &) { ++m_starts[node + 1]; });
  std::partial_sum(m_starts.begin(), m_starts.end(), m_starts.begin());
  m_ways.resize(m_starts.back());
  std::vector<std::size_t> next(m_starts.begin(), m_starts.end() - 1);
  forEach([&](Index node, const Way &way) { m_ways[next[node]++] = way; });
}

std::vector<int> NetworkGraph::components(const std::function<bool(Index)> &begins) const {
  std::vector<Index> part(size(), NoIndex);
  std::vector<Index> sizes;
  std::vector<Index> open;
  const auto reach = [&](Index node) {
    if (part[node] != NoIndex)
      return;
    part[node] = toIndex(sizes.size() - 1);
    ++sizes.back();
    open.push_back(node);
  };
  for (Index first = 0; first < size(); ++first) {
    if (part[first] != NoIndex || !begins(first))
      continue;
    sizes.push_back(0);
    reach(first);
    while (!open.empty()) {
      const Index node = open.back();
      open.pop_back();
      forEachWay(node, [&](const Way &way) { reach(way.node); });
    }
  }
  std::vector<std::size_t> order(sizes.size());
  std::iota(order.begin(), order.end(), std::size_t(0));
  std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return sizes[a] > sizes[b]; });
  std::vector<int> rank(sizes.size());
  int next = 0;
  for (const std::size_t p : order)
    rank[p] = ++next;
  std::vector<int> ranks(part.size());
  std::transform(part.begin(), part.end(), ranks.begin(), [&](Index p) { return p == NoIndex ? 0 : rank[p]; });
  return ranks;
}

std::vector<double> NetworkGraph::distances(const std::vector<Index> &sources, const std::vector<double> &lengths) const {
  constexpr double Unreached = -1.0;
  std::vector<double> values(size(), Unreached);
  using Reached = std::pair<double, Index>; // length and node
  std::priority_queue<Reached, std::vector<Reached>, std::greater<Reached>> open;
  for (const Index source : sources) {
    values[source] = 0.0;
    open.push({0.0, source});
  }
  while (!open.empty()) {
    const auto [length, node] = open.top();
    open.pop();
    if (length > values[node])
      continue; // a shorter way was found meanwhile
    const double here = length;
    forEachWay(node, [&](const Way &way) {
      const double further = here + std::max(0.0, lengths[way.edge]);
      double &known = values[way.node];
      if (known >= 0.0 && known <= further)
        return;
      known = further;
      open.push({further, way.node});
    });
  }
  return values;
}

std::optional<std::vector<NetworkGraph::Way>> NetworkGraph::shortestWay(Index from, Index to,
                                                                        const std::vector<double> &lengths) const {
  struct Reached {
    double length;
    Index edges; ///< on the way
    Index node;
    bool operator>(const Reached &other) const {
      return std::tie(length, edges, node) > std::tie(other.length, other.edges, other.node);
    }
  };
  struct Last {
    double length = 0.0;
    Index edges = NoIndex; ///< NoIndex while no way is known
    Index node = NoIndex;  ///< before this one
    Index edge = NoIndex;  ///< from there
  };
  std::vector<Last> known(size());
  std::priority_queue<Reached, std::vector<Reached>, std::greater<Reached>> open;
  known[from].edges = 0;
  open.push({0.0, 0, from});
  while (!open.empty() && open.top().node != to) {
    const Reached here = open.top();
    open.pop();
    if (here.length > known[here.node].length || here.edges > known[here.node].edges)
      continue; // a shorter way was found meanwhile
    forEachWay(here.node, [&](const Way &way) {
      const Last next{here.length + std::max(0.0, lengths[way.edge]), here.edges + 1, here.node, way.edge};
      Last &best = known[way.node];
      if (best.edges != NoIndex && std::tie(best.length, best.edges) <= std::tie(next.length, next.edges))
        return;
      best = next;
      open.push({next.length, next.edges, way.node});
    });
  }
  if (open.empty())
    return std::nullopt;
  std::vector<Way> ways(known[to].edges);
  Index node = to;
  for (auto way = ways.rbegin(); way != ways.rend(); ++way) {
    *way = {node, known[node].edge};
    node = known[node].node;
  }
  return ways;
}

} // namespace Topology
