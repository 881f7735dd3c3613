#pragma once

#include <rules/networkfacts.h>
#include <vector>

/// The parts of a network that hang together by elements in use, the largest first.
struct NetworkParts {
  struct Part {
    std::vector<Index> nodes; ///< in name order
    double supplied = 0.0;    ///< stated, positive
    double taken = 0.0;       ///< stated, with the fuel beside it
    bool hasSource = false;
    bool hasUnknownFlow = false;
    bool hasPressure = false; ///< that a node, or a machine or regulator in use, holds

    bool hasFlow() const { return supplied > 0.0 || taken > 0.0; }
    bool isCutOff() const { return !hasSource && !hasPressure; }
  };

  explicit NetworkParts(const NetworkFacts &facts);

  std::vector<Part> parts;
  std::vector<Index> partOf; ///< by node
};
