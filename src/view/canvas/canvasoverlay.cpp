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

void CanvasOverlay::setPicture(const QPixmap &picture, const QRectF &view, bool hasItem) {
  m_pictureHasItem = hasItem;
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
  if (m_item == nullptr || (hasPicture() && m_pictureHasItem))
    return;
  constexpr double MillisecondsPerNanosecond = 1e-6;
  QElapsedTimer timer;
  timer.start();
  painter->setRenderHint(QPainter::Antialiasing);
  m_item->draw(painter, m_plot.canvasMap(QwtPlot::xBottom), m_plot.canvasMap(QwtPlot::yLeft),
               m_plot.canvas()->contentsRect());
  const double time = static_cast<double>(timer.nsecsElapsed()) * MillisecondsPerNanosecond;
  const QRectF view(m_plot.canvasMap(QwtPlot::xBottom).s1(), m_plot.canvasMap(QwtPlot::yLeft).s1(),
                    m_plot.canvasMap(QwtPlot::xBottom).sDist(), m_plot.canvasMap(QwtPlot::yLeft).sDist());
  if (view != m_itemView || time > m_itemTime) // of a view that it knows already an item may keep a picture
    m_itemTime = time;
  m_itemView = view;
}
