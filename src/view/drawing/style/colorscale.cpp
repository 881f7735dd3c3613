
#include "style/comparedfunction.h"
#include "style/naturalbreaks.h"

#include <drawing/classlooks.h>
#include <drawing/colorscale.h>

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

std::vector<double> ColorScale::breaksOf(const PlotSettings &settings, const DrawValues::Column &values) {
  constexpr int MostClasses = 50;
  const int classes = std::min(settings.colorClasses, MostClasses);
  std::vector<double> breaks;
  if (settings.classMethod == PlotSettings::ownClasses() && classes > 1) {
    for (const QString &text : settings.classBreaks.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
      bool isNumber = false;
      const double shown = text.trimmed().toDouble(&isNumber);
      if (isNumber && std::isfinite(shown) && breaks.size() < MostClasses)
        breaks.push_back(values.function.toTable.inverse(shown));
    }
    std::sort(breaks.begin(), breaks.end());
    return breaks;
  }
  if (!(values.range.width() > 0.0))
    return breaks; // one value is one class
  const bool isNatural = settings.classMethod == PlotSettings::naturalClasses();
  if ((isNatural || settings.classMethod == PlotSettings::quantileClasses()) && classes > 1) {
    std::vector<double> valid;
    valid.reserve(values.ofElements.size());
    std::copy_if(values.ofElements.begin(), values.ofElements.end(), std::back_inserter(valid),
                 [](double value) { return value != NetData::NoValue; });
    return isNatural ? naturalBreaks(std::move(valid), classes) : ClassColorMap::quantileBreaks(std::move(valid), classes);
  }
  return ClassColorMap::equalBreaks(values.range, classes);
}

bool ColorScale::isDark(const QColor &ground) {
  constexpr int Middle = 128;
  return ground.lightness() < Middle;
}

std::unique_ptr<HueColorMap> ColorScale::colorMap(const PlotSettings &settings, Aspect aspect) {
  const bool isCompared = isColor(aspect) && comparisonOf(settings, aspect) != Comparison::Kind::None;
  const ColorRamp ramp{settings.firstColor,
                       settings.lastColor,
                       settings.saturation,
                       settings.lightness,
                       isCompared ? ColorRamp::Kind::Diverging : ColorRamp::kindOf(settings.colorRamp),
                       isDark(settings.bgrColor) ? ColorRamp::Ground::Dark : ColorRamp::Ground::Light};
  if (settings.functions[aspect].isLogarithmic && !isCompared)
    return std::make_unique<LogarithmicColorMap>(ramp, settings.logFactor);
  return std::make_unique<HueColorMap>(ramp);
}

std::unique_ptr<QwtColorMap> ColorScale::edgeColors(const PlotSettings &settings, const DrawValues::Column &values) {
  std::unique_ptr<HueColorMap> map = colorMap(settings, Aspect::EdgeColor);
  std::vector<double> breaks = breaksOf(settings, values);
  if (!breaks.empty())
    return std::make_unique<ClassColorMap>(std::move(breaks), *map, ClassLooks::colors(settings.classColors));
  auto table = std::make_unique<TableColorMap>(std::move(map));
  table->setCaps(true, true);
  return table;
}

bool ColorScale::isShared(const PlotSettings &settings, const DrawValues &values) {
  const DrawValues::Column &edges = values.of(Aspect::EdgeColor);
  const DrawValues::Column &nodes = values.of(Aspect::NodeColor);
  if (!edges.isAny() || !nodes.isAny() || !edges.function.shows(nodes.function))
    return false;
  return settings.colorClasses > 1 ||
         (edges.range == nodes.range &&
          settings.functions[Aspect::EdgeColor].isLogarithmic == settings.functions[Aspect::NodeColor].isLogarithmic);
}

std::unique_ptr<QwtColorMap> ColorScale::nodeColors(const PlotSettings &settings, const DrawValues &values) {
  if (isShared(settings, values))
    return edgeColors(settings, values.of(Aspect::EdgeColor));
  auto table = std::make_unique<TableColorMap>(colorMap(settings, Aspect::NodeColor));
  table->setCaps(true, true);
  return table;
}

QString ColorScale::legendText(const PlotSettings &settings, const DrawValues *values, Subject subject) {
  const auto color = [](const QString &shown) {
    return QCoreApplication::translate("ColorScale", "Color: %1").arg(shown);
  };
  if (subject == Subject::SearchResults)
    return color(QCoreApplication::translate("ColorScale", "search results"));
  QStringList lines;
  for (const Aspect aspect : {Aspect::EdgeColor, Aspect::EdgeWidth}) {
    const PlotSettings::Function &function = settings.functions[aspect];
    if (values != nullptr && !values->of(aspect).isAny())
      continue;
    const QString shown =
        function.isAbsolute && (!isColor(aspect) || comparisonOf(settings, aspect) == Comparison::Kind::None)
            ? QCoreApplication::translate("ColorScale", "abs. %1").arg(function.name)
            : function.name;
    lines.append(isColor(aspect) ? color(shown) : QCoreApplication::translate("ColorScale", "Width: %1").arg(shown));
  }
  return lines.join(QLatin1Char('\n'));
}
