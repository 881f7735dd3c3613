#include "interaction/measuretool.h"

#include "canvas/qwtfastplot.h"

#include <view/netplot.h>

#include <QKeyEvent>
#include <QMouseEvent>

MeasureTool::MeasureTool(NetPlot &plot, QObject *parent)
    : QObject(parent)
    , m_plot(plot)
    , m_layer(*plot.plot()) {
  plot.plot()->addOverlayItem(&m_layer);
  plot.plot()->canvas()->installEventFilter(this);
}

void MeasureTool::setActive(bool isActive) {
  if (isActive == m_isActive)
    return;
  m_isActive = isActive;
  m_isAtEnd = false;
  m_layer.clear();
  const NetUpdate &update = m_plot.update();
  if (isActive && !m_hasScale && update.netData() != nullptr) {
    m_layer.setScale(MapScale::of(*update.netData(), update.geometry()), update.geometry().plotUnits());
    m_hasScale = true;
  }
  m_plot.plot()->updateOverlay();
  emit told(isActive ? tr("Click along a path to measure it; a double click ends the path, Esc the measuring") : QString());
}

void MeasureTool::clear() {
  m_layer.clear();
  m_hasScale = false;
  setActive(false);
}

bool MeasureTool::eventFilter(QObject *watched, QEvent *event) {
  if (!m_isActive)
    return QObject::eventFilter(watched, event);
  switch (event->type()) {
  case QEvent::MouseButtonPress:
    return press(*static_cast<QMouseEvent *>(event));
  case QEvent::MouseButtonDblClick:
    if (static_cast<QMouseEvent *>(event)->button() != Qt::LeftButton)
      break;
    m_isAtEnd = true;
    m_layer.setNext(std::nullopt);
    show();
    return true;
  case QEvent::MouseMove:
    move(*static_cast<QMouseEvent *>(event));
    break;
  case QEvent::KeyPress:
    return keyPress(*static_cast<QKeyEvent *>(event));
  default:
    break;
  }
  return QObject::eventFilter(watched, event);
}

/// What is to move the view is left to it.
bool MeasureTool::press(const QMouseEvent &event) {
  if (event.button() != Qt::LeftButton || m_plot.pansWith(event.button(), event.modifiers()) ||
      (event.modifiers() & ~Qt::AltModifier) != 0)
    return false;
  addPoint(placeAt(event));
  return true;
}

bool MeasureTool::keyPress(const QKeyEvent &event) {
  switch (event.key()) {
  case Qt::Key_Escape:
    setActive(false);
    emit ended();
    return true;
  case Qt::Key_Backspace:
    m_layer.removeLast();
    show();
    return true;
  case Qt::Key_Return:
  case Qt::Key_Enter: {
    const std::vector<NetGeometry::Item> &items = m_plot.selection().items();
    const auto place = items.empty() ? std::nullopt : m_plot.update().geometry().center(items.front());
    if (place)
      addPoint(*place);
    return true;
  }
  default:
    return false;
  }
}

void MeasureTool::move(const QMouseEvent &event) {
  if (m_isAtEnd || m_layer.isEmpty() || event.buttons() != Qt::NoButton)
    return;
  m_layer.setNext(placeAt(event));
  show();
}

void MeasureTool::addPoint(const QPointF &point) {
  if (m_isAtEnd)
    m_layer.clear();
  m_isAtEnd = false;
  m_layer.setNext(std::nullopt);
  m_layer.add(point);
  show();
}

void MeasureTool::show() {
  m_plot.plot()->updateOverlay();
  emit told(m_layer.text());
}

QPointF MeasureTool::placeAt(const QMouseEvent &event) const {
  constexpr double Tolerance = 8.0; // px
  if (!event.modifiers().testFlag(Qt::AltModifier)) {
    for (const Hit &hit : m_plot.update().elementsAt(event.pos(), Tolerance)) {
      if (hit.rank == HitRank::Point || hit.item.kind == NetData::Node)
        return m_plot.update().geometry().center(hit.item).value_or(m_plot.plot()->toPlot(event.pos()));
    }
  }
  return m_plot.plot()->toPlot(event.pos());
}
