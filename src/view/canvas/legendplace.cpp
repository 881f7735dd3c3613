#include "canvas/legendplace.h"

#include <drawing/layergeometry.h>

#include <QCoreApplication>
#include <qwt_scale_map.h>

#include <array>

namespace {

using LegendPlace::Corner;

constexpr double Inset = 10.0; // px, from the sides of the canvas

/// The whole of the view on the whole of the canvas.
Projection projectionOf(const QRectF &view, const QRectF &canvas) {
  QwtScaleMap x;
  x.setScaleInterval(view.left(), view.right());
  x.setPaintInterval(canvas.left(), canvas.right());
  QwtScaleMap y;
  y.setScaleInterval(view.top(), view.bottom()); // plot coordinates grow upwards
  y.setPaintInterval(canvas.bottom(), canvas.top());
  return {x, y, canvas};
}

/// How much of the network the area covers, in pixels of lines. A sample of a large network tells as much.
double hiddenBy(const QRectF &area, const Projection &projection, const NetGeometry &geometry) {
  constexpr std::size_t Sample = 20000;
  constexpr double OfNode = 6.0; // px of a line that count as much
  constexpr double OfStation = 20.0;
  double hidden = 0.0;
  for (std::size_t i = 0, step = geometry.edges().size() / Sample + 1; i < geometry.edges().size(); i += step) {
    const NetGeometry::Edge &edge = geometry.edges()[i];
    QLineF line = geometry.isPlaced(edge) ? projection.map(geometry.line(edge)) : QLineF();
    if (!geometry.isPlaced(edge) || !clipLine(line, area))
      continue;
    hidden += line.length() + (edge.type == 'p' ? 0.0 : OfStation);
  }
  for (std::size_t i = 0, step = geometry.nodes().size() / Sample + 1; i < geometry.nodes().size(); i += step) {
    const NetGeometry::Node &node = geometry.nodes()[i];
    if (node.isPlaced && area.contains(projection.map(node.x, node.y)))
      hidden += OfNode;
  }
  for (const std::vector<NetGeometry::PointElement> *points : {&geometry.textBoxes(), &geometry.subnets()}) {
    for (const NetGeometry::PointElement &point : *points) {
      if (area.contains(projection.map(point.x, point.y)))
        hidden += OfStation;
    }
  }
  return hidden;
}

} // namespace

const QStringList &LegendPlace::names() {
  static const QStringList known{QStringLiteral("top left"), QStringLiteral("bottom left"), QStringLiteral("top right"),
                                 QStringLiteral("bottom right")};
  return known;
}

QString LegendPlace::title(Corner corner) {
  constexpr std::array<const char *, 4> Titles{
      QT_TRANSLATE_NOOP("LegendPlace", "upper left corner"), QT_TRANSLATE_NOOP("LegendPlace", "lower left corner"),
      QT_TRANSLATE_NOOP("LegendPlace", "upper right corner"), QT_TRANSLATE_NOOP("LegendPlace", "lower right corner")};
  return QCoreApplication::translate("LegendPlace", Titles[static_cast<std::size_t>(corner)]);
}

std::optional<Corner> LegendPlace::cornerOf(const QString &name) {
  const int index = names().indexOf(name);
  return index < 0 ? std::nullopt : std::make_optional(static_cast<Corner>(index));
}

QRectF LegendPlace::areaIn(Corner corner, const QSizeF &size, const QRectF &canvas) {
  const bool isRight = corner == Corner::TopRight || corner == Corner::BottomRight;
  const bool isTop = corner == Corner::TopLeft || corner == Corner::TopRight;
  return {{isRight ? canvas.right() - Inset - size.width() : canvas.left() + Inset,
           isTop ? canvas.top() + Inset : canvas.bottom() - Inset - size.height()},
          size};
}

Corner LegendPlace::nearest(const QPointF &point, const QRectF &canvas) {
  const bool isTop = point.y() < canvas.center().y();
  if (point.x() < canvas.center().x())
    return isTop ? Corner::TopLeft : Corner::BottomLeft;
  return isTop ? Corner::TopRight : Corner::BottomRight;
}

Corner LegendPlace::leastHiding(const QSizeF &size, const QRectF &canvas, const QRectF &view, const NetGeometry &geometry,
                                const std::vector<QRectF> &taken) {
  constexpr double OfTaken = 1e9; // nothing of the network counts as much
  const Projection projection = projectionOf(view, canvas);
  Corner best = Corner::BottomLeft;
  double least = -1.0;
  for (const Corner corner : {Corner::BottomLeft, Corner::BottomRight, Corner::TopRight, Corner::TopLeft}) {
    const QRectF area = areaIn(corner, size, canvas);
    double hidden = projection.isValid() ? hiddenBy(area, projection, geometry) : 0.0;
    for (const QRectF &other : taken)
      hidden += area.intersects(other) ? OfTaken : 0.0;
    if (least < 0.0 || hidden < least) {
      least = hidden;
      best = corner;
    }
  }
  return best;
}
