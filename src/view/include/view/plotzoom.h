#pragma once

#include <view/plotsettings.h>

#include <qwt_plot_zoomer.h>

class QwtFastPlot;

/// The zoom of the network plot: by rectangle, wheel and keys, within limits, with one scale for both axes on request.
/// The views that were zoomed to stand on a stack above the base, which fits the whole network into the window.
class PlotZoom : public QwtPlotZoomer {
  Q_OBJECT
public:
  PlotZoom(QwtFastPlot &plot, PlotSettings &settings);

  /// Makes the extent of a network the zoom base and shows it.
  void setExtent(const QRectF &extent);
  /// Limits that suit an extent. A pixel span (a width and a height in plot units) above 10 allows to zoom in so far.
  void setZoomLimits(const QRectF &extent, const QSizeF &pixelSpan);

  /// One step about a point in plot coordinates, which stays where it is on the canvas.
  void zoomIn(const QPointF &point);
  void zoomOut(const QPointF &point);
  void fitAll() { zoom(0); }
  /// Puts what the plot shows, for instance after panning, on the stack.
  void takeView();

  using QwtPlotZoomer::zoom;
  void zoom(const QRectF &rect) override;

  bool eventFilter(QObject *watched, QEvent *event) override;

protected:
  void rescale() override;
  QSizeF minZoomSize() const override;
  void widgetWheelEvent(QWheelEvent *event) override;
  void widgetKeyPressEvent(QKeyEvent *event) override;

private:
  void cutStack();
  void fitBase();
  void shift(double horizontal, double vertical);
  /// Gives both axes one scale about their centres; false when nothing is to be done.
  bool applyAxesRatio();
  QRectF inCanvasRatio(const QRectF &rect) const;
  void zoomAbout(const QPointF &point, const QSizeF &size);

  QwtFastPlot &m_plot;
  PlotSettings &m_settings;
  QRectF m_extent;
  int m_wheelDegrees = 0;
};
