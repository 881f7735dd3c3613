#pragma once

#include <base/finding.h>

#include <optional>
#include <vector>

/// What the general settings say of the rules, as it is at one moment: a thread that checks must not ask for it.
struct RuleSettings {
  /// By rule, in the order of the table of rules; nothing for one that is switched off.
  std::vector<std::optional<Finding::Severity>> severities;
  double balanceTolerance = 0.0; ///< share of what flows, 0 to 1
  double steepestPipe = 0.0;     ///< m of height per km
  double highestStep = 0.0;      ///< m, between the ends of elements that are no pipes
  int crowd = 0;                 ///< nodes at one point that are too many
};
