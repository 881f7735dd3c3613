#pragma once

#include <base/settings.h>
#include <drawing/drawnsizes.h>
#include <drawing/layerfilter.h>
#include <drawing/layergeometry.h>
#include <drawing/netgeometry.h>

#include <QPixmap>
#include <qwt_plot_item.h>

#include <optional>

/// Marks what is selected by a dark outline and a halo and lets the rest pale, and marks the element under the cursor. On
/// the screen it is painted over the finished drawing, so that picking never draws the network again; it is an item of the
/// plot for documents only, where it lies below lines and casings, and nothing pales.
class SelectionLayer : public QwtPlotItem {
public:
  SelectionLayer();

  /// The geometry whose items are marked; no mark of another one stays.
  void setGeometry(const NetGeometry *geometry);
  /// Elements that the filter hides have no marks. It is not owned.
  void setFilter(const LayerFilter *layers) { m_layers = layers; }
  void setSizes(const DrawnSizes &sizes) { m_sizes = sizes; }
  /// Whether it marks the selection as in documents, whatever it is painted on: a page looks the same on all of them.
  void setIsInDocument(bool isInDocument) { m_isInDocument = isInDocument; }
  void setItems(std::vector<NetGeometry::Item> items);
  const std::vector<NetGeometry::Item> &items() const { return m_items; }
  /// Returns whether another element than before is under the cursor.
  bool setHovered(std::optional<NetGeometry::Item> item);
  std::optional<NetGeometry::Item> hovered() const { return m_hovered; }
  /// Brushes and pens are general settings of category "selection".
  void readSettings();
  /// \param ground of the drawing, towards which the rest pales \param dimsRest whether it does
  void setGround(const QColor &ground, bool dimsRest);
  /// To be called when the drawing below has changed.
  void forgetPicture() { m_picture.reset(); }

  int rtti() const override { return Rtti_PlotUserItem + 7; }
  void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvasRect) const override;

private:
  struct Style {
    QColor halo;
    QColor rim; ///< of the halo
  };
  /// The marks of one view, as they were painted last.
  struct Picture {
    Projection projection;
    double pixelRatio;
    QPixmap pixels;
  };

  static Style styleOf(const Settings::SelectionMark &mark);
  QColor ink() const;
  QPixmap paint(const Projection &projection, double pixelRatio) const;
  void drawForDocument(QPainter &painter, const Projection &projection) const;
  void drawHovered(QPainter &painter, const Projection &projection) const;

  const NetGeometry *m_geometry = nullptr;
  const LayerFilter *m_layers = nullptr;
  DrawnSizes m_sizes;
  std::vector<NetGeometry::Item> m_items;
  std::optional<NetGeometry::Item> m_hovered;
  Style m_element;
  Style m_subnet;
  QColor m_ground = Qt::white;
  bool m_dimsRest = true;
  double m_subnetFactor = 0.8;
  bool m_isInDocument = false;
  mutable std::optional<Picture> m_picture;
};
