#pragma once

#include <drawing/netgeometry.h>
#include <drawing/netupdate.h>

#include <qwt_plot_item.h>

#include <optional>
#include <vector>

/// A way through the network as with a marker pen, its way points as rings and one place as a dot.
class PathLayer : public QwtPlotItem {
public:
  struct Cursor {
    NetGeometry::Item item;
    double share = 0.0; ///< from the first node of an edge
  };

  /// \param plot whose ground it is drawn on \param update that draws the network; after another one setItems() is due
  PathLayer(const QwtPlot &plot, const NetUpdate &update)
      : m_plot(plot)
      , m_update(update) {}

  void setItems(std::vector<Index> edges, std::vector<Index> wayPoints);
  std::size_t size() const { return m_edges.size(); }
  void setCursor(const std::optional<Cursor> &cursor) { m_cursor = cursor; }
  bool hasCursor() const { return m_cursor.has_value(); }

  void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvas) const override;

private:
  QLineF lineOf(Index edge, const Projection &projection, const DrawnSizes &sizes) const;
  std::optional<QPointF> placeOf(const Cursor &cursor, const Projection &projection, const DrawnSizes &sizes) const;

  const QwtPlot &m_plot;
  const NetUpdate &m_update;
  std::vector<Index> m_edges; ///< in the geometry, as are the others
  std::vector<Index> m_wayPoints;
  std::optional<Cursor> m_cursor;
};
