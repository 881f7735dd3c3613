#include <drawing/labelplacement.h>
#include <drawing/layergeometry.h>

#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double GapToElement = 2.0; // px, of a label

} // namespace

LabelPlacement::LabelPlacement(const QRectF &canvas, double margin)
    : m_canvas(canvas)
    , m_margin(std::max(0.0, margin))
    , m_labels(canvas)
    , m_obstacles(canvas)
    , m_lines(canvas) {}

void LabelPlacement::addLine(const QLineF &line, double width) {
  QLineF visible = line;
  if (!clipLine(visible, m_canvas))
    return;
  m_hasLines = true;
  m_lines.take({visible.center(), {visible.length(), width}, qRadiansToDegrees(std::atan2(visible.dy(), visible.dx()))});
}

bool LabelPlacement::keep(const LabelCandidate &candidate, const LabelSpot &spot) {
  const TurnedBox box = candidate.box(spot);
  if (!m_canvas.contains(box.bounds()) || !m_labels.isFree(box.grown(m_margin)) || !m_obstacles.isFree(box))
    return false;
  m_labels.take(box);
  return true;
}

bool LabelPlacement::place(const LabelCandidate &candidate, LabelSpot &spot) {
  return candidate.isLine ? tryLine(candidate, spot) : tryPoint(candidate, spot);
}

bool LabelPlacement::tryAt(const LabelCandidate &candidate, const LabelSpot &spot, bool sparesLines) {
  const TurnedBox box = candidate.box(spot);
  return (!sparesLines || m_lines.isFree(box)) && keep(candidate, spot);
}

bool LabelPlacement::tryLine(const LabelCandidate &candidate, LabelSpot &spot) {
  constexpr double RightAngle = 90.0;
  QLineF visible = candidate.line;
  const double length = candidate.line.length();
  if (!(length > 0.0) || !clipLine(visible, m_canvas))
    return false;
  const auto shareOf = [&](const QPointF &p) {
    return QLineF(candidate.line.p1(), p).length() / length;
  };
  const double from = shareOf(visible.p1());
  const double to = shareOf(visible.p2());
  if (visible.length() < candidate.size.width())
    return tryPoint(candidate, spot); // beside the middle rather than along a line that is too short
  const QPointF normal(-candidate.line.dy() / length, candidate.line.dx() / length);
  spot.angle = qRadiansToDegrees(std::atan2(candidate.line.dy(), candidate.line.dx()));
  if (spot.angle > RightAngle)
    spot.angle -= 2.0 * RightAngle; // upright
  else if (spot.angle <= -RightAngle)
    spot.angle += 2.0 * RightAngle;
  constexpr double OwnLine = 3.0; // px, so that its cells do not count as covered
  const double distance = candidate.clearance + OwnLine + GapToElement + candidate.size.height() * 0.5;
  const double up = normal.y() <= 0.0 ? 1.0 : -1.0; // above the line first
  for (const bool sparesLines : {true, false}) {
    for (const double share : {0.5, 0.3, 0.7}) {
      spot.along = from + (to - from) * share;
      for (const double side : {up, -up}) {
        spot.offset = normal * distance * side;
        if (sparesLines <= m_hasLines && tryAt(candidate, spot, sparesLines))
          return true;
      }
    }
  }
  return false;
}

bool LabelPlacement::tryPoint(const LabelCandidate &candidate, LabelSpot &spot) {
  spot.angle = 0.0;
  spot.along = 0.5;
  if (!m_canvas.contains(candidate.anchor(spot.along)))
    return false;
  constexpr double CornerShare = 0.75; // corners come nearer
  constexpr double SecondRing = 8.0;   // px: still beside the element
  const double halfWidth = candidate.size.width() * 0.5;
  std::array<QPointF, 24> offsets;
  std::size_t count = 0;
  for (const double further : {0.0, SecondRing}) {
    const double x = candidate.clearance + GapToElement + halfWidth + further;
    const double y = candidate.clearance + GapToElement + candidate.size.height() * 0.5 + further;
    for (const QPointF &offset : std::initializer_list<QPointF>{{x, 0.0},
                                                                {x * CornerShare, -y},
                                                                {x * CornerShare, y},
                                                                {0.0, -y},
                                                                {0.0, y},
                                                                {-x * CornerShare, -y},
                                                                {-x * CornerShare, y},
                                                                {-x, 0.0},
                                                                {x, -y},
                                                                {x, y},
                                                                {-x, -y},
                                                                {-x, y}})
      offsets[count++] = offset;
  }
  for (const bool sparesLines : {true, false}) {
    if (candidate.isShy && m_hasLines && !sparesLines)
      break;
    for (const QPointF &offset : offsets) {
      spot.offset = offset;
      if (sparesLines <= m_hasLines && tryAt(candidate, spot, sparesLines))
        return true;
    }
  }
  return false;
}
