#include "interaction/mousemodes.h"

#include "canvas/plotpanner.h"
#include "canvas/qwtfastplot.h"
#include "interaction/plotzoom.h"

#include <view/netpicker.h>
#include <view/netplot.h>

#include <QKeyEvent>

MouseModes::MouseModes(NetPlot &plot, NetPicker &picker, QObject *parent)
    : QObject(parent)
    , m_plot(plot)
    , m_picker(picker) {
  plot.plot()->canvas()->installEventFilter(this);
}

void MouseModes::setMode(Mode mode) {
  if (mode == m_mode)
    return;
  m_mode = mode;
  apply();
  emit modeChanged();
}

void MouseModes::setSpaceHeld(bool isHeld) {
  if (isHeld == m_isSpaceHeld)
    return;
  m_isSpaceHeld = isHeld;
  apply();
}

void MouseModes::apply() {
  const Mode mode = m_isSpaceHeld ? Mode::Pan : m_mode;
  m_plot.zoomer()->setDragZooms(mode == Mode::Zoom);
  m_plot.panner()->setLeftPans(mode == Mode::Pan);
  m_picker.setSelectsArea(mode == Mode::Area);
  QWidget *canvas = m_plot.plot()->canvas();
  if (mode == Mode::Pan)
    canvas->setCursor(Qt::OpenHandCursor);
  else if (mode == Mode::Measure)
    canvas->setCursor(Qt::CrossCursor);
  else
    canvas->unsetCursor();
}

bool MouseModes::eventFilter(QObject *watched, QEvent *event) {
  switch (event->type()) {
  case QEvent::KeyPress:
  case QEvent::KeyRelease: {
    const auto *key = static_cast<QKeyEvent *>(event);
    if (key->key() != Qt::Key_Space || key->modifiers() != Qt::NoModifier)
      break;
    if (!key->isAutoRepeat())
      setSpaceHeld(event->type() == QEvent::KeyPress);
    return true;
  }
  case QEvent::FocusOut: // the release goes to somebody else
    setSpaceHeld(false);
    break;
  default:
    break;
  }
  return QObject::eventFilter(watched, event);
}
