#include "interaction/pathlayer.h"

#include <drawing/drawingtheme.h>
#include <drawing/symbollayer.h>

#include <QPainterPath>
#include <qwt_plot.h>
#include <qwt_scale_map.h>

namespace {

constexpr QRgb Marker = 0xff00a58c;
constexpr int MarkerAlpha = 110; // what lies below keeps its colour
constexpr double MarkerWidth = 11.0;
constexpr double Reach = 50.0; // px beyond the canvas that a line may be drawn

} // namespace

void PathLayer::setItems(std::vector<Index> edges, std::vector<Index> wayPoints) {
  m_edges = std::move(edges);
  m_wayPoints = std::move(wayPoints);
  m_cursor.reset();
}

QLineF PathLayer::lineOf(Index edge, const Projection &projection, const DrawnSizes &sizes) const {
  const NetGeometry::Edge &drawn = m_update.geometry().edges()[edge];
  const double width =
      sizes.edgeWidths != nullptr && edge < sizes.edgeWidths->size() ? static_cast<double>((*sizes.edgeWidths)[edge]) : 1.0;
  const double symbol = sizes.symbols == nullptr ? 0.0 : sizes.symbols->size();
  return LaneWay(projection.map(m_update.geometry().line(drawn)),
                 static_cast<double>(drawn.lane) * laneSpacing(drawn.type != 'p', width, symbol))
      .middle();
}

std::optional<QPointF> PathLayer::placeOf(const Cursor &cursor, const Projection &projection,
                                          const DrawnSizes &sizes) const {
  const NetGeometry &geometry = m_update.geometry();
  if (cursor.item.index >= geometry.count(cursor.item.kind))
    return std::nullopt;
  if (cursor.item.kind == NetData::Edge && geometry.isPlaced(geometry.edges()[cursor.item.index]))
    return lineOf(cursor.item.index, projection, sizes).pointAt(cursor.share);
  const std::optional<QPointF> center = geometry.center(cursor.item);
  return center ? std::make_optional(projection.map(center->x(), center->y())) : std::nullopt;
}

void PathLayer::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvas) const {
  constexpr double RingRadius = 7.0;
  constexpr double RingWidth = 3.0;
  constexpr double DotRadius = 5.0;
  const NetGeometry &geometry = m_update.geometry();
  const Projection projection(xMap, yMap, canvas);
  if (m_edges.empty() || !projection.isValid() || m_update.netData() == nullptr)
    return;
  const DrawnSizes sizes = m_update.drawnSizes();
  const QRectF room = canvas.adjusted(-Reach, -Reach, Reach, Reach);
  QPainterPath way;
  for (const Index edge : m_edges) {
    if (edge >= geometry.edges().size() || !geometry.isPlaced(geometry.edges()[edge]))
      continue;
    QLineF line = lineOf(edge, projection, sizes);
    if (!clipLine(line, room))
      continue;
    way.moveTo(line.p1());
    way.lineTo(line.p2());
  }
  const DrawingTheme theme(m_plot.canvasBackground().color());
  const QColor ink = theme.line(QColor(Marker));
  QColor marker = ink;
  marker.setAlpha(MarkerAlpha);
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->strokePath(way, QPen(marker, MarkerWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter->setBrush(Qt::NoBrush);
  painter->setPen(QPen(ink, RingWidth));
  for (const Index node : m_wayPoints) {
    const std::optional<QPointF> place = placeOf({{NetData::Node, node}, 0.0}, projection, sizes);
    if (place && room.contains(*place))
      painter->drawEllipse(*place, RingRadius, RingRadius);
  }
  if (const auto place = m_cursor ? placeOf(*m_cursor, projection, sizes) : std::nullopt; place && room.contains(*place)) {
    painter->setPen(QPen(theme.paper(), 1.5));
    painter->setBrush(theme.ink());
    painter->drawEllipse(*place, DotRadius, DotRadius);
  }
  painter->restore();
}
