#include "profile/pathsearch.h"

#include <model/elementstate.h>
#include <model/names.h>
#include <model/netmetadata.h>
#include <model/units.h>

#include <algorithm>
#include <cmath>

namespace {

/// Lengths of elements in km, by the unit in which those of their type are stored.
class Lengths {
public:
  explicit Lengths(const NetMetaData &metaData)
      : m_metaData(metaData)
      , m_key(PropertyKey::find("length")) {}

  double of(const element &edge) {
    const PropertyText *text = edge.find(m_key);
    const double stored = text == nullptr ? NetData::NoValue : NetData::number(text);
    if (!(stored > 0.0))
      return 0.0;
    const PropertyText *type = edge.find(Names::all().type);
    const std::string_view code = type == nullptr ? std::string_view() : type->utf8();
    if (code != m_type || !m_isKnown)
      know(code);
    return m_toKilometres(stored);
  }

private:
  void know(std::string_view code) {
    const QString length = QStringLiteral("length");
    m_type = std::string(code);
    m_isKnown = true;
    const NetMetaData::Attribute *attribute = m_metaData.attribute(QString::fromStdString(m_type), length);
    if (attribute == nullptr)
      attribute = m_metaData.anyAttribute(length);
    const QString unit = attribute == nullptr ? QStringLiteral("m") : attribute->storedUnit;
    m_toKilometres = Units::conversion(unit, QStringLiteral("km")).value_or(Units::Linear{0.001L, 0.0L});
  }

  const NetMetaData &m_metaData;
  PropertyKey m_key;
  std::string m_type;
  bool m_isKnown = false;
  Units::Linear m_toKilometres;
};

/// Which way the gas goes, by the volume flow or, without one, by the mass flow.
signed char flowOf(const element &edge) {
  static const PropertyKey volume = PropertyKey::intern("q");
  static const PropertyKey mass = PropertyKey::intern("m");
  constexpr double Nothing = 1e-10;
  for (const PropertyKey key : {volume, mass}) {
    const PropertyText *text = edge.find(key);
    const double value = text == nullptr ? NetData::NoValue : NetData::number(text);
    if (value != NetData::NoValue)
      return std::abs(value) < Nothing ? 0 : (value > 0.0 ? 1 : -1);
  }
  return 0;
}

bool isDrive(const element &node) {
  const PropertyText *type = node.find(Names::all().type);
  return type != nullptr && type->utf8() == "d";
}

} // namespace

PathSearch::PathSearch(const NetData &net)
    : m_net(net) {
  m_nodes.reserve(net.nodes().size());
  for (const elements::Entry &node : net.nodes())
    m_nodes.push_back(&node);
  const std::size_t count = net.edges().size();
  m_entries.reserve(count);
  m_edges.reserve(count);
  m_lengths.reserve(count);
  m_ones.assign(count, 1.0);
  Lengths lengths(*net.metaData());
  const auto endOf = [&net](const element &edge, PropertyKey end) {
    const PropertyText *name = edge.find(end);
    const elements::Entry *node = name == nullptr ? nullptr : net.nodes().findEntry(name->utf8());
    return node == nullptr ? NoIndex : node->index;
  };
  for (const elements::Entry &entry : net.edges()) {
    const element &edge = entry.value;
    m_entries.push_back(&entry);
    m_edges.push_back(
        {endOf(edge, Names::all().node1), endOf(edge, Names::all().node2), flowOf(edge), ElementState::isOutOfUse(edge)});
    m_lengths.push_back(lengths.of(edge));
  }
}

Index PathSearch::find(const QString &node) const {
  const elements::Entry *entry = m_net.nodes().findEntry(node.toStdString());
  return entry == nullptr || isDrive(entry->value) ? NoIndex : entry->index;
}

PathSearch::Graph PathSearch::graph(PathChoice choice) const {
  const bool isAlongFlow = choice.way == PathChoice::Way::AlongFlow;
  std::vector<Graph::Ends> ends(m_edges.size());
  for (std::size_t i = 0; i < m_edges.size(); ++i) {
    const Edge &edge = m_edges[i];
    if (edge.node1 == NoIndex || edge.node2 == NoIndex)
      continue;
    if (isAlongFlow ? edge.isClosed || edge.flow == 0 : edge.isClosed && !choice.passesClosed)
      continue;
    ends[i] = {edge.node1, edge.node2};
    if (isAlongFlow && edge.flow < 0)
      std::swap(ends[i].from, ends[i].to);
  }
  return Graph(m_nodes.size(), ends, isAlongFlow ? Graph::Ways::Forward : Graph::Ways::Both);
}

const std::vector<double> &PathSearch::costs(PathChoice choice) const {
  return choice.way == PathChoice::Way::FewestElements ? m_ones : m_lengths;
}

bool PathSearch::isJoined(Index from, Index to, PathChoice choice) const {
  return graph(choice).shortestWay(from, to, m_ones).has_value();
}

QString PathSearch::whyNot(Index from, Index to, PathChoice choice) const {
  using Way = PathChoice::Way;
  const QString a = m_nodes[from]->name();
  const QString b = m_nodes[to]->name();
  if (choice.way == Way::AlongFlow) {
    if (isJoined(to, from, choice))
      return tr("No gas flows from %1 to %2: it flows from %2 to %1.").arg(a, b);
    if (isJoined(from, to, {Way::Shortest, false}))
      return tr("No gas flows from %1 to %2. A way that is not along the flow joins them.").arg(a, b);
  }
  if (!choice.passesClosed && isJoined(from, to, {Way::Shortest, true}))
    return tr("No way leads from %1 to %2 but through what is closed or out of use.").arg(a, b);
  return tr("No way leads from %1 to %2.").arg(a, b);
}

void PathSearch::add(NetworkPath &path, const std::vector<Graph::Way> &ways) const {
  for (const Graph::Way &way : ways)
    path.steps.push_back({m_entries[way.edge], m_nodes[way.node], m_lengths[way.edge], m_edges[way.edge].node2 == way.node});
}

PathSearch::Found PathSearch::find(const QStringList &wayPoints, PathChoice choice) const {
  if (choice.way == PathChoice::Way::AlongFlow)
    choice.passesClosed = false;
  Found found;
  std::vector<Index> points;
  points.reserve(fromQt(wayPoints.size()));
  for (const QString &name : wayPoints) {
    const Index node = find(name);
    if (node == NoIndex)
      found.faults.append(tr("%1 is no node of this network.").arg(name));
    else if (points.empty() || points.back() != node)
      points.push_back(node);
  }
  if (points.size() < 2 || !found.faults.isEmpty())
    return found;
  const Graph ways = graph(choice);
  found.path.start = m_nodes[points.front()];
  for (std::size_t i = 1; i < points.size(); ++i) {
    if (const auto way = ways.shortestWay(points[i - 1], points[i], costs(choice)))
      add(found.path, *way);
    else
      found.faults.append(whyNot(points[i - 1], points[i], choice));
  }
  if (!found.faults.isEmpty())
    found.path = NetworkPath();
  return found;
}

QStringList PathSearch::inOrder(QStringList nodes) const {
  nodes.sort(Qt::CaseInsensitive);
  nodes.erase(std::remove_if(nodes.begin(), nodes.end(), [this](const QString &name) { return find(name) == NoIndex; }),
              nodes.end());
  if (nodes.size() < 2)
    return nodes;
  // Through what is closed only where nothing else joins them.
  Graph ways = graph({PathChoice::Way::Shortest, false});
  std::vector<double> lengths = ways.distances({find(nodes.first())}, m_lengths);
  if (std::any_of(nodes.begin(), nodes.end(), [&](const QString &name) { return lengths[find(name)] < 0.0; })) {
    ways = graph({PathChoice::Way::Shortest, true});
    lengths = ways.distances({find(nodes.first())}, m_lengths);
  }
  const auto isNearer = [&](const QString &a, const QString &b) {
    return lengths[find(a)] < lengths[find(b)];
  };
  const QString outermost = *std::max_element(nodes.begin(), nodes.end(), isNearer);
  lengths = ways.distances({find(outermost)}, m_lengths);
  std::stable_sort(nodes.begin(), nodes.end(), isNearer);
  const PathChoice flow{PathChoice::Way::AlongFlow, false};
  const Index first = find(nodes.first());
  const Index last = find(nodes.last());
  if (!isJoined(first, last, flow) && isJoined(last, first, flow))
    std::reverse(nodes.begin(), nodes.end());
  return nodes;
}
