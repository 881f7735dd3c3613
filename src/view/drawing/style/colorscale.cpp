#include <model/displayformat.h>

#include <QCoreApplication>
#include <qwt_scale_div.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>
#include <qwt_text.h>

#include <algorithm>
#include <cmath>
#include <drawing/colorscale.h>

namespace {

bool isScaleAxis(int axis) {
  return axis == QwtPlot::yRight || axis == QwtPlot::xTop;
}

/// Breaks between classes, in the stored unit; empty for a smooth scale.
std::vector<double> breaksOf(const PlotSettings &settings, const DrawValues::Column &values) {
  constexpr int MostClasses = 50;
  const int classes = std::min(settings.colorClasses, MostClasses);
  std::vector<double> breaks;
  if (settings.classMethod == PlotSettings::ownClasses() && classes > 1) {
    for (const QString &text : settings.classBreaks.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
      bool isNumber = false;
      const double shown = text.trimmed().toDouble(&isNumber);
      if (isNumber && std::isfinite(shown) && static_cast<int>(breaks.size()) < MostClasses)
        breaks.push_back(values.function.toDisplay.inverse(shown));
    }
    std::sort(breaks.begin(), breaks.end());
    return breaks;
  }
  if (!(values.range.width() > 0.0))
    return breaks; // one value is one class
  if (settings.classMethod == PlotSettings::quantileClasses() && classes > 1) {
    std::vector<double> valid;
    valid.reserve(values.ofElements.size());
    std::copy_if(values.ofElements.begin(), values.ofElements.end(), std::back_inserter(valid),
                 [](double value) { return value != NetData::NoValue; });
    return ClassColorMap::quantileBreaks(std::move(valid), classes);
  }
  return ClassColorMap::equalBreaks(values.range, classes);
}

QString tr(const char *text) {
  return QCoreApplication::translate("ColorScale", text);
}

/// Numbers with as many digits as tell the ticks apart.
class TickLabels : public QwtScaleDraw {
public:
  QwtText label(double value) const override {
    const QList<double> ticks = scaleDiv().ticks(QwtScaleDiv::MajorTick);
    if (ticks.size() < 2)
      return QwtText(DisplayFormat::number(value), QwtText::PlainText);
    const double step = std::abs(ticks.at(1) - ticks.at(0));
    const double largest = std::max(std::abs(ticks.first()), std::abs(ticks.last()));
    constexpr double Rounding = 1e-6; // of a step: what is less is zero
    constexpr int Most = 15;          // digits that a number has
    const double exponent = std::floor(std::log10(step) + Rounding);
    const double shown = std::abs(value) < step * Rounding ? 0.0 : value;
    const double digits = std::floor(std::log10(std::max(largest, step))) - exponent + 1.0;
    if (exponent < -9.0 || largest >= 1e15) // such numbers are written with powers of ten
      return QwtText(DisplayFormat::number(shown, static_cast<int>(qBound(1.0, digits, double(Most)))), QwtText::PlainText);
    return QwtText(DisplayFormat::fixed(shown, static_cast<int>(std::max(0.0, -exponent))), QwtText::PlainText);
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
  constexpr int MostTicks = 10;
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
  plot.setAxisMaxMajor(axis, MostTicks);
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

std::unique_ptr<HueColorMap> ColorScale::colorMap(const PlotSettings &settings, bool logarithmic) {
  const ColorRamp ramp{settings.firstColor, settings.lastColor, settings.saturation, settings.lightness,
                       ColorRamp::kindOf(settings.colorRamp)};
  if (logarithmic)
    return std::make_unique<LogarithmicColorMap>(ramp, settings.logFactor);
  return std::make_unique<HueColorMap>(ramp);
}

std::unique_ptr<QwtColorMap> ColorScale::edgeColors(const PlotSettings &settings, const DrawValues::Column &values) {
  std::unique_ptr<HueColorMap> map = colorMap(settings, settings.logScaleColor);
  std::vector<double> breaks = breaksOf(settings, values);
  if (!breaks.empty())
    return std::make_unique<ClassColorMap>(std::move(breaks), *map);
  auto table = std::make_unique<TableColorMap>(std::move(map));
  table->setCaps(true, true);
  return table;
}

bool ColorScale::isShared(const PlotSettings &settings, const DrawValues &values) {
  const DrawValues::Column &edges = values.edgeColor();
  const DrawValues::Column &nodes = values.nodeColor();
  if (!edges.isAny() || !nodes.isAny() || !edges.function.shows(nodes.function))
    return false;
  return settings.colorClasses > 1 || (edges.range == nodes.range && settings.logScaleColor == settings.logScaleNodeColor);
}

std::unique_ptr<QwtColorMap> ColorScale::nodeColors(const PlotSettings &settings, const DrawValues &values) {
  if (isShared(settings, values))
    return edgeColors(settings, values.edgeColor());
  auto table = std::make_unique<TableColorMap>(colorMap(settings, settings.logScaleNodeColor));
  table->setCaps(true, true);
  return table;
}

void ColorScale::show(QwtPlot &plot, const PlotSettings &settings, const DrawValues &values, Subject subject,
                      const std::vector<Swatch> &swatches) {
  for (const int axis : {QwtPlot::yRight, QwtPlot::xTop}) {
    plot.axisWidget(axis)->setColorBarEnabled(false);
    plot.enableAxis(axis, false);
  }
  int axis = settings.colorScalePos;
  if (!isScaleAxis(axis) || subject == Subject::SearchResults)
    return;
  const DrawValues::Column &edges = values.edgeColor();
  const DrawValues::Column &nodes = values.nodeColor();
  const bool showsNodes = subject == Subject::EdgesAndNodes && nodes.isAny();
  const bool isOne = showsNodes && isShared(settings, values);
  if (edges.isAny()) {
    const QString title = isOne ? tr("edges and nodes: %1") : tr("edges: %1");
    showOn(plot, axis, {edges, edgeColors(settings, edges), titleText(title.arg(edges.function.title), swatches)});
    axis = axis == QwtPlot::yRight ? QwtPlot::xTop : QwtPlot::yRight;
  }
  if (showsNodes && !isOne)
    showOn(plot, axis, {nodes, nodeColors(settings, values), titleText(tr("nodes: %1").arg(nodes.function.title), {})});
  plot.updateAxes();
  plot.updateLayout(); // its texts may need more room than those before, also where no window asks for it
}

QString ColorScale::legendText(const PlotSettings &settings, const DrawValues *values, Subject subject) {
  if (subject == Subject::SearchResults)
    return QStringLiteral("Color: ") + tr("search results");
  const auto line = [](const char *what, bool absolute, const QString &function) {
    return QLatin1String(what) + (absolute ? QStringLiteral("abs. ") : QString()) + function;
  };
  QStringList lines;
  if (values == nullptr || values->edgeColor().isAny())
    lines.append(line("Color: ", settings.absColor, settings.colorFunc));
  if (values == nullptr || values->edgeWidth().isAny())
    lines.append(line("Width: ", settings.absWidth, settings.widthFunc));
  return lines.join(QLatin1Char('\n'));
}
