#pragma once

#include <view/layerfilter.h>
#include <view/layergeometry.h>
#include <view/netgeometry.h>

#include <QColor>
#include <QFont>
#include <qwt_plot_item.h>

/// The text boxes of the network as one plot item: their text at their place, with a halo that keeps it readable.
class TextBoxLayer : public QwtPlotItem {
public:
  TextBoxLayer();

  /// \param color, font for boxes that say nothing of theirs
  void setTextBoxes(const NetGeometry &geometry, const QColor &color, const QFont &font);
  void setBackground(const QColor &background) { m_background = background; } ///< what the halo is made of
  void clear() { m_records.clear(); }

  /// What is hidden by its layer is not drawn. It must live as long as this layer.
  void setFilter(const LayerFilter *layers) { m_layers = layers; }

  int rtti() const override { return Rtti_PlotUserItem + 4; }
  void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvasRect) const override;

  /// What the texts that are drawn cover, px.
  std::vector<QRectF> places(const Projection &projection) const;
  /// Adds the text boxes whose text lies under the point.
  void find(const Projection &projection, const QPointF &point, std::vector<Hit> &hits) const;

private:
  struct Record {
    double x = 0.0;
    double y = 0.0;
    QString text;
    QFont font;
    QColor color;
    int textBox = 0; ///< position in the geometry
    QSizeF size;     ///< px, on a screen
  };
  struct Placed {
    const Record *record;
    QRectF area;
  };

  std::vector<Placed> place(const Projection &projection) const;

  const LayerFilter *m_layers = nullptr;
  std::vector<Record> m_records;
  QColor m_background = Qt::white;
};
