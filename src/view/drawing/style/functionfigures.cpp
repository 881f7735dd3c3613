#include <drawing/drawvalues.h>
#include <drawing/functionfigures.h>

#include <algorithm>
#include <utility>

FunctionFigures FunctionFigures::of(const QString &function, Aspect aspect, const NetData &net, const NetGeometry &geometry,
                                    PlotSettings settings) {
  settings.quantileBounds = true; // a few outliers would put all others into one bin
  const DrawValues::Column column = DrawValues::readOne(net, geometry, std::move(settings), aspect, function);
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
  double first = std::max(least, column.open.minValue());
  double last = std::min(most, column.open.maxValue());
  if (!(last > first)) {
    first = least;
    last = most;
  }
  for (const double value : column.ofElements) {
    if (value == NetData::NoValue)
      continue;
    const double share = last > first ? qBound(0.0, (value - first) / (last - first), 1.0) : 0.5;
    ++figures.bins[std::min<std::size_t>(static_cast<std::size_t>(share * Bins), Bins - 1)];
  }
  return figures;
}
