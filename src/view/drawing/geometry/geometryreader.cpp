#include "geometry/geometryreader.h"

#include <model/elementstate.h>
#include <model/names.h>
#include <model/propertycolumns.h>
#include <model/topology.h>

#include <cmath>

namespace {

enum NodeColumn { NodeX, NodeY, NodeType, NodeKind, NodePset, NodePowset, NodeQset, NodeMset, NodeWanted };
enum EdgeColumn { EdgeNode1, EdgeNode2, EdgeType, EdgeState, EdgeActive, EdgeWanted };
enum PointColumn { PointX, PointY };

using Wanted = ValueRequest::Wanted;
using Node = NetGeometry::Node;
using Edge = NetGeometry::Edge;

/// Columns of fixed names, then those of wanted properties.
PropertyColumns columnsOf(std::initializer_list<const char *> names, const std::vector<Wanted> &wanted = {},
                          const std::vector<Wanted> &more = {}) {
  std::vector<PropertyKey> keys;
  keys.reserve(names.size() + wanted.size() + more.size());
  for (const char *name : names)
    keys.push_back(PropertyKey::intern(name));
  for (const std::vector<Wanted> *list : {&wanted, &more}) {
    for (const Wanted &column : *list)
      keys.push_back(column.property);
  }
  return PropertyColumns(std::move(keys));
}

/// "kind" tells a station of supply or demand even when the scenario sets no flow; a held pressure is shown as such.
NetGeometry::NodeShape shapeOf(const NetData &net, const element &node, const PropertyColumns &columns) {
  using Shape = NetGeometry::NodeShape;
  if (columns[NodePset] != nullptr || columns[NodePowset] != nullptr || columns[NodeQset] != nullptr ||
      columns[NodeMset] != nullptr) {
    const QString category = net.nodeCategory(node);
    if (category == QLatin1String("pset"))
      return Shape::Pressure;
    if (category == QLatin1String("negqset"))
      return Shape::Supply;
    if (category == QLatin1String("demand"))
      return Shape::Demand;
  }
  const PropertyText *kind = columns[NodeKind];
  if (kind != nullptr && sameWord(kind->utf8(), "source"))
    return Shape::Supply;
  return kind != nullptr && sameWord(kind->utf8(), "sink") ? Shape::Demand : Shape::Junction;
}

/// The flow that is set, in the order in which the category of a node asks for it.
double flowOf(const PropertyColumns &columns) {
  for (const NodeColumn column : {NodePowset, NodeQset, NodeMset}) {
    if (columns[column] != nullptr)
      return NetData::number(columns[column]);
  }
  return NetData::NoValue;
}

std::vector<const element *> sourcesOf(const elements &collection) {
  std::vector<const element *> sources;
  sources.reserve(collection.size());
  for (const elements::Entry &entry : collection)
    sources.push_back(&entry.value);
  return sources;
}

template <typename Record>
std::vector<const element *> sourcesOf(const std::vector<Record> &records) {
  std::vector<const element *> sources;
  sources.reserve(records.size());
  for (const Record &record : records)
    sources.push_back(record.source);
  return sources;
}

bool isPlaced(double x, double y) {
  return x != NetData::NoValue && y != NetData::NoValue;
}

/// Fills the columns of a request element by element; the wanted properties stand in the columns read from first on.
class ValueReader {
public:
  ValueReader(const ValueRequest &request, std::size_t nodes, std::size_t edges)
      : m_request(request)
      , m_values{empty(request.ofEdges, edges), empty(request.ofEdges, nodes), empty(request.ofNodes, nodes)} {}

  void readNode(std::size_t node, const PropertyColumns &columns, std::size_t first) {
    for (std::size_t i = 0; i < m_request.ofEdges.size(); ++i)
      m_values.ofEnds[i][node] = NetData::number(columns[first + i], m_request.ofEdges[i].absolute);
    first += m_request.ofEdges.size();
    for (std::size_t i = 0; i < m_request.ofNodes.size(); ++i)
      m_values.ofNodes[i][node] = NetData::number(columns[first + i], m_request.ofNodes[i].absolute);
  }

  /// Its end nodes have to be read before.
  void readEdge(std::size_t i, const Edge &edge, const PropertyColumns &columns, std::size_t first) {
    for (std::size_t c = 0; c < m_request.ofEdges.size(); ++c)
      m_values.ofEdges[c][i] = columns[first + c] != nullptr
                                   ? NetData::number(columns[first + c], m_request.ofEdges[c].absolute)
                                   : NetGeometry::meanOfEnds(edge, m_values.ofEnds[c]);
  }

  ElementValues values() { return std::move(m_values); }

private:
  static ElementValues::Columns empty(const std::vector<Wanted> &wanted, std::size_t count) {
    return ElementValues::Columns(wanted.size(), std::vector<double>(count, NetData::NoValue));
  }

  const ValueRequest &m_request;
  ElementValues m_values;
};

std::vector<Node> readNodes(const NetData &net, const ValueRequest &request, ValueReader &values) {
  const std::vector<const element *> sources = sourcesOf(net.nodes());
  std::vector<Node> nodes(sources.size());
  const PropertyColumns wanted =
      columnsOf({"x", "y", "type", "kind", "pset", "powset", "qset", "mset"}, request.ofEdges, request.ofNodes);
  wanted.forEach(sources, [&](std::size_t i, const PropertyColumns &columns) {
    Node &node = nodes[i];
    node.source = sources[i];
    node.x = NetData::number(columns[NodeX]);
    node.y = NetData::number(columns[NodeY]);
    node.isPlaced = isPlaced(node.x, node.y);
    node.isDrive = columns[NodeType] != nullptr && columns[NodeType]->utf8() == "d";
    if (!node.isDrive)
      node.shape = shapeOf(net, *node.source, columns);
    node.flow = flowOf(columns);
    values.readNode(i, columns, NodeWanted);
  });
  return nodes;
}

std::vector<Edge> readEdges(const NetData &net, const ValueRequest &request, ValueReader &values) {
  // Nodes stand in name order, as the collection does.
  const auto indexOf = [&net](const PropertyText *name) {
    const elements::Entry *node = name == nullptr ? nullptr : net.nodes().findEntry(name->utf8());
    return node == nullptr ? NoIndex : node->index;
  };
  const std::vector<const element *> sources = sourcesOf(net.edges());
  std::vector<Edge> edges(sources.size());
  const PropertyColumns wanted = columnsOf({"node1", "node2", "type", "state", "active"}, request.ofEdges);
  wanted.forEach(sources, [&](std::size_t i, const PropertyColumns &columns) {
    Edge &edge = edges[i];
    edge.source = sources[i];
    edge.node1 = indexOf(columns[EdgeNode1]);
    edge.node2 = indexOf(columns[EdgeNode2]);
    if (columns[EdgeType] != nullptr && columns[EdgeType]->utf8().size() == 1)
      edge.type = columns[EdgeType]->utf8().front();
    edge.isInactive = ElementState::isOutOfUse(columns[EdgeState], columns[EdgeActive]);
    edge.isBypass = ElementState::saysBypass(columns[EdgeState]);
    values.readEdge(i, edge, columns, EdgeWanted);
  });
  return edges;
}

/// Drives without coordinates of their own were put upon the line of their compressor.
void findDriven(const NetData &net, std::vector<Node> &nodes, const std::vector<Edge> &edges) {
  constexpr double NearShare = 0.05; // of the line's length
  for (Node &node : nodes) {
    const PropertyText *name = node.isDrive && node.isPlaced ? node.source->find(Names::all().driven) : nullptr;
    const elements::Entry *driven = name == nullptr ? nullptr : net.edges().findEntry(name->utf8());
    if (driven == nullptr || !edges[driven->index].hasEnds())
      continue;
    const Node &from = nodes[edges[driven->index].node1];
    const Node &to = nodes[edges[driven->index].node2];
    const QPointF along(to.x - from.x, to.y - from.y);
    const QPointF away(node.x - from.x, node.y - from.y);
    const double square = QPointF::dotProduct(along, along);
    const double across = along.x() * away.y() - along.y() * away.x();
    const double share = square > 0.0 ? QPointF::dotProduct(along, away) / square : 0.0;
    if (from.isPlaced && to.isPlaced && std::abs(across) <= NearShare * square && share >= 0.0 && share <= 1.0)
      node.driven = driven->index;
  }
}

/// The elements of the collection that have coordinates.
std::vector<NetGeometry::PointElement> readPoints(const elements &collection) {
  PropertyColumns columns = columnsOf({"x", "y"});
  std::vector<NetGeometry::PointElement> points;
  for (const elements::Entry &entry : collection) {
    columns.read(entry.value);
    const double x = NetData::number(columns[PointX]);
    const double y = NetData::number(columns[PointY]);
    if (isPlaced(x, y))
      points.push_back({&entry.value, x, y, {}});
  }
  return points;
}

void readPins(const NetData &net, std::vector<NetGeometry::PointElement> &subnets) {
  static const PropertyKey key = PropertyKey::intern("pins");
  for (NetGeometry::PointElement &subnet : subnets) {
    for (const QString &name : Topology::listed(*subnet.source, key)) {
      if (const elements::Entry *node = net.nodes().findEntry(name.toStdString()))
        subnet.pins.push_back(node->index);
    }
  }
}

} // namespace

ElementValues GeometryReader::read(const NetData &net, const ValueRequest &request, NetGeometry &geometry) {
  geometry.clear();
  ValueReader values(request, net.nodes().size(), net.edges().size());
  NetGeometry::Records records;
  records.nodes = readNodes(net, request, values);
  records.edges = readEdges(net, request, values);
  findDriven(net, records.nodes, records.edges);
  records.textBoxes = readPoints(net.textBoxes());
  records.subnets = readPoints(net.assembledSubnets());
  readPins(net, records.subnets);
  const std::size_t dropped =
      net.textBoxes().size() + net.assembledSubnets().size() - records.textBoxes.size() - records.subnets.size();
  geometry = NetGeometry(std::move(records), toQt(dropped));
  return values.values();
}

bool GeometryReader::readFlows(const NetData &net, NetGeometry &geometry) {
  std::vector<NetGeometry::NodeFlow> flows(geometry.nodes().size());
  const PropertyColumns wanted = columnsOf({"x", "y", "type", "kind", "pset", "powset", "qset", "mset"});
  wanted.forEach(sourcesOf(geometry.nodes()), [&](std::size_t i, const PropertyColumns &columns) {
    const NetGeometry::Node &node = geometry.nodes()[i];
    flows[i] = {flowOf(columns), node.isDrive ? node.shape : shapeOf(net, *node.source, columns)};
  });
  return geometry.setFlows(flows);
}

ElementValues GeometryReader::readValues(const NetGeometry &geometry, const ValueRequest &request) {
  ValueReader values(request, geometry.nodes().size(), geometry.edges().size());
  const auto readNode = [&](std::size_t i, const PropertyColumns &columns) {
    values.readNode(i, columns, 0);
  };
  const auto readEdge = [&](std::size_t i, const PropertyColumns &columns) {
    values.readEdge(i, geometry.edges()[i], columns, 0);
  };
  columnsOf({}, request.ofEdges, request.ofNodes).forEach(sourcesOf(geometry.nodes()), readNode);
  columnsOf({}, request.ofEdges).forEach(sourcesOf(geometry.edges()), readEdge);
  return values.values();
}
