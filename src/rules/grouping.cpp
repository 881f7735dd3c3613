#include "networkparts.h"

#include <QHash>

#include <algorithm>
#include <numeric>
#include <rules/grouping.h>

namespace {

/// Groups in the order of their names, the one without a name last.
void sortGroups(Grouping &grouping, Index nameless) {
  std::vector<Index> order(static_cast<std::size_t>(grouping.names.size()));
  std::iota(order.begin(), order.end(), Index(0));
  std::sort(order.begin(), order.end(), [&](Index a, Index b) {
    if ((a == nameless) != (b == nameless))
      return b == nameless;
    return grouping.names.at(toQt(a)).compare(grouping.names.at(toQt(b)), Qt::CaseInsensitive) < 0;
  });
  std::vector<Index> rank(order.size());
  QStringList names;
  for (Index i = 0; i < order.size(); ++i) {
    rank[order[i]] = i;
    names.append(grouping.names.at(toQt(order[i])));
  }
  grouping.names = names;
  for (Index &group : grouping.of)
    group = rank[group];
}

} // namespace

Grouping Grouping::whole(const NetworkFacts &facts) {
  return {{tr("Whole network")}, std::vector<Index>(facts.nodes().size(), 0)};
}

Grouping Grouping::byProperty(const NetworkFacts &facts, PropertyKey property) {
  Grouping grouping;
  QHash<QString, Index> known;
  Index nameless = NoIndex;
  grouping.of.reserve(facts.nodes().size());
  for (const NetworkFacts::Node &node : facts.nodes()) {
    const QString text = node.entry->value.value(property);
    const auto found = known.constFind(text.toCaseFolded());
    if (found != known.constEnd()) {
      grouping.of.push_back(*found);
      continue;
    }
    const Index group = toIndex(static_cast<std::size_t>(grouping.names.size()));
    known.insert(text.toCaseFolded(), group);
    grouping.names.append(text.isEmpty() ? tr("(none)") : text);
    nameless = text.isEmpty() ? group : nameless;
    grouping.of.push_back(group);
  }
  sortGroups(grouping, nameless);
  return grouping;
}

Grouping Grouping::byPart(const NetworkFacts &facts) {
  const NetworkParts parts(facts);
  Grouping grouping;
  std::vector<Index> groupOf;
  groupOf.reserve(parts.parts.size());
  Index single = NoIndex;
  for (const NetworkParts::Part &part : parts.parts) {
    const bool isSingle = part.nodes.size() == 1 && !part.hasFlow() && !part.hasUnknownFlow;
    if (isSingle && single != NoIndex) {
      groupOf.push_back(single);
      continue;
    }
    groupOf.push_back(toIndex(static_cast<std::size_t>(grouping.names.size())));
    single = isSingle ? groupOf.back() : single;
    grouping.names.append(isSingle ? tr("Single nodes") : tr("Part %1").arg(grouping.names.size() + 1));
  }
  grouping.of.reserve(parts.partOf.size());
  for (const Index part : parts.partOf)
    grouping.of.push_back(groupOf[part]);
  return grouping;
}
