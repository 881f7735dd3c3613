#include <algorithm>
#include <rules/balance.h>

Balance::Balance(std::shared_ptr<const NetworkFacts> facts, Grouping grouping)
    : m_facts(std::move(facts))
    , m_grouping(std::move(grouping)) {
  m_groups.reserve(static_cast<std::size_t>(m_grouping.names.size()));
  for (const QString &name : std::as_const(m_grouping.names))
    m_groups.push_back({name, Sums()});
  addNodes();
  addExchange();
  leaveOutEmpty();
}

void Balance::addNodes() {
  const std::vector<NetworkFacts::Node> &nodes = m_facts->nodes();
  for (Index i = 0; i < nodes.size(); ++i) {
    const NetworkFacts::Node &node = nodes[i];
    for (Sums *sums : {&m_total, &m_groups[m_grouping.of[i]].sums}) {
      ++sums->nodes;
      if (!node.isInUse)
        continue;
      const double leaving = node.statedFlow() - node.fuelWithin();
      sums->entries += std::max(-leaving, 0.0);
      sums->exits += std::max(leaving, 0.0);
      sums->fuel += node.fuel;
      sums->entryCount += isIn(node, Figure::Entries) ? 1U : 0U;
      sums->exitCount += isIn(node, Figure::Exits) ? 1U : 0U;
      sums->fuelCount += isIn(node, Figure::Fuel) ? 1U : 0U;
      if (!node.isFlowUnknown())
        continue;
      ++sums->unknownCount;
      sums->unknown += NetworkFacts::isKnown(node.inflow) ? node.fuelBeside - node.inflow : 0.0;
    }
  }
}

/// By edges whose ends are in different groups.
void Balance::addExchange() {
  for (const NetworkFacts::Edge &edge : m_facts->edges()) {
    if (edge.from == NoIndex || edge.to == NoIndex || (!edge.isInUse && !NetworkFacts::isKnown(edge.flow)))
      continue;
    const Index from = m_grouping.of[edge.from];
    const Index to = m_grouping.of[edge.to];
    if (from == to)
      continue;
    m_groups[from].sums.fromOthers -= edge.flow;
    m_groups[to].sums.fromOthers += edge.flow;
  }
}

void Balance::leaveOutEmpty() {
  std::vector<Index> kept(m_groups.size(), NoIndex);
  Index next = 0;
  for (Index i = 0; i < m_groups.size(); ++i) {
    if (m_groups[i].sums.nodes > 0)
      kept[i] = next++;
  }
  for (Index &group : m_grouping.of)
    group = kept[group];
  m_groups.erase(std::remove_if(m_groups.begin(), m_groups.end(), [](const Group &group) { return group.sums.nodes == 0; }),
                 m_groups.end());
}

bool Balance::isIn(const NetworkFacts::Node &node, Figure figure) const {
  constexpr double Nothing = 1e-9;
  const double leaving = node.statedFlow() - node.fuelWithin();
  switch (figure) {
  case Figure::Entries:
    return node.isInUse && leaving < -Nothing;
  case Figure::Exits:
    return node.isInUse && leaving > Nothing;
  case Figure::Fuel:
    return node.isInUse && node.fuel > 0.0;
  case Figure::Unknown:
    return node.isInUse && node.isFlowUnknown();
  case Figure::Imbalance:
    return isIn(node, Figure::Entries) || isIn(node, Figure::Exits) || isIn(node, Figure::Fuel) ||
           isIn(node, Figure::Unknown);
  default:
    return true;
  }
}

QStringList Balance::elements(Index group, Figure figure) const {
  if (figure == Figure::FromOthers)
    return borders(group);
  QStringList names;
  const std::vector<NetworkFacts::Node> &nodes = m_facts->nodes();
  for (Index i = 0; i < nodes.size(); ++i) {
    if ((group == NoIndex || m_grouping.of[i] == group) && isIn(nodes[i], figure))
      names.append(nodes[i].entry->name());
  }
  if (figure != Figure::Fuel)
    return names;
  for (const NetworkFacts::Drive &drive : m_facts->drives()) {
    if (drive.node != NoIndex && (group == NoIndex || m_grouping.of[drive.node] == group))
      names.append(drive.entry->name());
  }
  return names;
}

QStringList Balance::borders(Index group) const {
  QStringList names;
  for (const NetworkFacts::Edge &edge : m_facts->edges()) {
    if (!edge.isInUse)
      continue;
    const Index from = m_grouping.of[edge.from];
    const Index to = m_grouping.of[edge.to];
    if (from != to && (group == NoIndex || group == from || group == to))
      names.append(edge.entry->name());
  }
  return names;
}
