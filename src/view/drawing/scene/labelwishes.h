#pragma once

#include "labels/labelpass.h"
#include "scene/drawnscene.h"

#include <drawing/layergeometry.h>

#include <set>
#include <utility>
#include <vector>

/// What of everything that is seen wants a label, and what labels must keep clear of: stations and set points come before
/// pipes, larger flow before smaller.
class LabelWishes {
public:
  LabelWishes(const DrawnScene &drawing, const Projection &projection);

  std::vector<LabelWish> wishes;
  std::vector<QRectF> areas;                    ///< px
  std::vector<std::pair<QLineF, double>> lines; ///< with their widths, px; none where they are too many to keep clear of

private:
  void collectSubnets();
  void collectSymbols();
  void collectNodes();
  void collectPipes();
  void add(NetGeometry::Item item, const QLineF &position, bool isLine, double clearance, int rank, double weight);

  const DrawnScene &m_drawing;
  const Projection &m_projection;
  std::set<Index> m_nodesWithSymbol;
};
