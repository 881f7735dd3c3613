#pragma once

#include <drawing/layerfilter.h>
#include <drawing/netgeometry.h>
#include <drawing/violations.h>

#include <qwt_plot_item.h>

#include <vector>

/// A casing round the edges and nodes that violate bounds, below them; subnets say it by their rings.
class ViolationLayer : public QwtPlotItem {
public:
  ViolationLayer();

  /// Elements of hidden layers have no casing. It is not owned.
  void setFilter(const LayerFilter *layers) { m_layers = layers; }
  /// Looks up what the constraints say now. The geometry has to live as long as it is drawn.
  /// \param edgeWidths px, by edge; not owned
  void setElements(const NetGeometry &geometry, const std::vector<float> &edgeWidths);
  void setSizes(double node, double symbol) {
    m_nodeSize = node;
    m_symbolSize = symbol;
  }
  /// Of the drawing; a line of it keeps casing and element apart, whatever colours they have.
  void setGround(const QColor &ground) { m_ground = ground; }
  void clear();
  bool isAny(Violations::State state) const { return !(state == Violations::State::Major ? m_major : m_minor).empty(); }

  int rtti() const override { return Rtti_PlotUserItem + 8; }
  void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvasRect) const override;

private:
  template <typename Records>
  void find(NetData::EleType kind, const Records &records);

  const NetGeometry *m_geometry = nullptr;
  const LayerFilter *m_layers = nullptr;
  const std::vector<float> *m_edgeWidths = nullptr;
  std::vector<NetGeometry::Item> m_major;
  std::vector<NetGeometry::Item> m_minor;
  QColor m_ground = Qt::white;
  double m_nodeSize = 4.0;
  double m_symbolSize = 20.0;
};
