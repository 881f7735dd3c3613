#pragma once

#include <drawing/legendpicture.h>
#include <drawing/occupancygrid.h>

#include <QRectF>
#include <QStringList>

#include <array>
#include <optional>

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

/// Where a legend stands and how much it says.
struct Place {
  Corner corner = Corner::BottomLeft;
  LegendPicture::Brevity brevity = LegendPicture::Brevity::Whole;
};

/// What a legend may cover.
struct Surroundings {
  QRectF canvas;
  const OccupancyGrid &drawn;
  QRectF taken; ///< of the canvas, where something stands already; empty for nowhere
};

using Sizes = std::array<QSizeF, LegendPicture::Brevities>; ///< by brevity; empty where a legend finds no room

/// Where it covers least of what is drawn: says all where a corner is free for that, otherwise as much as one is free for,
/// and where none is, what covers little for what it says. It stays where it stood before unless it would cover far less in
/// another corner.
Place leastHiding(const Sizes &sizes, const Surroundings &around, const std::optional<Place> &before);

} // namespace LegendPlace
