#include "canvas/qwtfastplot.h"

#include "canvas/canvasoverlay.h"

#include <QElapsedTimer>
#include <qwt_plot_layout.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_map.h>
#include <qwt_scale_widget.h>

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
  m_overlay = new CanvasOverlay(*this);
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

void QwtFastPlot::addOverlayItem(const QwtPlotItem *item) {
  m_overlay->addItem(item);
}

void QwtFastPlot::updateOverlay() {
  m_overlay->update();
}

void QwtFastPlot::freeze() {
  constexpr double QuickEnough = 8.0; // ms, half of what a fluid movement leaves for a frame
  if (isFrozen() || m_frameTime < QuickEnough)
    return;
  const bool isQuick = m_overlay->itemsTime() < QuickEnough;
  m_overlay->setVisible(!isQuick); // what lies on it follows the view by itself, else it is moved with the picture
  m_overlay->setPicture(grabDrawing(), visibleRect(), !isQuick);
  m_overlay->show();
}

QPixmap QwtFastPlot::grabDrawing() {
  if (m_leftOut)
    m_leftOut(true);
  QPixmap drawing = canvas()->grab(canvas()->contentsRect());
  if (m_leftOut)
    m_leftOut(false);
  return drawing;
}

bool QwtFastPlot::isFrozen() const {
  return m_overlay->hasPicture();
}

void QwtFastPlot::thaw() {
  if (!isFrozen())
    return;
  m_overlay->clearPicture();
  replot();
}

void QwtFastPlot::replot() {
  if (isFrozen())
    updateAxes();
  else
    QwtPlot::replot();
  keepScaleRoom();
  updateOverlay();
}

void QwtFastPlot::keepScaleRoom() {
  for (const int axis : {int(xBottom), int(yLeft)}) {
    QwtScaleWidget &scale = *axisWidget(axis);
    if (!axisEnabled(axis))
      continue;
    scale.setMinBorderDist(scale.startBorderDist(), scale.endBorderDist()); // which are no less than the minima so far
    scale.scaleDraw()->setMinimumExtent(scale.scaleDraw()->extent(scale.font()));
  }
}

void QwtFastPlot::forgetScaleRoom() {
  for (const int axis : {int(xBottom), int(yLeft)}) {
    axisWidget(axis)->setMinBorderDist(0, 0);
    axisWidget(axis)->scaleDraw()->setMinimumExtent(0.0);
  }
}

void QwtFastPlot::drawCanvas(QPainter *painter) {
  constexpr double MillisecondsPerNanosecond = 1e-6;
  QElapsedTimer timer;
  timer.start();
  QwtPlot::drawCanvas(painter);
  m_frameTime = static_cast<double>(timer.nsecsElapsed()) * MillisecondsPerNanosecond;
}
