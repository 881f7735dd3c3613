#include "scenarioset/serieschart.h"

#include <base/index.h>
#include <model/displayformat.h>
#include <paper/chartfile.h>

#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <qwt_date.h>
#include <qwt_date_scale_draw.h>
#include <qwt_date_scale_engine.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_layout.h>
#include <qwt_plot_marker.h>
#include <qwt_plot_renderer.h>
#include <qwt_scale_div.h>
#include <qwt_scale_widget.h>
#include <qwt_symbol.h>

#include <algorithm>
#include <cmath>

namespace {

/// Names of scenarios below their places, where the axis has a whole number.
class ScenarioScale : public QwtScaleDraw {
public:
  explicit ScenarioScale(const SeriesChart &chart)
      : m_chart(chart) {}
  QwtText label(double value) const override {
    constexpr int Longest = 14;
    const double whole = std::round(value);
    const auto &points = m_chart.series().points;
    if (std::abs(value - whole) > 1e-6 || whole < 0.0 || whole >= static_cast<double>(points.size()))
      return QwtText(QString());
    QString name = points[static_cast<std::size_t>(whole)].scenario;
    if (name.size() > Longest)
      name = name.left(Longest - 1) + QChar(0x2026);
    return QwtText(name, QwtText::PlainText);
  }

private:
  const SeriesChart &m_chart;
};

/// Dates as the language has them, days at the finest.
class DateScale : public QwtDateScaleDraw {
public:
  DateScale()
      : QwtDateScaleDraw(Qt::UTC) {
    setDateFormat(QwtDate::Day, QStringLiteral("yyyy-MM-dd"));
    setDateFormat(QwtDate::Week, QStringLiteral("yyyy-MM-dd"));
    setDateFormat(QwtDate::Month, QStringLiteral("MMM yyyy"));
    setDateFormat(QwtDate::Year, QStringLiteral("yyyy"));
  }
};

} // namespace

/// On white, and on a dark screen.
struct SeriesChart::Colors {
  QColor ground;
  QColor grid;
  QColor text;
  QColor line;
  QColor accent;

  static Colors onWhite() { return {Qt::white, Qt::lightGray, Qt::black, {31, 93, 138}, {196, 98, 16}}; }
  static Colors of(const QPalette &palette) {
    constexpr int Middle = 128;
    if (palette.color(QPalette::Window).lightness() >= Middle)
      return onWhite();
    return {{0x1e, 0x22, 0x26}, {0x4a, 0x52, 0x5a}, palette.color(QPalette::Text), {112, 174, 224}, {238, 156, 82}};
  }
};

SeriesChart::SeriesChart(QWidget *parent)
    : QwtPlot(parent)
    , m_grid(new QwtPlotGrid)
    , m_curve(new QwtPlotCurve)
    , m_present(new QwtPlotMarker)
    , m_hover(new QwtPlotMarker) {
  plotLayout()->setAlignCanvasToScales(true);
  m_curve->setRenderHint(QwtPlotItem::RenderAntialiased);
  m_present->setLineStyle(QwtPlotMarker::VLine);
  m_hover->setSpacing(8);
  m_hover->setZ(50.0);
  for (QwtPlotItem *item : std::initializer_list<QwtPlotItem *>{m_grid, m_curve, m_present, m_hover})
    item->attach(this);
  canvas()->setMouseTracking(true);
  canvas()->installEventFilter(this);
  canvas()->setFocusPolicy(Qt::NoFocus);
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(tr("Values over the scenarios"));
  constexpr int SmallestWidth = 220;
  constexpr int SmallestHeight = 110;
  setMinimumSize(SmallestWidth, SmallestHeight);
  show({});
}

double SeriesChart::xOf(std::size_t point) const {
  return m_isDated ? QwtDate::toDouble(QDateTime(m_series.points[point].date, QTime(0, 0), Qt::UTC))
                   : static_cast<double>(point);
}

void SeriesChart::show(const Series &series) {
  m_series = series;
  const auto &points = m_series.points;
  m_isDated =
      !points.empty() && std::all_of(points.begin(), points.end(), [](const Point &point) { return point.date.isValid(); });
  m_shown.clear();
  for (std::size_t i = 0; i < points.size(); ++i) {
    if (std::isfinite(points[i].value))
      m_shown.push_back(i);
  }
  std::stable_sort(m_shown.begin(), m_shown.end(), [this](std::size_t a, std::size_t b) { return xOf(a) < xOf(b); });
  m_marked.reset();
  QVector<QPointF> samples;
  samples.reserve(toQt(m_shown.size()));
  for (const std::size_t point : m_shown)
    samples.append({xOf(point), points[point].value});
  m_curve->setSamples(samples);
  const auto present = std::find_if(m_shown.begin(), m_shown.end(),
                                    [this](std::size_t i) { return m_series.points[i].scenario == m_series.present; });
  m_present->setVisible(present != m_shown.end());
  if (present != m_shown.end())
    m_present->setXValue(xOf(*present));
  setAxisTitle(yLeft, QwtText(m_series.title, QwtText::PlainText));
  setAxis();
  addLines();
  color(Colors::of(palette()));
  replot();
}

void SeriesChart::setAxis() {
  if (m_isDated) {
    setAxisScaleDraw(xBottom, new DateScale);
    setAxisScaleEngine(xBottom, new QwtDateScaleEngine(Qt::UTC));
    setAxisAutoScale(xBottom);
    constexpr int MostDates = 5; // which are wide
    setAxisMaxMajor(xBottom, MostDates);
    return;
  }
  setAxisScaleDraw(xBottom, new ScenarioScale(*this));
  setAxisScaleEngine(xBottom, new QwtLinearScaleEngine);
  constexpr std::size_t MostNames = 8; // beside one another
  const std::size_t count = std::max<std::size_t>(m_series.points.size(), 1);
  const std::size_t step = (count + MostNames - 1) / MostNames;
  QList<double> ticks;
  for (std::size_t at = 0; at < count; at += step)
    ticks.append(static_cast<double>(at));
  setAxisScaleDiv(xBottom, QwtScaleDiv(-0.5, static_cast<double>(count) - 0.5, {}, {}, ticks));
}

void SeriesChart::addLines() {
  for (QwtPlotItem *item : itemList(QwtPlotItem::Rtti_PlotMarker)) {
    if (item != m_present && item != m_hover) {
      item->detach();
      delete item;
    }
  }
  for (const auto &[what, where] : m_series.lines) {
    auto *line = new QwtPlotMarker;
    line->setLineStyle(QwtPlotMarker::HLine);
    line->setYValue(where);
    line->setLabel(QwtText(what, QwtText::PlainText));
    line->setLabelAlignment(Qt::AlignRight | Qt::AlignTop);
    line->setZ(m_curve->z() + 1.0); // legible on a dense curve
    line->attach(this);
  }
}

void SeriesChart::color(const Colors &colors) {
  constexpr std::size_t ManyPoints = 150;
  setCanvasBackground(colors.ground);
  QPalette own = palette();
  own.setColor(QPalette::WindowText, colors.text);
  own.setColor(QPalette::Text, colors.text);
  for (const int axis : {xBottom, yLeft}) {
    if (axisWidget(axis) != nullptr)
      axisWidget(axis)->setPalette(own);
  }
  m_grid->setMajorPen(colors.grid, 0.0, Qt::DotLine);
  m_curve->setPen(colors.line, 1.5);
  m_curve->setStyle(m_isDated ? QwtPlotCurve::Lines : QwtPlotCurve::NoCurve);
  const int size = m_shown.size() > ManyPoints ? 3 : 6;
  m_curve->setSymbol(new QwtSymbol(QwtSymbol::Ellipse, colors.line, QPen(colors.line), QSize(size, size)));
  m_present->setLinePen(colors.accent, 1.5, Qt::DashLine);
  m_hover->setSymbol(new QwtSymbol(QwtSymbol::Ellipse, colors.accent, QPen(colors.ground), QSize(9, 9)));
  QwtText said(readout(), QwtText::PlainText);
  said.setColor(colors.text);
  said.setBackgroundBrush(colors.ground);
  m_hover->setLabel(said);
  m_hover->setVisible(m_marked.has_value());
  for (QwtPlotItem *item : itemList(QwtPlotItem::Rtti_PlotMarker)) {
    auto *line = static_cast<QwtPlotMarker *>(item);
    if (line == m_present || line == m_hover)
      continue;
    line->setLinePen(colors.accent, 1.0, Qt::DotLine);
    QwtText text = line->label();
    constexpr int GroundAlpha = 200;
    QColor ground = colors.ground;
    ground.setAlpha(GroundAlpha);
    text.setColor(colors.accent);
    text.setBackgroundBrush(ground);
    line->setLabel(text);
  }
}

QString SeriesChart::readout() const {
  if (!m_marked)
    return QString();
  const Point &point = m_series.points[m_shown[*m_marked]];
  return QStringLiteral("%1: %2 %3").arg(point.scenario, DisplayFormat::number(point.value), m_series.unit).trimmed();
}

std::optional<std::size_t> SeriesChart::nearest(const QPoint &position) const {
  constexpr double Near = 24.0; // pixels
  std::optional<std::size_t> found;
  double smallest = Near;
  for (std::size_t i = 0; i < m_shown.size(); ++i) {
    const double dx = transform(xBottom, xOf(m_shown[i])) - position.x();
    const double dy = transform(yLeft, m_series.points[m_shown[i]].value) - position.y();
    const double distance = std::hypot(dx, dy);
    if (distance < smallest) {
      smallest = distance;
      found = i;
    }
  }
  return found;
}

void SeriesChart::mark(std::optional<std::size_t> point) {
  if (point == m_marked)
    return;
  m_marked = point;
  if (point) {
    const std::size_t at = m_shown[*point];
    m_hover->setValue(xOf(at), m_series.points[at].value);
    const bool isRight = transform(xBottom, xOf(at)) > canvas()->width() / 2.0;
    const bool isHigh = transform(yLeft, m_series.points[at].value) < canvas()->height() / 2.0;
    m_hover->setLabelAlignment((isRight ? Qt::AlignLeft : Qt::AlignRight) | (isHigh ? Qt::AlignBottom : Qt::AlignTop));
  }
  color(Colors::of(palette()));
  replot();
}

bool SeriesChart::eventFilter(QObject *watched, QEvent *event) {
  if (watched != canvas())
    return QwtPlot::eventFilter(watched, event);
  if (event->type() == QEvent::MouseMove) {
    mark(nearest(static_cast<QMouseEvent *>(event)->pos()));
    canvas()->setCursor(m_marked ? Qt::PointingHandCursor : Qt::ArrowCursor);
  } else if (event->type() == QEvent::Leave) {
    mark({});
  } else if (event->type() == QEvent::MouseButtonRelease) {
    const auto *mouse = static_cast<QMouseEvent *>(event);
    setFocus(Qt::MouseFocusReason);
    if (const auto point = nearest(mouse->pos()); point && mouse->button() == Qt::LeftButton)
      emit scenarioWanted(m_series.points[m_shown[*point]].scenario);
  }
  return QwtPlot::eventFilter(watched, event);
}

void SeriesChart::keyPressEvent(QKeyEvent *event) {
  const bool isLeft = event->key() == Qt::Key_Left;
  const bool isRight = event->key() == Qt::Key_Right;
  if ((isLeft || isRight) && !m_shown.empty()) {
    const std::size_t last = m_shown.size() - 1;
    if (!m_marked)
      mark(isRight ? 0 : last);
    else
      mark(isRight ? std::min(*m_marked + 1, last) : *m_marked - std::min<std::size_t>(*m_marked, 1));
  } else if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && m_marked) {
    emit scenarioWanted(m_series.points[m_shown[*m_marked]].scenario);
  } else {
    QwtPlot::keyPressEvent(event);
  }
}

void SeriesChart::changeEvent(QEvent *event) {
  QwtPlot::changeEvent(event);
  if (event->type() != QEvent::PaletteChange)
    return;
  color(Colors::of(palette()));
  replot();
}

bool SeriesChart::save(const QString &path, QString *reason) {
  constexpr QSize PictureSize(900, 420); // points
  mark({});
  color(Colors::onWhite());
  const bool isSaved = ChartFile::save(
      path, PictureSize,
      [this](QPainter &painter, const QRectF &area) {
        QwtPlotRenderer renderer;
        renderer.setDiscardFlag(QwtPlotRenderer::DiscardBackground);
        renderer.render(this, &painter, area);
      },
      reason);
  color(Colors::of(palette()));
  return isSaved;
}
