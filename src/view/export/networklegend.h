#pragma once

#include "export/pagedrawing.h"

#include <paper/pagecontent.h>

/// The legend of a page of a network: that of the canvas, in parts that find their places on the paper.
namespace NetworkLegend {

/// For the drawing as it is, which must outlive them.
std::vector<PaperLegendPart> blocks(const PageDrawing &drawing);

} // namespace NetworkLegend
