#include "canvas/canvasoverlay.h"

#include <QElapsedTimer>
#include <QPainter>
#include <qwt_plot_item.h>
#include <qwt_scale_map.h>

CanvasOverlay::CanvasOverlay(QwtPlot &plot)
    : QwtWidgetOverlay(plot.canvas())
    , m_plot(plot) {
  setMaskMode(NoMask);
  setRenderMode(DrawOverlay);
  lower(); // rubber bands and the moving picture of the panner lie above
}

void CanvasOverlay::setPicture(const QPixmap &picture, const QRectF &view, bool hasItems) {
  m_pictureHasItems = hasItems;
  m_picture = picture;
  m_pictureView = view;
}

QRectF CanvasOverlay::pictureArea() const {
  const auto onCanvas = [this](const QPointF &point) {
    return QPointF(m_plot.transform(QwtPlot::xBottom, point.x()), m_plot.transform(QwtPlot::yLeft, point.y()));
  };
  return {onCanvas(m_pictureView.bottomLeft()), onCanvas(m_pictureView.topRight())}; // plot coordinates grow upwards
}

void CanvasOverlay::drawOverlay(QPainter *painter) const {
  if (hasPicture()) {
    painter->fillRect(rect(), m_plot.canvasBackground());
    painter->drawPixmap(pictureArea(), m_picture, m_picture.rect());
  }
  if (hasPicture() && m_pictureHasItems)
    return;
  constexpr double MillisecondsPerNanosecond = 1e-6;
  QElapsedTimer timer;
  timer.start();
  painter->setRenderHint(QPainter::Antialiasing);
  for (const QwtPlotItem *item : m_items)
    item->draw(painter, m_plot.canvasMap(QwtPlot::xBottom), m_plot.canvasMap(QwtPlot::yLeft),
               m_plot.canvas()->contentsRect());
  const double time = static_cast<double>(timer.nsecsElapsed()) * MillisecondsPerNanosecond;
  const QRectF view(m_plot.canvasMap(QwtPlot::xBottom).s1(), m_plot.canvasMap(QwtPlot::yLeft).s1(),
                    m_plot.canvasMap(QwtPlot::xBottom).sDist(), m_plot.canvasMap(QwtPlot::yLeft).sDist());
  if (view != m_itemsView || time > m_itemsTime) // of a view that it knows already items may keep a picture
    m_itemsTime = time;
  m_itemsView = view;
}
