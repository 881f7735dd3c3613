#pragma once

#include <vector>

class EdgeLayer;
class NodeLayer;
class SubnetLayer;
class SymbolLayer;

/// Who knows how large the elements are drawn, for what is drawn round them. They have to live as long as this.
struct DrawnSizes {
  const EdgeLayer *edges = nullptr;
  const NodeLayer *nodes = nullptr;
  const SymbolLayer *symbols = nullptr;
  const SubnetLayer *subnets = nullptr;
  const std::vector<float> *edgeWidths = nullptr; ///< px, by edge, where nothing crowds
};
