#pragma once

#include "scene/drawnscene.h"

#include <drawing/layergeometry.h>
#include <drawing/legendcontents.h>

/// Which symbols and shapes of nodes a view shows.
namespace DrawnSymbols {

/// Each once, the more important first. A type of which only what is out of use is drawn comes with the symbol of that.
std::vector<LegendContents::Symbol> of(const DrawnScene &scene, const Projection &projection);

} // namespace DrawnSymbols
