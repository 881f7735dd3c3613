#pragma once

#include <drawing/netgeometry.h>

#include <functional>
#include <vector>

class EdgeLayer;
class NodeLayer;
class SubnetLayer;
class SymbolLayer;
class TextBoxLayer;

/// Who knows how large the elements are drawn, for what is drawn round them. They have to live as long as this.
struct DrawnSizes {
  const EdgeLayer *edges = nullptr;
  const NodeLayer *nodes = nullptr;
  const SymbolLayer *symbols = nullptr;
  const SubnetLayer *subnets = nullptr;
  const TextBoxLayer *textBoxes = nullptr;
  const std::vector<float> *edgeWidths = nullptr; ///< px, by edge, where nothing crowds
  /// How far the casing of an element reaches beyond it where lines are so much narrower than usual, px.
  std::function<double(NetGeometry::Item item, double widthFactor)> casing{};
};
