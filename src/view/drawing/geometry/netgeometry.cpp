#include <drawing/netgeometry.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <tuple>

namespace {

using Edge = NetGeometry::Edge;

/// The factor that gives an extent between a hundred and a billion units: zooming counts in whole units and goes down to
/// a pixel each. Eight degrees become eight million units, so that a pixel can be a tenth of a metre.
double plotUnitsFor(const QRectF &extent) {
  constexpr double SmallestSide = 1e2;
  constexpr double LargestSide = 1e9;
  constexpr double ExponentOfSide = 6.0;
  const double side = std::max(extent.width(), extent.height());
  const bool isNoise = side < std::max(std::abs(extent.center().x()), std::abs(extent.center().y())) * 1e-9;
  if (!(side > 0.0) || !std::isfinite(side) || isNoise || (side >= SmallestSide && side <= LargestSide))
    return 1.0;
  return std::pow(10.0, ExponentOfSide - std::floor(std::log10(side)));
}

/// Bounds well outside of the middle nine tenths of the values, infinite when these are all the same.
std::pair<double, double> fence(std::vector<double> values) {
  constexpr double TailShare = 0.05;
  constexpr double WidthsOutside = 3.0;
  const auto quantile = [&values](double part) {
    const auto position = values.begin() + static_cast<std::ptrdiff_t>(part * static_cast<double>(values.size() - 1));
    std::nth_element(values.begin(), position, values.end());
    return *position;
  };
  const double low = quantile(TailShare);
  const double high = quantile(1.0 - TailShare);
  const double room = high > low ? (high - low) * WidthsOutside : std::numeric_limits<double>::infinity();
  return {low - room, high + room};
}

class Extent {
public:
  void add(double x, double y) {
    if (!m_isAny)
      m_area = QRectF(x, y, 0.0, 0.0);
    m_isAny = true;
    m_area.setCoords(std::min(m_area.left(), x), std::min(m_area.top(), y), std::max(m_area.right(), x),
                     std::max(m_area.bottom(), y));
  }
  bool isAny() const { return m_isAny; }
  const QRectF &area() const { return m_area; } ///< null without any

private:
  QRectF m_area;
  bool m_isAny = false;
};

/// An edge, seen from that of its end nodes which comes first by name.
struct Way {
  Index far; ///< the other end node
  Index edge;
};

/// The edges that join two nodes, by the node that comes first: those of node i stand from starts[i] on. A counting sort,
/// since only neighbours in it can be parallel.
std::vector<Way> waysByNode(const std::vector<Edge> &edges, std::size_t nodes, std::vector<Index> &starts) {
  starts.assign(nodes + 1, 0);
  const auto joins = [](const Edge &edge) {
    return edge.hasEnds() && edge.node1 != edge.node2;
  };
  for (const Edge &edge : edges) {
    if (joins(edge))
      ++starts[std::min(edge.node1, edge.node2) + 1];
  }
  std::partial_sum(starts.begin(), starts.end(), starts.begin());
  std::vector<Way> ways(starts.back());
  std::vector<Index> next(starts.begin(), starts.end() - 1);
  for (Index i = 0; i < edges.size(); ++i) {
    const Edge &edge = edges[i];
    if (joins(edge))
      ways[next[std::min(edge.node1, edge.node2)]++] = {std::max(edge.node1, edge.node2), i};
  }
  return ways;
}

void assignLanes(std::vector<Edge> &edges, std::size_t nodes) {
  std::vector<Index> starts;
  std::vector<Way> ways = waysByNode(edges, nodes, starts);
  for (std::size_t node = 0; node < nodes; ++node) {
    const auto first = ways.begin() + starts[node];
    const auto last = ways.begin() + starts[node + 1];
    if (last - first < 2)
      continue;
    std::sort(first, last, [](const Way &a, const Way &b) { return std::tie(a.far, a.edge) < std::tie(b.far, b.edge); });
    for (auto group = first; group != last;) {
      const auto end = std::find_if(group, last, [group](const Way &way) { return way.far != group->far; });
      const float middle = static_cast<float>(end - group - 1) * 0.5F;
      for (auto way = group; way != end; ++way) {
        Edge &edge = edges[way->edge];
        const float aside = static_cast<float>(way - group) - middle; // seen from the node that comes first by name
        edge.lane = edge.node1 < edge.node2 ? aside : -aside;
        edge.isBetweenLanes = way != group && way + 1 != end;
      }
      group = end;
    }
  }
}

} // namespace

NetGeometry::NetGeometry(Records records, int dropped)
    : m_records(std::move(records))
    , m_unplaced(dropped) {
  assignLanes(m_records.edges, m_records.nodes.size());
  countUnplaced();
  chooseUnits();
  findTypicalLength();
  markIdleNodes();
}

void NetGeometry::clear() {
  *this = NetGeometry();
}

void NetGeometry::countUnplaced() {
  for (const Node &node : nodes())
    m_unplaced += node.isPlaced ? 0 : 1;
  for (const Edge &edge : edges())
    m_unplaced += isPlaced(edge) ? 0 : 1;
}

/// Calls visit(x, y) for everything that has coordinates; it may change them.
template <typename Visit>
void NetGeometry::forEachPoint(const Visit &visit) {
  for (Node &node : m_records.nodes) {
    if (node.isPlaced)
      visit(node.x, node.y);
  }
  for (std::vector<PointElement> *points : {&m_records.textBoxes, &m_records.subnets}) {
    for (PointElement &point : *points)
      visit(point.x, point.y);
  }
}

/// Brings the coordinates to a size that suits the zoom.
void NetGeometry::chooseUnits() {
  Extent extent;
  forEachPoint([&extent](double x, double y) { extent.add(x, y); });
  m_hasExtent = extent.isAny();
  m_extent = extent.area();
  m_mainExtent = findMainExtent();
  m_plotUnits = plotUnitsFor(m_mainExtent);
  if (m_plotUnits == 1.0)
    return;
  forEachPoint([this](double &x, double &y) {
    x *= m_plotUnits;
    y *= m_plotUnits;
  });
  m_extent = toPlot(m_extent);
  m_mainExtent = toPlot(m_mainExtent);
}

QRectF NetGeometry::findMainExtent() {
  constexpr std::size_t FewNodes = 20; // of so few each may stand where it likes
  std::vector<double> xs;
  std::vector<double> ys;
  for (const Node &node : nodes()) {
    if (!node.isPlaced)
      continue;
    xs.push_back(node.x);
    ys.push_back(node.y);
  }
  if (xs.size() < FewNodes)
    return m_extent;
  const auto [left, right] = fence(std::move(xs));
  const auto [bottom, top] = fence(std::move(ys));
  Extent main;
  forEachPoint([&main, left = left, right = right, bottom = bottom, top = top](double x, double y) {
    if (x >= left && x <= right && y >= bottom && y <= top)
      main.add(x, y);
  });
  return main.isAny() ? main.area() : m_extent;
}

void NetGeometry::findTypicalLength() {
  constexpr std::size_t Enough = 20000; // edges to look at
  constexpr double MostOfRoom = 2.0;    // edges are no longer where nodes stand on their own
  std::vector<double> lengths;
  for (std::size_t i = 0, step = edges().size() / Enough + 1; i < edges().size(); i += step) {
    const double length = isPlaced(edges()[i]) ? line(edges()[i]).length() : 0.0;
    if (length > 0.0)
      lengths.push_back(length);
  }
  if (!lengths.empty()) {
    const auto middle = lengths.begin() + static_cast<std::ptrdiff_t>(lengths.size() / 2);
    std::nth_element(lengths.begin(), middle, lengths.end());
    m_typicalLength = *middle;
  }
  const double count = static_cast<double>(std::max<std::size_t>(nodes().size(), 1));
  const double room = std::sqrt(area() / count);
  m_typicalLength = lengths.empty() ? room : std::min(m_typicalLength, room * MostOfRoom);
}

double NetGeometry::area() const {
  const double width = m_mainExtent.width();
  const double height = m_mainExtent.height();
  return std::max(width * height, m_typicalLength * std::max(width, height));
}

bool NetGeometry::setFlows(const std::vector<NodeFlow> &flows) {
  bool hasChanged = false;
  for (Index i = 0; i < flows.size(); ++i) {
    Node &node = m_records.nodes[i];
    hasChanged = hasChanged || node.shape != flows[i].shape;
    node.flow = flows[i].flow;
    node.shape = flows[i].shape;
  }
  return markIdleNodes() || hasChanged;
}

/// Without a scenario nobody knows who supplies and takes; then each is shown as what it is. True when that is new of a
/// node.
bool NetGeometry::markIdleNodes() {
  const auto flows = [](const Node &node) {
    return node.flow != NetData::NoValue && node.flow != 0.0;
  };
  const bool isAnyKnown = std::any_of(nodes().begin(), nodes().end(), flows);
  bool hasChanged = false;
  for (Node &node : m_records.nodes) {
    const bool isIdle = isAnyKnown && !flows(node) && (node.shape == NodeShape::Supply || node.shape == NodeShape::Demand);
    hasChanged = hasChanged || isIdle != node.isIdle;
    node.isIdle = isIdle;
  }
  return hasChanged;
}

const element *NetGeometry::source(Item item) const {
  switch (item.kind) {
  case NetData::Node:
    return m_records.nodes[item.index].source;
  case NetData::Edge:
    return m_records.edges[item.index].source;
  case NetData::AssembledSubnet:
    return m_records.subnets[item.index].source;
  case NetData::TextBox:
    return m_records.textBoxes[item.index].source;
  default:
    return nullptr;
  }
}

std::size_t NetGeometry::count(NetData::EleType kind) const {
  switch (kind) {
  case NetData::Node:
    return nodes().size();
  case NetData::Edge:
    return edges().size();
  case NetData::AssembledSubnet:
    return subnets().size();
  case NetData::TextBox:
    return textBoxes().size();
  default:
    return 0;
  }
}

std::optional<NetGeometry::Item> NetGeometry::find(const NetData &net, const QString &name, int kinds) const {
  const std::string utf8 = name.toStdString();
  // Nodes and edges stand in name order, as the collections do.
  for (const auto &[kind, collection] : {std::make_pair(NetData::Node, &net.nodes()), {NetData::Edge, &net.edges()}}) {
    const elements::Entry *entry = (kinds & kind) != 0 ? collection->findEntry(utf8) : nullptr;
    if (entry != nullptr && entry->index < count(kind) && source({kind, entry->index}) == &entry->value)
      return Item{kind, entry->index};
  }
  for (const auto &[kind, points] :
       {std::make_pair(NetData::AssembledSubnet, &m_records.subnets), {NetData::TextBox, &m_records.textBoxes}}) {
    const elements &collection = kind == NetData::TextBox ? net.textBoxes() : net.assembledSubnets();
    const element *wanted = (kinds & kind) != 0 ? collection.find(utf8) : nullptr;
    for (Index i = 0; wanted != nullptr && i < points->size(); ++i) {
      if ((*points)[i].source == wanted)
        return Item{kind, i};
    }
  }
  return std::nullopt;
}

std::optional<QPointF> NetGeometry::center(Item item) const {
  const Index i = item.index;
  switch (item.kind) {
  case NetData::Node:
    return m_records.nodes[i].isPlaced ? std::optional<QPointF>({m_records.nodes[i].x, m_records.nodes[i].y}) : std::nullopt;
  case NetData::Edge:
    return isPlaced(m_records.edges[i]) ? std::optional<QPointF>(line(m_records.edges[i]).center()) : std::nullopt;
  case NetData::AssembledSubnet:
    return QPointF(m_records.subnets[i].x, m_records.subnets[i].y);
  case NetData::TextBox:
    return QPointF(m_records.textBoxes[i].x, m_records.textBoxes[i].y);
  default:
    return std::nullopt;
  }
}

int NetGeometry::nodesOutside(const QRectF &extent) const {
  const double rounding = std::max(extent.width(), extent.height()) * 1e-9; // in the conversion to plot coordinates
  const QRectF area = extent.adjusted(-rounding, -rounding, rounding, rounding);
  return static_cast<int>(std::count_if(m_records.nodes.begin(), m_records.nodes.end(), [&area](const Node &node) {
    return node.isPlaced && (node.x < area.left() || node.x > area.right() || node.y < area.top() || node.y > area.bottom());
  }));
}

bool NetGeometry::isPlaced(const Edge &edge) const {
  return edge.hasEnds() && nodes()[edge.node1].isPlaced && nodes()[edge.node2].isPlaced;
}

double NetGeometry::meanOfEnds(const Edge &edge, const std::vector<double> &ofNodes) {
  if (!edge.hasEnds())
    return NetData::NoValue;
  const double end1 = ofNodes[edge.node1];
  const double end2 = ofNodes[edge.node2];
  return end1 == NetData::NoValue || end2 == NetData::NoValue ? NetData::NoValue : (end1 + end2) * 0.5;
}
