#pragma once

#include <qwt_plot_renderer.h>

/// Renders a plot for documents of lines and texts: the bars of its colour scales too, which the toolkit draws as pictures.
class DocumentRenderer : public QwtPlotRenderer {
  Q_OBJECT
public:
  using QwtPlotRenderer::QwtPlotRenderer;

  void renderScale(const QwtPlot *plot, QPainter *painter, int axis, int startDistance, int endDistance, int baseDistance,
                   const QRectF &rect) const override;
};
