#include <view/colorscale.h>

#include <qwt_scale_widget.h>
#include <qwt_text.h>

#include <algorithm>
#include <cmath>

namespace {

bool isScaleAxis(int axis) {
  return axis == QwtPlot::yRight || axis == QwtPlot::xTop;
}

} // namespace

std::unique_ptr<HueColorMap> ColorScale::colorMap(const PlotSettings &settings, bool logarithmic) {
  const ColorRamp ramp{settings.firstColor, settings.lastColor, settings.saturation, settings.lightness};
  if (logarithmic)
    return std::make_unique<LogarithmicColorMap>(ramp, settings.logFactor);
  return std::make_unique<HueColorMap>(ramp);
}

void ColorScale::show(QwtPlot &plot, const PlotSettings &settings, const DrawFunction &function, const QwtInterval &range) {
  for (const int axis : {QwtPlot::yRight, QwtPlot::xTop}) {
    plot.axisWidget(axis)->setColorBarEnabled(false);
    plot.enableAxis(axis, false);
  }
  const int axis = settings.colorScalePos;
  if (!isScaleAxis(axis) || !range.isValid())
    return;
  constexpr int BarWidth = 14; // px
  constexpr int Margin = 6;    // px
  constexpr int MostTicks = 10;
  QwtScaleWidget *widget = plot.axisWidget(axis);
  const QwtInterval shown(function.toDisplay(range.minValue()), function.toDisplay(range.maxValue()));
  const std::unique_ptr<HueColorMap> map = colorMap(settings, settings.logScaleColor);
  // A single value stands in the middle of a scale that shows some room around it.
  const double room = shown.width() > 0.0 ? 0.0 : std::max(0.5, std::abs(shown.minValue()) * 0.01);
  widget->setColorBarEnabled(true);
  widget->setColorBarWidth(BarWidth);
  widget->setColorMap(shown, new TableColorMap(*map, range)); // the widget owns it
  widget->setMargin(Margin);
  QwtText title(function.title);
  title.setFont(plot.axisFont(axis));
  title.setColor(plot.palette().color(QPalette::WindowText));
  plot.setAxisTitle(axis, title);
  plot.setAxisMaxMajor(axis, MostTicks);
  plot.setAxisScale(axis, shown.minValue() - room, shown.maxValue() + room);
  plot.enableAxis(axis, true);
  plot.updateAxes();
  plot.updateLayout(); // its texts may need more room than those before, also where no window asks for it
}
