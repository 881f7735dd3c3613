#include "askedprogress.h"
#include "constraintjudge.h"
#include "elementfinder.h"
#include "formulaparsers.h"
#include "formularemarks.h"
#include "formularule.h"
#include "formulauses.h"

#include <formulas/networkformulas.h>
#include <model/names.h>
#include <model/netmetadata.h>

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(NetworkFormulas)
};

} // namespace

struct NetworkFormulas::Computing {
  explicit Computing(NetData &ofNet)
      : net(ofNet)
      , m_parsers(std::make_shared<FormulaParsers>(ofNet, MostParsers)) {}

  void prepare(const std::vector<FormulaDefinition> &definitions);
  void order();
  void describe();
  void withdraw();
  std::vector<element *> affected(const FormulaRule &rule, const FormulaChanges &changes) const;
  /// Computes the formulas, then the constraints, for those of their elements that elementsOf tells.
  template <typename ElementsOf>
  Findings run(const ElementsOf &elementsOf, const Progress &progress, FormulaChanges *changes);

  NetData &net;
  std::vector<FormulaRule> rules;
  std::vector<Index> sequence;    ///< formulas in the order of computing
  std::vector<Index> constraints; ///< in the order of the files
  FormulaRemarks remarks;         ///< of the preparation
  FormulaRemarks prepared;        ///< those of them that no value changes
  int evaluations = 0;

private:
  static constexpr std::size_t MostParsers = 32;
  static constexpr std::size_t MostText = std::size_t(256) << 20; ///< bytes that one run makes of long texts

  struct Compiled {
    std::shared_ptr<const Formula> formula;
    QString error;
  };

  FormulaRule parsed(FormulaDefinition definition);
  std::shared_ptr<const Formula> compiled(const QString &text);
  void reportUnknown();
  /// What the formula yields for the element; empty for nothing, with the reason where that is a fault.
  PropertyText valueOf(const FormulaRule &rule, const element &e, QString &reason);
  template <typename GoesOn>
  bool compute(FormulaRule &rule, const std::vector<element *> &elements, FormulaFailures &failures, FormulaChanges *changes,
               const GoesOn &goesOn);

  std::shared_ptr<FormulaParsers> m_parsers;
  QHash<QString, Compiled> m_compiled; ///< by text
  std::size_t m_madeText = 0;
};

std::shared_ptr<const Formula> NetworkFormulas::Computing::compiled(const QString &text) {
  Compiled &known = m_compiled[text];
  if (known.formula == nullptr && known.error.isEmpty()) {
    try {
      known.formula = std::make_shared<const Formula>(text, net, Formula::Bare::OfCurrent, m_parsers);
    } catch (const FormulaError &error) {
      known.error = error.text();
    }
  }
  if (known.formula == nullptr)
    throw FormulaError(known.error);
  return known.formula;
}

FormulaRule NetworkFormulas::Computing::parsed(FormulaDefinition definition) {
  FormulaRule rule;
  rule.target = PropertyKey::intern(definition.property);
  if (!definition.isConstraint)
    rule.value = compiled(definition.expression);
  if (!definition.lower.isEmpty())
    rule.lower = compiled(definition.lower);
  if (!definition.upper.isEmpty())
    rule.upper = compiled(definition.upper);
  const NetMetaData::Attribute *attribute =
      net.metaData()->attribute(definition.types.value(0, QStringLiteral("*")), definition.property);
  if (attribute == nullptr)
    attribute = net.metaData()->anyAttribute(definition.property);
  if (attribute != nullptr && !definition.unit.isEmpty()) {
    const auto conversion = Units::conversion(definition.unit, attribute->storedUnit);
    if (!conversion)
      throw FormulaError(Texts::tr("the unit \"%1\" does not fit \"%2\", in which %3 is stored")
                             .arg(definition.unit, attribute->storedUnit, definition.property));
    rule.toStored = *conversion;
  }
  rule.definition = std::move(definition);
  return rule;
}

void NetworkFormulas::Computing::prepare(const std::vector<FormulaDefinition> &definitions) {
  ElementFinder finder(net);
  for (const FormulaDefinition &definition : definitions) {
    try {
      FormulaRule rule = parsed(definition);
      rule.elements = definition.elements.isEmpty() ? finder.find(definition.types, definition.namePattern)
                                                    : finder.named(definition.elements, definition.types);
      rule.definition.elements.clear(); // thousands of names, when subnets have thousands of elements
      rules.push_back(std::move(rule));
    } catch (const FormulaError &error) {
      remarks.add(definition, Texts::tr("The formula of %1 is left out: %2").arg(definition.property, error.text()));
    }
  }
  prepared = remarks;
}

void NetworkFormulas::Computing::order() {
  const FormulaProducers producers(rules);
  const std::vector<std::vector<Index>> dependencies = producers.dependencies(rules, net);
  const FormulaOrder order(dependencies);
  // Of those that do not need one another, by name: so do elements keep their properties, and one that goes to the end of
  // 100,000 others moves none of them.
  std::vector<int> levels(rules.size());
  for (const Index i : order.order) {
    for (const Index needed : dependencies[i])
      levels[i] = std::max(levels[i], levels[needed] + 1);
    if (!rules[i].definition.isConstraint)
      sequence.push_back(i);
  }
  std::stable_sort(sequence.begin(), sequence.end(), [&](Index a, Index b) {
    return levels[a] != levels[b] ? levels[a] < levels[b] : rules[a].target < rules[b].target;
  });
  for (Index i = 0; i < rules.size(); ++i) {
    if (rules[i].definition.isConstraint)
      constraints.push_back(i);
  }
  for (const std::vector<Index> &cycle : order.cycles) {
    QStringList origins;
    for (const Index i : cycle)
      origins.append(rules[i].definition.origin());
    const FormulaDefinition &first = rules[cycle.front()].definition;
    remarks.add(first, cycle.size() == 1
                           ? Texts::tr("The formula needs its own result and is left out: %1").arg(origins.first())
                           : Texts::tr("These formulas need one another's results and are left out: %1")
                                 .arg(origins.join(QStringLiteral("; "))));
  }
  if (!rules.empty())
    reportUnknown();
}

void NetworkFormulas::Computing::reportUnknown() {
  const std::vector<PropertyKey> keys = net.propertyKeys();
  std::set<PropertyKey> known(keys.begin(), keys.end());
  for (const FormulaRule &rule : rules)
    known.insert(rule.target);
  for (const FormulaRule &rule : rules) {
    for (const Formula *formula : rule.formulas()) {
      for (const FormulaReference &reference : formula->references()) {
        std::vector<PropertyKey> properties = reference.path;
        properties.push_back(reference.property);
        for (const PropertyKey property : properties) {
          if (known.count(property) == 0)
            remarks.add(rule.definition, Texts::tr("No element has the property \"%1\".").arg(property.name()));
        }
        if (!reference.elementName.isEmpty() && reference.start(net, nullptr, rule.names()) == nullptr)
          remarks.add(rule.definition, Texts::tr("There is no element \"%1\".").arg(reference.elementName));
      }
    }
  }
}

/// Tells the vocabulary of the network what it does not know, so that the property is shown and drawn like others.
void NetworkFormulas::Computing::describe() {
  if (rules.empty())
    return;
  auto metaData = std::make_shared<NetMetaData>(*net.metaData());
  bool hasNew = false;
  for (const FormulaRule &rule : rules) {
    const FormulaDefinition &definition = rule.definition;
    if (definition.isConstraint)
      continue;
    static const QStringList groups{QStringLiteral("geometry"), QStringLiteral("scenario"), QStringLiteral("results")};
    NetMetaData::Attribute row;
    row.property = definition.property;
    row.longName = definition.comment.isEmpty() ? definition.property : definition.comment;
    row.group = groups.contains(definition.category) ? definition.category : QStringLiteral("extra");
    row.storedUnit = definition.unit;
    row.displayUnit = definition.unit;
    row.category = QStringLiteral("function");
    row.description = QStringLiteral("= ") + definition.expression;
    for (const QString &type : definition.types.isEmpty() ? QStringList{QStringLiteral("*")} : definition.types) {
      row.type = type;
      if (metaData->attribute(type, row.property) == nullptr) {
        metaData->add(row);
        hasNew = true;
      }
    }
  }
  if (hasNew)
    net.setMetaData(metaData);
}

void NetworkFormulas::Computing::withdraw() {
  bool hasViolations = false;
  for (FormulaRule &rule : rules) {
    for (std::size_t i = 0; i < rule.computed.size(); ++i) {
      if (rule.computed[i])
        rule.elements[i]->erase(rule.target);
    }
    rule.computed.clear();
    for (auto &[e, value] : rule.overwritten)
      e->set(rule.target, std::move(value));
    rule.overwritten.clear();
    hasViolations = hasViolations || !rule.violations.isEmpty();
    for (auto it = rule.violations.cbegin(); it != rule.violations.cend(); ++it)
      it.key()->erase(Names::all().violations);
    rule.violations.clear();
  }
  if (hasViolations)
    net.forEach(NetData::AssembledSubnet, [](element &subnet) { subnet.erase(Names::all().violations); });
}

PropertyText NetworkFormulas::Computing::valueOf(const FormulaRule &rule, const element &e, QString &reason) {
  constexpr std::size_t ShortText = 64; // bytes
  const bool isAsStored = rule.toStored.factor == 1.0 && rule.toStored.offset == 0.0;
  try {
    const Formula::Result result = rule.value->evaluate(e, rule.names());
    const bool isNumber = result.number != NetData::NoValue;
    if (isNumber && !std::isfinite(result.number))
      reason = Texts::tr("the result is not finite");
    else if (isNumber && !isAsStored)
      return PropertyText::ofNumber(rule.toStored(result.number));
    else if (result.text != QLatin1String(FormulaReference::Null)) {
      PropertyText text(result.text);
      m_madeText += text.utf8().size() > ShortText ? text.utf8().size() : 0;
      if (m_madeText <= MostText)
        return text;
      reason = Texts::tr("the formulas make more than %1 MB of texts").arg(MostText >> 20);
    }
  } catch (const FormulaError &error) {
    if (!error.isForMissingValue())
      reason = error.text();
  }
  return PropertyText();
}

/// Returns whether it came to the end. \param goesOn told how many elements are done
template <typename GoesOn>
bool NetworkFormulas::Computing::compute(FormulaRule &rule, const std::vector<element *> &elements,
                                         FormulaFailures &failures, FormulaChanges *changes, const GoesOn &goesOn) {
  if (elements.empty())
    return true;
  rule.computed.resize(rule.elements.size());
  std::size_t index = 0; // in those of the rule, which stand in the same order
  failures.addElements(rule.definition, elements.size());
  std::size_t done = 0;
  for (element *e : elements) {
    if (!goesOn(done++))
      return false;
    ++evaluations;
    while (rule.elements[index] != e)
      ++index;
    QString reason;
    PropertyText text = valueOf(rule, *e, reason);
    if (!reason.isEmpty())
      failures.add(rule.definition, *e, reason);
    const PropertyText *before = e->find(rule.target);
    if (changes != nullptr && (before == nullptr ? !text.isEmpty() : *before != text))
      (*changes)[rule.target].insert(e);
    const bool hasValue = !text.isEmpty();
    if (hasValue && before != nullptr && !rule.computed[index])
      rule.overwritten.emplace_back(e, *before);
    if (hasValue)
      e->set(rule.target, std::move(text));
    else if (rule.computed[index])
      e->erase(rule.target); // what it was computed from is gone
    rule.computed[index] = hasValue;
  }
  return true;
}

std::vector<element *> NetworkFormulas::Computing::affected(const FormulaRule &rule, const FormulaChanges &changes) const {
  const auto hasChanged = [&changes](const element *e, PropertyKey property) {
    const auto found = changes.find(property);
    return found != changes.end() && found->second.count(e) > 0;
  };
  std::set<element *> found;
  const auto ask = [&](const FormulaReference &reference) {
    if (!reference.elementName.isEmpty()) {
      if (walk(reference, net, nullptr, rule.names(), hasChanged))
        found.insert(rule.elements.begin(), rule.elements.end());
      return;
    }
    if (reference.path.empty()) {
      const auto changed = changes.find(reference.property);
      if (changed == changes.end())
        return;
      for (const element *e : changed->second) {
        const auto own = std::lower_bound(rule.elements.begin(), rule.elements.end(), e);
        if (own != rule.elements.end() && *own == e)
          found.insert(*own);
      }
      return;
    }
    bool isAsked = changes.count(reference.property) > 0;
    for (const PropertyKey step : reference.path)
      isAsked = isAsked || changes.count(step) > 0;
    for (element *e : isAsked ? rule.elements : std::vector<element *>()) {
      if (walk(reference, net, e, rule.names(), hasChanged))
        found.insert(e);
    }
  };
  for (const Formula *formula : rule.formulas()) {
    for (const FormulaReference &reference : formula->references())
      ask(reference);
  }
  if (rule.definition.isConstraint)
    ask({rule.target, {}, QString()});
  return {found.begin(), found.end()};
}

template <typename ElementsOf>
Findings NetworkFormulas::Computing::run(const ElementsOf &elementsOf, const Progress &progress, FormulaChanges *changes) {
  evaluations = 0;
  m_madeText = 0;
  FormulaFailures failures;
  AskedProgress asking(progress);
  const auto count = static_cast<double>(sequence.size() + constraints.size());
  int rulesDone = 0;
  std::size_t ofRule = 1;
  const auto goesOn = [&](std::size_t elementsDone) {
    return asking.goesOn((rulesDone + static_cast<double>(elementsDone) / static_cast<double>(ofRule)) / count);
  };
  for (const Index i : sequence) {
    FormulaRule &rule = rules[i];
    const std::vector<element *> &elements = elementsOf(rule);
    ofRule = std::max<std::size_t>(1, elements.size());
    if (!compute(rule, elements, failures, changes, goesOn))
      return failures.findings();
    ++rulesDone;
  }
  ConstraintJudge judge(net);
  for (const Index i : constraints) {
    FormulaRule &rule = rules[i];
    const std::vector<element *> &elements = elementsOf(rule);
    ofRule = std::max<std::size_t>(1, elements.size());
    if (!judge.judge(rule, elements, goesOn))
      return failures.findings();
    ++rulesDone;
  }
  judge.write(rules, constraints);
  evaluations += judge.evaluations();
  Findings found = failures.findings();
  append(found, judge.findings());
  return found;
}

NetworkFormulas::NetworkFormulas(NetData &net)
    : m_computing(std::make_unique<Computing>(net)) {}

NetworkFormulas::~NetworkFormulas() = default;

Findings NetworkFormulas::setDefinitions(const std::vector<FormulaDefinition> &definitions) {
  m_computing = std::make_unique<Computing>(m_computing->net);
  m_computing->prepare(definitions);
  m_computing->order();
  m_computing->describe();
  return m_computing->remarks.findings();
}

void NetworkFormulas::withdraw() {
  m_computing->withdraw();
}

Findings NetworkFormulas::arrangeAgain() {
  m_computing->remarks = m_computing->prepared;
  m_computing->sequence.clear();
  m_computing->constraints.clear();
  m_computing->order();
  m_computing->describe();
  return m_computing->remarks.findings();
}

Findings NetworkFormulas::violations() const {
  Findings found;
  for (const Index i : m_computing->constraints) {
    const FormulaRule &rule = m_computing->rules[i];
    for (auto it = rule.violations.cbegin(); it != rule.violations.cend(); ++it) {
      Finding finding = FormulaRemarks::warning(rule.definition, it.value());
      finding.element = it.key()->value(Names::all().name);
      found.push_back(std::move(finding));
    }
  }
  std::sort(found.begin(), found.end(),
            [](const Finding &a, const Finding &b) { return std::tie(a.element, a.line) < std::tie(b.element, b.line); });
  return found;
}

std::vector<FormulaUse> NetworkFormulas::usesOf(const element &e, PropertyKey property) const {
  return FormulaUses(m_computing->rules, m_computing->net).of(e, property);
}

std::vector<PropertyKey> NetworkFormulas::computed() const {
  std::set<PropertyKey> found;
  for (const FormulaRule &rule : m_computing->rules) {
    if (!rule.definition.isConstraint)
      found.insert(rule.target);
  }
  return {found.begin(), found.end()};
}

int NetworkFormulas::evaluations() const {
  return m_computing->evaluations;
}

Findings NetworkFormulas::apply(const Progress &progress) {
  return m_computing->run([](const FormulaRule &rule) -> const std::vector<element *> & { return rule.elements; }, progress,
                          nullptr);
}

Findings NetworkFormulas::judge() {
  static const std::vector<element *> None;
  return m_computing->run(
      [](const FormulaRule &rule) -> const std::vector<element *> & {
        return rule.definition.isConstraint ? rule.elements : None;
      },
      Progress(), nullptr);
}

Findings NetworkFormulas::update(const std::vector<Change> &changes) {
  FormulaChanges all;
  for (const Change &change : changes)
    all[change.property].insert(change.changed);
  return m_computing->run([&](const FormulaRule &rule) { return m_computing->affected(rule, all); }, Progress(), &all);
}
