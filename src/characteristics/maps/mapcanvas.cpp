#include "mapcanvas.h"

#include "mappage.h"

#include <base/lastfolder.h>
#include <base/wholefile.h>
#include <paper/pagedialog.h>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_marker.h>
#include <qwt_plot_renderer.h>
#include <qwt_plot_shapeitem.h>
#include <qwt_plot_zoomer.h>
#include <qwt_symbol.h>

namespace {

constexpr int TitleSize = 9;      // points
constexpr int LabelSpacing = 5;   // from the end of a line, where a measured point may lie
constexpr int Resolution = 72;    // dots an inch of documents: those of a point
constexpr QSize Points(600, 420); // of a picture

/// Zooms with what stands under the cursor beside it.
class ReadingZoomer : public QwtPlotZoomer {
public:
  explicit ReadingZoomer(MapCanvas &plot)
      : QwtPlotZoomer(plot.canvas())
      , m_plot(plot) {
    setTrackerMode(QwtPicker::AlwaysOn);
    setRubberBandPen(QPen(MapCanvas::Blue, 1.0, Qt::DashLine));
    setTrackerPen(QColor(40, 40, 40));
    setMousePattern(QwtEventPattern::MouseSelect2, Qt::MiddleButton, Qt::ControlModifier); // the right one has a menu
    setMousePattern(QwtEventPattern::MouseSelect3, Qt::MiddleButton);
  }

protected:
  QwtText trackerTextF(const QPointF &position) const override {
    QwtText text(m_plot.readout(position));
    text.setBackgroundBrush(QColor(255, 255, 255, 220));
    text.setRenderFlags(Qt::AlignLeft);
    return text;
  }

private:
  MapCanvas &m_plot;
};

} // namespace

MapCanvas::MapCanvas(QWidget *parent)
    : QwtPlot(parent)
    , m_zoomer(nullptr) {
  setCanvasBackground(Qt::white);
  m_zoomer = new ReadingZoomer(*this);
  setMinimumSize(260, 200);
}

QString MapCanvas::readout(const QPointF &position) const {
  return m_readout ? m_readout({m_toDisplayX.inverse(position.x()), m_toDisplayY.inverse(position.y())}) : QString();
}

QPointF MapCanvas::shown(const QPointF &computed) const {
  return {m_toDisplayX(computed.x()), m_toDisplayY(computed.y())};
}

QVector<QPointF> MapCanvas::shown(QVector<QPointF> computed) const {
  for (QPointF &point : computed)
    point = shown(point);
  return computed;
}

void MapCanvas::reset(const QString &heading, const Axis &x, const Axis &y) {
  detachItems();
  m_toDisplayX = x.quantity.toDisplay();
  m_toDisplayY = y.quantity.toDisplay();
  QwtText title(heading, QwtText::PlainText);
  QFont font = title.font();
  font.setPointSize(TitleSize);
  title.setRenderFlags(Qt::AlignHCenter | Qt::TextWordWrap);
  title.setFont(font);
  setTitle(title);
  auto *grid = new QwtPlotGrid;
  grid->setMajorPen(Qt::lightGray, 0.0, Qt::DotLine);
  grid->attach(this);
  setAxisTitle(xBottom, x.quantity.title(x.title));
  setAxisTitle(yLeft, y.quantity.title(y.title));
}

void MapCanvas::addLine(const QVector<QPointF> &points, const QPen &pen, const QString &label, Qt::Alignment alignment) {
  if (points.size() < 2)
    return;
  auto *curve = new QwtPlotCurve;
  curve->setSamples(shown(points));
  curve->setPen(pen);
  curve->setRenderHint(QwtPlotItem::RenderAntialiased);
  curve->attach(this);
  if (label.isEmpty())
    return;
  auto *marker = new QwtPlotMarker;
  QwtText text(label);
  QFont font = text.font();
  font.setPointSize(8);
  text.setFont(font);
  text.setColor(pen.color());
  marker->setLabel(text);
  marker->setLabelAlignment(alignment);
  marker->setSpacing(LabelSpacing);
  marker->setValue(shown(points.last()));
  marker->attach(this);
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
  area->setBrush(QColor(31, 93, 138, 26));
  area->attach(this);
}

void MapCanvas::addDots(const QVector<QPointF> &points) {
  if (points.isEmpty())
    return;
  auto *dots = new QwtPlotCurve;
  dots->setStyle(QwtPlotCurve::NoCurve);
  dots->setSymbol(new QwtSymbol(QwtSymbol::Ellipse, Qt::white, QPen(Orange, 1.2), QSize(5, 5)));
  dots->setSamples(shown(points));
  dots->setRenderHint(QwtPlotItem::RenderAntialiased);
  dots->attach(this);
}

void MapCanvas::addWorkingPoint(const QPointF &at, bool isInside) {
  auto *marker = new QwtPlotMarker;
  const QColor color = isInside ? Green : Red;
  marker->setSymbol(new QwtSymbol(QwtSymbol::Diamond, color, QPen(Qt::white, 1.5), QSize(13, 13)));
  marker->setValue(shown(at));
  marker->setLineStyle(QwtPlotMarker::Cross);
  marker->setLinePen(color, 1.0, Qt::DotLine);
  marker->setZ(50.0);
  marker->attach(this);
}

void MapCanvas::addStoredPoint(const QPointF &at) {
  auto *marker = new QwtPlotMarker;
  marker->setSymbol(new QwtSymbol(QwtSymbol::Diamond, Qt::NoBrush, QPen(Blue, 2.0), QSize(13, 13)));
  marker->setValue(shown(at));
  QwtText text(tr("results"));
  text.setColor(Blue);
  marker->setLabel(text);
  marker->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
  marker->setSpacing(10);
  marker->setItemAttribute(QwtPlotItem::AutoScale);
  marker->setZ(49.0);
  marker->attach(this);
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

void MapCanvas::paint(QPaintDevice &device, const QSizeF &size) {
  constexpr double Margin = 0.025; // of the width: numbers at the ends of axes reach beyond them
  const double margin = Margin * size.width();
  QwtPlotRenderer renderer;
  renderer.setDiscardFlag(QwtPlotRenderer::DiscardBackground);
  QPainter painter(&device);
  renderer.render(this, &painter, QRectF(QPointF(), size).adjusted(margin, margin, -margin, -margin));
}

QImage MapCanvas::picture() {
  constexpr int Scale = 3; // pixels a point
  QImage image(Points * Scale, QImage::Format_RGB32);
  image.fill(Qt::white);
  constexpr double InchesPerMetre = 1000.0 / 25.4;
  image.setDotsPerMeterX(static_cast<int>(InchesPerMetre * Resolution * Scale));
  image.setDotsPerMeterY(static_cast<int>(InchesPerMetre * Resolution * Scale));
  paint(image, image.size());
  return image;
}

bool MapCanvas::write(QIODevice &device, const QString &suffix, QString *reason) {
  if (suffix == QLatin1String("pdf")) {
    QPdfWriter writer(&device);
    writer.setPageSize(QPageSize(QSizeF(Points), QPageSize::Point));
    writer.setPageMargins(QMarginsF());
    writer.setResolution(Resolution);
    paint(writer, Points);
    return true;
  }
  if (suffix == QLatin1String("svg")) {
    QSvgGenerator generator;
    generator.setOutputDevice(&device);
    generator.setResolution(Resolution);
    generator.setSize(Points);
    generator.setViewBox(QRect(QPoint(), Points));
    paint(generator, Points);
    return true;
  }
  if (picture().save(&device, qPrintable(suffix)))
    return true;
  *reason = tr("pictures of the kind \"%1\" are not known").arg(suffix);
  return false;
}

bool MapCanvas::save(const QString &path, QString *reason) {
  const QString suffix = QFileInfo(path).suffix().toLower();
  return WholeFile::write(
      path, FileAccess::Source::Trusted, [&](QIODevice &device, QString *fault) { return write(device, suffix, fault); },
      reason);
}

void MapCanvas::saveAs() {
  LastFolder &folder = LastFolder::ofSaving();
  const QString path = QFileDialog::getSaveFileName(this, tr("Save picture"), folder.with(QStringLiteral("map.png")),
                                                    tr("Pictures (*.png *.jpg *.pdf *.svg)"));
  folder.remember(path);
  QString reason;
  if (!path.isEmpty() && !save(path, &reason))
    emit saveFailed(reason);
}

void MapCanvas::copy() {
  QGuiApplication::clipboard()->setImage(picture());
}

void MapCanvas::print() {
  MapPage page(*this, m_facts);
  PageDialog(page, PageDialog::Purpose::Print, this).exec();
}
