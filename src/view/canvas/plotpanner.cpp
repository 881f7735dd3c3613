#include "canvas/plotpanner.h"

#include "canvas/qwtfastplot.h"

PlotPanner::PlotPanner(QwtFastPlot &plot)
    : QwtPlotPanner(plot.canvas())
    , m_plot(plot) {}

QPixmap PlotPanner::grab() const {
  return m_plot.canvas()->grab(m_plot.canvas()->contentsRect());
}
