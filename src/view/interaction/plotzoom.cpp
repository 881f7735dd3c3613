#include "interaction/plotzoom.h"

#include "canvas/qwtfastplot.h"

#include <base/settings.h>

#include <QKeyEvent>
#include <QWheelEvent>

#include <cmath>

PlotZoom::PlotZoom(QwtFastPlot &plot, const PlotSettings &settings, Told told)
    : ZoomStack(plot, settings, std::move(told)) {
  constexpr int Alpha = 150;
  setRubberBandPen(QColor(0, 170, 0, Alpha));
  setTrackerMode(AlwaysOff);
  setMousePattern(MouseSelect1, Qt::LeftButton);
  // The right button belongs to the context menu and, like the middle one, to panning.
  for (const MousePatternCode pattern : {MouseSelect2, MouseSelect3, MouseSelect4, MouseSelect5, MouseSelect6})
    setMousePattern(pattern, Qt::NoButton);
  constexpr int RestMs = 700;
  m_rest.setSingleShot(true);
  m_rest.setInterval(RestMs);
  connect(this, &QwtPlotZoomer::zoomed, this, [this] {
    if (isFittingCanvas())
      return;
    m_rest.start();
    emit historyChanged();
  });
  connect(this, &QwtPlotZoomer::zoomed, this, &PlotZoom::requestRefresh);
  connect(&m_rest, &QTimer::timeout, this, &PlotZoom::recordView);
}

void PlotZoom::setExtent(const QRectF &extent) {
  setBase(extent);
  m_history.clear();
  recordView();
}

void PlotZoom::requestRefresh() {
  if (m_ownRequests == 0 && !isMoving())
    emit refreshRequested(Settings::PixtestDelay.value());
}

void PlotZoom::resetZoomBase(const QRectF &rect) {
  {
    const OwnRequest own(*this);
    joinToBase(rect);
  }
  emit refreshRequested(-1);
}

void PlotZoom::recordView() {
  m_rest.stop();
  m_history.record(zoomRect());
  emit historyChanged();
}

void PlotZoom::goBack() {
  if (m_rest.isActive())
    recordView(); // to come back to where this began
  if (const std::optional<QRectF> view = m_history.back())
    zoom(*view);
  m_rest.stop();
  emit historyChanged();
}

void PlotZoom::goForward() {
  if (m_rest.isActive())
    recordView();
  if (const std::optional<QRectF> view = m_history.forward())
    zoom(*view);
  m_rest.stop();
  emit historyChanged();
}

void PlotZoom::setRectangleKeys(Qt::KeyboardModifiers keys) {
  const bool isDrawn = m_dragZooms || keys != Qt::NoModifier;
  setMousePattern(MouseSelect1, isDrawn ? Qt::LeftButton : Qt::NoButton, keys);
}

void PlotZoom::setDragZooms(bool zooms) {
  m_dragZooms = zooms;
  setRectangleKeys(Qt::NoModifier);
}

QPointF PlotZoom::cursor() const {
  return fastPlot().toPlot(canvas()->mapFromGlobal(QCursor::pos()));
}

void PlotZoom::zoomIn(const QPointF &point, double factor) {
  const QRectF r = zoomRect();
  const QSizeF next = inCanvasRatio((r.size() / factor).expandedTo(limits().smallest));
  constexpr double AsLarge = 1.0 - 1e-9;
  if (next.width() < r.width() * AsLarge || next.height() < r.height() * AsLarge)
    zoomAbout(point, next);
}

void PlotZoom::zoomOut(const QPointF &point, double factor) {
  const QRectF r = zoomRect();
  const QRectF base = zoomBase();
  if (std::round(r.width()) >= std::round(base.width()) && std::round(r.height()) >= std::round(base.height())) {
    if (zoomRectIndex() != 0) {
      tell(told(), Finding::Severity::Debug, QStringLiteral("zooming back to zoombase"));
      zoom(0);
    }
    return;
  }
  zoomAbout(point, inCanvasRatio((r.size() * factor).boundedTo(base.size())));
}

void PlotZoom::zoomSteps(int steps, const QPointF &point) {
  {
    const OwnRequest own(*this); // one for all steps
    for (int i = 0; i < std::abs(steps); ++i) {
      if (steps > 0)
        zoomIn(point);
      else
        zoomOut(point);
    }
  }
  requestRefresh();
}

void PlotZoom::zoomAbout(const QPointF &point, const QSizeF &size) {
  const QRectF r = zoomRect();
  const double fx = (r.x() - point.x()) / r.width();
  const double fy = (r.y() - point.y()) / r.height();
  const QRectF next(point.x() + size.width() * fx, point.y() + size.height() * fy, size.width(), size.height());
  if (std::isfinite(next.x() + next.y() + next.width() + next.height()) && !next.isEmpty())
    zoom(next);
}

bool PlotZoom::eventFilter(QObject *watched, QEvent *event) {
  const bool result = ZoomStack::eventFilter(watched, event);
  if (watched == canvas() && event->type() == QEvent::WindowBlocked)
    reset(); // the release of a rectangle that was begun goes to the dialog
  return result;
}

void PlotZoom::widgetWheelEvent(QWheelEvent *event) {
  constexpr double EighthsADegree = 8.0;
  constexpr int DegreesAStep = 15;
  m_wheelDegrees += static_cast<int>(std::lround(event->angleDelta().y() / EighthsADegree));
  event->accept();
  const int steps = m_wheelDegrees / DegreesAStep;
  if (steps == 0)
    return;
  m_wheelDegrees = 0;
  emit wheelTurned(steps, fastPlot().toPlot(event->position().toPoint()));
}

namespace {

constexpr int KeyDelay = 2000;
constexpr int KeyReleaseDelay = 250;

bool movesView(int key) {
  return key == Qt::Key_Plus || key == Qt::Key_Minus || key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up ||
         key == Qt::Key_Down;
}

} // namespace

void PlotZoom::widgetKeyReleaseEvent(QKeyEvent *event) {
  if (movesView(event->key()) && !event->isAutoRepeat())
    emit refreshRequested(KeyReleaseDelay);
  ZoomStack::widgetKeyReleaseEvent(event);
}

void PlotZoom::widgetKeyPressEvent(QKeyEvent *event) {
  const bool isAlt = event->modifiers().testFlag(Qt::AltModifier);
  if (isAlt && event->key() == Qt::Key_Left)
    goBack();
  else if (isAlt && event->key() == Qt::Key_Right)
    goForward();
  else if (event->key() == Qt::Key_Home)
    fitAll();
  else if (moveBy(event->key()))
    emit refreshRequested(KeyDelay);
  else if (isActive() && event->key() == Qt::Key_Escape)
    ZoomStack::widgetKeyPressEvent(event); // gives up the rectangle
}

bool PlotZoom::moveBy(int key) {
  const OwnRequest own(*this);
  const double part = (settings().zoomFact - 1.0) * 0.5;
  switch (key) {
  case Qt::Key_Plus:
    zoomIn(cursor());
    return true;
  case Qt::Key_Minus:
    zoomOut(cursor());
    return true;
  case Qt::Key_Left:
    shift(-part, 0.0);
    return true;
  case Qt::Key_Right:
    shift(part, 0.0);
    return true;
  case Qt::Key_Up:
    shift(0.0, part);
    return true;
  case Qt::Key_Down:
    shift(0.0, -part);
    return true;
  default:
    return false;
  }
}

void PlotZoom::shift(double horizontal, double vertical) {
  const QRectF r = zoomRect();
  zoom(r.translated(r.width() * horizontal, r.height() * vertical));
}
