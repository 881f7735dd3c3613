#pragma once

#include <drawing/netgeometry.h>

#include <QRectF>
#include <QStringList>

#include <optional>
#include <vector>

/// The corners of the canvas in which a legend may stand.
namespace LegendPlace {

enum class Corner { TopLeft, BottomLeft, TopRight, BottomRight };

/// As PlotSettings::legendCorner has them, in the order of Corner, and for people.
const QStringList &names();
QString title(Corner corner);
std::optional<Corner> cornerOf(const QString &name);

/// Where a legend of the size stands in the corner of the canvas.
QRectF areaIn(Corner corner, const QSizeF &size, const QRectF &canvas);
/// The corner next to the point.
Corner nearest(const QPointF &point, const QRectF &canvas);
/// The corner in which it covers least of the network while all of this is in view.
/// \param view what is in view then, in plot coordinates \param taken areas of the canvas where something stands already
Corner leastHiding(const QSizeF &size, const QRectF &canvas, const QRectF &view, const NetGeometry &geometry,
                   const std::vector<QRectF> &taken);

} // namespace LegendPlace
