#pragma once

#include <QCoreApplication>
#include <QStringList>

#include <rules/networkfacts.h>
#include <vector>

/// Which group each node of a network belongs to.
struct Grouping {
  Q_DECLARE_TR_FUNCTIONS(Grouping)
public:
  QStringList names;
  std::vector<Index> of; ///< by node

  /// All in one.
  static Grouping whole(const NetworkFacts &facts);
  /// By the text of a property, regardless of case; nodes without it come last, in a group of their own.
  static Grouping byProperty(const NetworkFacts &facts, PropertyKey property);
  /// By connected part, the largest first; those of a single node without any flow in one group.
  static Grouping byPart(const NetworkFacts &facts);
};
