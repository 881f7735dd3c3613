#pragma once

#include <view/spatialindex.h>

#include <QLineF>
#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <qwt_scale_map.h>

#include <cmath>
#include <vector>

/// From plot coordinates to pixels by one multiplication and one addition an axis; the plot's axes are linear.
class Projection {
public:
  Projection(const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvas);

  /// False when the axes have no extent, so that nothing can be drawn.
  bool isValid() const { return m_valid; }
  QPointF map(double x, double y) const { return {(x - m_x0) * m_xFactor + m_px0, (y - m_y0) * m_yFactor + m_py0}; }
  /// What the canvas shows, widened by a number of pixels, in plot coordinates.
  SpatialIndex::Box visible(double margin) const;
  const QRectF &canvas() const { return m_canvas; }

private:
  QRectF m_canvas;
  double m_x0, m_y0, m_px0, m_py0;
  double m_xFactor = 0.0, m_yFactor = 0.0;
  bool m_valid = false;
};

/// Cuts the line to the rectangle; false when nothing is left. Painters work with limited integers: a line that leaves
/// the picture by millions of pixels must not reach them.
bool clipLine(QLineF &line, const QRectF &rect);

/// A picture that is looked at in other sizes (SVG, PDF, printer): drawn with shapes instead of prepared pixels.
bool isVectorTarget(const QPainter &painter);
/// How many pixels of the target one unit of the painter takes, for prepared pixels to be sharp.
double pixelRatio(const QPainter &painter);

/// Coarse cells over the canvas that remember where something was drawn.
class PixelGrid {
public:
  PixelGrid(const QRectF &canvas, double cell);

  /// Takes the cell of the point; false when it was taken before or lies outside.
  bool take(const QPointF &point);
  /// As take(), but the eight cells around must be free as well.
  bool takeApart(const QPointF &point);
  /// Takes all cells under the rectangle, as far as they lie inside; false when one of them was taken before.
  bool takeArea(const QRectF &area);

private:
  int index(const QPointF &point) const; ///< -1 outside

  QPointF m_origin;
  double m_cell;
  int m_columns;
  int m_rows;
  std::vector<bool> m_taken; ///< with a frame of one cell that is never taken
};
