#include "canvas/canvaslegend.h"

#include "canvas/legendview.h"
#include "canvas/qwtfastplot.h"
#include "interaction/plotzoom.h"

#include <drawing/colormap.h>
#include <drawing/netupdate.h>

#include <QAction>
#include <QActionGroup>
#include <QEvent>
#include <QMenu>

namespace {

QRectF canvasOf(const QwtFastPlot &plot) {
  return plot.canvas()->contentsRect();
}

} // namespace

CanvasLegend::CanvasLegend(Drawing drawing)
    : m_drawing(std::move(drawing))
    , m_item(m_picture)
    , m_view(new LegendView(m_picture, m_drawing.plot.canvas()))
    , m_action(new QAction(tr("&Legend"), this)) {
  m_item.attach(&m_drawing.plot);
  m_action->setCheckable(true);
  m_action->setShortcut(Qt::Key_L);
  m_action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  m_action->setToolTip(tr("Shows what colours, widths and symbols mean (L)"));
  m_drawing.plot.addAction(m_action);
  m_resized.setSingleShot(true);
  m_resized.setInterval(0);
  m_drawing.plot.canvas()->installEventFilter(this);
  connect(&m_resized, &QTimer::timeout, this, &CanvasLegend::refresh);
  constexpr int Stillness = 400; // ms
  m_resting.setSingleShot(true);
  m_resting.setInterval(Stillness);
  connect(&m_resting, &QTimer::timeout, this, &CanvasLegend::rest);
  connect(&m_drawing.zoomer, &PlotZoom::zoomed, &m_resting, qOverload<>(&QTimer::start));
  connect(m_action, &QAction::toggled, this, [this](bool isShown) {
    if (isShown != m_drawing.settings.showsLegend)
      changeSettings([isShown](PlotSettings &settings) { settings.showsLegend = isShown; });
  });
  connect(m_view, &LegendView::dropped, this,
          [this](QPoint center) { choose(LegendPlace::nearest(center, canvasOf(m_drawing.plot))); });
  connect(m_view, &LegendView::menuWanted, this, [this](QPoint position) {
    auto *menu = new QMenu(&m_drawing.plot);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fillMenu(*menu);
    menu->popup(position);
  });
  connect(m_view, &LegendView::configurationWanted, this, &CanvasLegend::configurationWanted);
  connect(m_view, &LegendView::entered, this, &CanvasLegend::entered);
}

CanvasLegend::~CanvasLegend() {
  m_item.detach();
}

void CanvasLegend::setCaption(const QString &caption) {
  m_caption = caption;
  refresh();
}

void CanvasLegend::refresh() {
  fill();
  place();
}

void CanvasLegend::rest() {
  if (m_drawing.plot.isFrozen()) { // the view is still on its way
    m_resting.start();
    return;
  }
  const QRectF before = area();
  refresh();
  if (area() != before)
    emit moved();
}

void CanvasLegend::fill() {
  const PlotSettings &settings = m_drawing.settings;
  m_action->setChecked(settings.showsLegend);
  LegendContents contents;
  if (settings.showsLegend)
    contents = m_drawing.update.legendContents();
  contents.caption = m_caption;
  m_picture.setContents(
      contents, m_drawing.shown.bgrColor, LegendPicture::fontOf(settings),
      [&update = m_drawing.update](QPainter &painter, const LegendContents::Symbol &symbol, const QPointF &center,
                                   double size) { update.drawLegendSymbol(painter, symbol, center, size); });
}

void CanvasLegend::place() {
  constexpr double MostOfCanvas = 0.5; // of its width, and of its height
  const QRectF canvas = canvasOf(m_drawing.plot);
  const QSizeF room = canvas.size() * MostOfCanvas;
  m_picture.fitInto(room);
  if (m_picture.size().isEmpty()) {
    m_view->hide();
    return;
  }
  LegendPlace::Place place;
  if (const std::optional<LegendPlace::Corner> chosen = LegendPlace::cornerOf(m_drawing.settings.legendCorner)) {
    place.corner = *chosen;
  } else {
    LegendPlace::Sizes sizes;
    for (std::size_t i = 0; i < sizes.size(); ++i) {
      m_picture.fitInto(room, static_cast<LegendPicture::Brevity>(i));
      sizes[i] = m_picture.size();
    }
    place = LegendPlace::leastHiding(sizes, {canvas, m_drawing.update.drawnPlaces(), m_drawing.taken()}, m_standing);
    m_standing = place;
    m_picture.fitInto(room, place.brevity);
  }
  m_item.setCorner(place.corner);
  m_view->setGeometry(LegendPlace::areaIn(place.corner, m_picture.size(), canvas).toRect());
  m_view->show();
  m_view->renew();
}

QRectF CanvasLegend::area() const {
  return m_view->isHidden() ? QRectF() : QRectF(m_view->geometry());
}

void CanvasLegend::setIsInDocument(bool isInDocument) {
  m_item.setVisible(isInDocument && !m_view->isHidden());
}

void CanvasLegend::setIsLeftOut(bool isLeftOut) {
  m_view->setIsLeftOut(isLeftOut);
}

bool CanvasLegend::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::Resize)
    m_resized.start();
  return QObject::eventFilter(watched, event);
}

template <typename Change>
void CanvasLegend::changeSettings(const Change &change) {
  PlotSettings settings = m_drawing.applied();
  change(settings);
  emit settingsWanted(settings);
}

void CanvasLegend::choose(LegendPlace::Corner corner) {
  changeSettings(
      [corner](PlotSettings &settings) { settings.legendCorner = LegendPlace::names().at(static_cast<int>(corner)); });
}

void CanvasLegend::addCorners(QMenu &menu) {
  auto *corners = new QActionGroup(&menu);
  const auto add = [this, &menu, corners](const QString &title, const QString &name) {
    QAction *entry = menu.addAction(title, this, [this, name] {
      changeSettings([&name](PlotSettings &settings) {
        settings.showsLegend = true;
        settings.legendCorner = name;
      });
    });
    entry->setCheckable(true);
    entry->setChecked(m_drawing.settings.legendCorner == name);
    corners->addAction(entry);
  };
  add(tr("where it hides least"), PlotSettings::automaticCorner());
  for (int i = 0; i < LegendPlace::names().size(); ++i)
    add(LegendPlace::title(static_cast<LegendPlace::Corner>(i)), LegendPlace::names().at(i));
}

void CanvasLegend::addColors(QMenu &menu) {
  auto *ramps = new QActionGroup(&menu);
  for (const QString &name : ColorRamp::names()) {
    const ColorRamp::Kind kind = ColorRamp::kindOf(name);
    QAction *entry = menu.addAction(ColorRamp::title(kind), this, [this, name] {
      changeSettings([&name](PlotSettings &settings) { settings.colorRamp = name; });
    });
    entry->setCheckable(true);
    entry->setChecked(ColorRamp::kindOf(m_drawing.settings.colorRamp) == kind);
    ramps->addAction(entry);
  }
}

void CanvasLegend::fillMenu(QMenu &menu) {
  menu.addAction(m_action);
  addCorners(*menu.addMenu(tr("&Where it stands")));
  addColors(*menu.addMenu(tr("&Colours")));
  QAction *beside = menu.addAction(tr("Colour &scale beside the drawing"), this, [this](bool isShown) {
    changeSettings([isShown](PlotSettings &settings) { settings.colorScalePos = isShown ? int(QwtPlot::yRight) : 0; });
  });
  beside->setCheckable(true);
  const int axis = m_drawing.settings.colorScalePos;
  beside->setChecked(axis == QwtPlot::yRight || axis == QwtPlot::xTop);
  QAction *quantiles = menu.addAction(tr("Leave out the outermost &2 % of the values"), this, [this](bool leavesOut) {
    changeSettings([leavesOut](PlotSettings &settings) { settings.quantileBounds = leavesOut; });
  });
  quantiles->setCheckable(true);
  quantiles->setChecked(m_drawing.settings.quantileBounds);
  QAction *dims = menu.addAction(tr("&Dim what is not selected"), this, [this](bool isDimmed) {
    changeSettings([isDimmed](PlotSettings &settings) { settings.dimsRest = isDimmed; });
  });
  dims->setCheckable(true);
  dims->setChecked(m_drawing.settings.dimsRest);
  menu.addSeparator();
  menu.addAction(tr("Configure &drawing …"), this, &CanvasLegend::configurationWanted);
}
