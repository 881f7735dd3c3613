#include "shownnumber.h"

#include <base/nivramsg.h>
#include <characteristics/mapplot.h>

#include <QContextMenuEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QSaveFile>
#include <QSvgGenerator>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_marker.h>
#include <qwt_plot_renderer.h>
#include <qwt_plot_shapeitem.h>
#include <qwt_plot_zoomer.h>
#include <qwt_symbol.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr int Steps = 60;
constexpr int Resolution = 72; // dots an inch of documents: those of a point
const QColor Blue(31, 93, 138);
const QColor Green(46, 125, 50);
const QColor Red(178, 34, 34);
const QColor Orange(196, 98, 16);

/// Both ends of a range and round numbers between them, about half a dozen.
std::vector<double> roundValues(double from, double to) {
  constexpr double Parts = 6.0;
  if (!(to > from))
    return {from};
  const double smallest = (to - from) / Parts;
  const double power = std::pow(10.0, std::floor(std::log10(smallest)));
  double step = 10.0 * power;
  for (const double factor : {5.0, 2.5, 2.0, 1.0}) {
    if (factor * power >= smallest * (1.0 - 1e-9))
      step = factor * power;
  }
  constexpr double Apart = 0.4; // of a step from the ends
  std::vector<double> values{from};
  const auto last = static_cast<int>(std::floor(to / step - Apart));
  for (auto i = static_cast<int>(std::ceil(from / step + Apart)); i <= last; ++i)
    values.push_back(i * step);
  values.push_back(to);
  return values;
}

/// Zooms with what stands under the cursor beside it.
class ReadingZoomer : public QwtPlotZoomer {
public:
  explicit ReadingZoomer(MapPlot &plot)
      : QwtPlotZoomer(plot.canvas())
      , m_plot(plot) {
    setTrackerMode(QwtPicker::AlwaysOn);
    setRubberBandPen(QPen(Blue, 1.0, Qt::DashLine));
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
  MapPlot &m_plot;
};

} // namespace

MapPlot::MapPlot(QWidget *parent)
    : QwtPlot(parent)
    , m_zoomer(nullptr) {
  setCanvasBackground(Qt::white);
  m_zoomer = new ReadingZoomer(*this);
  setMinimumSize(260, 200);
}

void MapPlot::reset(const QString &x, const QString &y) {
  detachItems();
  auto *grid = new QwtPlotGrid;
  grid->setMajorPen(Qt::lightGray, 0.0, Qt::DotLine);
  grid->attach(this);
  setAxisTitle(xBottom, x);
  setAxisTitle(yLeft, y);
}

void MapPlot::addLine(const QVector<QPointF> &points, const QPen &pen, const QString &label, Qt::Alignment alignment) {
  if (points.size() < 2)
    return;
  auto *curve = new QwtPlotCurve;
  curve->setSamples(points);
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
  marker->setValue(points.last());
  marker->attach(this);
}

void MapPlot::addRoom(const QPointF &to) {
  auto *marker = new QwtPlotMarker;
  marker->setValue(to);
  marker->setItemAttribute(QwtPlotItem::AutoScale);
  marker->attach(this);
}

void MapPlot::addArea(const QVector<QPointF> &outline) {
  auto *area = new QwtPlotShapeItem;
  area->setPolygon(QPolygonF(outline));
  area->setPen(QPen(Qt::NoPen));
  area->setBrush(QColor(31, 93, 138, 26));
  area->attach(this);
}

void MapPlot::addDots(const QVector<QPointF> &points) {
  if (points.isEmpty())
    return;
  auto *dots = new QwtPlotCurve;
  dots->setStyle(QwtPlotCurve::NoCurve);
  dots->setSymbol(new QwtSymbol(QwtSymbol::Ellipse, Qt::white, QPen(Orange, 1.2), QSize(5, 5)));
  dots->setSamples(points);
  dots->setRenderHint(QwtPlotItem::RenderAntialiased);
  dots->attach(this);
}

void MapPlot::addWorkingPoint(const QPointF &at, bool isInside) {
  auto *marker = new QwtPlotMarker;
  const QColor color = isInside ? Green : Red;
  marker->setSymbol(new QwtSymbol(QwtSymbol::Diamond, color, QPen(Qt::white, 1.5), QSize(13, 13)));
  marker->setValue(at);
  marker->setLineStyle(QwtPlotMarker::Cross);
  marker->setLinePen(color, 1.0, Qt::DotLine);
  marker->setZ(50.0);
  marker->attach(this);
}

void MapPlot::finish() {
  setAxisAutoScale(xBottom);
  setAxisAutoScale(yLeft);
  updateAxes();
  replot();
  m_zoomer->setZoomBase();
}

/// Points of equal efficiency, speed by speed: the efficiency is quadratic in the flow, so each speed has two of them.
void MapPlot::addEfficiencies(const TurboCompressor &machine, const QPointF &corner) {
  if (!machine.efficiency)
    return;
  constexpr double Beside = 0.15; // of the corner's own coordinates
  const auto isBeside = [&corner](const QPointF &at) {
    return std::abs(at.x() - corner.x()) < Beside * corner.x() && std::abs(at.y() - corner.y()) < Beside * corner.y();
  };
  for (int percent = 50; percent < 95; percent += 5) {
    QVector<QPointF> rising;
    QVector<QPointF> falling;
    for (int i = 0; i <= Steps; ++i) {
      const double speed = machine.speedMin + (machine.speedMax - machine.speedMin) * i / Steps;
      const auto flows = machine.flows(speed);
      const Quadratic line = machine.efficiency->inX(speed);
      for (const double flow : Fits::solve(line, percent / 100.0)) {
        if (!flows || flow < flows->first || flow > flows->second)
          continue;
        const bool isRising = line.c[1] + 2.0 * line.c[2] * flow > 0.0;
        (isRising ? rising : falling).append(QPointF(flow, (*machine.head)(flow, speed)));
      }
    }
    for (const QVector<QPointF> &branch : {rising, falling}) {
      const bool isFree = !branch.isEmpty() && !isBeside(branch.last());
      addLine(branch, QPen(Green, 1.0, Qt::DashLine), isFree ? QStringLiteral("%1 %").arg(percent) : QString());
    }
  }
}

/// Speed lines, surge and choke line with the area between them, lines of equal efficiency.
void MapPlot::addLines(const TurboCompressor &machine) {
  const auto at = [&machine](double flow, double speed) {
    return QPointF(flow, (*machine.head)(flow, speed));
  };
  QVector<QPointF> surge; // from the largest speed to the smallest, as the following: labels stand at the end
  QVector<QPointF> choke;
  for (int i = Steps; i >= 0; --i) {
    const double speed = machine.speedMin + (machine.speedMax - machine.speedMin) * i / Steps;
    if (const auto flows = machine.flows(speed)) {
      surge.append(at(flows->first, speed));
      choke.append(at(flows->second, speed));
    }
  }
  QVector<QPointF> top; // from the surge line to the choke line
  QVector<QPointF> bottom;
  for (const double speed : roundValues(machine.speedMin, machine.speedMax)) {
    const auto flows = machine.flows(speed);
    QVector<QPointF> line;
    for (int i = 0; flows && i <= Steps; ++i)
      line.append(at(flows->first + (flows->second - flows->first) * i / Steps, speed));
    const bool isEdge = speed == machine.speedMin || speed == machine.speedMax;
    addLine(line, QPen(Blue, isEdge ? 2.0 : 1.0), tr("%1 /min").arg(shownNumber(speed)));
    if (speed == machine.speedMin)
      bottom = line;
    top = line;
  }
  constexpr double LabelRoom = 1.15;
  const QPointF corner = top.isEmpty() ? QPointF() : top.last();
  addRoom({corner.x() * LabelRoom, corner.y()});
  std::reverse(bottom.begin(), bottom.end());
  addArea(top + choke + bottom + QVector<QPointF>(surge.rbegin(), surge.rend()));
  addLine(surge, QPen(Red, 2.0), machine.surge ? tr("surge") : QString(), Qt::AlignRight | Qt::AlignBottom);
  addLine(choke, QPen(Orange, 2.0), machine.choke ? tr("choke") : QString(), Qt::AlignLeft | Qt::AlignBottom);
  addEfficiencies(machine, corner);
}

void MapPlot::show(const TurboCompressor &machine, const std::optional<WorkingPoint> &point) {
  reset(tr("volume flow at the inlet [m³/s]"), tr("adiabatic head [kJ/kg]"));
  m_readout = [machine](const QPointF &at) {
    QString text = tr("Q = %1 m³/s\nH = %2 kJ/kg").arg(shownNumber(at.x()), shownNumber(at.y()));
    if (!machine.head)
      return text;
    for (const double speed : Fits::solve(machine.head->inY(at.x()), at.y())) {
      if (speed < machine.speedMin || speed > machine.speedMax)
        continue;
      text += tr("\nn = %1 1/min").arg(shownNumber(speed));
      if (machine.efficiency)
        text += tr("\nη = %1 %").arg(shownNumber(100.0 * (*machine.efficiency)(at.x(), speed), 3));
    }
    return text;
  };
  if (machine.isUsable())
    addLines(machine);
  QVector<QPointF> dots;
  for (const auto *points : {&machine.points, &machine.surgePoints}) {
    for (const MeasuredPoint &measured : *points)
      dots.append(QPointF(measured.flow, measured.head));
  }
  addDots(dots);
  if (point)
    addWorkingPoint({point->flow, point->head}, point->isInside);
  finish();
}

void MapPlot::show(const PistonCompressor &machine, const std::optional<WorkingPoint> &point,
                   const QVector<QPointF> &limits) {
  constexpr double ShownRatio = 4.0; // of a machine that says no largest
  reset(tr("volume flow at the inlet [m³/s]"), tr("pressure ratio"));
  m_readout = [machine](const QPointF &at) {
    return tr("Q = %1 m³/s\nratio = %2\nn = %3 1/min")
        .arg(shownNumber(at.x()), shownNumber(at.y()), shownNumber(machine.speed(at.x())));
  };
  QVector<QPointF> top; // from the smallest speed to the largest
  for (const QPointF &limit : limits)
    top.append(QPointF(machine.flow(limit.x()), std::max(1.0, limit.y())));
  const bool isLimited = !top.isEmpty() || machine.maximalRatio > 0.0;
  if (top.isEmpty()) {
    const double ratio = machine.maximalRatio > 0.0 ? machine.maximalRatio : ShownRatio;
    top = {{machine.flow(machine.speedMin), ratio}, {machine.flow(machine.speedMax), ratio}};
  }
  QVector<QPointF> outline{{top.last().x(), 1.0}, {top.first().x(), 1.0}};
  addArea(outline + top);
  for (const double speed : roundValues(machine.speedMin, machine.speedMax)) {
    const double flow = machine.flow(speed);
    const auto end =
        std::find_if(top.begin(), top.end(), [flow](const QPointF &at) { return at.x() >= flow * (1.0 - 1e-9); });
    const double ratio = end == top.end() ? top.last().y() : end->y();
    const bool isEdge = speed == machine.speedMin || speed == machine.speedMax;
    addLine({{flow, 1.0}, {flow, ratio}}, QPen(Blue, isEdge ? 2.0 : 1.0), tr("%1 /min").arg(shownNumber(speed)),
            (speed == machine.speedMax ? Qt::AlignHCenter : Qt::AlignRight) | Qt::AlignTop);
  }
  addLine(top, QPen(Red, isLimited ? 2.0 : 0.5));
  if (point)
    addWorkingPoint({point->flow, point->ratio}, point->isInside);
  finish();
}

void MapPlot::show(const Drive &drive, const std::optional<WorkingPoint> &point, double temperature) {
  reset(tr("speed [1/min]"), tr("largest power [kW]"));
  const auto power = drive.power;
  m_readout = [power, temperature](const QPointF &at) {
    QString text = tr("n = %1 1/min\nP = %2 kW").arg(shownNumber(at.x()), shownNumber(at.y()));
    if (power)
      text += tr("\nlimit = %1 kW at %2 °C").arg(shownNumber((*power)(temperature, at.x())), shownNumber(temperature, 3));
    return text;
  };
  double last = point && point->speed ? 1.5 * *point->speed : 0.0;
  for (const Drive::PowerPoint &measured : drive.powerPoints)
    last = std::max(last, measured.speed);
  constexpr double Usual = 10000.0;
  last = last > 0.0 ? last : Usual;
  if (drive.power) {
    for (const double at : {-10.0, 30.0, temperature}) {
      QVector<QPointF> line;
      for (int i = 0; i <= Steps; ++i) {
        const double speed = last * i / Steps;
        const double limit = (*drive.power)(at, speed);
        if (limit > 0.0)
          line.append(QPointF(speed, limit));
      }
      addLine(line, QPen(at == temperature ? Blue : QColor(120, 160, 190), at == temperature ? 2.0 : 1.2),
              tr("%1 °C").arg(shownNumber(at, 3)),
              Qt::AlignLeft | Qt::AlignTop); // inside, where the line ends at the edge
    }
  }
  QVector<QPointF> dots;
  for (const Drive::PowerPoint &measured : drive.powerPoints)
    dots.append(QPointF(measured.speed, measured.power));
  addDots(dots);
  if (point && point->speed && point->power)
    addWorkingPoint({*point->speed, *point->power}, !point->powerLimit || *point->power <= *point->powerLimit);
  finish();
}

void MapPlot::showConsumption(const Drive &drive, const std::optional<WorkingPoint> &point) {
  reset(tr("power [kW]"), drive.kind == Drive::Kind::ElectricMotor ? tr("current taken [kW]") : tr("fuel taken [kW]"));
  const auto energy = drive.energy;
  m_readout = [energy](const QPointF &at) {
    QString text = tr("P = %1 kW").arg(shownNumber(at.x()));
    if (energy)
      text += tr("\ntakes %1 kW").arg(shownNumber((*energy)(at.x())));
    return text;
  };
  double last = point && point->power ? 1.3 * *point->power : 0.0;
  for (const Drive::EnergyPoint &measured : drive.energyPoints)
    last = std::max(last, measured.power);
  constexpr double Usual = 10000.0; // kW
  last = last > 0.0 ? last : Usual;
  QVector<QPointF> line;
  for (int i = 0; drive.energy && i <= Steps; ++i)
    line.append(QPointF(last * i / Steps, (*drive.energy)(last * i / Steps)));
  addLine(line, QPen(Blue, 2.0));
  QVector<QPointF> dots;
  for (const Drive::EnergyPoint &measured : drive.energyPoints)
    dots.append(QPointF(measured.power, measured.rate));
  addDots(dots);
  if (point && point->power && point->energyRate)
    addWorkingPoint({*point->power, *point->energyRate}, true);
  finish();
}

void MapPlot::contextMenuEvent(QContextMenuEvent *event) {
  QMenu menu(this);
  menu.addAction(tr("Show everything"), m_zoomer, [this] { m_zoomer->zoom(0); });
  menu.addAction(tr("Save picture …"), this, &MapPlot::saveAs);
  menu.addAction(tr("Print …"), this, &MapPlot::print);
  menu.exec(event->globalPos());
}

bool MapPlot::write(QIODevice &device, const QString &suffix) {
  constexpr QSize Points(600, 420);
  QwtPlotRenderer renderer;
  if (suffix == QLatin1String("pdf")) {
    QPdfWriter writer(&device);
    writer.setPageSize(QPageSize(QSizeF(Points), QPageSize::Point));
    writer.setPageMargins(QMarginsF());
    writer.setResolution(Resolution);
    renderer.renderTo(this, writer);
    return true;
  }
  if (suffix == QLatin1String("svg")) {
    QSvgGenerator generator;
    generator.setOutputDevice(&device);
    generator.setResolution(Resolution);
    generator.setSize(Points);
    generator.setViewBox(QRect(QPoint(), Points));
    renderer.renderTo(this, generator);
    return true;
  }
  return grab().save(&device, qPrintable(suffix));
}

bool MapPlot::save(const QString &path, QString *reason) {
  QSaveFile file(path);
  const bool isSaved = file.open(QIODevice::WriteOnly) && write(file, QFileInfo(path).suffix().toLower()) &&
                       file.error() == QFile::NoError && file.commit();
  if (!isSaved && reason != nullptr)
    *reason = tr("The picture %1 could not be written: %2").arg(path, file.errorString());
  return isSaved;
}

void MapPlot::saveAs() {
  const QString path = QFileDialog::getSaveFileName(this, tr("Save picture"), QStringLiteral("map.png"),
                                                    tr("Pictures (*.png *.jpg *.pdf *.svg)"));
  QString reason;
  if (!path.isEmpty() && !save(path, &reason))
    NivraMsg::message(NivraMsg::Kind::Warning, reason);
}

void MapPlot::print() {
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageOrientation(QPageLayout::Landscape);
  QPrintDialog dialog(&printer, this);
  if (dialog.exec() != QDialog::Accepted)
    return;
  QwtPlotRenderer renderer;
  renderer.renderTo(this, printer);
}
