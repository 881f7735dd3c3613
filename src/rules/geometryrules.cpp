#include "geometryrules.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace {

using Edge = NetworkFacts::Edge;
using Node = NetworkFacts::Node;

} // namespace

void GeometryRules::findLengths(const RuleSubject &subject, RuleHits &hits) {
  for (const Edge &edge : subject.facts.edges()) {
    if (edge.type == 'p' && !(edge.length > 0.0))
      hits.add({{edge.entry}, {edge.length}});
  }
}

QString GeometryRules::ofLength(const RuleHit &hit, const RuleTexts &texts) {
  return NetworkFacts::isKnown(hit.values[0]) ? RuleTexts::tr("The pipe is %1 long").arg(texts.length(hit.values[0]))
                                              : RuleTexts::tr("The length of the pipe is missing");
}

/// A short pipe in a station may be steep: a jump is at least a step that is too high there.
void GeometryRules::findJumps(const RuleSubject &subject, RuleHits &hits) {
  constexpr double MetresPerKilometre = 1000.0;
  const std::vector<Node> &nodes = subject.facts.nodes();
  for (const Edge &edge : subject.facts.edges()) {
    if (edge.from == NoIndex || edge.to == NoIndex)
      continue;
    const double step = std::abs(nodes[edge.to].height - nodes[edge.from].height);
    if (!(step > subject.settings.highestStep))
      continue; // also where a height is missing
    const bool isPipe = edge.length > 0.0;
    if (edge.type == 'p' && !isPipe)
      continue; // told as one without length
    const double slope = isPipe ? step / edge.length * MetresPerKilometre : 0.0;
    if (!isPipe || slope > subject.settings.steepestPipe)
      hits.add({{edge.entry, nodes[edge.from].entry, nodes[edge.to].entry}, {step, isPipe ? edge.length : 0.0, slope}});
  }
}

QString GeometryRules::ofJump(const RuleHit &hit, const RuleTexts &texts) {
  const auto [step, length, slope, none] = hit.values;
  Q_UNUSED(none)
  const QString nodes = RuleTexts::tr("%1 and %2").arg(hit.entries[1]->name(), hit.entries[2]->name());
  if (length > 0.0)
    return RuleTexts::tr("The heights of %1 differ by %2 over %3, %4 m per km")
        .arg(nodes, texts.height(step), texts.length(length), RuleTexts::number(slope));
  return RuleTexts::tr("The heights of %1 differ by %2").arg(nodes, texts.height(step));
}

void GeometryRules::findCrowds(const RuleSubject &subject, RuleHits &hits) {
  const std::vector<Node> &nodes = subject.facts.nodes();
  std::vector<Index> order;
  order.reserve(nodes.size());
  for (Index i = 0; i < nodes.size(); ++i) {
    if (NetworkFacts::isKnown(nodes[i].x) && NetworkFacts::isKnown(nodes[i].y))
      order.push_back(i);
  }
  std::sort(order.begin(), order.end(), [&nodes](Index a, Index b) {
    return std::tie(nodes[a].x, nodes[a].y, a) < std::tie(nodes[b].x, nodes[b].y, b);
  });
  for (auto first = order.begin(); first != order.end();) {
    const Node &at = nodes[*first];
    const auto end =
        std::find_if(first + 1, order.end(), [&](Index other) { return nodes[other].x != at.x || nodes[other].y != at.y; });
    if (end - first >= subject.settings.crowd)
      hits.add({RuleHits::entriesOf(nodes, std::vector<Index>(first, end)), {static_cast<double>(end - first), at.x, at.y}});
    first = end;
  }
}

QString GeometryRules::ofCrowd(const RuleHit &hit, const RuleTexts & /*texts*/) {
  constexpr int Digits = 10; // of coordinates
  return RuleTexts::tr("%1 nodes lie at the point (%2, %3)")
      .arg(RuleTexts::count(hit.values[0]), QString::number(hit.values[1], 'g', Digits),
           QString::number(hit.values[2], 'g', Digits));
}
