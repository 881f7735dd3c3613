#include "canvas/colorbars.h"

#include <drawing/scaleticks.h>

#include <QCoreApplication>
#include <qwt_scale_div.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>
#include <qwt_text.h>

#include <algorithm>

namespace {

bool isScaleAxis(int axis) {
  return axis == QwtPlot::yRight || axis == QwtPlot::xTop;
}

/// Numbers with as many digits as tell the ticks apart.
class TickLabels : public QwtScaleDraw {
public:
  QwtText label(double value) const override {
    const QList<double> ticks = scaleDiv().ticks(QwtScaleDiv::MajorTick);
    return QwtText(ScaleTicks::text(value, {ticks.begin(), ticks.end()}), QwtText::PlainText);
  }
};

QwtText titleText(const QString &text, const std::vector<ColorScale::Swatch> &swatches) {
  if (swatches.empty())
    return QwtText(text, QwtText::PlainText);
  const QString noBreak = QStringLiteral("&nbsp;");
  QString marked = text.toHtmlEscaped();
  for (const ColorScale::Swatch &swatch : swatches)
    marked += QStringLiteral("&nbsp;&nbsp; <span style=\"color:%1\">\u25A0</span>&nbsp;<small>%2</small>")
                  .arg(QColor(swatch.color).name(), swatch.text.toHtmlEscaped().replace(QLatin1Char(' '), noBreak));
  return QwtText(marked, QwtText::RichText);
}

/// The colours of an axis in the display unit, found by the stored values that they belong to.
class ShownColorMap : public QwtColorMap {
public:
  ShownColorMap(std::unique_ptr<QwtColorMap> map, const QwtInterval &stored, const Units::Linear &toDisplay)
      : m_map(std::move(map))
      , m_stored(stored)
      , m_toDisplay(toDisplay) {}

  QRgb rgb(const QwtInterval &, double value) const override { return m_map->rgb(m_stored, m_toDisplay.inverse(value)); }
  unsigned char colorIndex(const QwtInterval &, double value) const override {
    return m_map->colorIndex(m_stored, m_toDisplay.inverse(value));
  }

private:
  std::unique_ptr<QwtColorMap> m_map;
  QwtInterval m_stored;
  Units::Linear m_toDisplay;
};

/// One scale on one axis.
struct Shown {
  const DrawValues::Column &values;
  std::unique_ptr<QwtColorMap> map;
  QwtText title;
};

void showOn(QwtPlot &plot, int axis, Shown shown) {
  constexpr int BarWidth = 14; // px
  constexpr int Margin = 6;    // px
  constexpr int MaximumTicks = 10;
  constexpr double CapShare = 0.04; // of the scale
  const QwtInterval &range = shown.values.range;
  const QwtInterval &data = shown.values.data;
  const Units::Linear &toDisplay = shown.values.function.toDisplay;
  const QwtInterval interval = QwtInterval(toDisplay(range.minValue()), toDisplay(range.maxValue())).normalized();
  auto map = std::make_unique<ShownColorMap>(std::move(shown.map), range, toDisplay);
  QwtScaleWidget *widget = plot.axisWidget(axis);
  widget->setColorBarEnabled(true);
  widget->setColorBarWidth(BarWidth);
  widget->setColorMap(interval, map.release()); // the widget owns it
  widget->setMargin(Margin);
  shown.title.setFont(plot.axisFont(axis));
  shown.title.setColor(plot.palette().color(QPalette::WindowText));
  shown.title.setRenderFlags(Qt::AlignHCenter | Qt::TextWordWrap); // a short scale has it in lines
  plot.setAxisTitle(axis, shown.title);
  plot.setAxisScaleDraw(axis, new TickLabels); // NOLINT(cppcoreguidelines-owning-memory): the plot owns it
  plot.setAxisMaxMajor(axis, MaximumTicks);
  if (interval.width() > 0.0) { // values beyond fixed bounds are announced by caps
    const double cap = interval.width() * CapShare;
    plot.setAxisScale(axis, interval.minValue() - (data.minValue() < range.minValue() ? cap : 0.0),
                      interval.maxValue() + (data.maxValue() > range.maxValue() ? cap : 0.0));
  } else { // a single value stands in the middle of a bar of its colour
    const double value = interval.minValue();
    const double room = std::max(0.5, std::abs(value) * 0.01);
    plot.setAxisScaleDiv(axis, QwtScaleDiv(value - room, value + room, QList<double>(), QList<double>(), {value}));
  }
  plot.enableAxis(axis, true);
}

} // namespace

void ColorBars::show(QwtPlot &plot, const PlotSettings &settings, const DrawValues &values, ColorScale::Subject subject,
                     const std::vector<ColorScale::Swatch> &swatches) {
  for (const int axis : {QwtPlot::yRight, QwtPlot::xTop}) {
    plot.axisWidget(axis)->setColorBarEnabled(false);
    plot.enableAxis(axis, false);
  }
  int axis = settings.colorScalePos;
  if (!isScaleAxis(axis) || subject == ColorScale::Subject::SearchResults)
    return;
  const DrawValues::Column &edges = values.of(Aspect::EdgeColor);
  const DrawValues::Column &nodes = values.of(Aspect::NodeColor);
  const bool showsNodes = subject == ColorScale::Subject::EdgesAndNodes && nodes.isAny();
  const bool isOne = showsNodes && ColorScale::isShared(settings, values);
  if (edges.isAny()) {
    const QString title = isOne ? QCoreApplication::translate("ColorBars", "edges and nodes: %1")
                                : QCoreApplication::translate("ColorBars", "edges: %1");
    showOn(plot, axis,
           {edges, ColorScale::edgeColors(settings, edges), titleText(title.arg(edges.function.title), swatches)});
    axis = axis == QwtPlot::yRight ? QwtPlot::xTop : QwtPlot::yRight;
  }
  if (showsNodes && !isOne)
    showOn(plot, axis,
           {nodes, ColorScale::nodeColors(settings, values),
            titleText(QCoreApplication::translate("ColorBars", "nodes: %1").arg(nodes.function.title), {})});
  plot.updateAxes();
  plot.updateLayout(); // its texts may need more room than those before, also where no window asks for it
}
