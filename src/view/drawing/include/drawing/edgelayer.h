#pragma once

#include <drawing/layergeometry.h>
#include <drawing/looks.h>
#include <drawing/netgeometry.h>
#include <drawing/spatialindex.h>

#include <QPen>
#include <qwt_plot_item.h>

#include <optional>
#include <utility>

/// All edges as one plot item: lines in batches of one pen, of which only the visible ones are touched; parallel edges
/// side by side; arrows where gas flows.
class EdgeLayer : public QwtPlotItem {
public:
  EdgeLayer();

  /// Takes over where the edges lie; those without coordinates are left out. They are drawn once they have looks.
  void setEdges(const NetGeometry &geometry);
  /// One look an edge of the geometry, in its order.
  void setLooks(const std::vector<EdgeLook> &looks);
  void setArrowSize(double pixels) { m_arrowSize = pixels; } ///< 0 for none
  /// Thin lines fade into it where lines crowd.
  void setBackground(const QColor &color) { m_background = color; }
  void setSymbolSize(double pixels) { m_symbolSize = pixels; } ///< parallel stations keep so far apart
  void clear();

  int rtti() const override { return Rtti_PlotUserItem + 1; }
  void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvasRect) const override;

  /// How much narrower than their looks have it lines are drawn in this view, at most 1.
  double widthFactor(const Projection &projection) const;
  /// Adds the edges that are drawn within so many pixels of the point.
  void find(const Projection &projection, const QPointF &point, double tolerance, std::vector<Hit> &hits) const;
  /// Calls visit(edge, line, width) for every edge that touches the canvas, with the straight part of its line and its
  /// width, both in pixels.
  template <typename Visitor>
  void forEachVisible(const Projection &projection, const Visitor &visit) const {
    m_index.query(projection.visible(0.0), [&](Index i) {
      const Record &record = m_records[i];
      if (record.pen == NoIndex)
        return;
      const QLineF line = way(record, projection).middle();
      QLineF seen = line;
      if (clipLine(seen, projection.canvas()))
        visit(record.edge, line, m_pens[record.pen].widthF());
    });
  }

private:
  struct Record {
    double x1 = 0.0;
    double y1 = 0.0;
    double x2 = 0.0;
    double y2 = 0.0;
    Index edge = 0;      ///< in the edges of the geometry
    Index pen = NoIndex; ///< in m_pens; NoIndex when the edge is not drawn
    float lane = 0.0F;   ///< to the right of the way from the first to the second node
    bool hasSymbol = false;
    signed char flow = 0;
  };
  struct VisibleLine {
    QLineF line;
    Index pen;
  };
  struct Arrow {
    QPointF tip;
    QPointF along; ///< of length 1
    Index pen;
  };

  LaneWay way(const Record &record, const Projection &projection) const;
  void addLines(const Record &record, const Projection &projection, const QRectF &area, std::vector<VisibleLine> &lines,
                double arrowSize, std::vector<Arrow> &arrows) const;
  void addArrows(const Record &record, const QLineF &line, const QRectF &area, double arrowSize,
                 std::vector<Arrow> &arrows) const;
  std::vector<VisibleLine> visibleLines(const Projection &projection, double arrowSize, std::vector<Arrow> &arrows) const;
  /// Of lines so far apart, in pixels.
  double factorFor(double apart) const;
  double arrowSizeIn(const Projection &projection) const;
  /// The lines in drawing order: those of pen i from starts[i] to starts[i + 1]. Of lines too short to be seen, one of the
  /// broadest stands for those in the same place.
  std::vector<QLineF> inDrawingOrder(const std::vector<VisibleLine> &lines, const QRectF &canvas,
                                     std::vector<std::size_t> &starts) const;
  /// The part of the canvas, in pixels, in which the network lies.
  QRectF coveredPart(const Projection &projection) const;
  /// The pen as it is drawn where lines are so far apart, in pixels: where they crowd it is narrower, so that one can still
  /// be told from the next, and the narrow ones are pale, so that the broad ones show how the network is built.
  QPen penFor(const QPen &pen, double apart) const;
  void drawArrows(QPainter &painter, const std::vector<Arrow> &arrows, double size) const;

  std::vector<Record> m_records; ///< in the order of the index
  SpatialIndex m_index;
  std::vector<QPen> m_pens; ///< in drawing order
  QColor m_background = Qt::white;
  double m_typicalLength = 0.0; ///< plot units
  double m_widest = 0.0;
  double m_arrowSize = 0.0;
  double m_symbolSize = 0.0;
  mutable std::optional<std::pair<Projection, double>> m_factor; ///< of the view that was asked for last
};
