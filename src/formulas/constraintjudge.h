#pragma once

#include "formularule.h"

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <unordered_map>

/// Holds elements against constraints and writes down what is wrong with each, in its property "CB_info".
class ConstraintJudge {
public:
  explicit ConstraintJudge(NetData &net)
      : m_net(net) {}

  /// Returns whether it came to the end. \param goesOn told how many elements are done, false stops
  bool judge(FormulaRule &rule, const std::vector<element *> &elements, const std::function<bool(std::size_t)> &goesOn);
  /// "(first;second;)" to what was judged. An assembled subnet is told the violations of its inner elements beside its own,
  /// and "()" when it or they were judged and nothing is wrong.
  /// \param constraints their indices among the rules, in the order of the texts
  void write(const std::vector<FormulaRule> &rules, const std::vector<Index> &constraints);
  /// Of bounds, for those who watch the cost.
  int evaluations() const { return m_evaluations; }
  /// Bounds that were given up, for they cost too much.
  const Findings &findings() const { return m_findings; }

private:
  std::optional<double> bound(const Formula *formula, const FormulaRule &rule, const element &e);
  QString violation(const FormulaRule &rule, const element &e);
  using SubnetOf = std::unordered_map<const element *, element *>;
  SubnetOf subnetsByElement() const;
  void addToSubnets(const FormulaRule &rule, const SubnetOf &subnetOf, std::map<element *, QString> &texts) const;

  NetData &m_net;
  std::set<element *> m_judged; ///< those with something to be written
  int m_evaluations = 0;
  Findings m_findings;
};
