#include <model/elementstate.h>
#include <model/topology.h>

#include <cmath>
#include <deque>
#include <unordered_map>

namespace {

struct Keys {
  PropertyKey name = PropertyKey::intern("name");
  PropertyKey type = PropertyKey::intern("type");
  PropertyKey node1 = PropertyKey::intern("node1");
  PropertyKey node2 = PropertyKey::intern("node2");
};

const Keys &keys() {
  static const Keys all;
  return all;
}

const elements::Entry *endOf(const NetData &net, const element &edge, PropertyKey end) {
  const PropertyText *name = edge.find(end);
  return name == nullptr ? nullptr : net.nodes().findEntry(name->utf8());
}

bool isBarrier(const element &edge) {
  const PropertyText *type = edge.find(keys().type);
  if (type != nullptr && (type->utf8() == "c" || type->utf8() == "r"))
    return true;
  return ElementState::isOutOfUse(edge);
}

/// The edges at each node, with the direction of their flow.
class FlowGraph {
public:
  struct Way {
    const elements::Entry *edge;
    const elements::Entry *far;
  };

  FlowGraph(const NetData &net, PropertyKey flow, Topology::Direction direction) {
    constexpr double Nothing = 1e-10;
    for (const elements::Entry &edge : net.edges()) {
      const double value = NetData::number(edge.value.find(flow));
      const elements::Entry *first = endOf(net, edge.value, keys().node1);
      const elements::Entry *second = endOf(net, edge.value, keys().node2);
      if (value == NetData::NoValue || std::abs(value) < Nothing || first == nullptr || second == nullptr)
        continue;
      const bool isForward = (value > 0.0) == (direction == Topology::Direction::Downstream);
      m_ways[isForward ? first : second].push_back({&edge, isForward ? second : first});
    }
  }
  const std::vector<Way> &from(const elements::Entry *node) const {
    static const std::vector<Way> None;
    const auto found = m_ways.find(node);
    return found == m_ways.end() ? None : found->second;
  }
  /// The node at which gas leaves the edge, in the direction of the trace.
  const elements::Entry *endOfWay(const elements::Entry *edge) const {
    for (const auto &[node, ways] : m_ways) {
      for (const Way &way : ways) {
        if (way.edge == edge)
          return way.far;
      }
    }
    return nullptr;
  }

private:
  std::unordered_map<const elements::Entry *, std::vector<Way>> m_ways;
};

} // namespace

QStringList Topology::listed(const element &subnet, PropertyKey list) {
  QStringList names;
  for (const QString &part : subnet.value(list).split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
    if (const QString name = part.trimmed(); !name.isEmpty())
      names.append(name);
  }
  return names;
}

QStringList Topology::listedByPlace(const element &subnet, PropertyKey list) {
  const QString names = subnet.value(list);
  return names.isEmpty() ? QStringList() : names.split(QLatin1Char(';'));
}

bool Topology::select(const NetData &net, const QString &name, Selection &selection) {
  const std::string utf8 = name.toStdString();
  const std::pair<const elements &, Selection::Names &> kinds[] = {{net.nodes(), selection.nodes},
                                                                   {net.edges(), selection.edges},
                                                                   {net.assembledSubnets(), selection.subnets},
                                                                   {net.textBoxes(), selection.others}};
  for (const auto &[collection, names] : kinds) {
    if (const elements::Entry *entry = collection.findEntry(utf8)) {
      names.insert(entry->name());
      return true;
    }
  }
  return false;
}

void Topology::close(const NetData &net, Selection &selection) {
  for (const QString &name : qAsConst(selection.edges)) {
    const element *edge = net.edges().find(name);
    if (edge == nullptr)
      continue;
    for (const PropertyKey end : {keys().node1, keys().node2}) {
      if (const elements::Entry *node = endOf(net, *edge, end))
        selection.nodes.insert(node->name());
    }
  }
  for (const elements::Entry &edge : net.edges()) {
    const elements::Entry *first = endOf(net, edge.value, keys().node1);
    const elements::Entry *second = endOf(net, edge.value, keys().node2);
    if (first != nullptr && second != nullptr && selection.nodes.contains(first->name()) &&
        selection.nodes.contains(second->name()))
      selection.edges.insert(edge.name());
  }
}

Selection Topology::trace(const NetData &net, const QString &name, Direction direction, const QString &flow) {
  Selection found;
  if (!select(net, name, found))
    return found;
  const FlowGraph graph(net, PropertyKey::find(flow), direction);
  std::deque<const elements::Entry *> open;
  const auto reach = [&](const elements::Entry *node) {
    if (node == nullptr || found.nodes.contains(node->name()))
      return;
    found.nodes.insert(node->name());
    open.push_back(node);
  };
  const std::string utf8 = name.toStdString();
  if (const elements::Entry *node = net.nodes().findEntry(utf8))
    open.push_back(node);
  else if (const elements::Entry *edge = net.edges().findEntry(utf8))
    reach(graph.endOfWay(edge));
  while (!open.empty()) {
    const elements::Entry *node = open.front();
    open.pop_front();
    for (const FlowGraph::Way &way : graph.from(node)) {
      found.edges.insert(way.edge->name());
      if (!isBarrier(way.edge->value))
        reach(way.far);
    }
  }
  return found;
}
