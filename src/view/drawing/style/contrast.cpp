#include "style/contrast.h"

#include <algorithm>
#include <cmath>

double Contrast::luminance(QRgb color) {
  const auto light = [](int channel) {
    const double share = channel / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * light(qRed(color)) + 0.7152 * light(qGreen(color)) + 0.0722 * light(qBlue(color));
}

double Contrast::ratio(const QColor &a, const QColor &b) {
  constexpr double Flare = 0.05; // of the screen
  const auto [dark, light] = std::minmax({luminance(a.rgb()), luminance(b.rgb())});
  return (light + Flare) / (dark + Flare);
}

QColor Contrast::legible(const QColor &color, const QColor &ground, double least) {
  constexpr double Step = 0.02;
  const bool wantsLight = ratio(Qt::white, ground) > ratio(Qt::black, ground);
  QColor seen = color;
  double lightness = color.lightnessF();
  while (ratio(seen, ground) < least && lightness > 0.0 && lightness < 1.0) {
    lightness = std::clamp(lightness + (wantsLight ? Step : -Step), 0.0, 1.0);
    seen = QColor::fromHslF(std::max(color.hslHueF(), 0.0), color.hslSaturationF(), lightness, color.alphaF());
  }
  if (ratio(seen, ground) >= least)
    return seen;
  seen = wantsLight ? Qt::white : Qt::black; // also of black and white themselves, which have no way to go
  seen.setAlpha(color.alpha());
  return seen;
}

QColor Contrast::over(const QColor &color, const QColor &ground) {
  const double share = color.alphaF();
  const auto mix = [share](double above, double below) {
    return above * share + below * (1.0 - share);
  };
  return QColor::fromRgbF(mix(color.redF(), ground.redF()), mix(color.greenF(), ground.greenF()),
                          mix(color.blueF(), ground.blueF()));
}
