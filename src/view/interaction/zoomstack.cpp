#include "interaction/zoomstack.h"

#include "canvas/qwtfastplot.h"

#include <base/index.h>

#include <QEvent>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <qwt_scale_engine.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

/// An extent around the centre that has an area: a network of one node or a straight line shows as well, and far from
/// the origin the numbers must still tell left from right.
QRectF withArea(const QRectF &extent) {
  constexpr double Precision = 1e-9;
  constexpr double AnyWidth = 10.0;
  constexpr double ThinnestShape = 0.01;
  const QPointF c = extent.center();
  const double smallestSide = std::max({std::abs(c.x()), std::abs(c.y()), 1e-6}) * Precision;
  const double longerSide = std::max(extent.width(), extent.height());
  const double side = longerSide > smallestSide ? longerSide : std::max(AnyWidth, smallestSide);
  const QSizeF size(std::max(extent.width(), side * ThinnestShape), std::max(extent.height(), side * ThinnestShape));
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

ZoomStack::ZoomStack(QwtFastPlot &plot, const PlotSettings &settings, Told told)
    : QwtPlotZoomer(plot.canvas(), false)
    , m_plot(plot)
    , m_settings(settings)
    , m_told(std::move(told)) {
  connect(this, &QwtPlotZoomer::zoomed, this, &ZoomStack::cutStack);
}

void ZoomStack::setBase(const QRectF &extent) {
  const QRectF area = withArea(extent);
  setZoomLimits(area, QSizeF(m_plot.canvas()->contentsRect().size()));
  m_wholeNetwork = about(area.center(), area.size() * ZoomLimits::Margin);
  fitBase();
}

void ZoomStack::joinToBase(const QRectF &rect) {
  m_wholeNetwork = withArea(zoomBase().united(rect));
  const QRectF base = inCanvasRatio(m_wholeNetwork);
  setStack(stackOf({base}), 0);
  m_limits.largest = base.size() * ZoomLimits::Margin;
  rescale();
  emit zoomed(base);
}

void ZoomStack::fitBase() {
  if (m_wholeNetwork.isEmpty())
    return;
  m_plot.forgetScaleRoom();
  setStack(stackOf({inCanvasRatio(m_wholeNetwork)}), 0);
  rescale(); // also when the base is the old one but the canvas is not
  emit zoomed(zoomBase());
}

void ZoomStack::pushShownView() {
  m_plot.updateAxes();
  zoom(m_plot.visibleRect());
}

void ZoomStack::beginMove() {
  m_move = Move::Begun;
  m_plot.freeze();
}

void ZoomStack::endMove() {
  m_move = Move::None;
  m_plot.thaw();
}

void ZoomStack::zoom(const QRectF &rect) {
  const QRectF view = inCanvasRatio(rect.normalized());
  if (m_move == Move::Running && zoomRectIndex() > 0) {
    replaceView(view);
    return;
  }
  if (m_move == Move::Begun)
    m_move = Move::Running;
  QwtPlotZoomer::zoom(view);
}

void ZoomStack::replaceView(const QRectF &rect) {
  QStack<QRectF> views = zoomStack();
  const int index = toQt(zoomRectIndex());
  views.resize(index + 1);
  views[index] = rect;
  setStack(views, index);
  emit zoomed(rect);
}

void ZoomStack::setStack(const QStack<QRectF> &views, int index) {
  const QSignalBlocker blocker(this);
  setZoomStack(views, index);
}

void ZoomStack::cutStack() {
  constexpr uint LongestStack = 256;
  if (zoomRectIndex() < LongestStack)
    return;
  tell(m_told, Finding::Severity::Debug, QStringLiteral("zoomStack reset"));
  setStack(stackOf({zoomBase(), zoomRect()}), 1);
}

QSizeF ZoomStack::inCanvasRatio(const QSizeF &size) const {
  const QRect area = m_plot.canvas()->contentsRect();
  if (!m_settings.fixAxesRatio || area.width() < 2 || area.height() < 2)
    return size;
  const double unitsPerPixel = std::max(size.width() / area.width(), size.height() / area.height());
  return {unitsPerPixel * area.width(), unitsPerPixel * area.height()};
}

QRectF ZoomStack::inCanvasRatio(const QRectF &rect) const {
  return about(rect.center(), inCanvasRatio(rect.size()));
}

void ZoomStack::fitCanvas() {
  if (m_wholeNetwork.isEmpty())
    return;
  constexpr int MaximumPasses = 4; // the scales keep the room that they took, so the second pass is the last as a rule
  const QScopedValueRollback<bool> fitting(m_isFitting, true);
  m_isCanvasOther = true;
  for (int pass = 0; pass < MaximumPasses && std::exchange(m_isCanvasOther, false); ++pass)
    fitViews();
  m_isCanvasOther = false;
  emit zoomed(zoomRect());
}

void ZoomStack::fitViews() {
  QStack<QRectF> views = zoomStack();
  const int index = toQt(zoomRectIndex());
  views[0] = inCanvasRatio(m_wholeNetwork);
  if (index > 0) {
    if (views[index] != m_fitted)
      m_chosen = views[index];
    views[index] = m_chosen;
  }
  setStack(views, index);
  rescale();
  if (index > 0) {
    m_fitted = views[index] = m_plot.visibleRect();
    setStack(views, index);
  }
}

bool ZoomStack::eventFilter(QObject *watched, QEvent *event) {
  const bool result = QwtPlotZoomer::eventFilter(watched, event);
  if (watched == canvas() && event->type() == QEvent::Resize) {
    m_isCanvasOther = true;
    if (!m_isRescaling)
      fitCanvas();
  }
  return result;
}

void ZoomStack::rescale() {
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

bool ZoomStack::applyAxesRatio() {
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
