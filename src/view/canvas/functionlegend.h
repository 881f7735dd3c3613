#pragma once

#include "canvas/qwtfastplot.h"

#include <drawing/plotsettings.h>

#include <qwt_plot_marker.h>

/// Names the active draw functions in a corner of the drawing, as the setting "legendPos" wants it.
class FunctionLegend {
public:
  explicit FunctionLegend(QwtFastPlot &plot);

  /// \param settings as they are shown
  void place(const PlotSettings &settings, const QString &functions);
  /// What it covers of the canvas, px; empty when it is hidden.
  QRectF area() const;
  const QwtPlotMarker &marker() const { return m_marker; }

private:
  QwtFastPlot &m_plot;
  QwtPlotMarker m_marker;
  QSizeF m_size; ///< px
};
