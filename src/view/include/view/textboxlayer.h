#pragma once

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

  int rtti() const override { return Rtti_PlotUserItem + 4; }
  void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvasRect) const override;

private:
  struct Record {
    double x = 0.0;
    double y = 0.0;
    QString text;
    QFont font;
    QColor color;
  };

  std::vector<Record> m_records;
  QColor m_background = Qt::white;
};
