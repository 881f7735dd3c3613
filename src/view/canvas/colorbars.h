#pragma once

#include <drawing/colorscale.h>

#include <qwt_plot.h>

/// The colour scales beside the drawing.
namespace ColorBars {

/// Shows the scale of the edge colours on the axis of the settings, in the display unit, and names the other colours. Nodes
/// have a scale of their own on the other axis unless they share it. What has no values has no scale.
void show(QwtPlot &plot, const PlotSettings &settings, const DrawValues &values, ColorScale::Subject subject,
          const std::vector<ColorScale::Swatch> &swatches);

} // namespace ColorBars
