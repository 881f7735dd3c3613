#include "interaction/measurelayer.h"

#include <drawing/drawingtheme.h>

#include <QApplication>
#include <QCoreApplication>
#include <QPainter>
#include <qwt_plot.h>
#include <qwt_scale_map.h>

namespace {

constexpr QRgb Ink = 0xff143c5a;
constexpr int GroundAlpha = 225;

QColor groundOf(const DrawingTheme &theme) {
  QColor ground = theme.paper();
  ground.setAlpha(GroundAlpha);
  return ground;
}

void drawText(QPainter &painter, const QPointF &beside, const QString &text, const QRectF &canvas,
              const DrawingTheme &theme) {
  constexpr double Gap = 8.0;    // px from the point
  constexpr double Margin = 3.0; // px around the text
  QRectF box = painter.fontMetrics().boundingRect(text);
  box.adjust(-Margin, -Margin, Margin, Margin);
  box.moveTopLeft(beside + QPointF(Gap, Gap));
  // Beside the edge the text stands at the other side of the point.
  if (box.right() > canvas.right())
    box.moveRight(beside.x() - Gap);
  if (box.bottom() > canvas.bottom())
    box.moveBottom(beside.y() - Gap);
  painter.setPen(QPen(theme.turned(QColor(Ink)), 1.0));
  painter.setBrush(groundOf(theme));
  painter.drawRoundedRect(box, Margin, Margin);
  painter.drawText(box, Qt::AlignCenter, text);
}

} // namespace

void MeasureLayer::setScale(const MapScale &scale, double plotUnits) {
  m_scale = scale;
  m_plotUnits = plotUnits;
}

void MeasureLayer::clear() {
  m_points.clear();
  m_next.reset();
}

void MeasureLayer::add(const QPointF &point) {
  m_points.push_back(point);
}

void MeasureLayer::removeLast() {
  if (!m_points.empty())
    m_points.pop_back();
}

std::vector<QPointF> MeasureLayer::path() const {
  std::vector<QPointF> path = m_points;
  if (m_next && !path.empty())
    path.push_back(*m_next);
  return path;
}

double MeasureLayer::leg(const QPointF &from, const QPointF &to) const {
  return m_scale.length(QLineF(from / m_plotUnits, to / m_plotUnits));
}

double MeasureLayer::total() const {
  const std::vector<QPointF> points = path();
  double sum = 0.0;
  for (std::size_t i = 1; i < points.size(); ++i)
    sum += leg(points[i - 1], points[i]);
  return sum;
}

QString MeasureLayer::text() const {
  const std::vector<QPointF> points = path();
  if (points.size() < 2)
    return QString();
  const QString whole = m_scale.written(total());
  if (points.size() == 2)
    return QCoreApplication::translate("MeasureLayer", "Distance %1").arg(whole);
  return QCoreApplication::translate("MeasureLayer", "Distance %1, last leg %2")
      .arg(whole, m_scale.written(leg(points[points.size() - 2], points.back())));
}

void MeasureLayer::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                        const QRectF &canvasRect) const {
  constexpr double LineWidth = 2.0;
  constexpr double HaloWidth = 5.0;
  constexpr double PointRadius = 3.5;
  const std::vector<QPointF> points = path();
  const DrawingTheme theme(m_plot.canvasBackground().color());
  const QColor ink = theme.turned(QColor(Ink));
  QPolygonF line;
  for (const QPointF &point : points)
    line.append(QPointF(xMap.transform(point.x()), yMap.transform(point.y())));
  painter->save();
  painter->setBrush(Qt::NoBrush);
  painter->setPen(QPen(groundOf(theme), HaloWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter->drawPolyline(line);
  painter->setPen(QPen(ink, LineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter->drawPolyline(line);
  painter->setPen(QPen(ink, LineWidth));
  painter->setBrush(theme.paper());
  for (const QPointF &point : qAsConst(line))
    painter->drawEllipse(point, PointRadius, PointRadius);
  painter->setFont(QApplication::font());
  double sum = 0.0;
  for (std::size_t i = 1; i < points.size(); ++i) {
    sum += leg(points[i - 1], points[i]);
    drawText(*painter, line[static_cast<int>(i)], m_scale.written(sum), canvasRect, theme);
  }
  painter->restore();
}
