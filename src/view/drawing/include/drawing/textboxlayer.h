#pragma once

#include <QColor>
#include <qwt_plot_item.h>

#include <drawing/labelcontents.h>
#include <drawing/layerfilter.h>
#include <drawing/layergeometry.h>
#include <drawing/netgeometry.h>
#include <drawing/visibilityrules.h>

/// The text boxes of the network as one plot item: their text at their place, on a ground where they have one, else with a
/// halo that keeps it readable.
class TextBoxLayer : public QwtPlotItem {
public:
  TextBoxLayer();

  /// \param contents what the boxes say and how they look
  /// \param size px, of the letters of boxes without a font of their own; 0 for that of the contents
  void setTextBoxes(const NetGeometry &geometry, const LabelContents &contents, double size);
  void setBackground(const QColor &background) { m_background = background; } ///< what the halo is made of
  void clear() { m_records.clear(); }

  /// What is hidden by its layer, or off, is not drawn. Both must live as long as this layer.
  void setFilter(const LayerFilter *layers, const VisibilityRules *visibility) {
    m_layers = layers;
    m_visibility = visibility;
  }

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
    QStringList lines;
    LabelStyle style;
    int textBox = 0; ///< position in the geometry
    QSizeF size;     ///< px, on a screen
  };
  struct Placed {
    const Record *record;
    QRectF area;
  };

  std::vector<Placed> place(const Projection &projection) const;
  bool isHidden(const Record &record) const;

  const LayerFilter *m_layers = nullptr;
  const VisibilityRules *m_visibility = nullptr;
  std::vector<Record> m_records;
  QColor m_background = Qt::white;
};
