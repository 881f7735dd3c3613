#include <model/elementstate.h>
#include <model/names.h>
#include <model/netmetadata.h>
#include <model/propertycolumns.h>
#include <model/units.h>

#include <algorithm>
#include <rules/networkfacts.h>

namespace {

/// Made as the program starts, as all keys that threads ask for.
struct Keys {
  PropertyKey kind = PropertyKey::intern("kind");
  PropertyKey height = PropertyKey::intern("height");
  PropertyKey qset = PropertyKey::intern("qset");
  PropertyKey mset = PropertyKey::intern("mset");
  PropertyKey powset = PropertyKey::intern("powset");
  PropertyKey pset = PropertyKey::intern("pset");
  PropertyKey pinset = PropertyKey::intern("pinset");
  PropertyKey poutset = PropertyKey::intern("poutset");
  PropertyKey pmin = PropertyKey::intern("pmin");
  PropertyKey pmax = PropertyKey::intern("pmax");
  PropertyKey qmin = PropertyKey::intern("qmin");
  PropertyKey qmax = PropertyKey::intern("qmax");
  PropertyKey contractMin = PropertyKey::intern("qcontractmin");
  PropertyKey contractMax = PropertyKey::intern("qcontractmax");
  PropertyKey capacity = PropertyKey::intern("qcap");
  PropertyKey length = PropertyKey::intern("length");
  PropertyKey diameter = PropertyKey::intern("diameter");
  PropertyKey q = PropertyKey::intern("q");
  PropertyKey m = PropertyKey::intern("m");
  PropertyKey fuel = PropertyKey::intern("fuel");
};
const Keys &keys() {
  static const Keys all;
  return all;
}
const Keys &KeysMadeAtStart = keys();

double number(const PropertyText *text) {
  const double value = NetData::number(text);
  return value == NetData::NoValue ? NetworkFacts::Unknown : value;
}

double positive(const PropertyText *text) {
  const double value = number(text);
  return value > 0.0 ? value : NetworkFacts::Unknown;
}

bool is(const PropertyText *text, std::string_view word) {
  return text != nullptr && text->utf8() == word;
}

NetworkFacts::Kind kindOf(const PropertyText *kind) {
  if (is(kind, "source"))
    return NetworkFacts::Kind::Source;
  return is(kind, "sink") ? NetworkFacts::Kind::Sink : NetworkFacts::Kind::Inner;
}

/// Some files give the bounds of a source as they give those of a sink; then they are magnitudes, as a source takes nothing.
void giveSign(NetworkFacts::Kind kind, NetworkFacts::Range &flows) {
  const bool areMagnitudes = flows.lowest >= 0.0 && flows.highest > 0.0;
  if (kind == NetworkFacts::Kind::Source && areMagnitudes)
    flows = {-flows.highest, -flows.lowest};
}

std::vector<const element *> elementsOf(const std::vector<const elements::Entry *> &entries) {
  std::vector<const element *> found;
  found.reserve(entries.size());
  for (const elements::Entry *entry : entries)
    found.push_back(&entry->value);
  return found;
}

/// What one of the unit is in that of "qset" for a gas of norm density and calorific value 1; 0 where that is none.
double factorToFlow(const NetData &net, const QString &property) {
  const NetMetaData::Attribute *from = net.metaData()->attribute(QStringLiteral("n"), property);
  const NetMetaData::Attribute *to = net.metaData()->attribute(QStringLiteral("n"), QStringLiteral("qset"));
  Units::Gas gas;
  gas.normDensity = 1.0;
  gas.calorificValue = 1.0;
  if (from == nullptr || to == nullptr)
    return 0.0;
  return Units::convert(1.0, from->storedUnit, to->storedUnit, gas).value_or(0.0);
}

} // namespace

NetworkFacts::NetworkFacts(const NetData &net) {
  readNodes(net);
  convertFlows(net);
  readEdges(net);
  readDrives(net);
  sumFlows();
}

bool NetworkFacts::isNominated() const {
  return std::any_of(m_nodes.begin(), m_nodes.end(),
                     [](const Node &node) { return isKnown(node.flow) || node.holdsPressure(); });
}

Index NetworkFacts::nodeNamed(const NetData &net, const PropertyText *name) const {
  const elements::Entry *entry = name == nullptr ? nullptr : net.nodes().findEntry(name->utf8());
  return entry == nullptr ? NoIndex : m_positions[entry->index];
}

void NetworkFacts::readNodes(const NetData &net) {
  std::vector<const elements::Entry *> entries;
  entries.reserve(net.nodes().size());
  m_positions.assign(net.nodes().size(), NoIndex);
  for (const elements::Entry &entry : net.nodes()) {
    if (is(entry.value.find(Names::all().type), "d")) {
      m_driveEntries.push_back(&entry);
      continue;
    }
    m_positions[entry.index] = toIndex(entries.size());
    entries.push_back(&entry);
  }
  m_nodes.resize(entries.size());
  m_otherFlows.resize(entries.size());
  const Keys &k = keys();
  const Names &n = Names::all();
  const PropertyColumns columns({n.x, n.y, k.kind, n.state, n.active, k.height, k.qset, k.mset, k.powset, k.pset, k.pmin,
                                 k.pmax, k.qmin, k.qmax, k.contractMin, k.contractMax, k.capacity, n.normDensity,
                                 n.calorificValue});
  columns.forEach(elementsOf(entries), [&](std::size_t i, const PropertyColumns &c) {
    std::size_t next = 0;
    const auto take = [&] {
      return c[next++];
    };
    Node &node = m_nodes[i];
    OtherFlow &other = m_otherFlows[i];
    node.entry = entries[i];
    node.x = number(take());
    node.y = number(take());
    node.kind = kindOf(take());
    const PropertyText *state = take();
    node.isInUse = !ElementState::isOutOfUse(state, take());
    node.height = number(take());
    node.flow = number(take());
    other.mass = number(take());
    other.power = number(take());
    node.pressure = positive(take());
    for (Range *range : {&node.pressures, &node.flows, &node.contracted}) {
      range->lowest = number(take());
      range->highest = number(take());
    }
    node.capacity = positive(take());
    other.normDensity = positive(take());
    other.calorificValue = positive(take());
    giveSign(node.kind, node.flows);
    giveSign(node.kind, node.contracted);
  });
}

void NetworkFacts::convertFlows(const NetData &net) {
  const auto mean = [this](double OtherFlow::*value) {
    double sum = 0.0;
    double count = 0.0;
    for (const OtherFlow &other : m_otherFlows) {
      if (isKnown(other.*value)) {
        sum += other.*value;
        count += 1.0;
      }
    }
    return count > 0.0 ? sum / count : Unknown;
  };
  const double usualDensity = mean(&OtherFlow::normDensity);
  const double usualValue = mean(&OtherFlow::calorificValue);
  const double ofMass = factorToFlow(net, QStringLiteral("mset"));
  const double ofPower = factorToFlow(net, QStringLiteral("powset"));
  for (Index i = 0; i < m_nodes.size(); ++i) {
    const OtherFlow &other = m_otherFlows[i];
    Node &node = m_nodes[i];
    const double density = isKnown(other.normDensity) ? other.normDensity : usualDensity;
    const double value = isKnown(other.calorificValue) ? other.calorificValue : usualValue;
    if (!isKnown(node.flow) && isKnown(other.mass) && ofMass > 0.0)
      node.flow = other.mass * ofMass / density;
    if (!isKnown(node.flow) && isKnown(other.power) && ofPower > 0.0)
      node.flow = other.power * ofPower / value;
  }
  m_otherFlows = {};
}

void NetworkFacts::readEdges(const NetData &net) {
  std::vector<const elements::Entry *> entries;
  entries.reserve(net.edges().size());
  for (const elements::Entry &entry : net.edges())
    entries.push_back(&entry);
  m_edges.resize(entries.size());
  const Keys &k = keys();
  const Names &n = Names::all();
  const PropertyColumns columns(
      {n.node1, n.node2, n.type, n.state, n.active, k.length, k.diameter, k.q, k.qmin, k.qmax, k.pset, k.pinset, k.poutset});
  columns.forEach(elementsOf(entries), [&](std::size_t i, const PropertyColumns &c) {
    std::size_t next = 0;
    const auto take = [&] {
      return c[next++];
    };
    Edge &edge = m_edges[i];
    edge.entry = entries[i];
    edge.from = nodeNamed(net, take());
    edge.to = nodeNamed(net, take());
    const PropertyText *type = take();
    edge.type = type == nullptr || type->utf8().empty() ? '\0' : type->utf8().front();
    const PropertyText *state = take();
    edge.isInUse = !ElementState::isOutOfUse(state, take()) && edge.from != NoIndex && edge.to != NoIndex;
    edge.length = number(take());
    edge.diameter = number(take());
    edge.flow = number(take());
    edge.flows.lowest = number(take());
    edge.flows.highest = number(take());
    for (int j = 0; j < 3; ++j)
      edge.holdsPressure = isKnown(positive(take())) || edge.holdsPressure;
  });
}

void NetworkFacts::readDrives(const NetData &net) {
  for (const elements::Entry *entry : m_driveEntries) {
    const double fuel = positive(entry->value.find(keys().fuel));
    if (!isKnown(fuel))
      continue;
    const PropertyText *gasNode = entry->value.find(Names::all().gasNode);
    if (gasNode == nullptr) {
      if (const element *compressor = net.edges().find(entry->value.value(Names::all().driven)))
        gasNode = compressor->find(Names::all().gasNode);
    }
    m_drives.push_back({entry, nodeNamed(net, gasNode), fuel});
  }
  m_driveEntries = {};
}

/// Whether a stated flow counts the fuel, the results tell where they can: what flows to the node is then nearer to it.
void NetworkFacts::sumFlows() {
  for (const Edge &edge : m_edges) {
    if (edge.from == NoIndex || edge.to == NoIndex || (!edge.isInUse && !isKnown(edge.flow)))
      continue;
    m_nodes[edge.from].inflow -= edge.flow;
    m_nodes[edge.to].inflow += edge.flow;
    m_nodes[edge.from].through += std::abs(edge.flow);
    m_nodes[edge.to].through += std::abs(edge.flow);
  }
  for (const Drive &drive : m_drives) {
    if (drive.node != NoIndex)
      m_nodes[drive.node].fuel += drive.fuel;
  }
  for (Node &node : m_nodes) {
    constexpr double Rounding = 1e-6; // of texts
    if (node.fuel <= 0.0)
      continue;
    const double stated = node.statedFlow();
    const bool mayCount = stated >= node.fuel * (1.0 - Rounding);
    const bool counts =
        !isKnown(node.inflow) || std::abs(node.inflow - stated) <= std::abs(node.inflow - stated - node.fuel);
    node.fuelBeside = mayCount && counts ? 0.0 : node.fuel;
  }
}
