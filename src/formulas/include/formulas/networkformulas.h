#pragma once

#include <base/finding.h>
#include <formulas/formulafile.h>
#include <formulas/formulause.h>
#include <model/netdata.h>

#include <memory>

/// The formulas and constraints of a network: which elements each is for, what depends on what, and the computing itself.
/// The network must outlive it; elements must not be added or erased while it has definitions.
class NetworkFormulas {
public:
  struct Change {
    const element *changed;
    PropertyKey property;
  };

  explicit NetworkFormulas(NetData &net);
  ~NetworkFormulas();

  /// Parses the expressions and finds the order of computing. Of several formulas for one property of one element the last
  /// counts. Left out, with a finding each: what cannot be parsed, and formulas that need one another's results. Properties
  /// that the vocabulary does not know are described in that of the network.
  Findings setDefinitions(const std::vector<FormulaDefinition> &definitions);

  /// Takes off what was computed and judged: values are as the files say, which may be read anew then.
  void withdraw();
  /// For the same definitions and elements, after withdraw(), whose values may now name other elements: finds the order of
  /// computing anew. Returns what setDefinitions() would.
  Findings arrangeAgain();

  /// Computes everything. Where a formula has no value, for want of one that it needs, the element keeps its own. Elements
  /// that violate constraints get the property "CB_info", "(first;second;)". Returns a finding for each formula that some
  /// elements got no value from, though they have all that it needs. \param progress false stops
  Findings apply(const Progress &progress = Progress());
  /// After elements have changed: computes what depends on the changes, and nothing else.
  Findings update(const std::vector<Change> &changes);
  /// Says anew what violates constraints, as the units in which people read values are others. Computes no formula.
  Findings judge();
  /// Of constraints as they stand now, one an element and constraint, by name of the element.
  Findings violations() const;
  /// What says something of the property of the element, in the order of the definitions: formulas that compute it, and
  /// constraints. Asked when a person wants to know; it goes over all definitions.
  std::vector<FormulaUse> usesOf(const element &e, PropertyKey property) const;
  /// The properties that formulas make.
  std::vector<PropertyKey> computed() const;
  /// By the last apply() or update(), for those who watch the cost.
  int evaluations() const;

private:
  struct Computing;
  std::unique_ptr<Computing> m_computing;
};
