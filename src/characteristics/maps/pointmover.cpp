#include "pointmover.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWidget>
#include <qwt_plot.h>
#include <qwt_scale_map.h>

#include <algorithm>
#include <utility>

namespace {

constexpr double Reach = 12.0; // pixels from its middle at which the point is taken
constexpr double Size = 8.0;   // pixels from its middle to its corners

bool isArrow(int key) {
  return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

} // namespace

PointMover::PointMover(QwtPlot &plot)
    : QObject(&plot)
    , m_plot(plot)
    , m_overlay(new QWidget(plot.canvas())) {
  m_overlay->setAttribute(Qt::WA_TransparentForMouseEvents);
  m_overlay->setGeometry(plot.canvas()->rect());
  m_overlay->hide();
  m_overlay->installEventFilter(this);
  plot.canvas()->installEventFilter(this); // before the zoomer, which was there first
  plot.canvas()->setMouseTracking(true);
}

void PointMover::setHome(const std::optional<QPointF> &home) {
  m_home = home;
  m_at.reset();
  m_isDragged = false;
  m_overlay->hide();
  m_plot.canvas()->setFocusPolicy(home ? Qt::StrongFocus : Qt::ClickFocus);
}

void PointMover::setColors(const QColor &point, const QColor &ground) {
  m_color = point;
  m_ground = ground;
  update();
}

QPointF PointMover::pixel(const QPointF &at) const {
  return {m_plot.transform(QwtPlot::xBottom, at.x()), m_plot.transform(QwtPlot::yLeft, at.y())};
}

QPointF PointMover::plotted(const QPointF &pixel) const {
  return {m_plot.canvasMap(QwtPlot::xBottom).invTransform(pixel.x()),
          m_plot.canvasMap(QwtPlot::yLeft).invTransform(pixel.y())};
}

bool PointMover::isOnPoint(const QPoint &position) const {
  if (!m_home)
    return false;
  const QPointF distance = pixel(m_at.value_or(*m_home)) - position;
  return QPointF::dotProduct(distance, distance) <= Reach * Reach;
}

void PointMover::moveTo(const QPointF &at) {
  if (!m_home || !(at.x() > 0.0 && at.y() > 0.0))
    return;
  m_at = at;
  m_overlay->setGeometry(m_plot.canvas()->rect());
  m_overlay->show();
  update();
  emit moved(at);
}

void PointMover::goHome() {
  m_isDragged = false;
  if (!m_at)
    return;
  m_at.reset();
  m_overlay->hide();
  emit returned();
}

void PointMover::update() {
  if (m_overlay != nullptr)
    m_overlay->update();
}

bool PointMover::press(const QMouseEvent &event) {
  if (event.button() != Qt::LeftButton || !isOnPoint(event.pos()))
    return false;
  m_isDragged = true;
  m_grip = event.pos() - pixel(m_at.value_or(*m_home));
  m_plot.canvas()->setFocus();
  return true;
}

bool PointMover::drag(const QMouseEvent &event) {
  if (!m_isDragged) {
    if (m_home)
      m_plot.canvas()->setCursor(isOnPoint(event.pos()) ? Qt::SizeAllCursor : Qt::CrossCursor);
    return false;
  }
  const QRectF room = m_plot.canvas()->contentsRect();
  const QPointF wanted = event.pos() - m_grip;
  moveTo(plotted({std::clamp(wanted.x(), room.left(), room.right()), std::clamp(wanted.y(), room.top(), room.bottom())}));
  return true;
}

/// A hundredth of what is shown at a time; with Shift ten times, with Ctrl a tenth of it.
bool PointMover::key(const QKeyEvent &event) {
  if (event.key() == Qt::Key_Escape && m_at) {
    goHome();
    return true;
  }
  if (!m_home || !isArrow(event.key()))
    return false;
  double step = 0.01;
  if ((event.modifiers() & Qt::ShiftModifier) != 0)
    step *= 10.0;
  if ((event.modifiers() & Qt::ControlModifier) != 0)
    step *= 0.1;
  const QRectF room = m_plot.canvas()->contentsRect();
  QPointF at = pixel(m_at.value_or(*m_home));
  at.rx() += step * room.width() * ((event.key() == Qt::Key_Right ? 1 : 0) - (event.key() == Qt::Key_Left ? 1 : 0));
  at.ry() += step * room.height() * ((event.key() == Qt::Key_Down ? 1 : 0) - (event.key() == Qt::Key_Up ? 1 : 0));
  moveTo(plotted(at));
  return true;
}

void PointMover::paint(QWidget &overlay) const {
  if (!m_at || !m_home)
    return;
  QPainter painter(&overlay);
  painter.setRenderHint(QPainter::Antialiasing);
  const QPointF home = pixel(*m_home);
  const QPointF at = pixel(*m_at);
  painter.setPen(QPen(m_color, 1.2, Qt::DashLine));
  painter.drawLine(home, at);
  painter.setPen(QPen(m_ground, 1.5));
  painter.setBrush(m_color);
  painter.drawPolygon(
      QPolygonF({at + QPointF(Size, 0.0), at + QPointF(0.0, Size), at + QPointF(-Size, 0.0), at + QPointF(0.0, -Size)}));
}

bool PointMover::eventFilter(QObject *watched, QEvent *event) {
  if (watched == m_overlay) {
    if (event->type() == QEvent::Paint)
      paint(*m_overlay);
    return false;
  }
  switch (event->type()) {
  case QEvent::MouseButtonPress:
    return press(*static_cast<QMouseEvent *>(event));
  case QEvent::MouseMove:
    return drag(*static_cast<QMouseEvent *>(event));
  case QEvent::MouseButtonRelease:
    return std::exchange(m_isDragged, false);
  case QEvent::MouseButtonDblClick: {
    const bool wasMoved = isMoved();
    goHome();
    return wasMoved;
  }
  case QEvent::Resize:
    m_overlay->setGeometry(m_plot.canvas()->rect());
    return false;
  case QEvent::ShortcutOverride: {
    const int wanted = static_cast<QKeyEvent *>(event)->key();
    const bool isOurs = m_home && (isArrow(wanted) || (wanted == Qt::Key_Escape && m_at));
    event->setAccepted(isOurs);
    return isOurs;
  }
  case QEvent::KeyPress:
    return key(*static_cast<QKeyEvent *>(event));
  default:
    return false;
  }
}
