#include <model/elementtypes.h>
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
  const QStringList words{type->word, type->longName, type->plural};
  return std::any_of(words.begin(), words.end(), [this](const QString &word) { return m_pattern.matches(word); });
}

SearchedValues::SearchedValues(const QString &text)
    : m_pattern(text) {
  static const QRegularExpression comparison(QStringLiteral("^\\s*(?:<=|>=|!=|<|>|=)\\s*([-+.\\deE]+)\\s*$"));
  bool isNumber = false;
  comparison.match(text).captured(1).toDouble(&isNumber);
  if (isNumber)
    m_comparison.emplace(text);
}

bool SearchedValues::holdsFor(const QString &shown) const {
  bool isNumber = false;
  shown.toDouble(&isNumber);
  return isNumber && m_comparison && m_comparison->passes(shown);
}
