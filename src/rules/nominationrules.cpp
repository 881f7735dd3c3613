#include "nominationrules.h"

#include <algorithm>
#include <cmath>
namespace {

using Node = NetworkFacts::Node;
using Range = NetworkFacts::Range;
using Edge = NetworkFacts::Edge;

constexpr double Rounding = 1e-6; // of texts, relative

double roundingOf(double value) {
  return Rounding * std::max(1.0, std::abs(value));
}

bool isBelow(double value, double bound) {
  return NetworkFacts::isKnown(bound) && value < bound - roundingOf(bound);
}

bool isAbove(double value, double bound) {
  return NetworkFacts::isKnown(bound) && value > bound + roundingOf(bound);
}

/// A hit where a stated value is outside of a range.
void compare(const Node &node, double value, const Range &range, RuleHits &hits) {
  if (node.isInUse && NetworkFacts::isKnown(value) && (isBelow(value, range.lowest) || isAbove(value, range.highest)))
    hits.add({{node.entry}, {value, range.lowest, range.highest}});
}

void compareFlows(const RuleSubject &subject, Range Node::*range, RuleHits &hits) {
  for (const Node &node : subject.facts.nodes())
    compare(node, node.flow, node.*range, hits);
}

/// "50 to 70 bar", "at least 50 bar", "at most 70 bar".
template <typename Written>
QString rangeText(double lowest, double highest, const Written &written) {
  if (!NetworkFacts::isKnown(lowest))
    return RuleTexts::tr("at most %1").arg(written(highest));
  if (!NetworkFacts::isKnown(highest))
    return RuleTexts::tr("at least %1").arg(written(lowest));
  return RuleTexts::tr("%1 to %2").arg(written(lowest), written(highest));
}

QString flowText(const QString &pattern, const RuleHit &hit, const RuleTexts &texts) {
  const auto written = [&texts](double value) {
    return texts.flow(value);
  };
  return pattern.arg(texts.flow(hit.values[0]), rangeText(hit.values[1], hit.values[2], written));
}

/// What edges in use can take from each node, and bring to it; unknown where one of them has no bound.
struct Reach {
  explicit Reach(const NetworkFacts &facts)
      : taken(facts.nodes().size(), 0.0)
      , brought(facts.nodes().size(), 0.0)
      , ways(facts.nodes().size(), 0) {
    for (const Edge &edge : facts.edges()) {
      if (!edge.isInUse)
        continue;
      const double forward = atLeastNothing(edge.flows.highest);
      const double backward = atLeastNothing(-edge.flows.lowest);
      taken[edge.from] += forward;
      taken[edge.to] += backward;
      brought[edge.to] += forward;
      brought[edge.from] += backward;
      ++ways[edge.from];
      ++ways[edge.to];
    }
  }

  static double atLeastNothing(double flow) { return flow < 0.0 ? 0.0 : flow; } // unknown stays so

  std::vector<double> taken;
  std::vector<double> brought;
  std::vector<Index> ways; ///< edges in use
};

} // namespace

void NominationRules::findContracts(const RuleSubject &subject, RuleHits &hits) {
  compareFlows(subject, &Node::contracted, hits);
}

QString NominationRules::ofContract(const RuleHit &hit, const RuleTexts &texts) {
  return flowText(RuleTexts::tr("The set flow is %1, contracted are %2"), hit, texts);
}

void NominationRules::findBounds(const RuleSubject &subject, RuleHits &hits) {
  compareFlows(subject, &Node::flows, hits);
}

QString NominationRules::ofBounds(const RuleHit &hit, const RuleTexts &texts) {
  return flowText(RuleTexts::tr("The set flow is %1, allowed are %2"), hit, texts);
}

void NominationRules::findCapacities(const RuleSubject &subject, RuleHits &hits) {
  const Reach reach(subject.facts);
  const std::vector<Node> &nodes = subject.facts.nodes();
  for (Index i = 0; i < nodes.size(); ++i) {
    const Node &node = nodes[i];
    if (!node.isInUse || !NetworkFacts::isKnown(node.flow))
      continue;
    const double flow = std::abs(node.flow);
    const double ofEdges = node.flow < 0.0 ? reach.taken[i] : reach.brought[i];
    if (isAbove(flow, node.capacity))
      hits.add({{node.entry}, {node.flow, node.capacity, 0.0}});
    else if (reach.ways[i] > 0 && isAbove(flow, ofEdges)) // without any way it is cut off
      hits.add({{node.entry}, {node.flow, ofEdges, 1.0}});
  }
}

QString NominationRules::ofCapacity(const RuleHit &hit, const RuleTexts &texts) {
  const QString text = hit.values[2] > 0.0 ? RuleTexts::tr("The set flow is %1, the elements at the node can carry %2")
                                           : RuleTexts::tr("The set flow is %1, the connection can carry %2");
  return text.arg(texts.flow(hit.values[0]), texts.flow(hit.values[1]));
}

void NominationRules::findPressures(const RuleSubject &subject, RuleHits &hits) {
  for (const Node &node : subject.facts.nodes())
    compare(node, node.pressure, node.pressures, hits);
}

QString NominationRules::ofPressure(const RuleHit &hit, const RuleTexts &texts) {
  const auto written = [&texts](double value) {
    return texts.pressure(value);
  };
  return RuleTexts::tr("The set pressure is %1, allowed are %2")
      .arg(texts.pressure(hit.values[0]), rangeText(hit.values[1], hit.values[2], written));
}

void NominationRules::findCrossed(const RuleSubject &subject, RuleHits &hits) {
  const auto judge = [&hits](const elements::Entry *entry, const Range &range, double isPressure) {
    if (isAbove(range.lowest, range.highest))
      hits.add({{entry}, {range.lowest, range.highest, isPressure}});
  };
  for (const Node &node : subject.facts.nodes()) {
    judge(node.entry, node.flows, 0.0);
    judge(node.entry, node.contracted, 0.0);
    judge(node.entry, node.pressures, 1.0);
  }
  for (const Edge &edge : subject.facts.edges())
    judge(edge.entry, edge.flows, 0.0);
}

QString NominationRules::ofCrossed(const RuleHit &hit, const RuleTexts &texts) {
  const auto [lowest, highest, isPressure, none] = hit.values;
  Q_UNUSED(none)
  if (isPressure > 0.0)
    return RuleTexts::tr("The lower bound of the pressure is %1, the upper one %2")
        .arg(texts.pressure(lowest), texts.pressure(highest));
  return RuleTexts::tr("The lower bound of the flow is %1, the upper one %2").arg(texts.flow(lowest), texts.flow(highest));
}
