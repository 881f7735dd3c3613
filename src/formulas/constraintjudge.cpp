#include "constraintjudge.h"

#include "formularemarks.h"

#include <model/displayformat.h>
#include <model/displayunits.h>
#include <model/names.h>
#include <model/netmetadata.h>
#include <model/topology.h>

#include <cmath>

namespace {

PropertyText asInfo(const QString &violations) {
  return PropertyText(QLatin1Char('(') + violations + QLatin1Char(')'));
}

} // namespace

std::optional<double> ConstraintJudge::bound(const Formula *formula, const FormulaRule &rule, const element &e) {
  if (formula == nullptr)
    return std::nullopt;
  ++m_evaluations;
  try {
    const double number = formula->evaluate(e, rule.names()).number;
    if (number != NetData::NoValue && !std::isnan(number))
      return rule.toStored(number);
  } catch (const FormulaError &error) {
    if (error.kind() == FormulaError::Kind::TooCostly)
      m_findings.push_back(FormulaRemarks::warning(rule.definition, error.text()));
    return std::nullopt; // an element without bounds keeps them
  }
  return std::nullopt;
}

/// What is wrong with the value, in the unit in which people read it; empty when nothing is.
QString ConstraintJudge::violation(const FormulaRule &rule, const element &e) {
  const double value = m_net.value(e, rule.target);
  if (value == NetData::NoValue)
    return QString();
  const std::optional<double> lower = bound(rule.lower.get(), rule, e);
  const std::optional<double> upper = bound(rule.upper.get(), rule, e);
  const bool isLow = lower && value < *lower;
  if (!isLow && !(upper && value > *upper))
    return QString();
  const NetMetaData::Attribute *attribute =
      m_net.metaData()->attribute(e.value(Names::all().type), rule.definition.property);
  const DisplayUnits::Shown display = DisplayUnits::of(attribute);
  const auto shown = [&display](double number) {
    return DisplayFormat::number(display.toDisplay(number));
  };
  QString text = QStringLiteral("%1 = %2 %3 %4")
                     .arg(rule.definition.property, shown(value), isLow ? QStringLiteral("<") : QStringLiteral(">"),
                          shown(isLow ? *lower : *upper));
  if (!display.unit.isEmpty())
    text += QLatin1Char(' ') + Units::written(display.unit);
  if (!rule.definition.message.isEmpty())
    text = rule.definition.message + QStringLiteral(": ") + text;
  return text.replace(QLatin1Char(';'), QLatin1Char(',')); // which parts the violations of an element
}

bool ConstraintJudge::judge(FormulaRule &rule, const std::vector<element *> &elements,
                            const std::function<bool(std::size_t)> &goesOn) {
  std::size_t done = 0;
  for (element *e : elements) {
    if (!goesOn(done++))
      return false;
    const QString text = violation(rule, *e);
    if (!text.isEmpty())
      rule.violations.insert(e, text);
    else if (rule.violations.remove(e) == 0)
      continue;
    m_judged.insert(e);
  }
  return true;
}

void ConstraintJudge::write(const std::vector<FormulaRule> &rules, const std::vector<Index> &constraints) {
  if (constraints.empty())
    return;
  std::unordered_map<element *, QString> own; // of what was judged
  for (element *e : m_judged)
    own.emplace(e, QString());
  const SubnetOf subnetOf = subnetsByElement();
  std::map<element *, QString> ofSubnets; // about which something was asked
  for (const Index i : constraints) {
    const FormulaRule &rule = rules[i];
    for (auto it = rule.violations.cbegin(); it != rule.violations.cend(); ++it) {
      if (const auto found = own.find(it.key()); found != own.end())
        found->second += it.value() + QLatin1Char(';');
    }
    if (!subnetOf.empty())
      addToSubnets(rule, subnetOf, ofSubnets);
  }
  for (const auto &[e, text] : own) {
    if (text.isEmpty())
      e->erase(Names::all().violations);
    else
      e->set(Names::all().violations, asInfo(text));
  }
  for (const auto &[subnet, text] : ofSubnets)
    subnet->set(Names::all().violations, asInfo(text));
}

/// A subnet is its own.
ConstraintJudge::SubnetOf ConstraintJudge::subnetsByElement() const {
  SubnetOf subnetOf;
  m_net.forEach(NetData::AssembledSubnet, [&](element &subnet) {
    subnetOf.emplace(&subnet, &subnet);
    for (const QString &name : Topology::listed(subnet, Names::all().elements)) {
      if (const element *e = m_net.element(name))
        subnetOf.emplace(e, &subnet);
    }
  });
  return subnetOf;
}

void ConstraintJudge::addToSubnets(const FormulaRule &rule, const SubnetOf &subnetOf,
                                   std::map<element *, QString> &texts) const {
  for (element *e : rule.elements) {
    const auto found = subnetOf.find(e);
    if (found == subnetOf.end())
      continue;
    QString &text = texts[found->second];
    const auto violation = rule.violations.constFind(e);
    if (violation == rule.violations.constEnd())
      continue;
    const QString who = e == found->second ? QString() : e->value(Names::all().name) + QStringLiteral(": ");
    text += who + *violation + QLatin1Char(';');
  }
}
