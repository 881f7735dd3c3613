#include "rule.h"

#include <algorithm>
#include <rules/rulesettings.h>

namespace {

constexpr Setting<double> Tolerance{"rule: tolerance of balances"};
constexpr Setting<double> SteepestPipe{"rule: steepest pipe"};
constexpr Setting<double> HighestStep{"rule: highest step in a station"};
constexpr Setting<int> Crowd{"rule: nodes at one point"};

} // namespace

RuleSettings RuleSettings::current() {
  constexpr double Percent = 100.0;
  constexpr int Two = 2; // at one point
  RuleSettings settings;
  settings.severities.reserve(Rule::all().size());
  for (const Rule &rule : Rule::all()) {
    const QString word = rule.severity.value();
    std::optional<Finding::Severity> severity;
    if (word == QLatin1String("warning"))
      severity = Finding::Severity::Warning;
    else if (word == QLatin1String("information"))
      severity = Finding::Severity::Information;
    settings.severities.push_back(severity);
  }
  settings.balanceTolerance = std::max(Tolerance.value(), 0.0) / Percent;
  settings.steepestPipe = SteepestPipe.value();
  settings.highestStep = HighestStep.value();
  settings.crowd = std::max(Crowd.value(), Two);
  return settings;
}
