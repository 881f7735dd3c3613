#pragma once

#include <drawing/mapscale.h>

#include <qwt_plot_item.h>

#include <optional>
#include <vector>

/// A path over the drawing and how long it is up to each of its points.
class MeasureLayer : public QwtPlotItem {
public:
  /// \param plot whose ground it is drawn on
  explicit MeasureLayer(const QwtPlot &plot)
      : m_plot(plot) {}

  /// \param plotUnits plot units a unit of the network's coordinates, in which the scale counts
  void setScale(const MapScale &scale, double plotUnits);

  void clear();
  void add(const QPointF &point);
  void removeLast();
  bool isEmpty() const { return m_points.empty(); }
  /// In plot coordinates.
  const std::vector<QPointF> &points() const { return m_points; }
  /// Where the next point would be; nothing when the path is at its end.
  void setNext(std::optional<QPointF> next) { m_next = next; }

  /// Up to the last point, or to the next one where there is one; in metres or units of the drawing.
  double total() const;
  /// The last leg and the whole path, as a person reads them.
  QString text() const;

  void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvasRect) const override;

private:
  double leg(const QPointF &from, const QPointF &to) const;
  std::vector<QPointF> path() const;

  const QwtPlot &m_plot;
  MapScale m_scale;
  double m_plotUnits = 1.0;
  std::vector<QPointF> m_points;
  std::optional<QPointF> m_next;
};
