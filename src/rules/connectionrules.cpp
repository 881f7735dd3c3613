#include "connectionrules.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <tuple>

namespace {

using Edge = NetworkFacts::Edge;
using Part = NetworkParts::Part;

/// A pipe whose ends do not tell their order.
struct Lying {
  Index pipe;
  Index first;
  Index second;
  double length;
  double diameter;
};

bool isLess(const Lying &a, const Lying &b) {
  return std::tie(a.first, a.second, a.length, a.diameter, a.pipe) <
         std::tie(b.first, b.second, b.length, b.diameter, b.pipe);
}

bool isSame(double a, double b) {
  constexpr double Rounding = 1e-6; // of texts, relative
  return std::abs(a - b) <= Rounding * std::max(std::abs(a), std::abs(b));
}

bool isSame(const Lying &a, const Lying &b) {
  return a.first == b.first && a.second == b.second && isSame(a.length, b.length) && isSame(a.diameter, b.diameter);
}

std::vector<Lying> pipesOf(const NetworkFacts &facts) {
  std::vector<Lying> pipes;
  pipes.reserve(facts.edges().size());
  for (Index i = 0; i < facts.edges().size(); ++i) {
    const Edge &edge = facts.edges()[i];
    if (edge.type == 'p' && edge.length > 0.0 && edge.diameter > 0.0 && edge.from != NoIndex && edge.to != NoIndex)
      pipes.push_back({i, std::min(edge.from, edge.to), std::max(edge.from, edge.to), edge.length, edge.diameter});
  }
  return pipes;
}

RuleHit hitOf(const RuleSubject &subject, const Part &part) {
  return {RuleHits::entriesOf(subject.facts.nodes(), part.nodes), {static_cast<double>(part.nodes.size()), part.taken}};
}

} // namespace

void ConnectionRules::findCutOff(const RuleSubject &subject, RuleHits &hits) {
  for (const Part &part : subject.parts.parts) {
    const bool isInUse =
        std::any_of(part.nodes.begin(), part.nodes.end(), [&](Index node) { return subject.facts.nodes()[node].isInUse; });
    if (!part.isCutOff() || !isInUse)
      continue;
    RuleHit hit = hitOf(subject, part);
    hit.isMinor = !part.hasFlow(); // switched off, as it may be
    hits.add(std::move(hit));
  }
}

QString ConnectionRules::ofCutOff(const RuleHit &hit, const RuleTexts &texts) {
  const auto [nodes, taken, none, neither] = hit.values;
  Q_UNUSED(none)
  Q_UNUSED(neither)
  const QString text =
      nodes > 1.0
          ? RuleTexts::tr("%1 nodes are cut off from every source and every set pressure").arg(RuleTexts::count(nodes))
          : RuleTexts::tr("The node is cut off from every source and every set pressure");
  return taken > 0.0 ? text + RuleTexts::tr(", %1 is to be taken there").arg(texts.flow(taken)) : text;
}

void ConnectionRules::findWithoutPressure(const RuleSubject &subject, RuleHits &hits) {
  if (!subject.facts.isNominated())
    return; // there is no scenario
  for (const Part &part : subject.parts.parts) {
    if (!part.hasPressure && !part.isCutOff() && (part.hasFlow() || part.nodes.size() > 1)) {
      RuleHit hit = hitOf(subject, part);
      hit.isMinor = !part.hasFlow();
      hits.add(std::move(hit));
    }
  }
}

QString ConnectionRules::ofWithoutPressure(const RuleHit &hit, const RuleTexts & /*texts*/) {
  return hit.values[0] > 1.0
             ? RuleTexts::tr("No pressure is set in the part of %1 nodes").arg(RuleTexts::count(hit.values[0]))
             : RuleTexts::tr("No pressure is set at the node, which nothing joins to others");
}

void ConnectionRules::findDuplicates(const RuleSubject &subject, RuleHits &hits) {
  std::vector<Lying> pipes = pipesOf(subject.facts);
  std::sort(pipes.begin(), pipes.end(), isLess);
  for (auto first = pipes.begin(); first != pipes.end();) {
    const auto end = std::find_if(first + 1, pipes.end(), [first](const Lying &other) { return !isSame(*first, other); });
    if (end - first > 1) {
      std::vector<Index> alike;
      alike.reserve(static_cast<std::size_t>(end - first));
      std::transform(first, end, std::back_inserter(alike), [](const Lying &pipe) { return pipe.pipe; });
      hits.add({RuleHits::entriesOf(subject.facts.edges(), alike),
                {static_cast<double>(end - first), first->length, first->diameter}});
    }
    first = end;
  }
}

QString ConnectionRules::ofDuplicates(const RuleHit &hit, const RuleTexts &texts) {
  const auto [pipes, length, diameter, none] = hit.values;
  Q_UNUSED(none)
  QStringList others;
  constexpr std::size_t MostNames = 4;
  for (std::size_t i = 1; i < std::min(hit.entries.size(), MostNames); ++i)
    others.append(hit.entries[i]->name());
  return RuleTexts::tr("%1 pipes of %2 and %3 lie between the same nodes, also %4")
      .arg(RuleTexts::count(pipes), texts.length(length), texts.diameter(diameter), others.join(QStringLiteral(", ")));
}
