#pragma once

#include <drawing/layerfilter.h>
#include <drawing/netgeometry.h>
#include <drawing/visibilityrules.h>

#include <vector>

class EdgeLayer;
class NodeLayer;
class SubnetLayer;
class SymbolLayer;
class TextBoxLayer;

/// What is drawn of a network, for who goes through what a view shows; nothing of it is owned.
struct DrawnScene {
  const NetGeometry &geometry;
  const EdgeLayer &edges;
  const NodeLayer &nodes;
  const SymbolLayer &symbols;
  const SubnetLayer &subnets;
  const TextBoxLayer &textBoxes;
  const VisibilityRules &visibility;
  const LayerFilter &layers;
  const std::vector<double> &flow; ///< of edges; NetData::NoValue is less than any
};
