#include <drawing/drawvalues.h>
#include <drawing/functionfigures.h>

#include <algorithm>

FunctionFigures FunctionFigures::of(const QString &function, Aspect aspect, const NetData &net, const NetGeometry &geometry,
                                    const PlotSettings &settings) {
  const DrawValues::Column column = DrawValues::readOne(net, geometry, settings, aspect, function);
  FunctionFigures figures;
  figures.function = column.function;
  figures.bins.resize(Bins);
  double least = -NetData::NoValue;
  double most = NetData::NoValue;
  for (const double value : column.ofElements) {
    if (value == NetData::NoValue)
      continue;
    ++figures.count;
    least = std::min(least, value);
    most = std::max(most, value);
  }
  if (figures.count == 0)
    return figures;
  figures.range = QwtInterval(least, most);
  for (const double value : column.ofElements) {
    if (value == NetData::NoValue)
      continue;
    const double share = most > least ? (value - least) / (most - least) : 0.5;
    ++figures.bins[std::min<std::size_t>(static_cast<std::size_t>(share * Bins), Bins - 1)];
  }
  return figures;
}
