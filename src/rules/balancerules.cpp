#include "balancerules.h"

#include <algorithm>
#include <cmath>
#include <rules/networkrules.h>

namespace {

constexpr double SmallestFlow = 1e-3; // 1000 m3/h; files round

/// Whether two flows differ by more than the share of what flows.
bool differ(double a, double b, double flowing, double share) {
  return std::abs(a - b) > std::max(share * flowing, SmallestFlow);
}

} // namespace

/// Where the pressure is held, or nobody states the flow, the node takes what is left.
void BalanceRules::findNodes(const RuleSubject &subject, RuleHits &hits) {
  constexpr double Half = 0.5; // what flows through comes and goes
  for (const NetworkFacts::Node &node : subject.facts.nodes()) {
    const bool isJudged = node.isInUse && NetworkFacts::isKnown(node.inflow) && node.through > 0.0 &&
                          !node.holdsPressure() && !node.isFlowUnknown();
    const double leaving = node.statedFlow() + node.fuelBeside;
    if (isJudged &&
        differ(node.inflow, leaving, Half * (node.through + std::abs(leaving)), subject.settings.balanceTolerance))
      hits.add({{node.entry}, {node.inflow, leaving, node.fuel}});
  }
}

QString BalanceRules::ofNode(const RuleHit &hit, const RuleTexts &texts) {
  const auto [inflow, leaving, fuel, none] = hit.values;
  Q_UNUSED(none)
  const QString text = NetworkRules::tr("By the results its edges bring %1, but the node takes %2")
                           .arg(texts.flow(inflow), texts.flow(leaving));
  return fuel > 0.0 ? text + NetworkRules::tr(" (its drives burn %1)").arg(texts.flow(fuel)) : text;
}

void BalanceRules::findParts(const RuleSubject &subject, RuleHits &hits) {
  for (const NetworkParts::Part &part : subject.parts.parts) {
    if (part.hasUnknownFlow || !part.hasFlow() || part.isCutOff())
      continue; // an unknown flow balances; what is cut off is told as such
    if (differ(part.supplied, part.taken, std::max(part.supplied, part.taken), subject.settings.balanceTolerance))
      hits.add({RuleHits::entriesOf(subject.facts.nodes(), part.nodes),
                {part.supplied, part.taken, static_cast<double>(part.nodes.size())}});
  }
}

QString BalanceRules::ofPart(const RuleHit &hit, const RuleTexts &texts) {
  const auto [supplied, taken, nodes, none] = hit.values;
  Q_UNUSED(none)
  return NetworkRules::tr("The part of %1 nodes is supplied with %2 and gives %3, %4 is left")
      .arg(RuleTexts::count(nodes), texts.flow(supplied), texts.flow(taken), texts.flow(supplied - taken));
}
