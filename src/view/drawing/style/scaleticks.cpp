#include <drawing/scaleticks.h>
#include <model/displayformat.h>

#include <qwt_scale_engine.h>

#include <algorithm>
#include <cmath>

std::vector<double> ScaleTicks::within(const QwtInterval &interval, int atMost) {
  if (!(interval.width() > 0.0))
    return {interval.minValue()};
  const QwtScaleDiv division =
      QwtLinearScaleEngine().divideScale(interval.minValue(), interval.maxValue(), std::max(atMost, 1), 0);
  std::vector<double> ticks;
  for (const double tick : division.ticks(QwtScaleDiv::MajorTick)) {
    if (interval.contains(tick))
      ticks.push_back(tick);
  }
  return ticks;
}

namespace {

/// Significant digits that tell the largest number from its neighbours and show what they are, not only which.
int digitsOf(const std::vector<double> &ticks, double step, double exponent) {
  constexpr double Finer = 2.0;     // digits than the step
  constexpr double MostDigits = 15; // of a number
  const double largest = std::max(std::abs(ticks.front()), std::abs(ticks.back()));
  const double digits = std::floor(std::log10(std::max(largest, step))) - exponent + 1.0;
  return static_cast<int>(qBound(1.0, digits + Finer, MostDigits));
}

} // namespace

QString ScaleTicks::text(double tick, const std::vector<double> &ticks) {
  if (ticks.size() < 2)
    return DisplayFormat::number(tick);
  double step = std::abs(ticks.back() - ticks.front());
  for (std::size_t i = 1; i < ticks.size(); ++i)
    step = std::min(step, std::abs(ticks[i] - ticks[i - 1])); // breaks of classes are not spread evenly
  constexpr double Rounding = 1e-6;                           // of a step: what is less is zero
  constexpr double Finest = -9.0; // smaller steps are written with powers of ten, as are numbers beyond the largest
  constexpr double Largest = 1e15;
  const double exponent = std::floor(std::log10(step) + Rounding);
  const int digits = digitsOf(ticks, step, exponent);
  const auto shown = [step](double value) {
    return std::abs(value) < step * Rounding ? 0.0 : value;
  };
  if (exponent < Finest || std::max(std::abs(ticks.front()), std::abs(ticks.back())) >= Largest)
    return DisplayFormat::number(shown(tick), digits);
  int decimals = 0;
  for (const double other : ticks)
    decimals = std::max(decimals, DisplayFormat::decimalsNeeded(shown(other), digits));
  const int decimalsOfStep = static_cast<int>(std::max(0.0, -exponent));
  if (decimals > decimalsOfStep + 1) // of one of them that is much smaller than the others
    return DisplayFormat::number(shown(tick), digits);
  return DisplayFormat::fixed(shown(tick), decimals);
}
