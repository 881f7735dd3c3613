#include "geometry/networkgraph.h"

#include <queue>

#include <algorithm>
#include <functional>
#include <numeric>

namespace {

bool leadsSomewhere(const NetGeometry::Edge &edge) {
  return edge.node1 >= 0 && edge.node2 >= 0 && !edge.isInactive;
}

} // namespace

NetworkGraph::NetworkGraph(const NetGeometry &geometry)
    : m_geometry(geometry)
    , m_starts(geometry.nodes().size() + 1, 0) {
  for (const NetGeometry::Edge &edge : geometry.edges()) {
    if (!leadsSomewhere(edge))
      continue;
    ++m_starts[static_cast<std::size_t>(edge.node1) + 1];
    ++m_starts[static_cast<std::size_t>(edge.node2) + 1];
  }
  std::partial_sum(m_starts.begin(), m_starts.end(), m_starts.begin());
  m_ways.resize(static_cast<std::size_t>(m_starts.back()));
  std::vector<int> next(m_starts.begin(), m_starts.end() - 1);
  for (std::size_t i = 0; i < geometry.edges().size(); ++i) {
    const NetGeometry::Edge &edge = geometry.edges()[i];
    if (!leadsSomewhere(edge))
      continue;
    const int number = static_cast<int>(i);
    m_ways[static_cast<std::size_t>(next[static_cast<std::size_t>(edge.node1)]++)] = {edge.node2, number};
    m_ways[static_cast<std::size_t>(next[static_cast<std::size_t>(edge.node2)]++)] = {edge.node1, number};
  }
}

std::vector<double> NetworkGraph::components() const {
  const std::size_t count = m_geometry.nodes().size();
  std::vector<int> part(count, -1);
  std::vector<int> sizes;
  std::vector<int> open;
  for (std::size_t first = 0; first < count; ++first) {
    if (part[first] >= 0 || m_geometry.nodes()[first].isDrive)
      continue; // drives stand among the nodes, but no gas flows through them
    const int number = static_cast<int>(sizes.size());
    sizes.push_back(0);
    part[first] = number;
    open.push_back(static_cast<int>(first));
    while (!open.empty()) {
      const auto node = static_cast<std::size_t>(open.back());
      open.pop_back();
      ++sizes.back();
      for (int way = m_starts[node]; way < m_starts[node + 1]; ++way) {
        const int neighbour = m_ways[static_cast<std::size_t>(way)].node;
        if (part[static_cast<std::size_t>(neighbour)] >= 0)
          continue;
        part[static_cast<std::size_t>(neighbour)] = number;
        open.push_back(neighbour);
      }
    }
  }
  // The parts by size; of equal ones the one with the first node comes first.
  std::vector<std::size_t> order(sizes.size());
  std::iota(order.begin(), order.end(), std::size_t(0));
  std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return sizes[a] > sizes[b]; });
  std::vector<double> rank(sizes.size());
  for (std::size_t i = 0; i < order.size(); ++i)
    rank[order[i]] = static_cast<double>(i + 1);
  std::vector<double> values(count);
  std::transform(part.begin(), part.end(), values.begin(),
                 [&](int p) { return p < 0 ? NetData::NoValue : rank[static_cast<std::size_t>(p)]; });
  return values;
}

std::vector<int> NetworkGraph::sources() const {
  using Shape = NetGeometry::NodeShape;
  std::vector<int> found;
  for (const Shape shape : {Shape::Supply, Shape::Pressure}) {
    for (std::size_t i = 0; i < m_geometry.nodes().size(); ++i) {
      if (m_geometry.nodes()[i].shape == shape)
        found.push_back(static_cast<int>(i));
    }
    if (!found.empty())
      break;
  }
  return found;
}

std::vector<double> NetworkGraph::distances(const std::vector<double> &lengths) const {
  std::vector<double> values(m_geometry.nodes().size(), NetData::NoValue);
  using Reached = std::pair<double, int>; // length and node
  std::priority_queue<Reached, std::vector<Reached>, std::greater<Reached>> open;
  for (const int source : sources()) {
    values[static_cast<std::size_t>(source)] = 0.0;
    open.push({0.0, source});
  }
  while (!open.empty()) {
    const auto [length, number] = open.top();
    open.pop();
    const auto node = static_cast<std::size_t>(number);
    if (length > values[node])
      continue; // a shorter way was found meanwhile
    for (int i = m_starts[node]; i < m_starts[node + 1]; ++i) {
      const Way &way = m_ways[static_cast<std::size_t>(i)];
      const double further = length + std::max(0.0, lengths[static_cast<std::size_t>(way.edge)]); // NoValue is negative
      double &known = values[static_cast<std::size_t>(way.node)];
      if (known != NetData::NoValue && known <= further)
        continue;
      known = further;
      open.push({further, way.node});
    }
  }
  return values;
}
