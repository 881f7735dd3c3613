#include <view/qwtfastplot.h>

#include <qwt_plot_layout.h>
#include <qwt_scale_map.h>

QwtFastPlot::QwtFastPlot(QWidget *parent)
    : QwtPlot(parent) {
  constexpr int Margin = 6; // px
  setAutoReplot(false);
  setAutoFillBackground(true);
  setContentsMargins(Margin, Margin, Margin, Margin);
  auto *area = new QwtPlotCanvas(this);
  area->setFrameStyle(QFrame::NoFrame);
  area->setFocusPolicy(Qt::WheelFocus);
  area->setFocusIndicator(QwtPlotCanvas::NoFocusIndicator);
  setCanvas(area);
  // The drawing reaches the edge of the canvas; the scales need not leave room for their last label.
  plotLayout()->setAlignCanvasToScales(true);
}

QRectF QwtFastPlot::visibleRect() const {
  const QwtInterval x = axisInterval(xBottom);
  const QwtInterval y = axisInterval(yLeft);
  return {QPointF(x.minValue(), y.minValue()), QPointF(x.maxValue(), y.maxValue())};
}

QSizeF QwtFastPlot::unitsPerPixel() const {
  const QRectF visible = visibleRect();
  const QRect area = canvas()->contentsRect();
  return {visible.width() / qMax(area.width(), 1), visible.height() / qMax(area.height(), 1)};
}

QPointF QwtFastPlot::toPlot(const QPoint &canvasPosition) const {
  return {invTransform(xBottom, canvasPosition.x()), invTransform(yLeft, canvasPosition.y())};
}
