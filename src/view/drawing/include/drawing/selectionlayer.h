#pragma once

#include <base/settings.h>
#include <drawing/layerfilter.h>
#include <drawing/layergeometry.h>
#include <drawing/netgeometry.h>

#include <qwt_plot_item.h>

#include <optional>

/// Marks what is selected, and the element under the cursor. On the screen it is painted over the finished drawing, so
/// that picking never draws the network again; it is an item of the plot for documents only.
class SelectionLayer : public QwtPlotItem {
public:
  SelectionLayer();

  /// The geometry whose items are marked; no mark of another one stays.
  void setGeometry(const NetGeometry *geometry);
  /// Elements that the filter hides have no marks. It is not owned.
  void setFilter(const LayerFilter *layers) { m_layers = layers; }
  void setItems(std::vector<NetGeometry::Item> items) { m_items = std::move(items); }
  const std::vector<NetGeometry::Item> &items() const { return m_items; }
  /// Returns whether another element than before is under the cursor.
  bool setHovered(std::optional<NetGeometry::Item> item);
  std::optional<NetGeometry::Item> hovered() const { return m_hovered; }
  /// Brushes and pens are general settings of category "selection".
  void readSettings();
  void setSizes(double node, double symbol) {
    m_nodeSize = node;
    m_symbolSize = symbol;
  }

  int rtti() const override { return Rtti_PlotUserItem + 7; }
  void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvasRect) const override;

private:
  struct Style {
    QBrush brush;
    QPen pen;
  };
  static Style styleOf(const Settings::SelectionMark &mark);
  void drawItem(QPainter &painter, const Projection &projection, NetGeometry::Item item, const Style &style) const;
  std::optional<QLineF> lineOf(NetGeometry::Item item, const Projection &projection) const;
  double reachOf(NetGeometry::Item item) const;

  const NetGeometry *m_geometry = nullptr;
  const LayerFilter *m_layers = nullptr;
  std::vector<NetGeometry::Item> m_items;
  std::optional<NetGeometry::Item> m_hovered;
  Style m_element;
  Style m_subnet;
  double m_subnetFactor = 0.8;
  double m_nodeSize = 4.0;
  double m_symbolSize = 20.0;
};
