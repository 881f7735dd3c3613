#pragma once

#include "scene/drawnscene.h"

#include <drawing/layergeometry.h>
#include <drawing/occupancygrid.h>

/// Which parts of the canvas hold something of the drawing.
namespace DrawnPlaces {

/// Lines as broad as they are drawn, nodes, symbols, boxes and texts. Of very many lines a sample is as good.
OccupancyGrid of(const DrawnScene &scene, const Projection &projection);

} // namespace DrawnPlaces
