#include <model/elementstate.h>
#include <model/propertycolumns.h>
#include <model/topology.h>

#include <algorithm>
#include <cmath>
#include <drawing/netgeometry.h>
#include <limits>
#include <numeric>
#include <tuple>

namespace {

enum NodeColumn { NodeX, NodeY, NodeType, NodeKind, NodePset, NodePowset, NodeQset, NodeMset, NodeWanted };
enum EdgeColumn { EdgeNode1, EdgeNode2, EdgeType, EdgeState, EdgeActive, EdgeWanted };
enum PlaceColumn { PlaceX, PlaceY };

using Wanted = NetGeometry::Wanted;

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
NetGeometry::NodeShape shapeOf(const NetData &net, const element &node, const PropertyColumns &read) {
  using Shape = NetGeometry::NodeShape;
  if (read[NodePset] != nullptr || read[NodePowset] != nullptr || read[NodeQset] != nullptr || read[NodeMset] != nullptr) {
    const QString category = net.nodeCategory(node);
    if (category == QLatin1String("pset"))
      return Shape::Pressure;
    if (category == QLatin1String("negqset"))
      return Shape::Supply;
    if (category == QLatin1String("demand"))
      return Shape::Demand;
  }
  const PropertyText *kind = read[NodeKind];
  if (kind != nullptr && sameWord(kind->utf8(), "source"))
    return Shape::Supply;
  return kind != nullptr && sameWord(kind->utf8(), "sink") ? Shape::Demand : Shape::Junction;
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

/// What to multiply coordinates with for an extent to have between a hundred and a billion units: zooming counts in whole
/// units and goes down to a pixel each. Eight degrees become eight million units, so that a pixel can be a tenth of a metre.
double plotUnitsFor(const QRectF &extent) {
  constexpr double Least = 1e2;
  constexpr double Most = 1e9;
  constexpr double Exponent = 6.0;
  const double side = std::max(extent.width(), extent.height());
  const bool isNoise = side < std::max(std::abs(extent.center().x()), std::abs(extent.center().y())) * 1e-9;
  if (!(side > 0.0) || !std::isfinite(side) || isNoise || (side >= Least && side <= Most))
    return 1.0;
  return std::pow(10.0, Exponent - std::floor(std::log10(side)));
}

bool isPlaced(double x, double y) {
  return x != NetData::NoValue && y != NetData::NoValue;
}

/// Bounds some way outside of the middle nine tenths of the values; wide open when these are all the same.
std::pair<double, double> fence(std::vector<double> &values) {
  constexpr double Tail = 0.05;
  constexpr double Widths = 3.0;
  const auto quantile = [&values](double part) {
    const auto place = values.begin() + static_cast<std::ptrdiff_t>(part * static_cast<double>(values.size() - 1));
    std::nth_element(values.begin(), place, values.end());
    return *place;
  };
  const double low = quantile(Tail);
  const double high = quantile(1.0 - Tail);
  const double room = high > low ? (high - low) * Widths : std::numeric_limits<double>::infinity();
  return {low - room, high + room};
}

} // namespace

NetGeometry::Values NetGeometry::build(const NetData &net, const Request &request) {
  clear();
  Values values = emptyValues(request, net.nodes().size(), net.edges().size());
  addNodes(net, request, values);
  addEdges(net, request, values);
  m_textBoxes = places(net.textBoxes());
  m_subnets = places(net.assembledSubnets());
  findPins(net);
  takePlotUnits();
  return values;
}

NetGeometry::Values NetGeometry::values(const Request &request) const {
  Values values = emptyValues(request, m_nodes.size(), m_edges.size());
  const auto node = [&](std::size_t i, const PropertyColumns &read) {
    takeNode(i, read, 0, request, values);
  };
  const auto edge = [&](std::size_t i, const PropertyColumns &read) {
    takeEdge(i, read, 0, request, values);
  };
  columnsOf({}, request.ofEdges, request.ofNodes).forEach(sourcesOf(m_nodes), node);
  columnsOf({}, request.ofEdges).forEach(sourcesOf(m_edges), edge);
  return values;
}

void NetGeometry::clear() {
  *this = NetGeometry();
}

void NetGeometry::addNodes(const NetData &net, const Request &request, Values &values) {
  const std::vector<const element *> sources = sourcesOf(net.nodes());
  m_nodes.resize(sources.size());
  const PropertyColumns columns =
      columnsOf({"x", "y", "type", "kind", "pset", "powset", "qset", "mset"}, request.ofEdges, request.ofNodes);
  columns.forEach(sources, [&](std::size_t i, const PropertyColumns &read) {
    Node &node = m_nodes[i];
    node.source = sources[i];
    node.x = NetData::number(read[NodeX]);
    node.y = NetData::number(read[NodeY]);
    node.isPlaced = ::isPlaced(node.x, node.y);
    node.isDrive = read[NodeType] != nullptr && read[NodeType]->utf8() == "d";
    if (!node.isDrive)
      node.shape = shapeOf(net, *node.source, read);
    takeNode(i, read, NodeWanted, request, values);
  });
  for (const Node &node : m_nodes) {
    if (node.isPlaced)
      extend(node.x, node.y);
    else
      ++m_unplaced;
  }
}

void NetGeometry::addEdges(const NetData &net, const Request &request, Values &values) {
  // m_nodes stands in name order, as the collection does.
  const auto position = [&](const PropertyText *name) {
    const elements::Entry *node = name == nullptr ? nullptr : net.nodes().findEntry(name->utf8());
    return node == nullptr ? -1 : node->index;
  };
  const std::vector<const element *> sources = sourcesOf(net.edges());
  m_edges.resize(sources.size());
  const PropertyColumns columns = columnsOf({"node1", "node2", "type", "state", "active"}, request.ofEdges);
  columns.forEach(sources, [&](std::size_t i, const PropertyColumns &read) {
    Edge &edge = m_edges[i];
    edge.source = sources[i];
    edge.node1 = position(read[EdgeNode1]);
    edge.node2 = position(read[EdgeNode2]);
    if (read[EdgeType] != nullptr && read[EdgeType]->utf8().size() == 1)
      edge.type = read[EdgeType]->utf8().front();
    edge.isInactive = ElementState::isOutOfUse(read[EdgeState], read[EdgeActive]);
    edge.isBypass = ElementState::saysBypass(read[EdgeState]);
    takeEdge(i, read, EdgeWanted, request, values);
  });
  for (const Edge &edge : m_edges)
    m_unplaced += isPlaced(edge) ? 0 : 1;
  findLanes();
}

void NetGeometry::findPins(const NetData &net) {
  static const PropertyKey key = PropertyKey::intern("pins");
  for (Place &subnet : m_subnets) {
    for (const QString &name : Topology::listed(*subnet.source, key)) {
      if (const elements::Entry *node = net.nodes().findEntry(name.toStdString()))
        subnet.pins.push_back(node->index);
    }
  }
}

void NetGeometry::findLanes() {
  // Edges by their lower end node: a counting sort, since only neighbours in it can be parallel.
  std::vector<int> starts(m_nodes.size() + 1, 0);
  const auto joins = [](const Edge &edge) {
    return edge.node1 >= 0 && edge.node2 >= 0 && edge.node1 != edge.node2;
  };
  for (const Edge &edge : m_edges) {
    if (joins(edge))
      ++starts[static_cast<std::size_t>(std::min(edge.node1, edge.node2)) + 1];
  }
  std::partial_sum(starts.begin(), starts.end(), starts.begin());
  struct Way {
    int far;
    int edge;
  };
  std::vector<Way> ways(static_cast<std::size_t>(starts.back()));
  std::vector<int> next(starts.begin(), starts.end() - 1);
  for (std::size_t i = 0; i < m_edges.size(); ++i) {
    const Edge &edge = m_edges[i];
    if (!joins(edge))
      continue;
    const auto near = static_cast<std::size_t>(std::min(edge.node1, edge.node2));
    ways[static_cast<std::size_t>(next[near]++)] = {std::max(edge.node1, edge.node2), static_cast<int>(i)};
  }
  for (std::size_t node = 0; node < m_nodes.size(); ++node) {
    const auto first = ways.begin() + starts[node];
    const auto last = ways.begin() + starts[node + 1];
    if (last - first < 2)
      continue;
    std::sort(first, last, [](const Way &a, const Way &b) { return std::tie(a.far, a.edge) < std::tie(b.far, b.edge); });
    for (auto group = first; group != last;) {
      const auto end = std::find_if(group, last, [group](const Way &way) { return way.far != group->far; });
      const float middle = static_cast<float>(end - group - 1) * 0.5F;
      for (auto way = group; way != end; ++way) {
        Edge &edge = m_edges[static_cast<std::size_t>(way->edge)];
        const float aside = static_cast<float>(way - group) - middle; // of the way from the node that comes first by name
        edge.lane = edge.node1 < edge.node2 ? aside : -aside;
      }
      group = end;
    }
  }
}

const element *NetGeometry::source(Item item) const {
  const auto i = static_cast<std::size_t>(item.index);
  switch (item.kind) {
  case NetData::Node:
    return m_nodes[i].source;
  case NetData::Edge:
    return m_edges[i].source;
  case NetData::AssembledSubnet:
    return m_subnets[i].source;
  case NetData::TextBox:
    return m_textBoxes[i].source;
  default:
    return nullptr;
  }
}

std::optional<NetGeometry::Item> NetGeometry::find(const NetData &net, const QString &name, int kinds) const {
  const std::string utf8 = name.toStdString();
  // Nodes and edges stand in name order, as the collections do.
  for (const auto &[kind, collection] : {std::make_pair(NetData::Node, &net.nodes()), {NetData::Edge, &net.edges()}}) {
    const elements::Entry *entry = (kinds & kind) != 0 ? collection->findEntry(utf8) : nullptr;
    const std::size_t count = kind == NetData::Node ? m_nodes.size() : m_edges.size();
    if (entry != nullptr && static_cast<std::size_t>(entry->index) < count && source({kind, entry->index}) == &entry->value)
      return Item{kind, entry->index};
  }
  for (const auto &[kind, places] :
       {std::make_pair(NetData::AssembledSubnet, &m_subnets), {NetData::TextBox, &m_textBoxes}}) {
    const elements &collection = kind == NetData::TextBox ? net.textBoxes() : net.assembledSubnets();
    const element *wanted = (kinds & kind) != 0 ? collection.find(utf8) : nullptr;
    const auto found = std::find_if(places->begin(), places->end(), [wanted](const Place &p) { return p.source == wanted; });
    if (wanted != nullptr && found != places->end())
      return Item{kind, static_cast<int>(found - places->begin())};
  }
  return std::nullopt;
}

std::optional<QPointF> NetGeometry::center(Item item) const {
  const auto i = static_cast<std::size_t>(item.index);
  switch (item.kind) {
  case NetData::Node:
    return m_nodes[i].isPlaced ? std::optional<QPointF>({m_nodes[i].x, m_nodes[i].y}) : std::nullopt;
  case NetData::Edge:
    return isPlaced(m_edges[i]) ? std::optional<QPointF>(line(m_edges[i]).center()) : std::nullopt;
  case NetData::AssembledSubnet:
    return QPointF(m_subnets[i].x, m_subnets[i].y);
  case NetData::TextBox:
    return QPointF(m_textBoxes[i].x, m_textBoxes[i].y);
  default:
    return std::nullopt;
  }
}

std::vector<NetGeometry::Place> NetGeometry::places(const elements &collection) {
  PropertyColumns read = columnsOf({"x", "y"});
  std::vector<Place> found;
  for (const elements::Entry &entry : collection) {
    read.read(entry.value);
    const double x = NetData::number(read[PlaceX]);
    const double y = NetData::number(read[PlaceY]);
    if (!::isPlaced(x, y)) {
      ++m_unplaced;
      continue;
    }
    found.push_back({&entry.value, x, y, {}});
    extend(x, y);
  }
  return found;
}

void NetGeometry::extend(double x, double y) {
  if (!m_hasExtent)
    m_extent = QRectF(x, y, 0.0, 0.0);
  m_hasExtent = true;
  m_extent.setCoords(std::min(m_extent.left(), x), std::min(m_extent.top(), y), std::max(m_extent.right(), x),
                     std::max(m_extent.bottom(), y));
}

void NetGeometry::takePlotUnits() {
  m_mainExtent = findMainExtent();
  m_plotUnits = plotUnitsFor(m_mainExtent);
  if (m_plotUnits == 1.0)
    return;
  for (Node &node : m_nodes) {
    if (!node.isPlaced)
      continue;
    node.x *= m_plotUnits;
    node.y *= m_plotUnits;
  }
  for (std::vector<Place> *places : {&m_textBoxes, &m_subnets}) {
    for (Place &place : *places) {
      place.x *= m_plotUnits;
      place.y *= m_plotUnits;
    }
  }
  m_extent = toPlot(m_extent);
  m_mainExtent = toPlot(m_mainExtent);
}

QRectF NetGeometry::findMainExtent() const {
  constexpr std::size_t Few = 20; // of so few each may stand where it likes
  std::vector<double> xs;
  std::vector<double> ys;
  for (const Node &node : m_nodes) {
    if (!node.isPlaced)
      continue;
    xs.push_back(node.x);
    ys.push_back(node.y);
  }
  if (xs.size() < Few)
    return m_extent;
  const auto [left, right] = fence(xs);
  const auto [bottom, top] = fence(ys);
  NetGeometry main; // only for its extent
  const auto take = [&main, left = left, right = right, bottom = bottom, top = top](double x, double y) {
    if (x >= left && x <= right && y >= bottom && y <= top)
      main.extend(x, y);
  };
  for (const Node &node : m_nodes) {
    if (node.isPlaced)
      take(node.x, node.y);
  }
  for (const std::vector<Place> *places : {&m_textBoxes, &m_subnets}) {
    for (const Place &place : *places)
      take(place.x, place.y);
  }
  return main.m_hasExtent ? main.m_extent : m_extent;
}

int NetGeometry::nodesOutside(const QRectF &extent) const {
  const double rounding = std::max(extent.width(), extent.height()) * 1e-9; // of the way to plot coordinates
  const QRectF area = extent.adjusted(-rounding, -rounding, rounding, rounding);
  return static_cast<int>(std::count_if(m_nodes.begin(), m_nodes.end(), [&area](const Node &node) {
    return node.isPlaced && (node.x < area.left() || node.x > area.right() || node.y < area.top() || node.y > area.bottom());
  }));
}

bool NetGeometry::isPlaced(const Edge &edge) const {
  return edge.node1 >= 0 && edge.node2 >= 0 && m_nodes[static_cast<std::size_t>(edge.node1)].isPlaced &&
         m_nodes[static_cast<std::size_t>(edge.node2)].isPlaced;
}

NetGeometry::Values NetGeometry::emptyValues(const Request &request, std::size_t nodes, std::size_t edges) {
  const auto columns = [](const std::vector<Wanted> &wanted, std::size_t count) {
    return Columns(wanted.size(), std::vector<double>(count, NetData::NoValue));
  };
  return {columns(request.ofEdges, edges), columns(request.ofEdges, nodes), columns(request.ofNodes, nodes)};
}

void NetGeometry::takeNode(std::size_t node, const PropertyColumns &read, std::size_t first, const Request &request,
                           Values &values) {
  for (std::size_t i = 0; i < request.ofEdges.size(); ++i)
    values.ofEnds[i][node] = NetData::number(read[first + i], request.ofEdges[i].absolute);
  first += request.ofEdges.size();
  for (std::size_t i = 0; i < request.ofNodes.size(); ++i)
    values.ofNodes[i][node] = NetData::number(read[first + i], request.ofNodes[i].absolute);
}

void NetGeometry::takeEdge(std::size_t edge, const PropertyColumns &read, std::size_t first, const Request &request,
                           Values &values) const {
  for (std::size_t i = 0; i < request.ofEdges.size(); ++i) {
    double &value = values.ofEdges[i][edge];
    value = read[first + i] != nullptr ? NetData::number(read[first + i], request.ofEdges[i].absolute)
                                       : mean(m_edges[edge], values.ofEnds[i]);
  }
}

double NetGeometry::mean(const Edge &edge, const std::vector<double> &ofEnds) {
  if (edge.node1 < 0 || edge.node2 < 0)
    return NetData::NoValue;
  const double end1 = ofEnds[static_cast<std::size_t>(edge.node1)];
  const double end2 = ofEnds[static_cast<std::size_t>(edge.node2)];
  return end1 == NetData::NoValue || end2 == NetData::NoValue ? NetData::NoValue : (end1 + end2) * 0.5;
}

void NetGeometry::takeMeans(const std::vector<double> &ofEnds, std::vector<double> &ofEdges) const {
  for (std::size_t i = 0; i < m_edges.size(); ++i)
    ofEdges[i] = mean(m_edges[i], ofEnds);
}
