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

QString ScaleTicks::text(double tick, const std::vector<double> &ticks) {
  if (ticks.size() < 2)
    return DisplayFormat::number(tick);
  double step = std::abs(ticks.back() - ticks.front());
  for (std::size_t i = 1; i < ticks.size(); ++i)
    step = std::min(step, std::abs(ticks[i] - ticks[i - 1])); // breaks of classes are not spread evenly
  const double largest = std::max(std::abs(ticks.front()), std::abs(ticks.back()));
  constexpr double Rounding = 1e-6; // of a step: what is less is zero
  constexpr int MaximumDigits = 15; // of a number
  const double exponent = std::floor(std::log10(step) + Rounding);
  const double shown = std::abs(tick) < step * Rounding ? 0.0 : tick;
  const double digits = std::floor(std::log10(std::max(largest, step))) - exponent + 1.0;
  if (exponent < -9.0 || largest >= 1e15) // such numbers are written with powers of ten
    return DisplayFormat::number(shown, static_cast<int>(qBound(1.0, digits, double(MaximumDigits))));
  return DisplayFormat::fixed(shown, static_cast<int>(std::max(0.0, -exponent)));
}
