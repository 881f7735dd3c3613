#include <drawing/classlooks.h>
#include <drawing/elementlooks.h>
#include <drawing/legendcontents.h>
#include <drawing/scaleticks.h>

#include <QCoreApplication>

#include <cmath>
#include <limits>

namespace {

constexpr std::size_t ColorsOfScale = 128;
constexpr std::size_t MostSamples = 3;

QString translated(const char *text) {
  return QCoreApplication::translate("LegendContents", text);
}

LegendContents::Scale scaleOf(const DrawValues::Column &values, const QwtColorMap &map, QString title,
                              const std::vector<double> &breaks) {
  const Units::Linear &toDisplay = values.function.toDisplay;
  const QwtInterval &range = values.range;
  LegendContents::Scale scale;
  scale.title = std::move(title);
  scale.range = QwtInterval(toDisplay(range.minValue()), toDisplay(range.maxValue())).normalized();
  for (std::size_t i = 0; i < ColorsOfScale; ++i) {
    const double share = (static_cast<double>(i) + 0.5) / ColorsOfScale;
    const double shown = scale.range.minValue() + scale.range.width() * share;
    scale.colors.push_back(map.rgb(range, toDisplay.inverse(shown)));
  }
  if (range.width() > 0.0 && breaks.empty()) { // the lowest class takes what lies below it
    if (values.data.minValue() < range.minValue())
      scale.below = map.rgb(range, range.minValue() - range.width());
    if (values.data.maxValue() > range.maxValue())
      scale.above = map.rgb(range, range.maxValue() + range.width());
  }
  for (const double value : breaks)
    scale.breaks.push_back(toDisplay(value));
  return scale;
}

/// A few round values of a function and what sizeOf(stored value) makes of them.
template <typename SizeOf>
LegendContents::Samples samplesOf(const DrawValues::Column &values, const char *title, const SizeOf &sizeOf) {
  LegendContents::Samples found;
  if (!values.isAny())
    return found;
  const Units::Linear &toDisplay = values.function.toDisplay;
  const QwtInterval shown = QwtInterval(toDisplay(values.range.minValue()), toDisplay(values.range.maxValue())).normalized();
  std::vector<double> ticks;
  for (int count = int(MostSamples); ticks.size() < MostSamples && count < 3 * int(MostSamples); ++count)
    ticks = ScaleTicks::within(shown, count);
  if (ticks.size() > MostSamples)
    ticks = {ticks.front(), (ticks.front() + ticks.back()) * 0.5, ticks.back()};
  found.title = translated(title).arg(values.function.title);
  for (const double tick : ticks)
    found.samples.push_back({sizeOf(toDisplay.inverse(tick)), ScaleTicks::text(tick, ticks)});
  return found;
}

/// Classes that a person gave names to.
std::vector<ColorScale::Swatch> namedClasses(const PlotSettings &settings, const DrawValues::Column &values,
                                             const std::vector<double> &breaks) {
  std::vector<ColorScale::Swatch> named;
  const QStringList labels = ClassLooks::labels(settings.classLabels);
  const auto map = ColorScale::edgeColors(settings, values);
  for (std::size_t i = 0; i <= breaks.size() && !breaks.empty(); ++i) {
    const QString label = labels.value(static_cast<int>(i));
    const double within = i == 0 ? std::nextafter(breaks.front(), -std::numeric_limits<double>::max()) : breaks[i - 1];
    if (!label.isEmpty())
      named.push_back({map->rgb(values.range, within), label});
  }
  return named;
}

} // namespace

void LegendContents::addFunctions(const PlotSettings &settings, const DrawValues &values, ColorScale::Subject subject,
                                  double nodeSize) {
  if (subject == ColorScale::Subject::SearchResults) {
    lines.push_back({ElementLooks::foundColor(), QCoreApplication::translate("LegendContents", "search results")});
    return;
  }
  const DrawValues::Column &edges = values.of(Aspect::EdgeColor);
  const DrawValues::Column &nodes = values.of(Aspect::NodeColor);
  const bool showsNodes = subject == ColorScale::Subject::EdgesAndNodes && nodes.isAny();
  const bool isOne = showsNodes && ColorScale::isShared(settings, values);
  if (edges.isAny())
    scales.push_back(scaleOf(edges, *ColorScale::edgeColors(settings, edges),
                             translated(isOne ? QT_TRANSLATE_NOOP("LegendContents", "%1 – edges and nodes")
                                              : QT_TRANSLATE_NOOP("LegendContents", "%1 – edges"))
                                 .arg(edges.function.title),
                             ColorScale::breaksOf(settings, edges)));
  if (edges.isAny()) {
    const std::vector<ColorScale::Swatch> named = namedClasses(settings, edges, ColorScale::breaksOf(settings, edges));
    lines.insert(lines.end(), named.begin(), named.end());
  }
  if (showsNodes && !isOne)
    scales.push_back(scaleOf(nodes, *ColorScale::nodeColors(settings, values),
                             translated(QT_TRANSLATE_NOOP("LegendContents", "%1 – nodes")).arg(nodes.function.title), {}));
  const DrawValues::Column &byWidth = values.of(Aspect::EdgeWidth);
  const auto widthMap = ColorScale::colorMap(settings, Aspect::EdgeWidth);
  widths = samplesOf(byWidth, QT_TRANSLATE_NOOP("LegendContents", "%1 – line width"), [&](double value) {
    return ElementLooks::edgeWidth(settings, widthMap->fraction(byWidth.range, value));
  });
  const DrawValues::Column &bySize = values.of(Aspect::NodeSize);
  const auto sizeMap = ColorScale::colorMap(settings, Aspect::NodeSize);
  sizes = samplesOf(bySize, QT_TRANSLATE_NOOP("LegendContents", "%1 – node size"), [&](double value) {
    return ElementLooks::sizeOfNode(nodeSize, sizeMap->fraction(bySize.range, value));
  });
}
