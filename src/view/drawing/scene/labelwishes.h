#pragma once

#include "labels/labelpass.h"

#include <drawing/layerfilter.h>
#include <drawing/layergeometry.h>
#include <drawing/visibilityrules.h>

#include <set>
#include <utility>
#include <vector>

class EdgeLayer;
class NodeLayer;
class SubnetLayer;
class SymbolLayer;
class TextBoxLayer;

/// What of everything that is seen wants a label, and what labels must keep clear of: stations and set points come before
/// pipes, larger flow before smaller.
class LabelWishes {
public:
  struct Drawing {
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

  LabelWishes(const Drawing &drawing, const Projection &projection);

  std::vector<LabelWish> wishes;
  std::vector<QRectF> areas;                    ///< px
  std::vector<std::pair<QLineF, double>> lines; ///< with their widths, px; none where they are too many to keep clear of

private:
  void collectSubnets();
  void collectSymbols();
  void collectNodes();
  void collectPipes();
  void add(NetGeometry::Item item, const QLineF &position, bool isLine, double clearance, int rank, double weight);

  const Drawing &m_drawing;
  const Projection &m_projection;
  std::set<Index> m_nodesWithSymbol;
};
