#pragma once

#include <drawing/drawnsizes.h>
#include <drawing/elementfilter.h>
#include <drawing/layergeometry.h>
#include <drawing/netgeometry.h>
#include <drawing/spatialindex.h>
#include <drawing/violations.h>

#include <qwt_plot_item.h>

#include <vector>

/// A casing round the edges and nodes that violate bounds, below them; subnets say it by their rings.
class ViolationLayer : public QwtPlotItem {
public:
  ViolationLayer();

  /// What is not drawn has no casing; lines are drawn whatever the rules say of their symbols.
  void setFilter(const ElementFilter &filter) { m_filter = filter; }
  /// Looks up what the constraints say now. The geometry has to live as long as it is drawn.
  void setElements(const NetGeometry &geometry);
  void setSizes(const DrawnSizes &sizes) { m_sizes = sizes; }
  /// Of the drawing; a line of it keeps casing and element apart, whatever colours they have.
  void setGround(const QColor &ground) { m_ground = ground; }
  void clear();
  /// How far the casing of an element reaches beyond it, px; 0 where it has none.
  /// \param widthFactor how much narrower than usual lines are drawn
  double casingOf(NetGeometry::Item item, double widthFactor) const;
  /// Whether something has a casing of this kind, wherever it lies.
  bool isAny(Violations::State state) const;

  int rtti() const override { return Rtti_PlotUserItem + 8; }
  void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvasRect) const override;

private:
  /// The elements of one state.
  struct Marked {
    std::vector<NetGeometry::Item> items; ///< in the order of the index
    SpatialIndex index;
  };

  template <typename Records>
  void find(NetData::EleType kind, const Records &records);
  /// By where they lie; what lies nowhere is left out.
  void sort(Marked &marked) const;
  /// What is seen in this view; of many, one for those in the same place.
  std::vector<NetGeometry::Item> visible(const Marked &marked, const Projection &projection) const;
  void draw(QPainter &painter, const Marked &marked, const QColor &color, const Projection &projection) const;
  bool isHidden(NetGeometry::Item item) const;

  const NetGeometry *m_geometry = nullptr;
  ElementFilter m_filter;
  DrawnSizes m_sizes;
  Marked m_major;
  Marked m_minor;
  std::vector<NetGeometry::Item> m_cased; ///< all of them, sorted
  QColor m_ground = Qt::white;
};
