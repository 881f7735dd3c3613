#include "interaction/zoomlimits.h"

#include <algorithm>

namespace {

double smallestSide(double largest, double pixelSpan) {
  constexpr double DeepestZoom = 100.0;
  constexpr double SmallestSpan = 10.0;
  const double side = largest / DeepestZoom;
  return pixelSpan > SmallestSpan ? std::min(side, pixelSpan) : side;
}

} // namespace

ZoomLimits ZoomLimits::of(const QRectF &extent, const QSizeF &pixelSpan) {
  const QSizeF largest(std::max(1.0, extent.width()) * Margin, std::max(1.0, extent.height()) * Margin);
  return {{smallestSide(largest.width(), pixelSpan.width()), smallestSide(largest.height(), pixelSpan.height())}, largest};
}
