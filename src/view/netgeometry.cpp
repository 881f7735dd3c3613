#include <view/netgeometry.h>

#include <algorithm>
#include <array>
#include <unordered_map>

namespace {

struct Keys {
  PropertyKey x = PropertyKey::intern("x");
  PropertyKey y = PropertyKey::intern("y");
  PropertyKey type = PropertyKey::intern("type");
  PropertyKey kind = PropertyKey::intern("kind");
  PropertyKey node1 = PropertyKey::intern("node1");
  PropertyKey node2 = PropertyKey::intern("node2");
  PropertyKey state = PropertyKey::intern("state");
  PropertyKey active = PropertyKey::intern("active");
  PropertyKey pset = PropertyKey::intern("pset");
  PropertyKey powset = PropertyKey::intern("powset");
  PropertyKey qset = PropertyKey::intern("qset");
  PropertyKey mset = PropertyKey::intern("mset");
};

const Keys &keys() {
  static const Keys instance;
  return instance;
}

bool equals(std::string_view text, std::string_view lower) {
  return text.size() == lower.size() && std::equal(text.begin(), text.end(), lower.begin(), [](char a, char b) {
           return (a >= 'A' && a <= 'Z' ? static_cast<char>(a - 'A' + 'a') : a) == b;
         });
}

bool saysOff(const PropertyText *text) {
  if (text == nullptr || text->isEmpty())
    return false;
  constexpr std::array<std::string_view, 5> Words{"off", "closed", "false", "inactive", "no"};
  for (const std::string_view word : Words) {
    if (equals(text->utf8(), word))
      return true;
  }
  return text->toDouble() == 0.0;
}

/// "kind" tells a station of supply or demand even when the scenario sets no flow; a held pressure is shown as such.
NetGeometry::NodeShape shapeOf(const NetData &net, const element &node) {
  using Shape = NetGeometry::NodeShape;
  const Keys &k = keys();
  if (node.find(k.pset) != nullptr || node.find(k.powset) != nullptr || node.find(k.qset) != nullptr ||
      node.find(k.mset) != nullptr) {
    const QString category = net.nodeCategory(node);
    if (category == QLatin1String("pset"))
      return Shape::Pressure;
    if (category == QLatin1String("negqset"))
      return Shape::Supply;
    if (category == QLatin1String("demand"))
      return Shape::Demand;
  }
  const PropertyText *kind = node.find(k.kind);
  if (kind != nullptr && equals(kind->utf8(), "source"))
    return Shape::Supply;
  return kind != nullptr && equals(kind->utf8(), "sink") ? Shape::Demand : Shape::Junction;
}

} // namespace

void NetGeometry::build(const NetData &net) {
  clear();
  addNodes(net);
  addEdges(net);
  m_textBoxes = places(net, net.textBoxes());
  m_subnets = places(net, net.assembledSubnets());
}

void NetGeometry::clear() {
  *this = NetGeometry();
}

void NetGeometry::addNodes(const NetData &net) {
  m_nodes.reserve(net.nodes().size());
  for (const elements::Entry &entry : net.nodes()) {
    Node node;
    node.source = &entry.value;
    node.x = net.value(entry.value, keys().x);
    node.y = net.value(entry.value, keys().y);
    node.isPlaced = node.x != NetData::NoValue && node.y != NetData::NoValue;
    const PropertyText *type = entry.value.find(keys().type);
    node.isDrive = type != nullptr && type->utf8() == "d";
    if (!node.isDrive)
      node.shape = shapeOf(net, entry.value);
    if (node.isPlaced)
      extend(node.x, node.y);
    else
      ++m_unplaced;
    m_nodes.push_back(node);
  }
}

void NetGeometry::addEdges(const NetData &net) {
  std::unordered_map<const element *, int> positions;
  positions.reserve(m_nodes.size());
  for (std::size_t i = 0; i < m_nodes.size(); ++i)
    positions.emplace(m_nodes[i].source, static_cast<int>(i));
  const auto position = [&](const element &edge, PropertyKey key) {
    const PropertyText *name = edge.find(key);
    const element *node = name == nullptr ? nullptr : net.nodes().find(*name);
    const auto found = node == nullptr ? positions.end() : positions.find(node);
    return found == positions.end() ? -1 : found->second;
  };
  m_edges.reserve(net.edges().size());
  for (const elements::Entry &entry : net.edges()) {
    Edge edge;
    edge.source = &entry.value;
    edge.node1 = position(entry.value, keys().node1);
    edge.node2 = position(entry.value, keys().node2);
    const PropertyText *type = entry.value.find(keys().type);
    if (type != nullptr && type->utf8().size() == 1)
      edge.type = type->utf8().front();
    edge.isInactive = saysOff(entry.value.find(keys().state)) || saysOff(entry.value.find(keys().active));
    if (!isPlaced(edge))
      ++m_unplaced;
    m_edges.push_back(edge);
  }
}

std::vector<NetGeometry::Place> NetGeometry::places(const NetData &net, const elements &collection) {
  std::vector<Place> found;
  for (const elements::Entry &entry : collection) {
    const double x = net.value(entry.value, keys().x);
    const double y = net.value(entry.value, keys().y);
    if (x == NetData::NoValue || y == NetData::NoValue) {
      ++m_unplaced;
      continue;
    }
    found.push_back({&entry.value, x, y});
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

bool NetGeometry::isPlaced(const Edge &edge) const {
  return edge.node1 >= 0 && edge.node2 >= 0 && m_nodes[static_cast<std::size_t>(edge.node1)].isPlaced &&
         m_nodes[static_cast<std::size_t>(edge.node2)].isPlaced;
}

std::vector<double> NetGeometry::nodeValues(const NetData &net, PropertyKey property, bool absolute) const {
  std::vector<double> values(m_nodes.size(), NetData::NoValue);
  if (property.isNull())
    return values;
  for (std::size_t i = 0; i < m_nodes.size(); ++i)
    values[i] = net.value(*m_nodes[i].source, property, absolute);
  return values;
}

std::vector<double> NetGeometry::edgeValues(const NetData &net, PropertyKey property, bool absolute) const {
  std::vector<double> values(m_edges.size(), NetData::NoValue);
  if (property.isNull())
    return values;
  const std::vector<double> ends = nodeValues(net, property, absolute);
  for (std::size_t i = 0; i < m_edges.size(); ++i) {
    const Edge &edge = m_edges[i];
    if (edge.source->find(property) != nullptr) {
      values[i] = net.value(*edge.source, property, absolute);
    } else if (edge.node1 >= 0 && edge.node2 >= 0) {
      const double first = ends[static_cast<std::size_t>(edge.node1)];
      const double second = ends[static_cast<std::size_t>(edge.node2)];
      values[i] = first == NetData::NoValue || second == NetData::NoValue ? NetData::NoValue : (first + second) * 0.5;
    }
  }
  return values;
}
