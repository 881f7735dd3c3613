#include "templateplacement.h"

#include <QtMath>

#include <cmath>

namespace {

constexpr double HalfTurn = 180.0;

double distance(const QPointF &a, const QPointF &b) {
  return std::hypot(a.x() - b.x(), a.y() - b.y());
}

} // namespace

TemplatePlacement::TemplatePlacement(const std::vector<QPointF> &from, double width, double rotation, const QPointF &center)
    : m_from(mean(from))
    , m_center(center) {
  const double extent = from.size() < 2 ? 0.0 : distance(from[0], from[1]);
  if (extent > 0.0 && width > 0.0)
    m_scale = width / extent;
  const double angle = -rotation / HalfTurn * M_PI; // clockwise
  m_cosine = std::cos(angle);
  m_sine = std::sin(angle);
}

QPointF TemplatePlacement::map(const QPointF &point) const {
  const QPointF way = (point - m_from) * m_scale;
  return m_center + QPointF(way.x() * m_cosine + way.y() * m_sine, -way.x() * m_sine + way.y() * m_cosine);
}

QPointF TemplatePlacement::mean(const std::vector<QPointF> &points) {
  QPointF sum;
  for (const QPointF &point : points)
    sum += point;
  return points.empty() ? sum : sum / static_cast<double>(points.size());
}

double TemplatePlacement::rotation(const QPointF &first, const QPointF &second) {
  constexpr double Tiny = 1e-10;
  constexpr double QuarterTurn = 90.0;
  const QPointF way = second - first;
  if (std::abs(way.x()) < Tiny)
    return first.y() > second.y() ? -QuarterTurn : QuarterTurn;
  if (std::abs(way.y()) < Tiny)
    return first.x() > second.x() ? HalfTurn : 0.0;
  return std::atan2(way.y(), way.x()) * HalfTurn / M_PI;
}
