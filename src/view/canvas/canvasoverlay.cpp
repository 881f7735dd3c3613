#include "canvas/canvasoverlay.h"

#include "canvas/qwtfastplot.h"

#include <QPainter>
#include <qwt_plot_item.h>
#include <qwt_scale_map.h>

CanvasOverlay::CanvasOverlay(QwtFastPlot &plot)
    : QwtWidgetOverlay(plot.canvas())
    , m_plot(plot) {
  setMaskMode(NoMask);
  setRenderMode(DrawOverlay);
  lower(); // rubber bands and the moving picture of the panner lie above
}

void CanvasOverlay::drawOverlay(QPainter *painter) const {
  if (m_plot.isFrozen()) {
    painter->fillRect(rect(), m_plot.canvasBackground());
    painter->drawPixmap(m_plot.pictureArea(), m_plot.picture(), m_plot.picture().rect());
  }
  if (m_item == nullptr)
    return;
  painter->setRenderHint(QPainter::Antialiasing);
  m_item->draw(painter, m_plot.canvasMap(QwtPlot::xBottom), m_plot.canvasMap(QwtPlot::yLeft),
               m_plot.canvas()->contentsRect());
}
