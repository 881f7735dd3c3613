#include "canvas/canvaslegend.h"
#include "canvas/colorbars.h"
#include "canvas/functionlegend.h"
#include "canvas/plotpanner.h"
#include "canvas/qwtfastplot.h"
#include "configure/plotsettingsfile.h"
#include "interaction/elementzoom.h"
#include "interaction/plotzoom.h"
#include "interaction/smoothzoom.h"

#include <base/settings.h>
#include <drawing/drawingtheme.h>
#include <view/netplot.h>

#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QVBoxLayout>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>

#include <utility>

namespace {

/// Tells the network's own coordinates at the axes.
class CoordinateScale : public QwtScaleDraw {
public:
  explicit CoordinateScale(double plotUnits)
      : m_plotUnits(plotUnits) {}
  QwtText label(double value) const override { return QwtScaleDraw::label(value / m_plotUnits); }

private:
  double m_plotUnits;
};

} // namespace

NetPlot::NetPlot(QWidget *parent, Told told)
    : QWidget(parent)
    , m_told(std::move(told))
    , m_plot(new QwtFastPlot(this))
    , m_zoomer(new PlotZoom(*m_plot, m_settings, m_told))
    , m_panner(new PlotPanner(*m_plot))
    , m_update(std::make_unique<NetUpdate>(
          m_shown, [this] { return view(); }, m_told))
    , m_functionLegend(std::make_unique<FunctionLegend>(*m_plot))
    , m_canvasLegend(std::make_unique<CanvasLegend>(CanvasLegend::Drawing{*m_plot, *m_zoomer, m_settings, m_shown, *m_update,
                                                                          [this] { return functionLegendArea(); },
                                                                          [this] {
                                                                            return appliedSettings();
                                                                          }}))
    , m_smoothZoom(new SmoothZoom(*m_zoomer)) {
  constexpr int SmallestSide = 200;
  constexpr double GridZ = 1.0;
  setUpPlot();
  setUpUpdate();
  setUpPanner();
  setUpZoom();
  setUpLegend();
  m_grid.setZ(GridZ);
  m_grid.attach(m_plot);
  m_hint.attach(m_plot);
  m_hint.hide();
  m_selection.setFilter(&m_update->layers());
  m_selection.setSizes(m_update->drawnSizes());
  m_selection.attach(m_plot);
  m_plot->addOverlayItem(&m_selection);
  applyColors();
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(m_plot);
  setMinimumSize(SmallestSide, SmallestSide);
  setFocusProxy(m_plot->canvas()); // which takes the keys
}

NetPlot::~NetPlot() = default;

void NetPlot::setUpPlot() {
  showAxes();
  m_plot->canvas()->installEventFilter(this);
  m_plot->axisWidget(QwtPlot::xTop)->installEventFilter(this);
  m_plot->axisWidget(QwtPlot::yRight)->installEventFilter(this);
  for (QWidget *widget : {static_cast<QWidget *>(this), static_cast<QWidget *>(m_plot), m_plot->canvas()})
    widget->setMouseTracking(true);
  m_plot->canvas()->setAcceptDrops(true);
}

void NetPlot::setUpUpdate() {
  for (QwtPlotItem *item : m_update->items())
    item->attach(m_plot);
  connect(m_update.get(), &NetUpdate::scalesChanged, this, [this] {
    ColorBars::show(*m_plot, m_shown, m_update->values(), m_update->coloured(), m_update->swatches());
    showAxes();
  });
  connect(m_update.get(), &NetUpdate::extentChanged, this, &NetPlot::fitNetwork);
  connect(m_update.get(), &NetUpdate::legendChanged, this, [this] {
    placeLegend();
    m_canvasLegend->refresh();
  });
  connect(m_update.get(), &NetUpdate::changed, this, [this] {
    m_selection.forgetPicture();
    m_plot->replot();
  });
}

void NetPlot::setUpLegend() {
  connect(m_canvasLegend.get(), &CanvasLegend::configurationWanted, this, &NetPlot::drawConfigurationRequested);
  connect(m_canvasLegend.get(), &CanvasLegend::entered, this, [this] {
    if (m_selection.setHovered(std::nullopt))
      m_plot->updateOverlay();
  });
  connect(m_canvasLegend.get(), &CanvasLegend::settingsWanted, this, [this](const PlotSettings &settings) {
    PlotSettings ofElements = settings; // what changes how elements look
    ofElements.showsLegend = m_settings.showsLegend;
    ofElements.legendCorner = m_settings.legendCorner;
    ofElements.dimsRest = m_settings.dimsRest;
    const bool isNewLook = ofElements != m_settings;
    setSettings(settings);
    if (isNewLook)
      m_update->updatePlot();
    else
      m_canvasLegend->refresh();
    m_plot->updateOverlay();
    m_update->requestPixtest(0); // labels keep away from the legend
    emit legendSettingsChosen();
  });
  connect(m_canvasLegend.get(), &CanvasLegend::moved, this, [this] { m_update->requestPixtest(0); });
  m_plot->setLeftOut([this](bool isLeftOut) { m_canvasLegend->setIsLeftOut(isLeftOut); });
}

NetUpdate::View NetPlot::view() const {
  return {
      m_plot->visibleRect(),
      m_plot->unitsPerPixel(),
      Projection(m_plot->canvasMap(QwtPlot::xBottom), m_plot->canvasMap(QwtPlot::yLeft), m_plot->canvas()->contentsRect()),
      {functionLegendArea(), m_canvasLegend->area()},
      m_zoomer->limits().largest,
      m_showsSubnet};
}

void NetPlot::setUpPanner() {
  // The scales beside the drawing show colours, not coordinates.
  m_panner->setAxisEnabled(QwtPlot::xTop, false);
  m_panner->setAxisEnabled(QwtPlot::yRight, false);
  connect(m_panner, &QwtPanner::panned, m_zoomer, &PlotZoom::pushShownView);
  readMousePattern();
}

void NetPlot::setUpZoom() {
  connect(m_zoomer, &QwtPlotZoomer::zoomed, this, &NetPlot::placeLegend);
  connect(m_zoomer, &QwtPlotZoomer::zoomed, this, &NetPlot::viewChanged);
  connect(m_zoomer, &PlotZoom::refreshRequested, this, &NetPlot::refresh);
  connect(m_smoothZoom, &SmoothZoom::refreshRequested, this,
          [this](int delay, bool quick) { m_update->requestPixtest(delay, quick); });
  connect(m_zoomer, &PlotZoom::wheelTurned, this, &NetPlot::zoomByWheel);
}

void NetPlot::refresh(int delay) {
  m_update->requestPixtest(delay);
}

void NetPlot::zoomByWheel(int steps, QPointF anchor) {
  const bool isToElement = Settings::ZoomToElement.value();
  if (isToElement) {
    constexpr double Tolerance = 20.0; // px
    const QPointF position(m_plot->transform(QwtPlot::xBottom, anchor.x()), m_plot->transform(QwtPlot::yLeft, anchor.y()));
    const std::vector<Hit> hits = m_update->elementsAt(position, Tolerance);
    if (!hits.empty())
      anchor = m_update->geometry().center(hits.front().item).value_or(anchor);
  }
  if (Settings::SmoothZoom.value()) {
    m_smoothZoom->setAnchor(isToElement ? std::make_optional(anchor) : std::nullopt);
    m_smoothZoom->zoom(steps);
    return;
  }
  m_zoomer->zoomSteps(steps, anchor);
}

void NetPlot::zoomToElement(NetGeometry::Item item) {
  ElementZoom::to(*m_zoomer, m_update->geometry(), item);
}

bool NetPlot::zoomToItems(const std::vector<NetGeometry::Item> &items) {
  return ElementZoom::to(*m_zoomer, m_update->geometry(), items);
}

void NetPlot::readMousePattern() {
  const QString pattern = Settings::MousePatternPanning.value();
  if (pattern == QLatin1String("Left_Ctrl"))
    m_panner->setOwnButton(Qt::LeftButton, Qt::ControlModifier);
  else if (pattern == QLatin1String("RightButton"))
    m_panner->setOwnButton(Qt::RightButton);
  else
    m_panner->setOwnButton(Qt::MiddleButton);
}

bool NetPlot::pansWith(Qt::MouseButton button, Qt::KeyboardModifiers keys) const {
  return m_panner->pansWith(button, keys);
}

void NetPlot::setSettings(const PlotSettings &settings) {
  if (m_applied && m_applied->labels != m_update->labelTable())
    draw(*m_applied); // whoever chose settings alone does not renew the labels
  m_applied.reset();
  take(settings);
}

DrawnStyle NetPlot::appliedStyle() const {
  return m_applied.value_or(DrawnStyle{m_settings, m_update->labelTable()});
}

void NetPlot::setStyle(const DrawnStyle &style) {
  m_applied.reset();
  draw(style);
}

void NetPlot::preview(const DrawnStyle &style) {
  const DrawnStyle applied = appliedStyle();
  if (style == applied)
    return endPreview();
  m_applied = applied;
  if (style != DrawnStyle{m_settings, m_update->labelTable()})
    draw(style);
}

void NetPlot::endPreview() {
  if (const std::optional<DrawnStyle> applied = std::exchange(m_applied, std::nullopt))
    draw(*applied);
}

void NetPlot::draw(const DrawnStyle &style) {
  const bool hasOtherAxes = style.settings.fixAxesRatio != m_settings.fixAxesRatio;
  const bool rebuilds = style.labels != m_update->labelTable();
  take(style.settings);
  m_update->setLabelTable(style.labels);
  m_update->updatePlot(rebuilds ? NetUpdate::Elements::Renewed : NetUpdate::Elements::Kept, NetUpdate::Which::EdgesAndNodes,
                       NetUpdate::Labels::Renewed);
  if (hasOtherAxes)
    m_zoomer->fitBase();
  m_update->requestPixtest(-1);
}

void NetPlot::take(const PlotSettings &settings) {
  m_settings = settings;
  applyColors();
  emit settingsChanged();
}

bool NetPlot::readPlotSettings(const QString &path) {
  PlotSettings settings = appliedSettings();
  const bool found = PlotSettingsFile::read(path, settings, m_told);
  if (found)
    setSettings(settings);
  return found;
}

bool NetPlot::writePlotSettings(const QString &path, QString *error) const {
  return PlotSettingsFile::write(path, appliedSettings(), error);
}

void NetPlot::applyColors() {
  m_shown = DrawingTheme::onScreen(m_settings, !m_isOnPaper && ColorScale::isDark(palette().color(QPalette::Window)));
  m_selection.setGround(m_shown.bgrColor, m_shown.dimsRest);
  m_plot->setCanvasBackground(m_shown.bgrColor);
  // The scales stand on the colour of the drawing, without a frame between them.
  QPalette colors = m_plot->palette();
  const QColor ink = DrawingTheme(m_shown.bgrColor).ink();
  colors.setColor(QPalette::Window, m_shown.bgrColor);
  colors.setColor(QPalette::WindowText, ink);
  colors.setColor(QPalette::Text, ink);
  m_plot->setPalette(colors);
  // A file that does not name a colour leaves it invalid: such lines are not drawn.
  m_grid.enableX(m_shown.gridMajorColor.isValid());
  m_grid.enableY(m_shown.gridMajorColor.isValid());
  m_grid.enableXMin(m_shown.gridMinorColor.isValid());
  m_grid.enableYMin(m_shown.gridMinorColor.isValid());
  m_grid.setMajorPen(m_shown.gridMajorColor, 0.0, Qt::DashLine);
  m_grid.setMinorPen(m_shown.gridMinorColor, 0.0, Qt::DotLine);
  m_grid.setVisible(m_shown.showGrid);
}

void NetPlot::setOnPaper(bool isOnPaper) {
  m_isOnPaper = isOnPaper;
  drawAsShown();
}

void NetPlot::drawAsShown() {
  const PlotSettings before = m_shown;
  applyColors();
  if (m_shown == before)
    return;
  m_update->updatePlot(NetUpdate::Elements::Kept, NetUpdate::Which::EdgesAndNodes, NetUpdate::Labels::Renewed);
  showHint();
  m_plot->updateOverlay();
}

void NetPlot::changeEvent(QEvent *event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && m_update != nullptr)
    drawAsShown();
}

void NetPlot::showNetwork() {
  m_selection.readSettings();
  m_selection.setGeometry(&m_update->geometry());
  {
    const PlotZoom::OwnRequest own(*m_zoomer);
    m_update->updatePlot(NetUpdate::Elements::Renewed, NetUpdate::Which::EdgesAndNodes, NetUpdate::Labels::Renewed);
  }
  refresh(-1);
}

void NetPlot::takeSettings() {
  readMousePattern();
  m_selection.readSettings();
  {
    const PlotZoom::OwnRequest own(*m_zoomer);
    m_update->updatePlot(NetUpdate::Elements::Renewed, NetUpdate::Which::EdgesAndNodes, NetUpdate::Labels::Renewed);
  }
  m_plot->replot();
  refresh(-1);
}

void NetPlot::fitNetwork() {
  const NetGeometry &geometry = m_update->geometry();
  m_stragglers = geometry.hasExtent() ? geometry.nodesOutside(geometry.mainExtent()) : 0;
  showHint();
  for (const QwtPlot::Axis axis : {QwtPlot::xBottom, QwtPlot::yLeft})
    m_plot->setAxisScaleDraw(axis, new CoordinateScale(geometry.plotUnits()));
  // Nothing is laid out before a window is shown, and a picture may be made without one.
  layout()->activate();
  m_plot->updateAxes();
  m_plot->updateLayout();
  if (geometry.hasExtent())
    m_zoomer->setExtent(geometry.mainExtent());
  m_canvasLegend->setStanding(std::nullopt);
}

QRectF NetPlot::visibleArea() const {
  return m_update->geometry().toOwn(m_zoomer->zoomRect());
}

void NetPlot::showArea(const QRectF &area) {
  m_zoomer->zoom(m_update->geometry().toPlot(area));
}

bool NetPlot::showsAll() const {
  return m_zoomer->zoomRectIndex() == 0;
}

QImage NetPlot::picture(const QSize &largest) const {
  const auto *canvas = qobject_cast<const QwtPlotCanvas *>(m_plot->canvas());
  const QPixmap *drawn = canvas == nullptr ? nullptr : canvas->backingStore();
  const QPixmap shown = drawn != nullptr && !drawn->isNull() ? *drawn : m_plot->canvas()->grab();
  return shown.toImage().scaled(largest, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

void NetPlot::showStragglers() {
  m_stragglers = 0;
  showHint();
  m_zoomer->resetZoomBase(m_update->geometry().extent());
}

void NetPlot::showHint() {
  const NetGeometry &geometry = m_update->geometry();
  QString text;
  if (m_stragglers == 1)
    text = tr("1 node lies far outside this view (right-click to see it)");
  else if (m_stragglers > 1)
    text = tr("%1 nodes lie far outside this view (right-click to see them)").arg(m_stragglers);
  else if (!geometry.hasExtent())
    text = geometry.unplaced() > 0 ? tr("Nothing to draw: no element of this network has coordinates.")
                                   : tr("Nothing to draw: the network is empty.");
  QwtText hint(text);
  constexpr int GroundAlpha = 220;
  const DrawingTheme theme(m_shown.bgrColor);
  QColor ground = theme.ground();
  ground.setAlpha(GroundAlpha);
  hint.setColor(theme.text(Qt::darkGray, theme.ground()));
  hint.setBackgroundBrush(ground);
  hint.setRenderFlags(geometry.hasExtent() ? int(Qt::AlignTop | Qt::AlignHCenter) : int(Qt::AlignCenter));
  m_hint.setText(hint);
  m_hint.setVisible(!text.isEmpty());
}

void NetPlot::showAxes() {
  m_plot->enableAxis(QwtPlot::xBottom, m_settings.showXYaxes);
  m_plot->enableAxis(QwtPlot::yLeft, m_settings.showXYaxes);
}

void NetPlot::placeLegend() {
  m_functionLegend->place(m_shown, m_update->legendText());
}

const QwtPlotMarker &NetPlot::legend() const {
  return m_functionLegend->marker();
}

QAction *NetPlot::legendAction() const {
  return m_canvasLegend->action();
}

void NetPlot::setCaption(const QString &caption) {
  m_canvasLegend->setCaption(caption);
}

QRectF NetPlot::functionLegendArea() const {
  return m_functionLegend->area();
}

bool NetPlot::eventFilter(QObject *watched, QEvent *event) {
  if (watched == m_plot->canvas())
    return canvasEvent(event) || QWidget::eventFilter(watched, event);
  const bool isScale = m_settings.colorScalePos >= 0 && m_settings.colorScalePos < QwtPlot::axisCnt &&
                       watched == m_plot->axisWidget(m_settings.colorScalePos);
  if (isScale && event->type() == QEvent::MouseButtonDblClick) {
    emit drawConfigurationRequested();
    return true;
  }
  return QWidget::eventFilter(watched, event);
}

bool NetPlot::canvasEvent(QEvent *event) {
  switch (event->type()) {
  case QEvent::MouseButtonPress:
    m_mouseMoved = false;
    return false;
  case QEvent::MouseMove:
    m_mouseMoved = true;
    return false;
  case QEvent::MouseButtonRelease:
    if (static_cast<QMouseEvent *>(event)->button() == Qt::RightButton && !m_mouseMoved)
      showContextMenu(QCursor::pos());
    return false;
  case QEvent::ContextMenu:
    if (static_cast<QContextMenuEvent *>(event)->reason() != QContextMenuEvent::Keyboard)
      return false; // the mouse brings it on release
    showContextMenu(m_plot->canvas()->mapToGlobal(keyboardPlace()));
    return true;
  case QEvent::Enter:
  case QEvent::Leave:
    return true;
  default:
    return false;
  }
}

QPoint NetPlot::keyboardPlace() const {
  const QRect area = m_plot->canvas()->contentsRect();
  for (const NetGeometry::Item item : m_selection.items()) {
    const std::optional<QPointF> center = m_update->geometry().center(item);
    const QPoint place =
        center ? QPointF(m_plot->transform(QwtPlot::xBottom, center->x()), m_plot->transform(QwtPlot::yLeft, center->y()))
                     .toPoint()
               : QPoint(-1, -1);
    if (area.contains(place))
      return place;
    break; // of many the first
  }
  return area.center();
}

void NetPlot::showContextMenu(const QPoint &place) {
  auto *contextMenu = new QMenu(this);
  contextMenu->setAttribute(Qt::WA_DeleteOnClose);
  emit contextMenuRequested(contextMenu);
  if (contextMenu->isEmpty())
    delete contextMenu;
  else
    contextMenu->popup(place);
}
