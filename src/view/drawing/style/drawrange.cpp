#include <drawing/drawrange.h>
#include <drawing/plotsettings.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr double TinyShare = 1e-9; // of the larger bound

double tinyWidth(double minimum, double maximum) {
  return std::max({std::abs(minimum), std::abs(maximum), 1e-6}) * TinyShare;
}

} // namespace

DrawRange::State DrawRange::check(double minimum, double maximum) {
  if (minimum == PlotSettings::OpenMinimum || maximum == PlotSettings::OpenMaximum)
    return State::Sound;
  if (!(std::abs(maximum - minimum) > tinyWidth(minimum, maximum)))
    return State::Tiny; // also what is no number
  return minimum > maximum ? State::Inverted : State::Sound;
}

void DrawRange::correct(double &minimum, double &maximum) {
  if (minimum > maximum)
    std::swap(minimum, maximum);
  if (check(minimum, maximum) == State::Tiny) {
    const double middle = minimum * 0.5 + maximum * 0.5;
    const double half = tinyWidth(minimum, maximum) * 10.0;
    minimum = middle - half;
    maximum = middle + half;
  }
}
