#include <algorithm>
#include <cmath>
#include <machines/fitresiduals.h>

namespace {

using FitResiduals::Point;
using Residual = std::optional<double> Point::*;

std::optional<double> residual(const TurboCompressor::Functions &functions, FitResiduals::Function function,
                               const MeasuredPoint &at) {
  if (function == FitResiduals::Function::Head && functions.head)
    return (*functions.head)(at.flow, at.speed) - at.head;
  if (function == FitResiduals::Function::Efficiency && functions.efficiency)
    return (*functions.efficiency)(at.flow, at.speed) - at.efficiency;
  if (function == FitResiduals::Function::Surge && functions.surge)
    return (*functions.surge)(at.flow) - at.head;
  return std::nullopt;
}

std::optional<FitResiduals::Error> errorOf(std::vector<Point>::const_iterator first, std::vector<Point>::const_iterator last,
                                           Residual which) {
  FitResiduals::Error error;
  double squares = 0.0;
  for (auto point = first; point != last; ++point) {
    const std::optional<double> &one = (*point).*which;
    if (!one)
      return std::nullopt;
    squares += *one * *one;
    error.largest = std::max(error.largest, std::abs(*one));
  }
  error.meanSquare = std::sqrt(squares / static_cast<double>(last - first));
  return error;
}

} // namespace

std::vector<Point> FitResiduals::points(const TurboCompressor &machine, Function function) {
  std::vector<Point> found;
  const auto take = [&](const std::vector<MeasuredPoint> &measured) {
    for (const MeasuredPoint &at : measured) {
      if (function == Function::Efficiency && !(at.efficiency > 0.0))
        continue;
      found.push_back({at.speed, at.flow, function == Function::Efficiency ? at.efficiency : at.head,
                       residual(machine.fitted, function, at), residual(machine.published, function, at)});
    }
  };
  if (function != Function::Surge)
    take(machine.points);
  if (function != Function::Efficiency)
    take(machine.surgePoints); // they are points of the map as well
  std::stable_sort(found.begin(), found.end(), [](const Point &a, const Point &b) { return a.speed < b.speed; });
  return found;
}

std::vector<FitResiduals::Line> FitResiduals::lines(const std::vector<Point> &points) {
  std::vector<Line> found;
  const auto add = [&found](std::optional<double> speed, auto first, auto last) {
    found.push_back({speed, static_cast<std::size_t>(last - first), errorOf(first, last, &Point::fitted),
                     errorOf(first, last, &Point::published)});
  };
  for (auto first = points.begin(); first != points.end();) {
    const auto last =
        std::find_if(first, points.end(), [speed = first->speed](const Point &point) { return point.speed != speed; });
    add(first->speed, first, last);
    first = last;
  }
  if (!points.empty())
    add(std::nullopt, points.begin(), points.end());
  return found;
}
