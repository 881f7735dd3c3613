#include <tools/networksearch.h>

namespace {

const PropertyKey &resultKey() {
  static const PropertyKey key = PropertyKey::intern("isSearchResult");
  return key;
}

} // namespace

NetworkSearch::NetworkSearch(NetData &net, SearchParams params)
    : m_net(net)
    , m_params(std::move(params))
    , m_name(m_params.name)
    , m_type(m_params.type)
    , m_properties(m_params.prop)
    , m_value(m_params.searchString)
    , m_display(*net.metaData()) {}

const QStringList &SearchedProperties::never() {
  static const QStringList keys{
      QStringLiteral("isSearchResult"), QStringLiteral("pLine"),   QStringLiteral("pArrow"), QStringLiteral("pLabel"),
      QStringLiteral("pSymbol"),        QStringLiteral("vis.ele"), QStringLiteral("type")};
  return keys;
}

bool SearchedProperties::contains(PropertyKey key) {
  if (key.index() >= m_known.size())
    m_known.resize(key.index() + 1, -1);
  signed char &known = m_known[key.index()];
  if (known < 0) {
    const QString name = key.name();
    const bool isNever =
        name.compare(QLatin1String("type"), Qt::CaseInsensitive) != 0 && never().contains(name, Qt::CaseInsensitive);
    known = !isNever && m_pattern.matches(name) ? 1 : 0;
  }
  return known == 1;
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
    if (!m_properties.contains(property.key))
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
