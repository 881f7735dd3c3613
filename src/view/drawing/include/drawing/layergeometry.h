#pragma once

#include <drawing/netgeometry.h>
#include <drawing/spatialindex.h>

#include <QFont>
#include <QLineF>
#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <qwt_scale_map.h>

#include <cmath>

/// From plot coordinates to pixels by one multiplication and one addition an axis; the plot's axes are linear.
class Projection {
public:
  Projection(const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvas);

  /// False when the axes have no extent, so that nothing can be drawn.
  bool isValid() const { return m_valid; }
  QPointF map(double x, double y) const { return {(x - m_x0) * m_xFactor + m_px0, (y - m_y0) * m_yFactor + m_py0}; }
  QLineF map(const QLineF &line) const { return {map(line.x1(), line.y1()), map(line.x2(), line.y2())}; }
  QPointF unmap(const QPointF &pixel) const {
    return {(pixel.x() - m_px0) / m_xFactor + m_x0, (pixel.y() - m_py0) / m_yFactor + m_y0};
  }
  /// What the canvas shows, widened by a number of pixels, in plot coordinates.
  SpatialIndex::Box visible(double margin) const;
  /// The square of so many pixels to each side of a point of the canvas, in plot coordinates.
  SpatialIndex::Box around(const QPointF &point, double reach) const;
  const QRectF &canvas() const { return m_canvas; }
  /// Pixels a plot unit, the mean of both directions.
  double scale() const { return std::sqrt(std::abs(m_xFactor * m_yFactor)); }

  friend bool operator==(const Projection &a, const Projection &b) {
    return a.m_canvas == b.m_canvas && a.m_x0 == b.m_x0 && a.m_y0 == b.m_y0 && a.m_px0 == b.m_px0 && a.m_py0 == b.m_py0 &&
           a.m_xFactor == b.m_xFactor && a.m_yFactor == b.m_yFactor;
  }

private:
  SpatialIndex::Box toPlot(const QRectF &area) const;

  QRectF m_canvas;
  double m_x0, m_y0, m_px0, m_py0;
  double m_xFactor = 0.0, m_yFactor = 0.0;
  bool m_valid = false;
};

/// Cuts the line to the rectangle; false when nothing is left. Painters work with limited integers: a line that leaves
/// the picture by millions of pixels must not reach them.
bool clipLine(QLineF &line, const QRectF &rect);

/// The course of one of several lines between the same two points: it leaves them at an angle and keeps beside the others.
struct LaneWay {
  /// \param offset px to the right of the line; less on a line too short for it
  LaneWay(const QLineF &line, double offset);

  QPointF start;
  QPointF first;  ///< here it has reached its lane,
  QPointF second; ///< here it leaves it
  QPointF end;

  QLineF middle() const { return {first, second}; }
};

/// How far apart lines side by side run, in pixels: a symbol needs more room than a line.
double laneSpacing(bool hasSymbol, double lineWidth, double symbolSize);

/// Where the drive of a compressor is drawn: beside the symbol in the middle of the compressor's line, away from the lines
/// that run beside that; where lines run on both sides, behind the symbol on its own line.
/// \param line px, of the compressor; it must have a length \param lane of that edge
QPointF driveBeside(const QLineF &line, double lane, bool isBetweenLanes, double symbolSize);

/// Of a point from a line, both in pixels.
double distanceToLine(const QPointF &point, const QLineF &line);

/// What of an element was hit; the former covers the latter: boxes cover what is behind them, a symbol stands for its
/// element, and what stands at a point counts more than a line that ends there.
enum class HitRank { Box, Symbol, Point, Line };

/// Something drawn under the cursor.
struct Hit {
  NetGeometry::Item item;
  double distance; ///< px
  HitRank rank;

  /// Whether this is rather what was meant than the other.
  bool comesBefore(const Hit &other) const { return rank != other.rank ? rank < other.rank : distance < other.distance; }
};

/// The font in the size that it has on the screen, whatever it is drawn on.
QFont screenFont(QFont font);

/// A picture that is looked at in other sizes (SVG, PDF, printer): drawn with shapes instead of prepared pixels.
bool isVectorTarget(const QPainter &painter);
/// How many pixels of the target one unit of the painter takes, for prepared pixels to be sharp.
double pixelRatio(const QPainter &painter);
