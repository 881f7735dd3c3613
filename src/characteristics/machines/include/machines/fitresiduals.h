#pragma once

#include <machines/machinedata.h>
#include <optional>
#include <vector>

/// How our fits and the published coefficients of a machine meet its measured points, line by line. A residual is what the
/// function says less what was measured.
namespace FitResiduals {

enum class Function {
  Head,       ///< kJ/kg
  Efficiency, ///< 0 to 1
  Surge       ///< head of the surge line over the flow, kJ/kg
};

struct Point {
  double speed = 0.0; ///< 1/min
  double flow = 0.0;  ///< m3/s
  double measured = 0.0;
  std::optional<double> fitted; ///< residuals
  std::optional<double> published;
};

struct Error {
  double meanSquare = 0.0; ///< root of it
  double largest = 0.0;
};

/// The points of one speed, or all of them.
struct Line {
  std::optional<double> speed; ///< none for all
  std::size_t points = 0;
  std::optional<Error> fitted;
  std::optional<Error> published;
};

std::vector<Point> points(const TurboCompressor &machine, Function function);
/// By speed, then one for all; nothing without points.
std::vector<Line> lines(const std::vector<Point> &points);

} // namespace FitResiduals
