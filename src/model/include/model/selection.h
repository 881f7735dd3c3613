#pragma once

#include <QSet>
#include <QString>

/// Names of the elements that a person has picked, by kind. It belongs to a network and may name elements that are gone.
struct Selection {
  using Names = QSet<QString>; ///< in the spelling under which the elements are stored

  Names nodes;
  Names edges;
  Names subnets;
  Names others;

  int size() const { return nodes.size() + edges.size() + subnets.size() + others.size(); }
  bool isEmpty() const { return size() == 0; }
  void clear() { *this = Selection(); }
  /// All of them, in no particular order.
  Names names() const { return Names(nodes).unite(edges).unite(subnets).unite(others); }

  friend bool operator==(const Selection &a, const Selection &b) {
    return a.nodes == b.nodes && a.edges == b.edges && a.subnets == b.subnets && a.others == b.others;
  }
  friend bool operator!=(const Selection &a, const Selection &b) { return !(a == b); }
};
