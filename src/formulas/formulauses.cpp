#include "formulauses.h"

#include <model/names.h>

#include <algorithm>

namespace {

std::optional<double> boundOf(const Formula *formula, const FormulaRule &rule, const element &e) {
  if (formula == nullptr)
    return std::nullopt;
  try {
    const double number = formula->evaluate(e, rule.names()).number;
    return number == NetData::NoValue ? std::nullopt : std::make_optional(rule.toStored(number));
  } catch (const FormulaError &) {
    return std::nullopt; // which the findings tell
  }
}

} // namespace

std::vector<FormulaUse> FormulaUses::of(const element &e, PropertyKey property) const {
  std::vector<FormulaUse> found;
  for (const FormulaRule &rule : m_rules) {
    if (rule.target != property)
      continue;
    const auto own = std::lower_bound(rule.elements.begin(), rule.elements.end(), &e);
    if (own != rule.elements.end() && *own == &e)
      found.push_back(use(rule, e, static_cast<std::size_t>(own - rule.elements.begin())));
  }
  return found;
}

FormulaUse FormulaUses::use(const FormulaRule &rule, const element &e, std::size_t position) const {
  FormulaUse use;
  use.definition = rule.definition;
  use.isMaker = position < rule.computed.size() && rule.computed[position];
  use.lower = boundOf(rule.lower.get(), rule, e);
  use.upper = boundOf(rule.upper.get(), rule, e);
  for (const Formula *formula : rule.formulas()) {
    for (const FormulaReference &reference : formula->references()) {
      FormulaUse::Input read = input(reference, rule, e);
      const bool isKnown = std::any_of(use.inputs.begin(), use.inputs.end(),
                                       [&read](const FormulaUse::Input &other) { return other.written == read.written; });
      if (!isKnown)
        use.inputs.push_back(std::move(read));
    }
  }
  return use;
}

FormulaUse::Input FormulaUses::input(const FormulaReference &reference, const FormulaRule &rule, const element &e) const {
  FormulaUse::Input read{reference.written(), QString(), reference.property};
  const element *at = reference.start(m_net, &e, rule.names());
  for (const PropertyKey step : reference.path) {
    const PropertyText *name = at == nullptr ? nullptr : at->find(step);
    at = name == nullptr ? nullptr : m_net.element(name->toString());
  }
  if (at != nullptr)
    read.element = at->value(Names::all().name);
  return read;
}
