#include <drawing/layergeometry.h>

#include <QFontInfo>
#include <QPaintEngine>

#include <algorithm>

Projection::Projection(const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvas)
    : m_canvas(canvas)
    , m_x0(xMap.s1())
    , m_y0(yMap.s1())
    , m_px0(xMap.p1())
    , m_py0(yMap.p1()) {
  const double width = xMap.s2() - xMap.s1();
  const double height = yMap.s2() - yMap.s1();
  if (width == 0.0 || height == 0.0)
    return;
  m_xFactor = (xMap.p2() - xMap.p1()) / width;
  m_yFactor = (yMap.p2() - yMap.p1()) / height;
  m_valid = std::isnormal(m_xFactor) && std::isnormal(m_yFactor);
}

SpatialIndex::Box Projection::visible(double margin) const {
  return toPlot(m_canvas.adjusted(-margin, -margin, margin, margin));
}

SpatialIndex::Box Projection::around(const QPointF &point, double reach) const {
  return toPlot({point.x() - reach, point.y() - reach, reach * 2.0, reach * 2.0});
}

SpatialIndex::Box Projection::toPlot(const QRectF &r) const {
  const auto x = std::minmax({(r.left() - m_px0) / m_xFactor + m_x0, (r.right() - m_px0) / m_xFactor + m_x0});
  const auto y = std::minmax({(r.top() - m_py0) / m_yFactor + m_y0, (r.bottom() - m_py0) / m_yFactor + m_y0});
  return {x.first, y.first, x.second, y.second};
}

// Liang and Barsky (1984): each side of the rectangle cuts the parameter interval of the line.
bool clipLine(QLineF &line, const QRectF &rect) {
  const double dx = line.dx();
  const double dy = line.dy();
  const double p[4] = {-dx, dx, -dy, dy};
  const double q[4] = {line.x1() - rect.left(), rect.right() - line.x1(), line.y1() - rect.top(), rect.bottom() - line.y1()};
  double enter = 0.0;
  double leave = 1.0;
  for (int side = 0; side < 4; ++side) {
    if (p[side] == 0.0) {
      if (q[side] < 0.0)
        return false;
      continue;
    }
    const double t = q[side] / p[side];
    if (p[side] < 0.0)
      enter = std::max(enter, t);
    else
      leave = std::min(leave, t);
  }
  if (!(enter <= leave))
    return false;
  const QPointF start = line.p1();
  if (leave < 1.0)
    line.setP2(start + QPointF(dx * leave, dy * leave));
  if (enter > 0.0)
    line.setP1(start + QPointF(dx * enter, dy * enter));
  return std::isfinite(line.x1() + line.y1() + line.x2() + line.y2());
}

LaneWay::LaneWay(const QLineF &line, double offset)
    : start(line.p1())
    , first(line.p1())
    , second(line.p2())
    , end(line.p2()) {
  constexpr double LargestShare = 0.25; // of the line's length
  const double length = line.length();
  if (offset == 0.0 || !(length > 0.0))
    return;
  const QPointF along = QPointF(line.dx(), line.dy()) / length;
  const QPointF right(-along.y(), along.x()); // pixels count downwards
  const double most = length * LargestShare;
  const double moved = qBound(-most, offset, most);
  first += along * std::abs(moved) + right * moved;
  second += right * moved - along * std::abs(moved);
}

double laneSpacing(bool hasSymbol, double lineWidth, double symbolSize) {
  constexpr double GapBetweenLines = 2.0; // px
  return (hasSymbol ? std::max(symbolSize, lineWidth) : lineWidth) + GapBetweenLines;
}

QPointF driveBeside(const QLineF &line, double lane, bool isBetweenLanes, double symbolSize) {
  constexpr double Distance = 1.2; // symbols, from middle to middle
  const double length = line.length();
  const QPointF middle = LaneWay(line, lane * laneSpacing(true, 0.0, symbolSize)).middle().center();
  if (isBetweenLanes)
    return middle - QPointF(line.dx(), line.dy()) / length * (symbolSize * Distance);
  QPointF away(line.dy() / length, -line.dx() / length); // to the left of the line
  if (lane != 0.0) {
    if (lane > 0.0)
      away = -away; // where no neighbour lies
  } else if (away.y() > 0.0 || (away.y() == 0.0 && away.x() < 0.0)) {
    away = -away; // upwards on the screen
  }
  return middle + away * (symbolSize * Distance);
}

double distanceToLine(const QPointF &point, const QLineF &line) {
  const QPointF along(line.dx(), line.dy());
  const QPointF to = point - line.p1();
  const double square = QPointF::dotProduct(along, along);
  const double t = square > 0.0 ? qBound(0.0, QPointF::dotProduct(to, along) / square, 1.0) : 0.0;
  const QPointF between = to - along * t;
  return std::hypot(between.x(), between.y());
}

QFont screenFont(QFont font) {
  font.setPixelSize(std::max(1, QFontInfo(font).pixelSize()));
  return font;
}

bool isVectorTarget(const QPainter &painter) {
  const QPaintEngine *engine = painter.paintEngine();
  if (engine == nullptr)
    return false;
  switch (engine->type()) {
  case QPaintEngine::SVG:
  case QPaintEngine::Pdf:
  case QPaintEngine::PostScript:
  case QPaintEngine::Picture:
  case QPaintEngine::Windows:
  case QPaintEngine::MacPrinter:
    return true;
  default:
    return false;
  }
}

double pixelRatio(const QPainter &painter) {
  constexpr double SmallestRatio = 0.25;
  constexpr double LargestRatio = 16.0;
  constexpr double StepsOfRatio = 4.0; // a cache entry a quarter: enough to be sharp
  const QTransform &transform = painter.deviceTransform();
  const double scale = std::hypot(transform.m11(), transform.m12());
  return std::isfinite(scale) ? qBound(SmallestRatio, std::ceil(scale * StepsOfRatio) / StepsOfRatio, LargestRatio) : 1.0;
}
