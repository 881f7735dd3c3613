#include <view/colormap.h>

#include <QColor>

#include <cmath>

namespace {

constexpr double Last = TableColorMap::Colors - 1;

double linear(const QwtInterval &interval, double value) {
  constexpr double Middle = 0.5;
  const double width = interval.maxValue() - interval.minValue();
  if (!(width > 0.0) || std::isnan(value))
    return Middle;
  return qBound(0.0, (value - interval.minValue()) / width, 1.0);
}

} // namespace

QRgb ColorRamp::color(double hue) const {
  constexpr double Circle = 360.0;
  constexpr int Full = 255;
  double turned = std::fmod(hue, Circle);
  if (turned < 0.0)
    turned += Circle;
  const double h = qBound(0.0, turned / Circle, 1.0);
  return QColor::fromHsvF(h, qBound(0, saturation, Full) / double(Full), qBound(0, lightness, Full) / double(Full)).rgb();
}

QRgb HueColorMap::rgb(const QwtInterval &interval, double value) const {
  return m_ramp.color(m_ramp.firstHue + fraction(interval, value) * (double(m_ramp.lastHue) - m_ramp.firstHue));
}

unsigned char HueColorMap::colorIndex(const QwtInterval &interval, double value) const {
  return static_cast<unsigned char>(std::lround(fraction(interval, value) * Last));
}

double HueColorMap::fraction(const QwtInterval &interval, double value) const {
  return linear(interval, value);
}

double LogarithmicColorMap::fraction(const QwtInterval &interval, double value) const {
  constexpr double Scale = 100.0;
  double c = Scale / std::exp2(std::abs(m_logFactor));
  if (c == 0.0)
    c = 1.0 / std::log(10.0);
  const auto bend = [c](double x) {
    return std::copysign(std::log10(std::abs(x / c) + 1.0), x);
  };
  const double lo = interval.minValue();
  const double hi = interval.maxValue();
  const double whole = bend(hi - lo);
  const double bent = m_logFactor >= 0.0 ? bend(value - lo) / whole : 1.0 - bend(hi - value) / whole;
  if (!(hi > lo) || !std::isfinite(bent))
    return linear(interval, value);
  return qBound(0.0, bent, 1.0);
}

TableColorMap::TableColorMap(const QwtColorMap &map, const QwtInterval &interval) {
  for (std::size_t i = 0; i < m_colors.size(); ++i)
    m_colors[i] = map.rgb(interval, interval.minValue() + interval.width() * (static_cast<double>(i) / Last));
}

QRgb TableColorMap::rgb(const QwtInterval &interval, double value) const {
  return m_colors[colorIndex(interval, value)];
}

unsigned char TableColorMap::colorIndex(const QwtInterval &interval, double value) const {
  return static_cast<unsigned char>(std::lround(linear(interval, value) * Last));
}
