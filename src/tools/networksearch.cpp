#include <tools/networksearch.h>

namespace {

const PropertyKey &resultKey() {
  static const PropertyKey key = PropertyKey::intern("isSearchResult");
  return key;
}

} // namespace

// The limits end what would try every way through a text; ordinary patterns need a few hundred steps.
NetworkSearch::Pattern::Pattern(const QString &text)
    : m_expression(QStringLiteral("(*LIMIT_MATCH=200000)") + text, QRegularExpression::CaseInsensitiveOption)
    , m_matchesAll(text.isEmpty()) {
  if (!m_matchesAll)
    m_expression.optimize();
}

bool NetworkSearch::Pattern::matches(const QString &text) const {
  return m_matchesAll || (m_expression.isValid() && m_expression.match(text).hasMatch());
}

NetworkSearch::NetworkSearch(NetData &net, SearchParams params)
    : m_net(net)
    , m_params(std::move(params))
    , m_name(m_params.name)
    , m_type(m_params.type)
    , m_property(m_params.prop)
    , m_value(m_params.searchString)
    , m_display(*net.metaData()) {}

const QStringList &NetworkSearch::neverSearched() {
  static const QStringList keys{
      QStringLiteral("isSearchResult"), QStringLiteral("pLine"),   QStringLiteral("pArrow"), QStringLiteral("pLabel"),
      QStringLiteral("pSymbol"),        QStringLiteral("vis.ele"), QStringLiteral("type")};
  return keys;
}

NetworkSearch::Result NetworkSearch::run() {
  Result result;
  try {
    for (elements *collection : m_net.collections(NetData::AllTypes)) {
      for (const elements::Entry &entry : *collection) {
        std::vector<SearchRow> rows = search(entry.value);
        std::move(rows.begin(), rows.end(), std::back_inserter(result.rows));
      }
    }
  } catch (const FormulaError &error) {
    result.isStopped = true;
    result.error = error.text();
  }
  return result;
}

bool NetworkSearch::matchesName(const QString &name) const {
  return m_params.regex ? m_name.matches(name) : name.contains(m_params.name, Qt::CaseInsensitive);
}

bool NetworkSearch::matchesType(const QString &type) {
  if (m_type.matchesAll())
    return true;
  const auto known = m_types.constFind(type);
  return known != m_types.constEnd() ? *known : *m_types.insert(type, m_type.matches(type));
}

bool NetworkSearch::matchesProperty(PropertyKey key) {
  if (key.index() >= m_properties.size())
    m_properties.resize(key.index() + 1, -1);
  signed char &known = m_properties[key.index()];
  if (known < 0) {
    const QString name = key.name();
    const bool isNever =
        name.compare(QLatin1String("type"), Qt::CaseInsensitive) != 0 && neverSearched().contains(name, Qt::CaseInsensitive);
    known = !isNever && m_property.matches(name) ? 1 : 0;
  }
  return known == 1;
}

bool NetworkSearch::satisfiesFormula(const element &candidate) {
  if (!m_formula)
    m_formula.emplace(m_params.formula, m_net);
  return m_formula->evaluate(candidate).text != QLatin1String("0");
}

std::vector<SearchRow> NetworkSearch::search(element &candidate) {
  static const PropertyKey nameKey = PropertyKey::intern("name");
  static const PropertyKey typeKey = PropertyKey::intern("type");
  std::vector<SearchRow> rows;
  candidate.erase(resultKey());
  const QString name = candidate.value(nameKey);
  const QString type = candidate.value(typeKey);
  if (!matchesName(name) || !matchesType(type))
    return rows;
  bool isAsked = m_params.formula.isEmpty(); // the formula asks for the element, not for the property: once is enough
  for (const Property &property : candidate) {
    if (!matchesProperty(property.key))
      continue;
    if (!m_value.matchesAll() && !m_value.matches(property.value.toString()))
      continue;
    if (!isAsked && !satisfiesFormula(candidate))
      return {};
    isAsked = true;
    DisplayValue::Shown shown = m_display.of(type, property.key, property.value);
    rows.push_back({name, type, property.key.name(), std::move(shown.value), std::move(shown.unit)});
  }
  if (!rows.empty())
    candidate.set(resultKey(), PropertyText(std::string_view("1")));
  return rows;
}
