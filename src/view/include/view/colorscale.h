#pragma once

#include <view/colormap.h>
#include <view/drawfunctions.h>
#include <view/plotsettings.h>

#include <qwt_interval.h>
#include <qwt_plot.h>

#include <memory>

/// The scale beside the drawing that tells which colour stands for which value.
namespace ColorScale {

/// The map that the settings describe, logarithmic or linear.
std::unique_ptr<HueColorMap> colorMap(const PlotSettings &settings, bool logarithmic);

/// Shows the edge colour function on the axis that the settings name, in its display unit. Without a valid range, or
/// when the settings name an axis of the drawing itself, no scale is shown.
/// \param range smallest and largest value in the stored unit
void show(QwtPlot &plot, const PlotSettings &settings, const DrawFunction &function, const QwtInterval &range);

} // namespace ColorScale
