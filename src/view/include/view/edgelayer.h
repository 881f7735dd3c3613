#pragma once

#include <view/netgeometry.h>
#include <view/spatialindex.h>

#include <QPen>
#include <qwt_plot_item.h>

/// How one edge is drawn.
struct EdgeLook {
  QRgb color = 0;
  double width = 1.0;        ///< px
  bool isBackground = false; ///< drawn below the others: carries no value, no flow or is out of use
};

/// All edges as one plot item: lines in batches of one pen, of which only the visible ones are touched.
class EdgeLayer : public QwtPlotItem {
public:
  EdgeLayer();

  /// Takes over where the edges lie; those without coordinates are left out. They are drawn once they have looks.
  void setEdges(const NetGeometry &geometry);
  /// One look an edge of the geometry, in its order.
  void setLooks(const std::vector<EdgeLook> &looks);
  void clear();

  int rtti() const override { return Rtti_PlotUserItem + 1; }
  void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvasRect) const override;

private:
  struct Record {
    double x1 = 0.0;
    double y1 = 0.0;
    double x2 = 0.0;
    double y2 = 0.0;
    int edge = 0; ///< position in the geometry
    int pen = -1; ///< position in m_pens, -1 not drawn
  };
  struct VisibleLine {
    QLineF line;
    int pen;
  };

  std::vector<VisibleLine> visibleLines(const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvasRect) const;

  std::vector<Record> m_records; ///< in the order of the index
  SpatialIndex m_index;
  std::vector<QPen> m_pens; ///< in drawing order
  double m_widest = 0.0;
};
