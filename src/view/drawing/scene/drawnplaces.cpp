#include "scene/drawnplaces.h"

#include <drawing/edgelayer.h>
#include <drawing/nodelayer.h>
#include <drawing/subnetlayer.h>
#include <drawing/symbollayer.h>
#include <drawing/textboxlayer.h>

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

TurnedBox boxOf(const QRectF &area) {
  return {area.center(), area.size(), 0.0};
}

TurnedBox boxOf(const QLineF &line, double width) {
  constexpr double Dot = 2.0; // px: the direction of what is no longer tells nothing
  const double length = line.length();
  if (length <= Dot)
    return {line.center(), {std::max(length, width), std::max(length, width)}, 0.0};
  return {line.center(), {length, width}, qRadiansToDegrees(std::atan2(line.dy(), line.dx()))};
}

} // namespace

OccupancyGrid DrawnPlaces::of(const DrawnScene &scene, const Projection &projection) {
  constexpr std::size_t Sample = 200000;
  OccupancyGrid places(projection.canvas());
  const double widthFactor = scene.edges.widthFactor(projection);
  const std::size_t step = scene.geometry.edges().size() / Sample + 1;
  std::size_t count = 0;
  scene.edges.forEachVisible(projection, [&](Index, QLineF line, double width) {
    if (count++ % step == 0 && clipLine(line, projection.canvas()))
      places.take(boxOf(line, std::max(1.0, width * widthFactor)));
  });
  count = 0;
  scene.nodes.forEachVisible(projection, [&](Index, const QPointF &center, double size) {
    if (count++ % step == 0)
      places.take(TurnedBox(center, {size, size}, 0.0));
  });
  for (const SymbolLayer::Placed &placed : scene.symbols.laidOut(projection))
    places.take(boxOf(placed.obstacle()));
  for (const SubnetLayer::Placed &placed : scene.subnets.layOut(projection))
    places.take(boxOf(placed.box));
  for (const QRectF &area : scene.textBoxes.areas(projection))
    places.take(boxOf(area));
  return places;
}
