#include <model/displayformat.h>
#include <model/elementtypes.h>
#include <model/titles.h>
#include <model/units.h>
#include <tools/searchcriteria.h>

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace {

/// Made as the program starts: who asks may be one of several threads, which may make no keys.
const PropertyKey NeverSearched[] = {PropertyKey::intern("isSearchResult"), PropertyKey::intern("pLine"),
                                     PropertyKey::intern("pArrow"),         PropertyKey::intern("pLabel"),
                                     PropertyKey::intern("pSymbol"),        PropertyKey::intern("vis.ele")};

} // namespace

bool SearchedProperties::isNeverSearched(PropertyKey key) {
  return std::find(std::begin(NeverSearched), std::end(NeverSearched), key) != std::end(NeverSearched);
}

bool SearchedProperties::contains(PropertyKey key) {
  if (key.index() >= m_known.size())
    m_known.resize(key.index() + 1, -1);
  signed char &known = m_known[key.index()];
  if (known < 0)
    known = !isNeverSearched(key) && m_pattern.matches(key.name()) ? 1 : 0;
  return known == 1;
}

SearchedTypes::SearchedTypes(const QString &pattern)
    : m_pattern(pattern) {
  const auto &all = ElementTypes::all();
  m_takesWords =
      std::none_of(all.begin(), all.end(), [this](const ElementType &type) { return m_pattern.matches(type.code); });
}

bool SearchedTypes::matches(const QString &code) const {
  if (m_pattern.matches(code))
    return true;
  const ElementType *type = m_takesWords ? ElementTypes::byCode(code) : nullptr;
  if (type == nullptr)
    return false;
  const QStringList words{type->word, type->longName, type->plural, Titles::of(*type), Titles::ofSeveral(*type)};
  return std::any_of(words.begin(), words.end(), [this](const QString &word) { return m_pattern.matches(word); });
}

SearchedValues::SearchedValues(const QString &text)
    : m_pattern(text) {
  static const QRegularExpression comparison(QStringLiteral("^\\s*(<=|>=|!=|<|>|=)\\s*([-+.,\\deE]+)\\s*(\\S.*?)?\\s*$"));
  const QRegularExpressionMatch match = comparison.match(text);
  bool isNumber = false;
  const QString number = DisplayFormat::typed(match.captured(2));
  number.toDouble(&isNumber);
  m_unit = Units::fromTyped(match.captured(3));
  if (isNumber && (m_unit.isEmpty() || Units::isKnown(m_unit)))
    m_comparison.emplace(match.captured(1) + number);
}

double SearchedValues::inAskedUnit(double number, const DisplayValue::Shown &shown) {
  if (shown.unit != m_lastUnit) {
    m_lastUnit = shown.unit;
    m_fromLast = Units::conversion(shown.unit, m_unit);
  }
  if (!m_fromLast || shown.unit.isEmpty())
    return NetData::NoValue;
  return shown.isDifference ? static_cast<double>(m_fromLast->factor) * number : (*m_fromLast)(number);
}

bool SearchedValues::holdsFor(const DisplayValue::Shown &shown) {
  constexpr int Digits = 12; // what a conversion adds beyond is noise
  bool isNumber = false;
  const double number = shown.value.toDouble(&isNumber);
  if (!isNumber || !m_comparison)
    return false;
  if (m_unit.isEmpty())
    return m_comparison->passes(shown.value);
  const double asked = inAskedUnit(number, shown);
  return asked != NetData::NoValue && m_comparison->passes(QString::number(asked, 'g', Digits));
}
