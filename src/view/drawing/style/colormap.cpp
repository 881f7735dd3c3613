#include "style/contrast.h"
#include "style/rampsamples.h"

#include <drawing/colormap.h>

#include <QColor>
#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace {

constexpr double Last = TableColorMap::Colors - 1;

template <std::size_t Count>
QRgb between(const std::array<QRgb, Count> &samples, double fraction) {
  const double step = qBound(0.0, fraction, 1.0) * (Count - 1);
  const auto first = std::min(static_cast<std::size_t>(step), Count - 2);
  const double share = step - static_cast<double>(first);
  const auto mix = [share](int a, int b) {
    return static_cast<int>(std::lround(a + (b - a) * share));
  };
  const QRgb a = samples[first];
  const QRgb b = samples[first + 1];
  return qRgb(mix(qRed(a), qRed(b)), mix(qGreen(a), qGreen(b)), mix(qBlue(a), qBlue(b)));
}

/// The part of a ramp from dark to light.
struct Part {
  double first = 0.0;
  double last = 1.0;
};

/// The part whose lines can be told from the ground.
template <std::size_t Count>
Part partFor(const std::array<QRgb, Count> &samples, ColorRamp::Ground ground) {
  constexpr int Steps = 200;
  constexpr double LightestOnLight = 0.5; // contrast with white 1.9 to 1
  constexpr double DarkestOnDark = 0.1;   // contrast with black 3 to 1, with the dark ground of a screen 2.3 to 1
  Part part;
  for (int i = 0; i <= Steps && ground == ColorRamp::Ground::Light; ++i) {
    if (Contrast::luminance(between(samples, double(i) / Steps)) <= LightestOnLight)
      part.last = double(i) / Steps;
  }
  for (int i = Steps; i >= 0 && ground == ColorRamp::Ground::Dark; --i) {
    if (Contrast::luminance(between(samples, double(i) / Steps)) >= DarkestOnDark)
      part.first = double(i) / Steps;
  }
  return part;
}

template <const auto &Samples>
QRgb onGround(ColorRamp::Ground ground, double fraction) {
  static const std::array<Part, 3> Parts{partFor(Samples, ColorRamp::Ground::Any),
                                         partFor(Samples, ColorRamp::Ground::Light),
                                         partFor(Samples, ColorRamp::Ground::Dark)};
  const Part &part = Parts[static_cast<std::size_t>(ground)];
  return between(Samples, part.first + (part.last - part.first) * qBound(0.0, fraction, 1.0));
}

/// Without the ends, which are dark, on dark ground; the middle stays the middle.
QRgb diverging(ColorRamp::Ground ground, double fraction) {
  constexpr double End = 0.16;
  return between(RampSamples::BlueGreyRed,
                 ground == ColorRamp::Ground::Dark ? End + (1.0 - 2.0 * End) * qBound(0.0, fraction, 1.0) : fraction);
}

/// A hue that would be lost in the dark, as pure blue is, becomes lighter.
QRgb hueOnGround(ColorRamp::Ground ground, const QColor &color) {
  constexpr double Least = 3.5; // to one, with black
  return ground == ColorRamp::Ground::Dark ? Contrast::legible(color, Qt::black, Least).rgb() : color.rgb();
}

double linear(const QwtInterval &interval, double value) {
  constexpr double Middle = 0.5;
  const double width = interval.maxValue() - interval.minValue();
  if (!(width > 0.0) || std::isnan(value))
    return Middle;
  return qBound(0.0, (value - interval.minValue()) / width, 1.0);
}

} // namespace

const QStringList &ColorRamp::names() {
  static const QStringList known{QStringLiteral("hue"),       QStringLiteral("viridis"), QStringLiteral("cividis"),
                                 QStringLiteral("diverging"), QStringLiteral("plasma"),  QStringLiteral("batlow")};
  return known;
}

ColorRamp::Kind ColorRamp::kindOf(const QString &name) {
  return static_cast<Kind>(std::max(0, names().indexOf(name)));
}

QString ColorRamp::title(Kind kind) {
  switch (kind) {
  case Kind::Viridis:
    return QCoreApplication::translate("ColorRamp", "viridis (even steps)");
  case Kind::Cividis:
    return QCoreApplication::translate("ColorRamp", "cividis (also for colour-blind eyes)");
  case Kind::Diverging:
    return QCoreApplication::translate("ColorRamp", "blue, grey, red about zero");
  case Kind::Plasma:
    return QCoreApplication::translate("ColorRamp", "plasma (even steps, blue to orange)");
  case Kind::Batlow:
    return QCoreApplication::translate("ColorRamp", "batlow (even steps, blue to rose)");
  case Kind::Hue:
    break;
  }
  return QCoreApplication::translate("ColorRamp", "hues of your choice");
}

QRgb ColorRamp::color(double fraction) const {
  switch (kind) {
  case Kind::Viridis:
    return onGround<RampSamples::Viridis>(ground, fraction);
  case Kind::Cividis:
    return onGround<RampSamples::Cividis>(ground, fraction);
  case Kind::Plasma:
    return onGround<RampSamples::Plasma>(ground, fraction);
  case Kind::Batlow:
    return onGround<RampSamples::Batlow>(ground, fraction);
  case Kind::Diverging:
    return diverging(ground, fraction);
  case Kind::Hue:
    break;
  }
  constexpr double Circle = 360.0;
  constexpr int Full = 255;
  double turned = std::fmod(firstHue + fraction * (double(lastHue) - firstHue), Circle);
  if (turned < 0.0)
    turned += Circle;
  const double h = qBound(0.0, turned / Circle, 1.0);
  return hueOnGround(
      ground, QColor::fromHsvF(h, qBound(0, saturation, Full) / double(Full), qBound(0, lightness, Full) / double(Full)));
}

QRgb HueColorMap::rgb(const QwtInterval &interval, double value) const {
  return m_ramp.color(fraction(interval, value));
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

TableColorMap::TableColorMap(std::unique_ptr<HueColorMap> map)
    : m_map(std::move(map)) {
  for (std::size_t i = 0; i < m_colors.size(); ++i)
    m_colors[i] = m_map->ramp().color(static_cast<double>(i) / Last);
}

void TableColorMap::setCaps(bool low, bool high) {
  m_hasLowCap = low;
  m_hasHighCap = high;
}

QRgb TableColorMap::rgb(const QwtInterval &interval, double value) const {
  constexpr int DarkerPercent = 140;
  const double tolerance = interval.width() * 1e-9;
  if (!(interval.width() > 0.0))
    return m_colors[colorIndex(interval, value)]; // one value, with nothing beyond it
  if ((m_hasLowCap && value < interval.minValue() - tolerance) || (m_hasHighCap && value > interval.maxValue() + tolerance))
    return QColor(m_colors[colorIndex(interval, value)]).darker(DarkerPercent).rgb();
  return m_colors[colorIndex(interval, value)];
}

unsigned char TableColorMap::colorIndex(const QwtInterval &interval, double value) const {
  return m_map->colorIndex(interval, value);
}

ClassColorMap::ClassColorMap(std::vector<double> breaks, const HueColorMap &map, const std::vector<QColor> &own)
    : m_breaks(std::move(breaks)) {
  const auto steps = static_cast<double>(std::max<std::size_t>(m_breaks.size(), 1));
  for (std::size_t i = 0; i <= m_breaks.size(); ++i)
    m_colors.push_back(i < own.size() && own[i].isValid() ? own[i].rgb() : map.ramp().color(static_cast<double>(i) / steps));
}

QRgb ClassColorMap::rgb(const QwtInterval &interval, double value) const {
  return m_colors[colorIndex(interval, value)];
}

unsigned char ClassColorMap::colorIndex(const QwtInterval &, double value) const {
  return static_cast<unsigned char>(std::upper_bound(m_breaks.begin(), m_breaks.end(), value) - m_breaks.begin());
}

std::vector<double> ClassColorMap::equalBreaks(const QwtInterval &range, int classes) {
  std::vector<double> breaks;
  for (int i = 1; i < classes && range.width() > 0.0; ++i)
    breaks.push_back(range.minValue() + range.width() * i / classes);
  return breaks;
}

std::vector<double> ClassColorMap::quantileBreaks(std::vector<double> values, int classes) {
  std::vector<double> breaks;
  std::sort(values.begin(), values.end());
  for (int i = 1; i < classes && !values.empty(); ++i) {
    const double value = values[values.size() * static_cast<std::size_t>(i) / static_cast<std::size_t>(classes)];
    if (value > values.front() && (breaks.empty() || value > breaks.back()))
      breaks.push_back(value);
  }
  return breaks;
}
