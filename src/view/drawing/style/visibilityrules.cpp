#include <drawing/visibilityrules.h>

namespace {

constexpr double SmallestThreshold = 1e-10;
constexpr double NoThreshold = 1e10;
constexpr double SymbolFactor = 1.5; // up to so many thresholds the symbol alone is shown

double thresholdOf(const QStringList &numbers, int index) {
  bool isNumber = false;
  const double number = numbers.value(index).trimmed().toDouble(&isNumber);
  return isNumber && number > SmallestThreshold ? number : NoThreshold;
}

VisibilityRules::State stateOf(const QString &vis) {
  const QString word = vis.trimmed().toLower();
  if (word == QLatin1String("off"))
    return VisibilityRules::State::Off;
  return word == QLatin1String("symbol") ? VisibilityRules::State::Symbol : VisibilityRules::State::On;
}

bool isAuto(const QString &vis) {
  return vis.trimmed().compare(QLatin1String("auto"), Qt::CaseInsensitive) == 0;
}

} // namespace

VisibilityRules::Rule VisibilityRules::ruleOf(const QString &vis, const QString &zoom) {
  const QStringList numbers = zoom.split(QLatin1Char(';'));
  Rule rule;
  rule.isAuto = isAuto(vis);
  rule.threshold = thresholdOf(numbers, 0);
  rule.secondThreshold = numbers.size() > 1 ? thresholdOf(numbers, 1) : 0.0;
  // An element with a threshold is hidden until somebody zooms to it.
  rule.state = rule.isAuto ? State::Off : stateOf(vis);
  return rule;
}

void VisibilityRules::read(const NetGeometry &geometry, const LabelTable &table) {
  const VisibilityRules before = std::exchange(*this, VisibilityRules());
  m_geometry = &geometry;
  QHash<QString, QString> autoTypes;
  for (const LabelRow &row : table.types) {
    const QString &show = row[LabelRow::Show];
    if (isAuto(show))
      autoTypes.insert(row[LabelRow::Short], show);
    else if (stateOf(show) != State::On)
      m_types.insert(row[LabelRow::Short].toLower(), stateOf(show));
  }
  const PropertyKey vis = PropertyKey::find("vis");
  if (vis.isNull() && autoTypes.isEmpty())
    return; // as in most networks
  static const PropertyKey zoom = PropertyKey::intern("vis.zoom");
  static const PropertyKey type = PropertyKey::intern("type");
  geometry.forEachItem([&](NetGeometry::Item item, const element &source) {
    if (const PropertyText *own = source.find(vis))
      add(item, own->toString(), source.value(zoom));
    else if (!autoTypes.isEmpty() && autoTypes.contains(source.value(type)))
      add(item, QStringLiteral("auto"), source.value(zoom));
  });
  for (auto item = m_items.cbegin(); item != m_items.cend(); ++item) {
    const auto known = before.m_items.constFind(item.key());
    Rule &rule = m_rules[item.value()];
    if (rule.isAuto && known != before.m_items.constEnd())
      rule.state = before.m_rules[known.value()].state;
  }
}

void VisibilityRules::add(NetGeometry::Item item, const QString &vis, const QString &zoom) {
  m_items.insert(key(item), toIndex(m_rules.size()));
  m_rules.push_back(ruleOf(vis, zoom));
}

void VisibilityRules::clear() {
  *this = VisibilityRules();
}

bool VisibilityRules::setExtent(double extent) {
  bool hasChanged = false;
  for (Rule &rule : m_rules) {
    if (!rule.isAuto || extent >= rule.threshold * SymbolFactor)
      continue; // so far out an element keeps its state
    const State state = extent < rule.threshold ? State::On : State::Symbol;
    hasChanged = hasChanged || state != rule.state;
    rule.state = state;
  }
  return hasChanged;
}

VisibilityRules::State VisibilityRules::of(NetGeometry::Item item) const {
  if (!m_items.isEmpty()) {
    const auto found = m_items.constFind(key(item));
    if (found != m_items.constEnd())
      return m_rules[*found].state;
  }
  if (m_types.isEmpty() || m_geometry == nullptr)
    return State::On;
  static const PropertyKey type = PropertyKey::intern("type");
  return m_types.value(m_geometry->source(item)->value(type).toLower(), State::On);
}
