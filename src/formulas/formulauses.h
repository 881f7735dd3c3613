#pragma once

#include "formularule.h"

#include <formulas/formulause.h>

/// Finds what formulas and constraints say of a property of an element.
class FormulaUses {
public:
  FormulaUses(const std::vector<FormulaRule> &rules, const NetData &net)
      : m_rules(rules)
      , m_net(net) {}

  /// In the order of the definitions.
  std::vector<FormulaUse> of(const element &e, PropertyKey property) const;

private:
  FormulaUse use(const FormulaRule &rule, const element &e, std::size_t position) const;
  FormulaUse::Input input(const FormulaReference &reference, const FormulaRule &rule, const element &e) const;

  const std::vector<FormulaRule> &m_rules;
  const NetData &m_net;
};
