#pragma once

#include <qwt_widget_overlay.h>

class QwtFastPlot;
class QwtPlotItem;

/// Lies over the canvas of a plot and lets the mouse through: the moved picture while the view moves, then an item.
class CanvasOverlay : public QwtWidgetOverlay {
  Q_OBJECT
public:
  explicit CanvasOverlay(QwtFastPlot &plot);

  void setItem(const QwtPlotItem *item) { m_item = item; }

protected:
  void drawOverlay(QPainter *painter) const override;

private:
  QwtFastPlot &m_plot;
  const QwtPlotItem *m_item = nullptr;
};
