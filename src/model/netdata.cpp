#include "elementexceptions.h"

#include <base/utf8view.h>
#include <model/names.h>
#include <model/netdata.h>
#include <model/netmetadata.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace {

struct Keys {
  PropertyKey pset = PropertyKey::intern("pset");
  PropertyKey powset = PropertyKey::intern("powset");
  PropertyKey qset = PropertyKey::intern("qset");
  PropertyKey mset = PropertyKey::intern("mset");
};

const Keys &keys() {
  static const Keys instance;
  return instance;
}

bool isSelected(int kind, int mask) {
  return kind == 0 ? mask == 0 : (mask & kind) == kind;
}

/// A text with "(" is a time-dependent or formula value and counts as present.
bool isPositive(const PropertyText &text) {
  return text.utf8().find('(') != std::string_view::npos || text.toDouble().value_or(0.0) > 0.0;
}

} // namespace

NetData::NetData()
    : m_nodes(QStringLiteral("nodes"))
    , m_edges(QStringLiteral("edges"))
    , m_tBoxes(QStringLiteral("tBoxes"))
    , m_assembledSubnets(QStringLiteral("assembledSubnets")) {
  buildTypeMap();
}

NetData::NetData(const NetData &other)
    : m_nodes(other.m_nodes)
    , m_edges(other.m_edges)
    , m_tBoxes(other.m_tBoxes)
    , m_assembledSubnets(other.m_assembledSubnets)
    , m_selection(other.m_selection)
    , m_metaData(other.m_metaData) {
  buildTypeMap();
}

NetData::NetData(NetData &&other) noexcept
    : m_nodes(std::move(other.m_nodes))
    , m_edges(std::move(other.m_edges))
    , m_tBoxes(std::move(other.m_tBoxes))
    , m_assembledSubnets(std::move(other.m_assembledSubnets))
    , m_selection(std::move(other.m_selection))
    , m_metaData(std::move(other.m_metaData)) {
  buildTypeMap();
}

NetData &NetData::operator=(const NetData &other) {
  if (this != &other)
    *this = NetData(other);
  return *this;
}

// The type map points at the collections of its own object and stays; only their contents move.
NetData &NetData::operator=(NetData &&other) noexcept {
  m_nodes = std::move(other.m_nodes);
  m_edges = std::move(other.m_edges);
  m_tBoxes = std::move(other.m_tBoxes);
  m_assembledSubnets = std::move(other.m_assembledSubnets);
  m_selection = std::move(other.m_selection);
  m_metaData = std::move(other.m_metaData);
  return *this;
}

NetData::~NetData() = default;

void NetData::buildTypeMap() {
  m_typeMap = {{Node, &m_nodes}, {Edge, &m_edges}, {AssembledSubnet, &m_assembledSubnets}, {TextBox, &m_tBoxes}};
  m_types.clear();
  for (const auto &entry : m_typeMap)
    m_types.append(entry.first);
}

NetData::EleType NetData::addElement(::element added, const Told &told) {
  const PropertyText *name = added.find(Names::all().name);
  const PropertyText *type = added.find(Names::all().type);
  if (name == nullptr || type == nullptr)
    return Unknown;
  const QString typeName = type->toString();
  const EleType kind = metaData()->kindOf(typeName);
  const auto collection = m_typeMap.find(kind);
  if (collection == m_typeMap.end()) {
    tell(told, Finding::Severity::Warning,
         QStringLiteral("NetData::addElement failed for %1 with unknown type %2!").arg(name->toString(), typeName));
    return kind;
  }
  const PropertyText id = *name;
  elements &target = *collection->second;
  // Asked rather than caught: the exception would print both elements for every duplicate of a large file.
  if (target.tryInsert(id, std::move(added)) == nullptr) {
    tell(told, Finding::Severity::Warning, QStringLiteral("Overwriting existing element ") + id.toString());
    target.erase(id.toString());
    target.tryInsert(id, std::move(added)); // NOLINT(bugprone-use-after-move): untouched so far
  }
  return kind;
}

std::pair<NetData::EleType, ::element *> NetData::findElement(const QString &name, int mask) const {
  const QByteArray utf8 = name.toUtf8();
  const std::string_view id = viewOf(utf8);
  for (const EleType kind : m_types) {
    if (!isSelected(kind, mask))
      continue;
    const auto collection = m_typeMap.find(kind);
    if (collection == m_typeMap.end())
      throw std::out_of_range("invalid map<K, T> key");
    if (::element *found = collection->second->find(id))
      return {kind, found};
  }
  return {Unknown, nullptr};
}

::element *NetData::element(const QString &name) const {
  const QByteArray utf8 = name.toUtf8();
  return element(viewOf(utf8));
}

::element *NetData::element(std::string_view utf8) const {
  for (const elements *collection : {&m_nodes, &m_edges, &m_assembledSubnets, &m_tBoxes}) {
    if (::element *found = collection->find(utf8))
      return found;
  }
  return nullptr;
}

std::vector<PropertyKey> NetData::propertyKeys() const {
  std::vector<PropertyKey> keys;
  std::vector<bool> isKnown; // by spelling, so that most properties cost no look-up
  for (const elements *collection : {&m_nodes, &m_edges, &m_assembledSubnets, &m_tBoxes}) {
    for (const elements::Entry &entry : *collection) {
      for (const Property &property : entry.value) {
        const std::size_t index = property.key.index();
        if (index >= isKnown.size())
          isKnown.resize(index + 1);
        if (!isKnown[index])
          keys.push_back(property.key);
        isKnown[index] = true;
      }
    }
  }
  std::sort(keys.begin(), keys.end());
  return keys;
}

QList<elements *> NetData::collections(int mask) {
  QList<elements *> selected;
  for (const EleType kind : m_types) {
    if (isSelected(kind, mask))
      selected.append(m_typeMap.at(kind));
  }
  return selected;
}

void NetData::forEach(int mask, const std::function<void(::element &)> &visit) {
  for (elements *collection : collections(mask)) {
    for (const elements::Entry &entry : *collection)
      visit(entry.value);
  }
}

bool NetData::isEmpty() const {
  return m_nodes.isEmpty() && m_edges.isEmpty() && m_tBoxes.isEmpty() && m_assembledSubnets.isEmpty();
}

void NetData::clear() {
  for (const auto &entry : m_typeMap)
    entry.second->clear();
  m_selection.clear();
  m_metaData.reset();
}

const NetMetaData *NetData::metaData() const {
  return m_metaData ? m_metaData.get() : &NetMetaData::instance();
}

double NetData::number(const PropertyText *text, bool absolute) {
  if (text == nullptr)
    return NoValue;
  const std::optional<double> parsed = text->toDouble();
  if (!parsed || !(*parsed > -1e20 && *parsed < 1e20))
    return NoValue;
  return absolute ? std::abs(*parsed) : *parsed;
}

double NetData::value(const ::element &element, PropertyKey property, bool absolute) const {
  return number(element.find(property), absolute);
}

double NetData::edgeValue(const ::element &edge, PropertyKey property, bool absolute) const {
  if (edge.find(property) != nullptr)
    return value(edge, property, absolute);
  const double first = value(m_nodes.at(edge.at(Names::all().node1.name()).toString()), property, absolute);
  const double second = value(m_nodes.at(edge.at(Names::all().node2.name()).toString()), property, absolute);
  return first == NoValue || second == NoValue ? NoValue : (first + second) * 0.5;
}

QPointF NetData::position(const ::element &element) const {
  const double x = value(element, Names::all().x);
  const double y = value(element, Names::all().y);
  return {x == NoValue ? 0.0 : x, y == NoValue ? 0.0 : y};
}

std::pair<double, double> NetData::range(const QString &property, bool absolute) const {
  const bool ofNodes = metaData()->nodeFunctions().contains(property);
  const PropertyKey key = PropertyKey::find(property);
  std::pair<double, double> range(1e30, -1e30);
  for (const elements::Entry &entry : ofNodes ? m_nodes : m_edges) {
    const double number = ofNodes ? value(entry.value, key, absolute) : edgeValue(entry.value, key, absolute);
    if (number <= -1e20)
      continue;
    range.first = std::min(range.first, number);
    range.second = std::max(range.second, number);
  }
  return range;
}

QString NetData::nodeCategory(const ::element &node) const {
  const PropertyText *pressure = node.find(keys().pset);
  if (pressure != nullptr && isPositive(*pressure))
    return QStringLiteral("pset");
  for (const PropertyKey key : {keys().powset, keys().qset, keys().mset}) {
    const PropertyText *flow = node.find(key);
    if (flow == nullptr)
      continue;
    if (flow->toDouble().value_or(0.0) < 0.0)
      return QStringLiteral("negqset");
    if (isPositive(*flow))
      return QStringLiteral("demand");
    break;
  }
  return node.value(Names::all().type);
}
