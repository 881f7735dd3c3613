#include "canvas/plotpanner.h"

#include "canvas/qwtfastplot.h"

#include <QEvent>
#include <QMouseEvent>

PlotPanner::PlotPanner(QwtFastPlot &plot)
    : QwtPlotPanner(plot.canvas())
    , m_plot(plot) {
  setCursor(Qt::ClosedHandCursor);
}

void PlotPanner::setOwnButton(Qt::MouseButton button, Qt::KeyboardModifiers keys) {
  m_button = button;
  m_keys = keys;
}

bool PlotPanner::pansWith(Qt::MouseButton button, Qt::KeyboardModifiers keys) const {
  if (!isEnabled())
    return false;
  const bool isPlain = keys == Qt::NoModifier && (button == Qt::MiddleButton || (m_leftPans && button == Qt::LeftButton));
  return isPlain || (button == m_button && keys == m_keys);
}

/// The panner of the toolkit knows one button.
void PlotPanner::widgetMousePressEvent(QMouseEvent *event) {
  if (isVisible() || !pansWith(event->button(), event->modifiers()))
    return; // a second button does not begin another movement
  setMouseButton(event->button(), event->modifiers());
  QwtPlotPanner::widgetMousePressEvent(event);
}

bool PlotPanner::eventFilter(QObject *watched, QEvent *event) {
  if (watched == parent() && event->type() == QEvent::WindowBlocked)
    hide(); // which ends the movement: the release goes to the dialog
  return QwtPlotPanner::eventFilter(watched, event);
}

QPixmap PlotPanner::grab() const {
  return m_plot.grabDrawing();
}
