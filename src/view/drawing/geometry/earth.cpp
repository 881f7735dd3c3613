#include "geometry/earth.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

double Earth::distance(const QLineF &line) {
  const double latitude1 = qDegreesToRadians(line.y1());
  const double latitude2 = qDegreesToRadians(line.y2());
  const double a = std::sin((latitude2 - latitude1) * 0.5);
  const double b = std::sin(qDegreesToRadians(line.dx()) * 0.5);
  const double h = a * a + std::cos(latitude1) * std::cos(latitude2) * b * b;
  return 2.0 * Radius * std::asin(std::sqrt(std::min(1.0, h)));
}

bool Earth::has(const QLineF &line) {
  constexpr double LargestLongitude = 180.0;
  constexpr double LargestLatitude = 90.0;
  return std::abs(line.x1()) <= LargestLongitude && std::abs(line.x2()) <= LargestLongitude &&
         std::abs(line.y1()) <= LargestLatitude && std::abs(line.y2()) <= LargestLatitude;
}
