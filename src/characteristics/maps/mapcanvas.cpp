#include "mapcanvas.h"

#include "dotsitem.h"
#include "mappage.h"
#include "pointmover.h"

#include <paper/chartfile.h>
#include <paper/pagedialog.h>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QTimer>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_legenditem.h>
#include <qwt_plot_marker.h>
#include <qwt_plot_renderer.h>
#include <qwt_plot_shapeitem.h>
#include <qwt_plot_zoomer.h>
#include <qwt_symbol.h>

#include <utility>

namespace {

constexpr int TitleSize = 9;      // points
constexpr int LabelSpacing = 5;   // from the end of a line, where a measured point may lie
constexpr QSize Points(600, 420); // of a picture

/// Zooms with what stands under the cursor beside it.
class ReadingZoomer : public QwtPlotZoomer {
public:
  explicit ReadingZoomer(MapCanvas &plot)
      : QwtPlotZoomer(plot.canvas())
      , m_plot(plot) {
    setTrackerMode(QwtPicker::AlwaysOn);
    takeColors(MapColors::onWhite());
    setMousePattern(QwtEventPattern::MouseSelect2, Qt::MiddleButton, Qt::ControlModifier); // the right one has a menu
    setMousePattern(QwtEventPattern::MouseSelect3, Qt::MiddleButton);
  }

  void takeColors(const MapColors &colors) {
    setRubberBandPen(QPen(colors.of(MapCanvas::Blue), 1.0, Qt::DashLine));
    setTrackerPen(colors.ink());
    m_ground = colors.ground();
    m_ground.setAlpha(GroundAlpha);
  }

protected:
  QwtText trackerTextF(const QPointF &position) const override {
    QwtText text(m_plot.readout(position));
    text.setBackgroundBrush(m_ground);
    text.setRenderFlags(Qt::AlignLeft);
    return text;
  }

private:
  static constexpr int GroundAlpha = 220;

  MapCanvas &m_plot;
  QColor m_ground;
};

} // namespace

MapCanvas::MapCanvas(QWidget *parent)
    : QwtPlot(parent)
    , m_zoomer(nullptr) {
  m_zoomer = new ReadingZoomer(*this);
  canvas()->installEventFilter(this);
  m_mover = new PointMover(*this);
  connect(m_mover, &PointMover::moved, this, [this](const QPointF &at) { emit pointMoved(computed(at)); });
  connect(m_mover, &PointMover::returned, this, &MapCanvas::pointReturned);
  color(colors());
  setMinimumSize(260, 200);
}

QString MapCanvas::readout(const QPointF &position) const {
  const QString text = m_readout ? m_readout(computed(position)) : QString();
  const Dot *dot = dotAt(position);
  return dot == nullptr ? text : dot->name + QLatin1Char('\n') + text;
}

const MapCanvas::Dot *MapCanvas::dotAt(const QPointF &position) const {
  constexpr double Reach = 8.0; // pixels
  const auto pixel = [this](const QPointF &at) {
    return QPointF(transform(xBottom, at.x()), transform(yLeft, at.y()));
  };
  const Dot *nearest = nullptr;
  double best = Reach * Reach;
  for (const Dot &dot : m_dots) {
    const QPointF apart = pixel(shown(dot.at)) - pixel(position);
    const double distance = QPointF::dotProduct(apart, apart);
    if (distance <= best) {
      best = distance;
      nearest = &dot;
    }
  }
  return nearest;
}

void MapCanvas::setDots(std::vector<Dot> dots) {
  m_dots = std::move(dots);
  delete m_dotsItem;
  m_dotsItem = nullptr;
  if (!m_dots.empty()) {
    QVector<QPointF> inside;
    QVector<QPointF> outside;
    for (const Dot &dot : m_dots)
      (dot.isInside ? inside : outside).append(shown(dot.at));
    m_dotsItem = new DotsItem(inside, outside);
    m_dotsItem->attach(this);
    colorDots(colors());
  }
  if (m_zoomer->zoomRectIndex() == 0)
    finish(); // the axes reach to all of them
  else
    replot();
}

bool MapCanvas::eventFilter(QObject *watched, QEvent *event) {
  if (watched == canvas() && event->type() == QEvent::MouseButtonPress)
    m_pressed = static_cast<QMouseEvent *>(event)->pos();
  if (watched == canvas() && event->type() == QEvent::MouseButtonRelease) {
    const auto *mouse = static_cast<QMouseEvent *>(event);
    constexpr int Still = 3; // pixels
    const QPointF at(invTransform(xBottom, mouse->pos().x()), invTransform(yLeft, mouse->pos().y()));
    const Dot *dot = dotAt(at);
    const bool isClick = mouse->button() == Qt::LeftButton && (mouse->pos() - m_pressed).manhattanLength() <= Still;
    if (isClick && dot != nullptr) // what follows may take this map away
      QTimer::singleShot(0, this, [this, name = dot->name] { emit dotClicked(name); });
  }
  return QwtPlot::eventFilter(watched, event);
}

QPointF MapCanvas::computed(const QPointF &position) const {
  return {m_toDisplayX.inverse(position.x()), m_toDisplayY.inverse(position.y())};
}

QPointF MapCanvas::shown(const QPointF &computed) const {
  return {m_toDisplayX(computed.x()), m_toDisplayY(computed.y())};
}

QVector<QPointF> MapCanvas::shown(QVector<QPointF> computed) const {
  for (QPointF &point : computed)
    point = shown(point);
  return computed;
}

MapColors MapCanvas::colors() const {
  return m_isOnWhite ? MapColors::onWhite() : MapColors::onScreen(palette());
}

void MapCanvas::add(QwtPlotItem *item, std::function<void(const MapColors &)> color) {
  color(colors());
  item->setItemAttribute(QwtPlotItem::Legend, !item->title().isEmpty());
  item->attach(this);
  m_coloring.push_back(std::move(color));
}

void MapCanvas::color(const MapColors &colors) {
  setCanvasBackground(colors.ground());
  QPalette own = palette(); // which axes and title are written with
  colors.applyTo(own);
  setPalette(own);
  static_cast<ReadingZoomer *>(m_zoomer)->takeColors(colors);
  m_mover->setColors(colors.of(m_isMovedInside ? Green : Red), colors.ground());
  for (const auto &item : m_coloring)
    item(colors);
  colorDots(colors);
}

void MapCanvas::colorDots(const MapColors &colors) {
  if (m_dotsItem != nullptr)
    m_dotsItem->setColors(colors.of(Green), colors.of(Red), colors.ground());
}

void MapCanvas::paintOnWhite(const std::function<void()> &paint) {
  m_isOnWhite = true;
  color(colors());
  paint();
  m_isOnWhite = false;
  color(colors());
}

void MapCanvas::changeEvent(QEvent *event) {
  QwtPlot::changeEvent(event);
  if (event->type() != QEvent::PaletteChange || m_zoomer == nullptr)
    return;
  color(colors());
  replot();
}

void MapCanvas::reset(const QString &heading, const Axis &x, const Axis &y) {
  detachItems();
  m_coloring.clear();
  m_dots.clear();
  m_dotsItem = nullptr; // it went with the others
  m_mover->setHome(std::nullopt);
  m_toDisplayX = x.quantity.toDisplay();
  m_toDisplayY = y.quantity.toDisplay();
  QwtText title(heading, QwtText::PlainText);
  QFont font = title.font();
  font.setPointSize(TitleSize);
  title.setRenderFlags(Qt::AlignHCenter | Qt::TextWordWrap);
  title.setFont(font);
  setTitle(title);
  auto *grid = new QwtPlotGrid;
  add(grid, [grid](const MapColors &colors) { grid->setMajorPen(colors.grid(), 0.0, Qt::DotLine); });
  setAxisTitle(xBottom, x.quantity.title(x.title));
  setAxisTitle(yLeft, y.quantity.title(y.title));
}

void MapCanvas::addLine(const QVector<QPointF> &points, const QPen &pen, const QString &label, Qt::Alignment alignment) {
  if (points.size() < 2)
    return;
  auto *curve = new QwtPlotCurve;
  curve->setSamples(shown(points));
  curve->setRenderHint(QwtPlotItem::RenderAntialiased);
  add(curve, [curve, pen](const MapColors &colors) {
    QPen shown = pen;
    shown.setColor(colors.of(pen.color()));
    curve->setPen(shown);
  });
  if (label.isEmpty())
    return;
  auto *marker = new QwtPlotMarker;
  QwtText text(label);
  QFont font = text.font();
  font.setPointSize(8);
  text.setFont(font);
  marker->setLabelAlignment(alignment);
  marker->setSpacing(LabelSpacing);
  marker->setValue(shown(points.last()));
  add(marker, [marker, text, color = pen.color()](const MapColors &colors) {
    QwtText said = text;
    said.setColor(colors.of(color));
    marker->setLabel(said);
  });
}

void MapCanvas::addNamedLine(const QVector<QPointF> &points, const QPen &pen, const QString &name) {
  auto *curve = new QwtPlotCurve(QwtText(name, QwtText::PlainText));
  curve->setSamples(shown(points));
  curve->setRenderHint(QwtPlotItem::RenderAntialiased);
  curve->setLegendAttribute(QwtPlotCurve::LegendShowLine);
  add(curve, [curve, pen](const MapColors &colors) {
    QPen shown = pen;
    shown.setColor(colors.of(pen.color()));
    curve->setPen(shown);
  });
  if (!name.isEmpty())
    addLegend();
}

void MapCanvas::addNamedPoint(const QPointF &at, bool isInside, const QString &name) {
  auto *marker = new QwtPlotMarker;
  marker->setValue(shown(at));
  marker->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
  marker->setSpacing(LabelSpacing);
  marker->setItemAttribute(QwtPlotItem::AutoScale);
  marker->setZ(48.0);
  add(marker, [marker, name, color = isInside ? Green : Red](const MapColors &colors) {
    marker->setSymbol(new QwtSymbol(QwtSymbol::Ellipse, colors.ground(), QPen(colors.of(color), 2.0), QSize(8, 8)));
    QwtText text(name, QwtText::PlainText);
    QFont font = text.font();
    font.setPointSize(8);
    text.setFont(font);
    text.setColor(colors.of(color));
    marker->setLabel(text);
  });
}

void MapCanvas::addRoom(const QPointF &to) {
  auto *marker = new QwtPlotMarker;
  marker->setValue(shown(to));
  marker->setItemAttribute(QwtPlotItem::AutoScale);
  marker->attach(this);
}

void MapCanvas::addArea(const QVector<QPointF> &outline) {
  auto *area = new QwtPlotShapeItem;
  area->setPolygon(QPolygonF(shown(outline)));
  area->setPen(QPen(Qt::NoPen));
  add(area, [area](const MapColors &colors) {
    constexpr int Alpha = 26;
    QColor ground = colors.of(Blue);
    ground.setAlpha(Alpha);
    area->setBrush(ground);
  });
}

void MapCanvas::addDots(const QVector<QPointF> &points) {
  if (points.isEmpty())
    return;
  auto *dots = new QwtPlotCurve;
  dots->setStyle(QwtPlotCurve::NoCurve);
  dots->setSamples(shown(points));
  dots->setRenderHint(QwtPlotItem::RenderAntialiased);
  add(dots, [dots](const MapColors &colors) {
    dots->setSymbol(new QwtSymbol(QwtSymbol::Ellipse, colors.ground(), QPen(colors.of(Orange), 1.2), QSize(5, 5)));
  });
}

void MapCanvas::addDots(const QVector<QPointF> &points, const QColor &color, const QString &name) {
  if (points.isEmpty())
    return;
  auto *dots = new QwtPlotCurve(QwtText(name, QwtText::PlainText));
  dots->setStyle(QwtPlotCurve::NoCurve);
  dots->setSamples(shown(points));
  dots->setRenderHint(QwtPlotItem::RenderAntialiased);
  dots->setLegendAttribute(QwtPlotCurve::LegendShowSymbol);
  add(dots, [dots, color](const MapColors &colors) {
    dots->setSymbol(new QwtSymbol(QwtSymbol::Ellipse, colors.of(color), QPen(colors.ground(), 1.0), QSize(7, 7)));
  });
  addLegend();
}

/// In a corner of the canvas, once, whatever is named.
void MapCanvas::addLegend() {
  if (!itemList(QwtPlotItem::Rtti_PlotLegend).isEmpty())
    return;
  auto *legend = new QwtPlotLegendItem;
  legend->setMaxColumns(1);
  legend->setAlignment(Qt::AlignRight | Qt::AlignTop);
  legend->setBorderRadius(3.0);
  add(legend, [legend](const MapColors &colors) {
    constexpr int Alpha = 210;
    QColor ground = colors.ground();
    ground.setAlpha(Alpha);
    legend->setBackgroundBrush(ground);
    legend->setBorderPen(QPen(colors.grid()));
    legend->setTextPen(QPen(colors.ink()));
  });
}

void MapCanvas::addWorkingPoint(const QPointF &at, bool isInside) {
  auto *marker = new QwtPlotMarker;
  const QColor color = isInside ? Green : Red;
  marker->setValue(shown(at));
  marker->setLineStyle(QwtPlotMarker::Cross);
  marker->setZ(50.0);
  add(marker, [marker, color](const MapColors &colors) {
    marker->setSymbol(new QwtSymbol(QwtSymbol::Diamond, colors.of(color), QPen(colors.ground(), 1.5), QSize(13, 13)));
    marker->setLinePen(colors.of(color), 1.0, Qt::DotLine);
  });
}

void MapCanvas::letMove(const QPointF &from) {
  m_mover->setHome(shown(from));
}

void MapCanvas::setMovedInside(bool isInside) {
  m_isMovedInside = isInside;
  m_mover->setColors(colors().of(isInside ? Green : Red), colors().ground());
}

void MapCanvas::addStoredPoint(const QPointF &at) {
  auto *marker = new QwtPlotMarker;
  marker->setValue(shown(at));
  marker->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
  marker->setSpacing(10);
  marker->setItemAttribute(QwtPlotItem::AutoScale);
  marker->setZ(49.0);
  add(marker, [marker](const MapColors &colors) {
    marker->setSymbol(new QwtSymbol(QwtSymbol::Diamond, Qt::NoBrush, QPen(colors.of(Blue), 2.0), QSize(13, 13)));
    QwtText text(tr("results"));
    text.setColor(colors.of(Blue));
    marker->setLabel(text);
  });
}

void MapCanvas::finish() {
  setAxisAutoScale(xBottom);
  setAxisAutoScale(yLeft);
  updateAxes();
  replot();
  m_zoomer->setZoomBase();
}

void MapCanvas::contextMenuEvent(QContextMenuEvent *event) {
  QMenu menu(this);
  menu.addAction(tr("Show everything"), m_zoomer, [this] { m_zoomer->zoom(0); });
  menu.addAction(tr("Copy picture\tCtrl+C"), this, &MapCanvas::copy);
  menu.addAction(tr("Save picture …"), this, &MapCanvas::saveAs);
  menu.addAction(tr("Print or save a page …\tCtrl+P"), this, &MapCanvas::print);
  menu.exec(event->globalPos());
}

/// Where the map has the keys these mean the map, whatever they mean in the window.
bool MapCanvas::event(QEvent *event) {
  if (event->type() == QEvent::ShortcutOverride) {
    const auto *key = static_cast<QKeyEvent *>(event);
    if (key->matches(QKeySequence::Copy) || key->matches(QKeySequence::Print)) {
      event->accept();
      return true;
    }
  }
  return QwtPlot::event(event);
}

void MapCanvas::keyPressEvent(QKeyEvent *event) {
  if (event->matches(QKeySequence::Copy))
    copy();
  else if (event->matches(QKeySequence::Print))
    print();
  else
    QwtPlot::keyPressEvent(event);
}

void MapCanvas::paint(QPainter &painter, const QRectF &area) {
  QwtPlotRenderer renderer;
  renderer.setDiscardFlag(QwtPlotRenderer::DiscardBackground);
  paintOnWhite([&] { renderer.render(this, &painter, area); });
}

bool MapCanvas::save(const QString &path, QString *reason) {
  return ChartFile::save(
      path, Points, [this](QPainter &painter, const QRectF &area) { paint(painter, area); }, reason);
}

void MapCanvas::saveAs() {
  const QString path = ChartFile::askForPath(this, QStringLiteral("map.png"));
  QString reason;
  if (!path.isEmpty() && !save(path, &reason))
    emit saveFailed(reason);
}

void MapCanvas::copy() {
  QGuiApplication::clipboard()->setImage(
      ChartFile::picture(Points, [this](QPainter &painter, const QRectF &area) { paint(painter, area); }));
}

void MapCanvas::print() {
  MapPage page(
      *this, [this](const std::function<void()> &paint) { paintOnWhite(paint); }, m_facts);
  PageDialog(page, PageDialog::Purpose::Print, this).exec();
}
