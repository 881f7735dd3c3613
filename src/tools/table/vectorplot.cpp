#include "table/vectorplot.h"

#include "table/valuestatistics.h"

#include <model/displayformat.h>

#include <QEvent>
#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_histogram.h>
#include <qwt_plot_layout.h>
#include <qwt_plot_marker.h>

namespace {

/// On white, and on a dark screen.
struct Colors {
  QColor ground;
  QColor grid;
  QColor blue;
  QColor bars;
  QColor orange;

  static Colors of(const QPalette &palette) {
    constexpr int Middle = 128;
    if (palette.color(QPalette::Window).lightness() < Middle)
      return {{0x1e, 0x22, 0x26}, {0x4a, 0x52, 0x5a}, {112, 174, 224}, {56, 92, 122}, {238, 156, 82}};
    return {Qt::white, Qt::lightGray, {31, 93, 138}, {150, 188, 217}, {196, 98, 16}};
  }
};

QwtPlot *makePlot() {
  auto *plot = new QwtPlot;
  plot->plotLayout()->setAlignCanvasToScales(true);
  auto *grid = new QwtPlotGrid;
  grid->attach(plot);
  plot->setMinimumHeight(120);
  return plot;
}

void setGround(QwtPlot &plot, const Colors &colors) {
  plot.setCanvasBackground(colors.ground);
  for (QwtPlotItem *item : plot.itemList(QwtPlotItem::Rtti_PlotGrid))
    static_cast<QwtPlotGrid *>(item)->setMajorPen(colors.grid, 0.0, Qt::DotLine);
}

void mark(QwtPlot &plot, double x, const QString &text, const QColor &color, Qt::PenStyle style, Qt::Alignment alignment) {
  auto *marker = new QwtPlotMarker;
  marker->setLineStyle(QwtPlotMarker::VLine);
  marker->setLinePen(color, 1.5, style);
  marker->setXValue(x);
  QwtText label(text);
  label.setColor(color);
  constexpr int GroundAlpha = 200;
  QColor ground = plot.canvasBackground().color();
  ground.setAlpha(GroundAlpha);
  label.setBackgroundBrush(ground);
  marker->setLabel(label);
  marker->setLabelAlignment(alignment);
  marker->attach(&plot);
}

} // namespace

VectorPlot::VectorPlot(QWidget *parent)
    : QWidget(parent)
    , m_rows(makePlot())
    , m_histogram(makePlot())
    , m_summary(new QLabel) {
  auto *splitter = new QSplitter(Qt::Vertical);
  splitter->addWidget(m_rows);
  splitter->addWidget(m_histogram);
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(splitter, 1);
  column->addWidget(m_summary);
  m_summary->setTextInteractionFlags(Qt::TextSelectableByMouse);
  m_summary->setWordWrap(true);
  m_rows->setAxisTitle(QwtPlot::xBottom, tr("row"));
  m_histogram->setAxisTitle(QwtPlot::yLeft, tr("number"));
  draw();
}

VectorPlot::~VectorPlot() = default;

void VectorPlot::show(const QString &title, const std::vector<std::pair<int, double>> &values, const QString &ofWhat) {
  const QwtText plain(title, QwtText::PlainText); // names of properties and formulas come from the workspace
  m_rows->setAxisTitle(QwtPlot::yLeft, plain);
  m_histogram->setAxisTitle(QwtPlot::xBottom, plain);
  m_points.clear();
  std::vector<double> numbers;
  numbers.reserve(values.size());
  for (const auto &[row, number] : values) {
    m_points.append(QPointF(row, number));
    numbers.push_back(number);
  }
  m_statistics = std::make_unique<ValueStatistics>(std::move(numbers));
  m_summary->setText(m_statistics->count == 0 ? tr("There are no numbers in %1.").arg(ofWhat)
                                              : summaryOf(*m_statistics, ofWhat));
  draw();
}

void VectorPlot::draw() {
  const Colors colors = Colors::of(palette());
  for (QwtPlot *plot : {m_rows, m_histogram}) {
    plot->detachItems(QwtPlotItem::Rtti_PlotCurve);
    plot->detachItems(QwtPlotItem::Rtti_PlotHistogram);
    plot->detachItems(QwtPlotItem::Rtti_PlotMarker);
    setGround(*plot, colors);
  }
  if (m_statistics != nullptr && m_statistics->count > 0) {
    constexpr int ManyPoints = 10000;
    auto *curve = new QwtPlotCurve;
    curve->setSamples(m_points);
    curve->setPen(colors.blue, 1.5);
    curve->setRenderHint(QwtPlotItem::RenderAntialiased, m_points.size() < ManyPoints);
    curve->attach(m_rows);
    drawHistogram(*m_statistics);
  }
  m_rows->replot();
  m_histogram->replot();
}

void VectorPlot::changeEvent(QEvent *event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange)
    draw();
}

void VectorPlot::drawHistogram(const ValueStatistics &statistics) {
  const Colors colors = Colors::of(palette());
  auto *histogram = new QwtPlotHistogram;
  QVector<QwtIntervalSample> samples;
  for (const ValueStatistics::Bin &bin : statistics.bins) {
    const bool isPoint = bin.to <= bin.from; // one number only: a bar that can be seen
    samples.append(QwtIntervalSample(bin.count, isPoint ? bin.from - 0.5 : bin.from, isPoint ? bin.to + 0.5 : bin.to));
  }
  histogram->setSamples(samples);
  histogram->setBrush(colors.bars);
  histogram->setPen(colors.blue, 1.0);
  histogram->attach(m_histogram);
  if (statistics.maximum <= statistics.minimum)
    return;
  // Each text stands on the side of its line that is away from the other's, and the two pairs at different heights.
  const double median = statistics.quantile(0.5);
  const bool isMeanFirst = statistics.mean < median;
  const Qt::Alignment ofMean = isMeanFirst ? Qt::AlignLeft : Qt::AlignRight;
  const Qt::Alignment ofMedian = isMeanFirst ? Qt::AlignRight : Qt::AlignLeft;
  mark(*m_histogram, statistics.quantile(0.05), tr("5 %"), colors.blue, Qt::DashLine, Qt::AlignRight | Qt::AlignTop);
  mark(*m_histogram, statistics.quantile(0.95), tr("95 %"), colors.blue, Qt::DashLine, Qt::AlignRight | Qt::AlignTop);
  mark(*m_histogram, median, tr("median"), colors.blue, Qt::SolidLine, ofMedian | Qt::AlignVCenter);
  mark(*m_histogram, statistics.mean, tr("mean"), colors.orange, Qt::SolidLine, ofMean | Qt::AlignVCenter);
}

QString VectorPlot::summaryOf(const ValueStatistics &statistics, const QString &ofWhat) {
  return tr("%1 numbers of %2: minimum %3, maximum %4, mean %5, standard deviation %6, "
            "quantiles 5 % %7, 25 % %8, 50 % %9, ")
             .arg(statistics.count)
             .arg(ofWhat, DisplayFormat::number(statistics.minimum), DisplayFormat::number(statistics.maximum),
                  DisplayFormat::number(statistics.mean), DisplayFormat::number(statistics.standardDeviation),
                  DisplayFormat::number(statistics.quantile(0.05)), DisplayFormat::number(statistics.quantile(0.25)),
                  DisplayFormat::number(statistics.quantile(0.5))) +
         tr("75 % %1, 95 % %2")
             .arg(DisplayFormat::number(statistics.quantile(0.75)), DisplayFormat::number(statistics.quantile(0.95)));
}
