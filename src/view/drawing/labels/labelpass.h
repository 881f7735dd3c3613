#pragma once

#include <drawing/labelcontents.h>
#include <drawing/labellayer.h>
#include <drawing/layerfilter.h>
#include <drawing/netgeometry.h>
#include <drawing/visibilityrules.h>
#include <set>

class EdgeLayer;
class NodeLayer;
class SubnetLayer;
class SymbolLayer;
class TextBoxLayer;

/// One placement of the labels of everything that is seen: stations and set points come before pipes, larger flow before
/// smaller, and a label that stood somewhere stays there while the scale is the same.
class LabelPass {
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
  struct Result {
    std::vector<Label> labels;
    std::vector<NetGeometry::Item> unplaced; ///< what found no place
  };

  LabelPass(const Drawing &drawing, const LabelContents &contents, const Projection &projection, double margin);

  /// \param before the labels that stand, empty when the scale is another
  Result run(const std::vector<Label> &before);
  /// The corner of a legend and the like, px.
  void addObstacle(const QRectF &area) { m_placement.addObstacle(area); }

private:
  struct Wish {
    LabelCandidate candidate;
    QLineF place; ///< plot coordinates
    int rank = 0; ///< lower is more important
    double weight = 0.0;
  };

  void collect();
  void collectSubnets();
  void collectSymbols();
  void collectNodes();
  void collectPipes();
  void add(NetGeometry::Item item, const QLineF &place, bool isLine, double clearance, int rank, double weight);
  bool makeLabel(Wish &wish, Label &label, LabelText &text) const;
  static void layOut(Label &label, const LabelText &text);

  const Drawing &m_drawing;
  const LabelContents &m_contents;
  const Projection &m_projection;
  LabelPlacement m_placement;
  std::vector<Wish> m_wishes;
  std::set<int> m_nodesWithSymbol;
};
