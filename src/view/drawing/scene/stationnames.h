#pragma once

#include "labels/labelpass.h"
#include "scene/drawnscene.h"

#include <drawing/layergeometry.h>

#include <utility>
#include <vector>

/// What is named from afar, before there is room for labels: subnets, compressors, who supplies and who takes the most. Only
/// what is drawn itself is named.
class StationNames {
public:
  StationNames(const DrawnScene &drawing, const Projection &projection);

  std::vector<LabelWish> wishes; ///< as many as leave the drawing its room
  std::vector<QRectF> areas;     ///< px, that they keep clear of, as of the lines
  std::vector<std::pair<QLineF, double>> lines;

private:
  void collectSubnets();
  void collectSymbols();
  void collectNodes();
  void collectLines();
  void keepTheMostImportant();
  void add(NetGeometry::Item item, double clearance, int rank, double weight, const QString &name);
  /// Compressors of one station have names that begin alike.
  QString nameOf(Index symbol, NetGeometry::Item item) const;

  const DrawnScene &m_drawing;
  const Projection &m_projection;
};
