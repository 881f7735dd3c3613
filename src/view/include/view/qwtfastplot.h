#pragma once

#include <qwt_plot.h>
#include <qwt_plot_canvas.h>

/// The plot area of the network: a plot without frame, title or automatic replot.
class QwtFastPlot : public QwtPlot {
  Q_OBJECT
public:
  explicit QwtFastPlot(QWidget *parent = nullptr);

  /// What the canvas shows, in plot coordinates.
  QRectF visibleRect() const;
  /// Plot units a pixel, horizontally and vertically.
  QSizeF unitsPerPixel() const;
  /// From a place on the canvas to plot coordinates.
  QPointF toPlot(const QPoint &canvasPosition) const;
};
