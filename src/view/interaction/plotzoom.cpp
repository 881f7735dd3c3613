#include "interaction/plotzoom.h"

#include "canvas/qwtfastplot.h"

#include <base/nivramsg.h>
#include <base/settings.h>

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QWheelEvent>
#include <qwt_scale_engine.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double Room = 1.1; ///< the base is larger than the network, so that nothing touches the frame

/// An extent around the centre that has an area: a network of one node or a straight line shows as well, and far from
/// the origin the numbers must still tell left from right.
QRectF withArea(const QRectF &extent) {
  constexpr double Precision = 1e-9;
  constexpr double AnyWidth = 10.0;
  const QPointF c = extent.center();
  const double least = std::max({std::abs(c.x()), std::abs(c.y()), 1e-6}) * Precision;
  const double larger = std::max(extent.width(), extent.height());
  const double side = larger > least ? larger : std::max(AnyWidth, least);
  const QSizeF size(std::max(extent.width(), side * 0.01), std::max(extent.height(), side * 0.01));
  return {c - QPointF(size.width() * 0.5, size.height() * 0.5), size};
}

QStack<QRectF> stackOf(std::initializer_list<QRectF> views) {
  QStack<QRectF> stack;
  for (const QRectF &view : views)
    stack.push(view);
  return stack;
}

QRectF about(const QPointF &center, const QSizeF &size) {
  return {center.x() - size.width() * 0.5, center.y() - size.height() * 0.5, size.width(), size.height()};
}

} // namespace

PlotZoom::PlotZoom(QwtFastPlot &plot, PlotSettings &settings)
    : QwtPlotZoomer(plot.canvas(), false)
    , m_plot(plot)
    , m_settings(settings) {
  constexpr int Alpha = 150;
  setRubberBandPen(QColor(0, 170, 0, Alpha));
  setTrackerMode(AlwaysOff);
  setMousePattern(MouseSelect1, Qt::LeftButton);
  // The right button belongs to the context menu and, like the middle one, to panning.
  for (const MousePatternCode pattern : {MouseSelect2, MouseSelect3, MouseSelect4, MouseSelect5, MouseSelect6})
    setMousePattern(pattern, Qt::NoButton);
  connect(this, &QwtPlotZoomer::zoomed, this, &PlotZoom::cutStack);
  constexpr int RestMs = 700;
  m_rest.setSingleShot(true);
  m_rest.setInterval(RestMs);
  connect(this, &QwtPlotZoomer::zoomed, this, [this] { m_rest.start(); });
  connect(this, &QwtPlotZoomer::zoomed, this, &PlotZoom::requestRefresh);
  connect(&m_rest, &QTimer::timeout, this, &PlotZoom::recordView);
}

void PlotZoom::setExtent(const QRectF &extent) {
  const QRectF area = withArea(extent);
  setZoomLimits(area, QSizeF(m_plot.canvas()->contentsRect().size()));
  m_wholeNetwork = about(area.center(), area.size() * Room);
  fitBase();
  m_history.clear();
  recordView();
}

void PlotZoom::requestRefresh() {
  if (m_ownRequests == 0 && m_move == Move::None)
    emit refreshRequested(Settings::PixtestDelay.value());
}

void PlotZoom::resetZoomBase(const QRectF &rect) {
  m_wholeNetwork = withArea(zoomBase().united(rect));
  const QRectF base = inCanvasRatio(m_wholeNetwork);
  setStack(stackOf({base}), 0);
  m_settings.largestZoomWidth = base.width() * Room;
  m_settings.largestZoomHeight = base.height() * Room;
  rescale();
  {
    const OwnRequest own(*this);
    emit zoomed(base);
  }
  emit refreshRequested(-1);
}

void PlotZoom::recordView() {
  m_rest.stop();
  m_history.record(zoomRect());
}

void PlotZoom::goBack() {
  if (m_rest.isActive())
    recordView(); // to come back to where this began
  if (const std::optional<QRectF> view = m_history.back())
    zoom(*view);
  m_rest.stop();
}

void PlotZoom::goForward() {
  if (m_rest.isActive())
    recordView();
  if (const std::optional<QRectF> view = m_history.forward())
    zoom(*view);
  m_rest.stop();
}

void PlotZoom::beginMove() {
  m_move = Move::Begun;
  m_plot.freeze();
}

void PlotZoom::endMove() {
  m_move = Move::None;
  m_plot.thaw();
}

QPointF PlotZoom::cursor() const {
  return m_plot.toPlot(canvas()->mapFromGlobal(QCursor::pos()));
}

void PlotZoom::setZoomLimits(const QRectF &extent, const QSizeF &pixelSpan) {
  constexpr double Deepest = 100.0;
  constexpr double LeastSpan = 10.0;
  m_settings.largestZoomWidth = std::max(1.0, extent.width()) * Room;
  m_settings.largestZoomHeight = std::max(1.0, extent.height()) * Room;
  m_settings.smallestZoomWidth = m_settings.largestZoomWidth / Deepest;
  m_settings.smallestZoomHeight = m_settings.largestZoomHeight / Deepest;
  if (pixelSpan.width() > LeastSpan)
    m_settings.smallestZoomWidth = std::min(m_settings.smallestZoomWidth, pixelSpan.width());
  if (pixelSpan.height() > LeastSpan)
    m_settings.smallestZoomHeight = std::min(m_settings.smallestZoomHeight, pixelSpan.height());
}

void PlotZoom::zoomIn(const QPointF &point, double factor) {
  const QRectF r = zoomRect();
  const QSizeF next = inCanvasRatio(QSizeF(std::max(m_settings.smallestZoomWidth, r.width() / factor),
                                           std::max(m_settings.smallestZoomHeight, r.height() / factor)));
  constexpr double AsLarge = 1.0 - 1e-9;
  if (next.width() < r.width() * AsLarge || next.height() < r.height() * AsLarge)
    zoomAbout(point, next);
}

void PlotZoom::zoomOut(const QPointF &point, double factor) {
  const QRectF r = zoomRect();
  const QRectF base = zoomBase();
  if (std::round(r.width()) >= std::round(base.width()) && std::round(r.height()) >= std::round(base.height())) {
    if (zoomRectIndex() != 0) {
      NivraMsg::debug(QStringLiteral("zooming back to zoombase"));
      zoom(0);
    }
    return;
  }
  zoomAbout(point,
            inCanvasRatio(QSizeF(std::min(base.width(), r.width() * factor), std::min(base.height(), r.height() * factor))));
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

void PlotZoom::takeView() {
  m_plot.updateAxes();
  zoom(m_plot.visibleRect());
}

void PlotZoom::zoom(const QRectF &rect) {
  const QRectF view = inCanvasRatio(rect.normalized());
  if (m_move == Move::Running && zoomRectIndex() > 0) {
    replaceView(view);
    return;
  }
  if (m_move == Move::Begun)
    m_move = Move::Running;
  QwtPlotZoomer::zoom(view);
}

void PlotZoom::replaceView(const QRectF &rect) {
  QStack<QRectF> views = zoomStack();
  const auto at = static_cast<int>(zoomRectIndex());
  views.resize(at + 1);
  views[at] = rect;
  setStack(views, at);
  emit zoomed(rect);
}

void PlotZoom::setStack(const QStack<QRectF> &views, int index) {
  const QSignalBlocker blocker(this);
  setZoomStack(views, index);
}

QSizeF PlotZoom::inCanvasRatio(const QSizeF &size) const {
  const QRect area = m_plot.canvas()->contentsRect();
  if (!m_settings.fixAxesRatio || area.width() < 2 || area.height() < 2)
    return size;
  const double units = std::max(size.width() / area.width(), size.height() / area.height());
  return {units * area.width(), units * area.height()};
}

QRectF PlotZoom::inCanvasRatio(const QRectF &rect) const {
  return about(rect.center(), inCanvasRatio(rect.size()));
}

void PlotZoom::cutStack() {
  constexpr uint Longest = 256;
  if (zoomRectIndex() < Longest)
    return;
  NivraMsg::debug(QStringLiteral("zoomStack reset"));
  setStack(stackOf({zoomBase(), zoomRect()}), 1);
}

void PlotZoom::fitBase() {
  if (m_wholeNetwork.isEmpty())
    return;
  m_plot.forgetScaleRoom();
  setStack(stackOf({inCanvasRatio(m_wholeNetwork)}), 0);
  rescale(); // also when the base is the old one but the canvas is not
  emit zoomed(zoomBase());
}

void PlotZoom::fitCanvas() {
  if (m_wholeNetwork.isEmpty())
    return;
  constexpr int MostPasses = 4; // the scales keep the room that they took, so the second pass is the last as a rule
  const bool wasResting = !m_rest.isActive();
  {
    const QScopedValueRollback<bool> fitting(m_isFitting, true);
    m_isCanvasOther = true;
    for (int pass = 0; pass < MostPasses && std::exchange(m_isCanvasOther, false); ++pass)
      fitViews();
  }
  m_isCanvasOther = false;
  emit zoomed(zoomRect());
  if (wasResting)
    m_rest.stop(); // nobody chose this view
}

void PlotZoom::fitViews() {
  QStack<QRectF> views = zoomStack();
  const auto at = static_cast<int>(zoomRectIndex());
  views[0] = inCanvasRatio(m_wholeNetwork);
  if (at > 0) { // not what an earlier canvas made of it: docks that come and go must not add up
    if (views[at] != m_fitted)
      m_chosen = views[at];
    views[at] = m_chosen;
  }
  setStack(views, at);
  rescale();
  if (at > 0) {
    m_fitted = views[at] = m_plot.visibleRect();
    setStack(views, at);
  }
}

bool PlotZoom::eventFilter(QObject *watched, QEvent *event) {
  const bool result = QwtPlotZoomer::eventFilter(watched, event);
  if (watched == canvas() && event->type() == QEvent::WindowBlocked)
    reset(); // the release of a rectangle that was begun goes to the dialog
  if (watched == canvas() && event->type() == QEvent::Resize) {
    m_isCanvasOther = true;
    if (!m_isRescaling)
      fitCanvas();
  }
  return result;
}

void PlotZoom::rescale() {
  {
    const QScopedValueRollback<bool> rescaling(m_isRescaling, true);
    const QRectF rect = zoomRect();
    m_plot.setAxisScale(QwtPlot::xBottom, rect.left(), rect.right());
    m_plot.setAxisScale(QwtPlot::yLeft, rect.top(), rect.bottom());
    m_plot.updateAxes();
    if (!applyAxesRatio())
      m_plot.replot();
  }
  if (m_isCanvasOther && !m_isFitting)
    fitCanvas();
}

bool PlotZoom::applyAxesRatio() {
  constexpr double Nothing = 1e-10;
  constexpr uint Decimal = 10;
  if (!m_settings.fixAxesRatio)
    return false;
  const QRectF shown = m_plot.visibleRect();
  const QRect area = m_plot.canvas()->contentsRect();
  double width = shown.width();
  double height = shown.height();
  if (width < Nothing || area.width() < Nothing || area.height() < Nothing)
    return false;
  const double k = double(area.height()) / area.width();
  if (area.width() > area.height())
    width = height / k;
  else
    height = width * k;
  const double step = std::max(QwtScaleArithmetic::divideInterval(width, m_plot.axisMaxMajor(QwtPlot::xBottom), Decimal),
                               QwtScaleArithmetic::divideInterval(height, m_plot.axisMaxMajor(QwtPlot::yLeft), Decimal));
  const QRectF equal = about(shown.center(), {width, height});
  m_plot.setAxisScale(QwtPlot::xBottom, equal.left(), equal.right(), step);
  m_plot.setAxisScale(QwtPlot::yLeft, equal.top(), equal.bottom(), step);
  m_plot.replot();
  return true;
}

QSizeF PlotZoom::minZoomSize() const {
  return {m_settings.smallestZoomWidth, m_settings.smallestZoomHeight};
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
  emit wheelTurned(steps, m_plot.toPlot(event->position().toPoint()));
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
  QwtPlotZoomer::widgetKeyReleaseEvent(event);
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
    QwtPlotZoomer::widgetKeyPressEvent(event); // gives up the rectangle
}

bool PlotZoom::moveBy(int key) {
  const OwnRequest own(*this);
  const double part = (m_settings.zoomFact - 1.0) * 0.5;
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
