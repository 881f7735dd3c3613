#pragma once

#include <model/elements.h>

#include <vector>

/// How the way between two nodes is chosen.
struct PathChoice {
  enum class Way {
    AlongFlow,     ///< where the gas goes, over the shortest length
    Shortest,      ///< by length, whichever way the gas goes
    FewestElements ///< whichever way the gas goes
  };

  Way way = Way::AlongFlow;
  bool passesClosed = false; ///< also through what is closed or out of use; never along the flow, as none is there

  friend bool operator==(const PathChoice &a, const PathChoice &b) {
    return a.way == b.way && a.passesClosed == b.passesClosed;
  }
};

/// A way through a network: nodes, and the edges between one and the next. It points into the network.
struct NetworkPath {
  struct Step {
    const elements::Entry *edge = nullptr;
    const elements::Entry *node = nullptr; ///< behind the edge
    double length = 0.0;                   ///< km
    bool isForward = true;                 ///< from node1 to node2
  };

  const elements::Entry *start = nullptr; ///< null for no path
  std::vector<Step> steps;

  bool isEmpty() const { return start == nullptr; }
};
