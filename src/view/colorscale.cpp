#include <view/colorscale.h>

#include <qwt_scale_widget.h>
#include <qwt_text.h>

#include <algorithm>
#include <cmath>

namespace {

bool isScaleAxis(int axis) {
  return axis == QwtPlot::yRight || axis == QwtPlot::xTop;
}

/// Breaks between classes, in the stored unit; empty for a smooth scale.
std::vector<double> breaksOf(const PlotSettings &settings, const DrawFunction &function, const DrawValues::Column &values) {
  constexpr int MostClasses = 50;
  const int classes = std::min(settings.colorClasses, MostClasses);
  std::vector<double> breaks;
  if (settings.classMethod == PlotSettings::ownClasses() && classes > 1) {
    for (const QString &text : settings.classBreaks.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
      bool isNumber = false;
      const double shown = text.trimmed().toDouble(&isNumber);
      if (isNumber && std::isfinite(shown) && static_cast<int>(breaks.size()) < MostClasses)
        breaks.push_back((shown - function.toDisplay.offset) / function.toDisplay.factor);
    }
    std::sort(breaks.begin(), breaks.end());
    return breaks;
  }
  if (settings.classMethod == PlotSettings::quantileClasses() && classes > 1) {
    std::vector<double> valid;
    valid.reserve(values.ofElements.size());
    std::copy_if(values.ofElements.begin(), values.ofElements.end(), std::back_inserter(valid),
                 [](double value) { return value != NetData::NoValue; });
    return ClassColorMap::quantileBreaks(std::move(valid), classes);
  }
  return ClassColorMap::equalBreaks(values.range, classes);
}

QString titleText(const DrawFunction &function, const std::vector<ColorScale::Swatch> &swatches) {
  QString text = function.title.toHtmlEscaped();
  for (const ColorScale::Swatch &swatch : swatches)
    text += QStringLiteral("&nbsp;&nbsp; <span style=\"color:%1\">\u25A0</span>&nbsp;<small>%2</small>")
                .arg(QColor(swatch.color).name(), swatch.text.toHtmlEscaped());
  return text;
}

} // namespace

std::unique_ptr<HueColorMap> ColorScale::colorMap(const PlotSettings &settings, bool logarithmic) {
  const ColorRamp ramp{settings.firstColor, settings.lastColor, settings.saturation, settings.lightness,
                       ColorRamp::kindOf(settings.colorRamp)};
  if (logarithmic)
    return std::make_unique<LogarithmicColorMap>(ramp, settings.logFactor);
  return std::make_unique<HueColorMap>(ramp);
}

std::unique_ptr<QwtColorMap> ColorScale::edgeColors(const PlotSettings &settings, const DrawFunction &function,
                                                    const DrawValues::Column &values) {
  const std::unique_ptr<HueColorMap> map = colorMap(settings, settings.logScaleColor);
  std::vector<double> breaks = breaksOf(settings, function, values);
  if (!breaks.empty())
    return std::make_unique<ClassColorMap>(std::move(breaks), *map);
  auto table = std::make_unique<TableColorMap>(*map, values.range);
  table->setCaps(true, true);
  return table;
}

std::unique_ptr<QwtColorMap> ColorScale::nodeColors(const PlotSettings &settings, const DrawFunction &function,
                                                    const DrawValues &values) {
  if (settings.nodeColorFunc == settings.colorFunc && settings.colorClasses > 1)
    return edgeColors(settings, function, values.edgeColor());
  auto table = std::make_unique<TableColorMap>(*colorMap(settings, settings.logScaleNodeColor), values.nodeColor().range);
  table->setCaps(true, true);
  return table;
}

void ColorScale::show(QwtPlot &plot, const PlotSettings &settings, const DrawFunction &function,
                      const DrawValues::Column &values, const std::vector<Swatch> &swatches) {
  for (const int axis : {QwtPlot::yRight, QwtPlot::xTop}) {
    plot.axisWidget(axis)->setColorBarEnabled(false);
    plot.enableAxis(axis, false);
  }
  const int axis = settings.colorScalePos;
  const QwtInterval &range = values.range;
  if (!isScaleAxis(axis) || !range.isValid())
    return;
  constexpr int BarWidth = 14; // px
  constexpr int Margin = 6;    // px
  constexpr int MostTicks = 10;
  constexpr double CapShare = 0.04; // of the scale
  QwtScaleWidget *widget = plot.axisWidget(axis);
  const QwtInterval shown =
      QwtInterval(function.toDisplay(range.minValue()), function.toDisplay(range.maxValue())).normalized();
  // A single value stands in the middle of a scale that shows some room around it; values beyond fixed bounds are
  // announced by caps.
  const double room = shown.width() > 0.0 ? 0.0 : std::max(0.5, std::abs(shown.minValue()) * 0.01);
  const double lowCap = values.data.minValue() < range.minValue() ? shown.width() * CapShare : room;
  const double highCap = values.data.maxValue() > range.maxValue() ? shown.width() * CapShare : room;
  std::unique_ptr<QwtColorMap> map = edgeColors(settings, function, values);
  if (auto *classes = dynamic_cast<ClassColorMap *>(map.get())) {
    std::vector<double> breaks = classes->breaks();
    for (double &value : breaks)
      value = function.toDisplay(value);
    classes->setBreaks(std::move(breaks));
  }
  widget->setColorBarEnabled(true);
  widget->setColorBarWidth(BarWidth);
  widget->setColorMap(shown, map.release()); // the widget owns it
  widget->setMargin(Margin);
  QwtText title = swatches.empty() ? QwtText(function.title, QwtText::PlainText)
                                   : QwtText(titleText(function, swatches), QwtText::RichText);
  title.setFont(plot.axisFont(axis));
  title.setColor(plot.palette().color(QPalette::WindowText));
  plot.setAxisTitle(axis, title);
  plot.setAxisMaxMajor(axis, MostTicks);
  plot.setAxisScale(axis, shown.minValue() - lowCap, shown.maxValue() + highCap);
  plot.enableAxis(axis, true);
  plot.updateAxes();
  plot.updateLayout(); // its texts may need more room than those before, also where no window asks for it
}
