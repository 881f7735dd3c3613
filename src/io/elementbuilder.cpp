#include "elementbuilder.h"

#include <model/elementtypes.h>
#include <model/names.h>

#include <algorithm>
#include <numeric>

namespace {

/// Without these an element cannot be placed or connected.
bool isAlwaysIncluded(const QString &name) {
  static const QRegularExpression pattern(QStringLiteral("^(name|type|node1|node2|x|y)$"),
                                          QRegularExpression::CaseInsensitiveOption);
  return pattern.match(name).hasMatch();
}

} // namespace

ElementBuilder::ElementBuilder(const QString &includeTypes, const QString &includeProperties, ReadReport &report)
    : m_report(report)
    , m_includeTypes(pattern(includeTypes, ReadReport::tr("types")))
    , m_includeProperties(pattern(includeProperties, ReadReport::tr("properties"))) {}

QRegularExpression ElementBuilder::pattern(const QString &text, const QString &what) {
  QRegularExpression expression(text, QRegularExpression::CaseInsensitiveOption);
  if (expression.isValid())
    return expression;
  m_report.add(ReadReport::Kind::IncludeList, 0,
               ReadReport::tr("The include list for %1 is no regular expression, all are read: %2")
                   .arg(what, expression.errorString()));
  return QRegularExpression();
}

const ElementBuilder::Key &ElementBuilder::key(std::size_t position, std::string_view raw) {
  if (position >= m_keys.size())
    m_keys.resize(position + 1);
  Key &cached = m_keys[position];
  if (cached.key.isNull() || cached.raw != raw) {
    cached.raw = raw;
    cached.key = PropertyKey::intern(raw);
    const QString name = decoded(raw);
    cached.included =
        m_includeProperties.pattern().isEmpty() || isAlwaysIncluded(name) || m_includeProperties.match(name).hasMatch();
  }
  return cached;
}

const ElementType *ElementBuilder::knownType(std::string_view word) {
  if (m_lastType == nullptr || m_lastWord != word) {
    m_lastWord = word;
    m_lastType = ElementTypes::byWord(decoded(word).trimmed());
  }
  return m_lastType;
}

bool ElementBuilder::isTypeIncluded(const QString &word, const QString &code) const {
  return m_includeTypes.pattern().isEmpty() || m_includeTypes.match(word).hasMatch() ||
         m_includeTypes.match(code).hasMatch();
}

std::vector<Property> &ElementBuilder::properties(ElementRecord &parsed, int line) {
  m_properties.clear();
  for (std::size_t i = 0; i < parsed.values.size(); ++i) {
    RecordValue &value = parsed.values[i];
    const Key &known = key(i, value.key);
    if (known.included && value.key != TypeMember)
      m_properties.push_back({known.key, std::move(value.text)});
  }
  m_report.values(parsed, line);
  return m_properties;
}

void ElementBuilder::sortAsBefore(std::vector<Property> &list) {
  const auto isSorted = [&] {
    for (std::size_t i = 1; i < m_order.size(); ++i) {
      if (!(list[m_order[i - 1]].key < list[m_order[i]].key))
        return false;
    }
    return true;
  };
  if (m_order.size() != list.size() || !isSorted()) {
    m_order.resize(list.size());
    std::iota(m_order.begin(), m_order.end(), std::size_t(0));
    std::stable_sort(m_order.begin(), m_order.end(),
                     [&](std::size_t a, std::size_t b) { return list[a].key < list[b].key; });
  }
  m_sorted.clear();
  for (const std::size_t position : m_order)
    m_sorted.push_back(std::move(list[position]));
  list.swap(m_sorted);
}

bool ElementBuilder::buildElement(ElementRecord &parsed, int line, element &built) {
  std::string_view word;
  for (const RecordValue &value : parsed.values) {
    if (value.key == TypeMember)
      word = value.text.utf8();
  }
  const ElementType *type = knownType(word);
  if (type == nullptr) {
    m_report.unknownType(decoded(word).trimmed(), decoded(parsed.name), line);
    return false;
  }
  if (!isTypeIncluded(type->word, type->code))
    return false;
  std::vector<Property> &list = properties(parsed, line);
  for (const Property &property : list) {
    if (property.key == Names::all().name && property.value.utf8() != parsed.name)
      m_report.add(ReadReport::Kind::OtherName, line,
                   ReadReport::tr("Element %1 has a property name of its own, %2; it is left out")
                       .arg(decoded(parsed.name), property.value.toString()),
                   QString(), decoded(parsed.name));
  }
  list.push_back({Names::all().name, PropertyText(parsed.name)}); // the last of equal names wins
  list.push_back({Names::all().type, PropertyText(type->code)});
  std::vector<PropertyKey> duplicates;
  sortAsBefore(list);
  built = element::fromProperties(list, &duplicates);
  for (const PropertyKey duplicate : duplicates) {
    if (duplicate != Names::all().name && duplicate != Names::all().type)
      m_report.add(ReadReport::Kind::PropertyGivenTwice, line,
                   ReadReport::tr("Property %1 of element %2 is given twice; the last value counts")
                       .arg(duplicate.name(), decoded(parsed.name)),
                   QString(), decoded(parsed.name));
  }
  return true;
}
