#include "interaction/elementzoom.h"

#include <base/settings.h>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

constexpr double Half = 0.5;

/// Around the middles of the items and the ends of lines.
std::optional<QRectF> areaOf(const NetGeometry &geometry, const std::vector<NetGeometry::Item> &items) {
  std::optional<QRectF> area;
  const auto add = [&area](const QPointF &point) {
    if (!area)
      area = QRectF(point, QSizeF(0.0, 0.0));
    area->setLeft(std::min(area->left(), point.x()));
    area->setRight(std::max(area->right(), point.x()));
    area->setTop(std::min(area->top(), point.y()));
    area->setBottom(std::max(area->bottom(), point.y()));
  };
  for (const NetGeometry::Item item : items) {
    const std::optional<QPointF> center = geometry.center(item);
    if (!center)
      continue;
    add(*center);
    if (item.kind != NetData::Edge)
      continue;
    const QLineF line = geometry.line(geometry.edges()[item.index]);
    add(line.p1());
    add(line.p2());
  }
  return area;
}

void show(PlotZoom &zoom, const QPointF &center, const QSizeF &size) {
  const QSizeF within = size.boundedTo(zoom.zoomBase().size());
  zoom.zoom(QRectF(center - QPointF(within.width(), within.height()) * Half, within));
}

} // namespace

bool ElementZoom::to(PlotZoom &zoom, const NetGeometry &geometry, NetGeometry::Item item) {
  const std::optional<QPointF> center = geometry.center(item);
  if (!center)
    return false;
  constexpr double SmallestFactor = 1.0;
  constexpr double LargestFactor = 1000.0;
  QSizeF size = zoom.limits().smallest;
  if (item.kind == NetData::Edge) {
    const QLineF line = geometry.line(geometry.edges()[item.index]);
    size = size.expandedTo({std::abs(line.dx()), std::abs(line.dy())});
  }
  show(zoom, *center, size * qBound(SmallestFactor, double(Settings::ZoomToElementFactor.value()), LargestFactor));
  return true;
}

bool ElementZoom::to(PlotZoom &zoom, const NetGeometry &geometry, const std::vector<NetGeometry::Item> &items) {
  if (items.size() == 1)
    return to(zoom, geometry, items.front());
  const std::optional<QRectF> area = areaOf(geometry, items);
  if (!area)
    return false;
  constexpr double Room = 1.2;
  show(zoom, area->center(), (area->size() * Room).expandedTo(zoom.limits().smallest));
  return true;
}
