#include "elementtable/elementcolumn.h"

#include "elementtable/elementlist.h"
#include "shared/naturalorder.h"
#include "shared/numberdelegate.h"

#include <model/elementtypes.h>
#include <model/names.h>
#include <model/netmetadata.h>
#include <model/propertycolumns.h>
#include <model/titles.h>
#include <tools/displayvalue.h>

#include <QHash>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <numeric>

namespace {

constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double NoValueFrom = 1e20; ///< absent bounds and values are larger, either way

/// Of the text itself, finer than a double: 283.15 K are 10 degrees and no trace beside.
double converted(const PropertyText &text, double number, const Units::Linear &line) {
  const std::string_view digits = text.utf8();
  long double fine = static_cast<long double>(number);
  std::from_chars(digits.data(), digits.data() + digits.size(), fine);
  return static_cast<double>(line.factor * fine + line.offset);
}

} // namespace

ElementColumn::ElementColumn(PropertyKey key, const ElementList &list, DisplayValue &display, const NetMetaData &metaData)
    : m_key(key)
    , m_list(list)
    , m_holdsTexts(NumberDelegate::isOfTexts(key.name())) {
  findUnit(display);
  for (const QString &type : list.types()) {
    const NetMetaData::Attribute *attribute = metaData.attribute(type, key.name());
    if (attribute == nullptr || !m_explanation.isEmpty())
      continue;
    m_explanation = Titles::of(*attribute);
    if (!attribute->description.isEmpty())
      m_explanation += QStringLiteral(": ") + Titles::description(*attribute);
  }
}

/// Of all types that have a unit the one of most elements says it; the others are brought into it where they fit.
void ElementColumn::findUnit(DisplayValue &display) {
  const QStringList &types = m_list.types();
  std::vector<std::size_t> counts(fromQt(types.size()));
  for (std::size_t row = 0; row < m_list.size(); ++row)
    ++counts[m_list.type(toIndex(row))];
  std::size_t most = 0;
  for (std::size_t type = 0; type < counts.size(); ++type) {
    const QString unit = display.unit(types.at(toQt(type)), m_key);
    if (unit.isEmpty() || counts[type] <= most)
      continue;
    most = counts[type];
    m_unit = unit;
  }
  m_conversions.resize(counts.size());
  for (std::size_t type = 0; type < counts.size(); ++type) {
    std::optional<Units::Linear> line = display.conversion(types.at(toQt(type)), m_key);
    const QString unit = display.unit(types.at(toQt(type)), m_key);
    if (!unit.isEmpty() && unit != m_unit) {
      if (const auto further = Units::conversion(unit, m_unit)) {
        const Units::Linear first = line.value_or(Units::Linear());
        line = Units::Linear{further->factor * first.factor, further->factor * first.offset + further->offset};
      }
    }
    m_conversions[type] = line;
  }
}

QString ElementColumn::title() const {
  return m_unit.isEmpty() ? m_key.name() : QStringLiteral("%1 [%2]").arg(m_key.name(), Units::written(m_unit));
}

/// In the unit of the column; infinite for an absent value.
std::optional<double> ElementColumn::number(const PropertyText &text, std::size_t type) const {
  std::optional<double> number = m_holdsTexts ? std::nullopt : text.toDouble();
  if (!number || std::isnan(*number))
    return std::nullopt;
  if (std::abs(*number) >= NoValueFrom)
    return std::numeric_limits<double>::infinity();
  const std::optional<Units::Linear> &line = m_conversions[type];
  return line ? converted(text, *number, *line) : *number;
}

QString ElementColumn::text(Index row) const {
  const PropertyText *text = m_list.at(row).find(m_key);
  if (text == nullptr)
    return QString();
  if (m_key == Names::all().type) {
    const ElementType *type = ElementTypes::byCode(text->toString());
    return type == nullptr ? text->toString() : Titles::of(*type);
  }
  const std::size_t type = m_list.type(row);
  const std::optional<double> value = number(*text, type);
  if (value && std::isinf(*value))
    return QString();
  return value && m_conversions[type] ? PropertyText::shortest(*value).toString() : text->toString();
}

const std::vector<double> &ElementColumn::numbers() const {
  if (m_numbers.size() == m_list.size())
    return m_numbers;
  m_numbers.assign(m_list.size(), NoNumber);
  if (m_holdsTexts)
    return m_numbers;
  PropertyColumns({m_key}).forEach(m_list.sources(), [&](std::size_t row, const PropertyColumns &found) {
    const std::optional<double> value = found[0] == nullptr ? std::nullopt : number(*found[0], m_list.type(toIndex(row)));
    if (value && !std::isinf(*value))
      m_numbers[row] = *value;
  });
  m_numberCount = static_cast<std::size_t>(
      std::count_if(m_numbers.begin(), m_numbers.end(), [](double number) { return !std::isnan(number); }));
  return m_numbers;
}

std::size_t ElementColumn::numberCount() const {
  numbers();
  return m_numberCount;
}

/// Texts that stand in many rows are compared once.
void ElementColumn::rankTexts() const {
  m_ranks.assign(m_list.size(), NoIndex);
  QHash<QString, Index> known;
  std::vector<QCollatorSortKey> keys;
  for (std::size_t row = 0; row < m_list.size(); ++row) {
    const QString shown = std::isnan(m_numbers[row]) ? text(toIndex(row)) : QString();
    if (shown.isEmpty())
      continue;
    const auto entry = known.constFind(shown);
    if (entry != known.constEnd()) {
      m_ranks[row] = *entry;
      continue;
    }
    m_ranks[row] = toIndex(keys.size());
    known.insert(shown, m_ranks[row]);
    keys.push_back(NaturalOrder::key(shown));
  }
  std::vector<Index> order(keys.size());
  std::iota(order.begin(), order.end(), 0);
  std::sort(order.begin(), order.end(), [&keys](Index a, Index b) { return keys[a].compare(keys[b]) < 0; });
  std::vector<Index> rankOf(keys.size());
  for (std::size_t i = 0; i < order.size(); ++i) {
    const bool isEqual = i > 0 && keys[order[i]].compare(keys[order[i - 1]]) == 0;
    rankOf[order[i]] = isEqual ? rankOf[order[i - 1]] : toIndex(i);
  }
  for (Index &rank : m_ranks)
    rank = rank == NoIndex ? NoIndex : rankOf[rank];
}

void ElementColumn::prepareOrder() const {
  numbers();
  if (m_ranks.size() != m_list.size())
    rankTexts();
}

bool ElementColumn::isBefore(Index row, Index other, Qt::SortOrder order) const {
  const auto isEmpty = [this](Index i) {
    return std::isnan(m_numbers[i]) && m_ranks[i] == NoIndex;
  };
  if (isEmpty(row) || isEmpty(other))
    return !isEmpty(row) && isEmpty(other);
  if (order == Qt::DescendingOrder)
    std::swap(row, other);
  const double number = m_numbers[row];
  const double otherNumber = m_numbers[other];
  if (std::isnan(number) || std::isnan(otherNumber))
    return std::isnan(number) == std::isnan(otherNumber) ? m_ranks[row] < m_ranks[other] : !std::isnan(number);
  return number < otherNumber;
}
