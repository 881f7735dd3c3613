#include "canvas/plotpanner.h"

#include "canvas/qwtfastplot.h"

#include <QEvent>

PlotPanner::PlotPanner(QwtFastPlot &plot)
    : QwtPlotPanner(plot.canvas())
    , m_plot(plot) {}

bool PlotPanner::eventFilter(QObject *watched, QEvent *event) {
  if (watched == parent() && event->type() == QEvent::WindowBlocked)
    hide(); // which ends the movement: the release goes to the dialog
  return QwtPlotPanner::eventFilter(watched, event);
}

QPixmap PlotPanner::grab() const {
  return m_plot.grabDrawing();
}
