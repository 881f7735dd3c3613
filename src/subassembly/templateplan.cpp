#include "templateplan.h"

#include <model/names.h>
#include <model/topology.h>

#include <QRegularExpression>

#include <algorithm>
#include <optional>

namespace {

/// Properties that name an element of the same network, besides "name".
const std::vector<PropertyKey> &references() {
  static const std::vector<PropertyKey> instance{
      Names::all().node1, Names::all().node2,  PropertyKey::intern("entry"), PropertyKey::intern("exit"),
      Names::all().drive, Names::all().driven, Names::all().gasNode};
  return instance;
}

std::size_t indexOf(const element &e, PropertyKey key) {
  return static_cast<std::size_t>(
      std::find_if(e.begin(), e.end(), [key](const Property &property) { return property.key == key; }) - e.begin());
}

} // namespace

TemplatePlan::TemplatePlan(const NetData &source) {
  static const QRegularExpression never(
      QStringLiteral("^icon$|^constraints$|^rotation$|^width$|^x$|^y$|^h$|^name$|^type$|^pins$|^variant$|^subassemblies$"),
      QRegularExpression::CaseInsensitiveOption);
  static const QString suffix = QStringLiteral(".default");
  const element &record = *source.assembledSubnets().find(std::string_view("SUB"));
  for (const Property &property : record) {
    const QString key = property.key.name();
    if (key.endsWith(suffix))
      m_defaults.push_back({property, PropertyKey::intern(key.chopped(suffix.size()))});
    else if (!never.match(key).hasMatch())
      m_defaults.push_back({property, PropertyKey()});
  }
  m_pinNames = Topology::listedByPosition(record, Names::all().pins);
  for (const QString &name : qAsConst(m_pinNames)) {
    const element *node = source.nodes().find(name);
    m_pins.push_back(node);
    m_pinPositions.push_back(node == nullptr ? QPointF() : source.position(*node));
  }
  for (const elements::Entry &entry : source.nodes()) {
    if (!m_pinNames.contains(entry.name(), Qt::CaseInsensitive))
      addPart(source, entry, true);
  }
  for (const elements::Entry &entry : source.edges())
    addPart(source, entry, false);
  for (Part &part : m_parts) {
    for (const PropertyKey key : references()) {
      const PropertyText *name = part.prototype.find(key);
      if (name == nullptr)
        continue;
      const auto other = std::find(m_partNames.begin(), m_partNames.end(), name->utf8());
      const int pin = m_pinNames.indexOf(name->toString());
      if (other != m_partNames.end())
        part.references.push_back({indexOf(part.prototype, key), static_cast<int>(other - m_partNames.begin())});
      else if (pin >= 0)
        part.references.push_back({indexOf(part.prototype, key), -1 - pin});
    }
  }
}

void TemplatePlan::giveDefaults(element &subnet) const {
  constexpr std::size_t FurtherProperties = 8; // what the assembling itself says of the subnet
  subnet.reserve(subnet.size() + 2 * m_defaults.size() + FurtherProperties);
  for (const Default &given : m_defaults) {
    subnet.set(given.property.key, given.property.value);
    if (!given.plain.isNull() && subnet.find(given.plain) == nullptr)
      subnet.set(given.plain, given.property.value);
  }
}

void TemplatePlan::addPart(const NetData &source, const elements::Entry &entry, bool isNode) {
  std::string own(entry.id.utf8());
  const bool isTwin = !isNode && source.nodes().find(own) != nullptr; // a node and an edge may have one name
  for (int i = 2; isTwin && source.element(own) != nullptr; ++i)
    own = std::string(entry.id.utf8()) + "_" + std::to_string(i);
  Part part;
  part.prototype = entry.value;
  part.isNode = isNode;
  part.at = source.position(entry.value);
  part.prototype.set(Names::all().refEle, entry.id);
  if (isNode) {
    part.prototype.set(Names::all().x, PropertyText());
    part.prototype.set(Names::all().y, PropertyText());
    part.xIndex = indexOf(part.prototype, Names::all().x);
    part.yIndex = indexOf(part.prototype, Names::all().y);
  }
  part.nameIndex = indexOf(part.prototype, Names::all().name);
  m_parts.push_back(std::move(part));
  m_partNames.push_back(own);
}

std::size_t TemplatePlan::nodeCount() const {
  return static_cast<std::size_t>(
      std::count_if(m_parts.begin(), m_parts.end(), [](const Part &part) { return part.isNode; }));
}

std::vector<PropertyText> TemplatePlan::names(const NetData &net, const std::string &subnet, bool areFree) const {
  std::vector<PropertyText> names;
  names.reserve(m_partNames.size());
  std::string name;
  std::optional<elements> own;
  if (!areFree)
    own.emplace(QString());
  for (const std::string &part : m_partNames) {
    name.assign(subnet).append("_").append(part);
    for (int i = 2; own && (net.element(name) != nullptr || own->find(name) != nullptr); ++i)
      name.assign(subnet).append("_").append(part).append("_").append(std::to_string(i));
    names.emplace_back(std::string_view(name));
    if (own)
      own->insert(names.back(), element());
  }
  return names;
}

void TemplatePlan::create(NetData &net, const std::vector<PropertyText> &names, const std::vector<PropertyText> &pins,
                          const TemplatePlacement &placement) const {
  for (std::size_t i = 0; i < m_parts.size(); ++i) {
    const Part &part = m_parts[i];
    element made = part.prototype;
    made.replace(part.nameIndex, names[i]);
    for (const Reference &reference : part.references)
      made.replace(reference.index, reference.part >= 0 ? names[static_cast<std::size_t>(reference.part)]
                                                        : pins[static_cast<std::size_t>(-1 - reference.part)]);
    if (part.isNode) {
      const QPointF at = placement.map(part.at);
      made.replace(part.xIndex, PropertyText::ofNumber(at.x()));
      made.replace(part.yIndex, PropertyText::ofNumber(at.y()));
    }
    (part.isNode ? net.nodes() : net.edges()).tryInsert(names[i], std::move(made));
  }
}
