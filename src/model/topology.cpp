#include <model/elementstate.h>
#include <model/names.h>
#include <model/networkgraph.h>
#include <model/topology.h>

#include <cmath>
#include <deque>

namespace {

const elements::Entry *endOf(const NetData &net, const element &edge, PropertyKey end) {
  const PropertyText *name = edge.find(end);
  return name == nullptr ? nullptr : net.nodes().findEntry(name->utf8());
}

bool isBarrier(const element &edge) {
  const PropertyText *type = edge.find(Names::all().type);
  if (type != nullptr && (type->utf8() == "c" || type->utf8() == "r"))
    return true;
  return ElementState::isOutOfUse(edge);
}

/// Nodes and edges by their numbers, in name order; edges lead from where gas enters them, in the direction of the trace.
class FlowGraph {
public:
  FlowGraph(const NetData &net, PropertyKey flow, Topology::Direction direction)
      : m_nodes(listed(net.nodes()))
      , m_edges(listed(net.edges()))
      , m_ends(endsOf(net, flow, direction))
      , m_graph(m_nodes.size(), m_ends, Topology::NetworkGraph::Ways::Forward) {}

  /// Calls visit(edge, far node) for the ways that lead from the node.
  template <typename Visit>
  void forEachWay(const elements::Entry &node, const Visit &visit) const {
    m_graph.forEachWay(node.index,
                       [&](const Topology::NetworkGraph::Way &way) { visit(*m_edges[way.edge], m_nodes[way.node]); });
  }
  /// The node at which gas leaves the edge, in the direction of the trace; null for an edge without flow.
  const elements::Entry *endOf(const elements::Entry &edge) const {
    const Index node = m_ends[edge.index].to;
    return node == NoIndex ? nullptr : m_nodes[node];
  }

private:
  using Ends = Topology::NetworkGraph::Ends;

  static std::vector<const elements::Entry *> listed(const elements &collection) {
    std::vector<const elements::Entry *> entries;
    entries.reserve(collection.size());
    for (const elements::Entry &entry : collection)
      entries.push_back(&entry);
    return entries;
  }

  std::vector<Ends> endsOf(const NetData &net, PropertyKey flow, Topology::Direction direction) const {
    constexpr double Nothing = 1e-10;
    std::vector<Ends> ends;
    ends.reserve(m_edges.size());
    for (const elements::Entry *edge : m_edges) {
      Ends &own = ends.emplace_back();
      const double value = NetData::number(edge->value.find(flow));
      const elements::Entry *first = ::endOf(net, edge->value, Names::all().node1);
      const elements::Entry *second = ::endOf(net, edge->value, Names::all().node2);
      if (value == NetData::NoValue || std::abs(value) < Nothing || first == nullptr || second == nullptr)
        continue;
      own = {first->index, second->index};
      if ((value > 0.0) != (direction == Topology::Direction::Downstream))
        std::swap(own.from, own.to);
    }
    return ends;
  }

  std::vector<const elements::Entry *> m_nodes;
  std::vector<const elements::Entry *> m_edges;
  std::vector<Ends> m_ends;
  Topology::NetworkGraph m_graph;
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

QStringList Topology::listedByPosition(const element &subnet, PropertyKey list) {
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
    for (const PropertyKey end : {Names::all().node1, Names::all().node2}) {
      if (const elements::Entry *node = endOf(net, *edge, end))
        selection.nodes.insert(node->name());
    }
  }
  for (const elements::Entry &edge : net.edges()) {
    const elements::Entry *first = endOf(net, edge.value, Names::all().node1);
    const elements::Entry *second = endOf(net, edge.value, Names::all().node2);
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
    reach(graph.endOf(*edge));
  while (!open.empty()) {
    const elements::Entry *node = open.front();
    open.pop_front();
    graph.forEachWay(*node, [&](const elements::Entry &edge, const elements::Entry *far) {
      found.edges.insert(edge.name());
      if (!isBarrier(edge.value))
        reach(far);
    });
  }
  return found;
}
