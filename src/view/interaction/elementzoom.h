#pragma once

#include "interaction/plotzoom.h"

#include <drawing/netgeometry.h>

#include <vector>

/// Views of single elements.
namespace ElementZoom {

/// Brings the element into the middle, as large as the general setting "zoom to element: factor" allows. False when it is
/// not drawn.
bool to(PlotZoom &zoom, const NetGeometry &geometry, NetGeometry::Item item);
/// The same for one item; otherwise fits the view to the items, with some room around. False when none of them is drawn.
bool to(PlotZoom &zoom, const NetGeometry &geometry, const std::vector<NetGeometry::Item> &items);

} // namespace ElementZoom
