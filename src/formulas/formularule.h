#pragma once

#include <base/index.h>
#include <formulas/formula.h>
#include <formulas/formulafile.h>
#include <model/units.h>

#include <QHash>

#include <map>
#include <set>
#include <utility>
#include <vector>

/// A definition made ready: parsed, with the elements that it is for.
struct FormulaRule {
  FormulaDefinition definition;
  PropertyKey target;
  std::shared_ptr<const Formula> value; ///< of a formula
  std::shared_ptr<const Formula> lower; ///< of a constraint, null for no bound
  std::shared_ptr<const Formula> upper;
  std::vector<element *> elements;                             ///< by address
  Units::Linear toStored;                                      ///< from the unit of the expressions
  QHash<element *, QString> violations;                        ///< of a constraint: what is wrong
  std::vector<bool> computed;                                  ///< by position: the value is of the formula's making
  std::vector<std::pair<element *, PropertyText>> overwritten; ///< by the formula: what the files say

  std::vector<const Formula *> formulas() const;
  const FormulaNames *names() const { return definition.names.get(); }
};

/// Elements whose properties have changed.
using FormulaChanges = std::map<PropertyKey, std::set<const element *>>;

/// Which formula makes a property of an element.
///
/// 1. A property of an element has at most one maker: of several formulas the last, by the order of the definitions, and
///    the others no longer have the element among theirs. Constraints make nothing.
/// 2. A property is listed when a formula or constraint reads it or several formulas make it. One that a single formula
///    makes and nobody reads has no table, since nothing depends on it.
/// 3. What a formula depends on are the makers of all that it reads for any of its elements, the properties that name
///    other elements on the way included: when those change, it reads another element.
/// 4. The elements of a rule stand by address and stay so: results are written by their position.
class FormulaProducers {
public:
  /// Takes from the rules the elements for which a later one makes the same property.
  explicit FormulaProducers(std::vector<FormulaRule> &rules);

  /// The numbers of the rules that must be computed before each, by the number of that.
  std::vector<std::vector<Index>> dependencies(const std::vector<FormulaRule> &rules, const NetData &net) const;

private:
  using ByElement = QHash<const element *, Index>;
  std::map<PropertyKey, ByElement> m_rules; ///< of the properties that formulas make
};

/// Calls visit(element, property) for all that the formula reads to know the referred value, until it returns true.
/// Returns whether it did.
template <typename Visit>
bool walk(const FormulaReference &reference, const NetData &net, const element *current, const FormulaNames *names,
          const Visit &visit) {
  const element *at = reference.start(net, current, names);
  for (const PropertyKey step : reference.path) {
    if (at == nullptr)
      return false;
    if (visit(at, step))
      return true;
    const PropertyText *name = at->find(step);
    at = name == nullptr ? nullptr : net.element(name->toString());
  }
  return at != nullptr && visit(at, reference.property);
}

/// The order of computing: each after those that it depends on. What depends on itself by any way stands in a cycle.
struct FormulaOrder {
  std::vector<Index> order;
  std::vector<std::vector<Index>> cycles;

  explicit FormulaOrder(const std::vector<std::vector<Index>> &dependencies);
};
