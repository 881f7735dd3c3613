#include "geometry/drawngraph.h"

#include <algorithm>

namespace {

std::vector<Topology::NetworkGraph::Ends> endsOf(const NetGeometry &geometry) {
  std::vector<Topology::NetworkGraph::Ends> ends(geometry.edges().size());
  for (std::size_t i = 0; i < ends.size(); ++i) {
    const NetGeometry::Edge &edge = geometry.edges()[i];
    if (edge.hasEnds() && !edge.isInactive)
      ends[i] = {edge.node1, edge.node2};
  }
  return ends;
}

} // namespace

DrawnGraph::DrawnGraph(const NetGeometry &geometry)
    : m_geometry(geometry)
    , m_graph(geometry.nodes().size(), endsOf(geometry), Topology::NetworkGraph::Ways::Both) {}

std::vector<double> DrawnGraph::components() const {
  const std::vector<int> parts = m_graph.components([this](Index node) { return !m_geometry.nodes()[node].isDrive; });
  std::vector<double> values(parts.size());
  std::transform(parts.begin(), parts.end(), values.begin(),
                 [](int part) { return part == 0 ? NetData::NoValue : static_cast<double>(part); });
  return values;
}

std::vector<Index> DrawnGraph::sources() const {
  using Shape = NetGeometry::NodeShape;
  std::vector<Index> found;
  for (const Shape shape : {Shape::Supply, Shape::Pressure}) {
    for (Index i = 0; i < m_geometry.nodes().size(); ++i) {
      if (m_geometry.nodes()[i].shape == shape)
        found.push_back(i);
    }
    if (!found.empty())
      break;
  }
  return found;
}

std::vector<double> DrawnGraph::distances(const std::vector<double> &lengths) const {
  std::vector<double> values = m_graph.distances(sources(), lengths);
  for (double &value : values) {
    if (value < 0.0)
      value = NetData::NoValue;
  }
  return values;
}
