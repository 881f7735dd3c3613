#include "balancerules.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <vector>

namespace {

constexpr double SmallestFlow = 1e-3; // 1000 m3/h; files round

/// Whether two flows differ by more than the share of what flows.
bool differ(double a, double b, double flowing, double share) {
  return std::abs(a - b) > std::max(share * flowing, SmallestFlow);
}

struct Judged {
  Index node;
  double leaving;
  bool fits;
  bool isReversed;
};

/// Where the pressure is held, or nobody states the flow, the node takes what is left.
std::vector<Judged> judged(const RuleSubject &subject) {
  constexpr double Half = 0.5; // what flows through comes and goes
  const std::vector<NetworkFacts::Node> &nodes = subject.facts.nodes();
  std::vector<Judged> all;
  for (Index i = 0; i < nodes.size(); ++i) {
    const NetworkFacts::Node &node = nodes[i];
    if (!node.isInUse || !NetworkFacts::isKnown(node.inflow) || !(node.through > 0.0) || node.holdsPressure() ||
        node.isFlowUnknown())
      continue;
    const double leaving = node.statedFlow() + node.fuelBeside;
    const double flowing = Half * (node.through + std::abs(leaving));
    const double share = subject.settings.balanceTolerance;
    all.push_back(
        {i, leaving, !differ(node.inflow, leaving, flowing, share), !differ(node.inflow, -leaving, flowing, share)});
  }
  return all;
}

/// Whether all that states a flow has it the other way: then it is one fault.
bool areReversed(const std::vector<Judged> &all) {
  std::size_t reversed = 0;
  for (const Judged &one : all) {
    const bool states = std::abs(one.leaving) > SmallestFlow;
    if (one.fits ? states : !one.isReversed)
      return false;
    reversed += one.fits ? 0 : 1;
  }
  return reversed > 1;
}

} // namespace

void BalanceRules::findNodes(const RuleSubject &subject, RuleHits &hits) {
  std::vector<Judged> all = judged(subject);
  const bool isOneFault = areReversed(all);
  all.erase(std::remove_if(all.begin(), all.end(), [](const Judged &one) { return one.fits; }), all.end());
  if (isOneFault) {
    std::vector<Index> nodes;
    nodes.reserve(all.size());
    std::transform(all.begin(), all.end(), std::back_inserter(nodes), [](const Judged &one) { return one.node; });
    hits.add({RuleHits::entriesOf(subject.facts.nodes(), nodes), {0.0, 0.0, 0.0, static_cast<double>(nodes.size())}});
    return;
  }
  for (const Judged &one : all) {
    const NetworkFacts::Node &node = subject.facts.nodes()[one.node];
    hits.add({{node.entry}, {node.inflow, one.leaving, node.fuel}});
  }
}

QString BalanceRules::ofNode(const RuleHit &hit, const RuleTexts &texts) {
  const auto [inflow, leaving, fuel, reversed] = hit.values;
  if (reversed > 0.0)
    return RuleTexts::tr("At all %1 nodes that state a flow the results flow the other way").arg(RuleTexts::count(reversed));
  const QString text =
      RuleTexts::tr("By the results its edges bring %1, but the node takes %2").arg(texts.flow(inflow), texts.flow(leaving));
  return fuel > 0.0 ? text + RuleTexts::tr(" (its drives burn %1)").arg(texts.flow(fuel)) : text;
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
  return RuleTexts::tr("The part of %1 nodes is supplied with %2 and gives %3, %4 is left")
      .arg(RuleTexts::count(nodes), texts.flow(supplied), texts.flow(taken), texts.flow(supplied - taken));
}
