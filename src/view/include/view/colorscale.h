#pragma once

#include <view/colormap.h>
#include <view/drawfunctions.h>
#include <view/drawvalues.h>
#include <view/plotsettings.h>

#include <qwt_plot.h>

#include <memory>

/// The colour scale beside the drawing, and the maps that belong to it.
namespace ColorScale {

/// A colour that says something else than a value.
struct Swatch {
  QRgb color = 0;
  QString text;
};

/// The map of the settings: linear, or bent by logFactor.
std::unique_ptr<HueColorMap> colorMap(const PlotSettings &settings, bool logarithmic);

/// What edges are coloured with: classes where the settings ask for some, else a smooth scale with end caps.
std::unique_ptr<QwtColorMap> edgeColors(const PlotSettings &settings, const DrawFunction &function,
                                        const DrawValues::Column &values);
/// What nodes are coloured with: as edges when they show the same function.
std::unique_ptr<QwtColorMap> nodeColors(const PlotSettings &settings, const DrawFunction &function,
                                        const DrawValues &values);

/// Shows the scale of the edge colours on the axis of the settings, in the display unit, and names the other colours;
/// hides it without a range.
void show(QwtPlot &plot, const PlotSettings &settings, const DrawFunction &function, const DrawValues::Column &values,
          const std::vector<Swatch> &swatches);

} // namespace ColorScale
