#pragma once

#include <drawing/elementfilter.h>
#include <drawing/labelcontents.h>
#include <drawing/layergeometry.h>
#include <drawing/netgeometry.h>

#include <QColor>
#include <qwt_plot_item.h>

/// The text boxes of the network as one plot item: their text about their position, on a ground where they have one, else
/// with a halo that keeps it readable.
class TextBoxLayer : public QwtPlotItem {
public:
  TextBoxLayer();

  /// \param contents what the boxes say and how they look
  /// \param size px, of the letters of boxes without a font of their own; 0 for that of the contents
  void setTextBoxes(const NetGeometry &geometry, const LabelContents &contents, double size);
  void setBackground(const QColor &background) { m_background = background; } ///< what the halo is made of
  void clear() { m_records.clear(); }

  void setFilter(const ElementFilter &filter) { m_filter = filter; }

  int rtti() const override { return Rtti_PlotUserItem + 4; }
  void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvasRect) const override;

  /// What the texts that are drawn cover, px.
  std::vector<QRectF> areas(const Projection &projection) const;
  /// The same by text box of the geometry.
  std::map<Index, QRectF> areasByTextBox(const Projection &projection) const;
  /// Adds the text boxes whose text lies under the point.
  void find(const Projection &projection, const QPointF &point, std::vector<Hit> &hits) const;

private:
  struct Record {
    double x = 0.0;
    double y = 0.0;
    QStringList lines;
    LabelStyle style;
    Index textBox = 0; ///< in the text boxes of the geometry
    QSizeF size;       ///< px, on a screen
  };
  struct Placed {
    const Record *record;
    QRectF area;
  };

  std::vector<Placed> layOut(const Projection &projection) const;

  ElementFilter m_filter;
  std::vector<Record> m_records;
  QColor m_background = Qt::white;
};
