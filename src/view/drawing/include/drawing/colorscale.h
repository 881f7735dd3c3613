#pragma once

#include <qwt_plot.h>

#include <drawing/colormap.h>
#include <drawing/drawvalues.h>
#include <drawing/plotsettings.h>
#include <memory>

/// The colour scales beside the drawing, and the maps that belong to them.
namespace ColorScale {

/// A colour that says something else than a value.
struct Swatch {
  QRgb color = 0;
  QString text;
};

/// What is in colour now.
enum class Subject { Edges, EdgesAndNodes, SearchResults };

/// The map of the settings: linear, or bent by logFactor.
std::unique_ptr<HueColorMap> colorMap(const PlotSettings &settings, bool logarithmic);

/// What edges are coloured with: classes where the settings ask for some, else a smooth scale with end caps.
std::unique_ptr<QwtColorMap> edgeColors(const PlotSettings &settings, const DrawValues::Column &values);
/// What nodes are coloured with: as edges when they share their scale.
std::unique_ptr<QwtColorMap> nodeColors(const PlotSettings &settings, const DrawValues &values);
/// A colour means the same of an edge and of a node.
bool isShared(const PlotSettings &settings, const DrawValues &values);

/// Shows the scale of the edge colours on the axis of the settings, in the display unit, and names the other colours. Nodes
/// have a scale of their own on the other axis unless they share it. What has no values has no scale.
void show(QwtPlot &plot, const PlotSettings &settings, const DrawValues &values, Subject subject,
          const std::vector<Swatch> &swatches);

/// What the legend says of the functions of edges. Of a network those are left out that nothing in it has a value of; a
/// function that is not there would promise what nobody sees. \param values null while no network is shown
QString legendText(const PlotSettings &settings, const DrawValues *values, Subject subject);

} // namespace ColorScale
