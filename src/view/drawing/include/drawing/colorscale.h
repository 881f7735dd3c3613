#pragma once

#include <drawing/colormap.h>
#include <drawing/drawvalues.h>
#include <drawing/plotsettings.h>

#include <QColor>
#include <QString>
#include <qwt_color_map.h>

#include <memory>

/// The colours of the draw functions, and what the legend says of them.
namespace ColorScale {

/// A colour that says something else than a value.
struct Swatch {
  QRgb color = 0;
  QString text;
};

/// What is in colour now.
enum class Subject { Edges, EdgesAndNodes, SearchResults };

/// Whether what is drawn on the ground has to be light.
bool isDark(const QColor &ground);

/// Breaks between the classes of edge colours, in the stored unit; empty for a smooth scale.
std::vector<double> breaksOf(const PlotSettings &settings, const DrawValues::Column &values);

/// The map of the settings: linear, or bent by logFactor.
std::unique_ptr<HueColorMap> colorMap(const PlotSettings &settings, Aspect aspect);

/// What edges are coloured with: classes where the settings ask for some, else a smooth scale with end caps.
std::unique_ptr<QwtColorMap> edgeColors(const PlotSettings &settings, const DrawValues::Column &values);
/// What nodes are coloured with: as edges when they share their scale.
std::unique_ptr<QwtColorMap> nodeColors(const PlotSettings &settings, const DrawValues &values);
/// A colour means the same of an edge and of a node.
bool isShared(const PlotSettings &settings, const DrawValues &values);

/// What the legend says of the functions of edges. Of a network those are left out that nothing in it has a value of; a
/// function that is not there would promise what nobody sees. \param values null while no network is shown
QString legendText(const PlotSettings &settings, const DrawValues *values, Subject subject);

} // namespace ColorScale
