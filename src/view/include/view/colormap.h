#pragma once

#include <QRgb>
#include <qwt_color_map.h>

#include <array>

/// What shapes a colour scale.
struct ColorRamp {
  int firstHue = 0;     ///< degrees, at the low end
  int lastHue = 240;    ///< degrees, at the high end
  int saturation = 255; ///< 0 to 255
  int lightness = 230;  ///< 0 to 255, the "value" of the HSV colour

  QRgb color(double hue) const; ///< hue in degrees, taken modulo 360
};

/// Hues between the first and the last one, linear in the value.
class HueColorMap : public QwtColorMap {
public:
  explicit HueColorMap(const ColorRamp &ramp)
      : m_ramp(ramp) {}

  /// Values outside the interval have the colours of its ends; without an interval the middle of the ramp is taken.
  QRgb rgb(const QwtInterval &interval, double value) const override;
  unsigned char colorIndex(const QwtInterval &interval, double value) const override;

  /// The place of the value on the ramp, 0 to 1.
  virtual double fraction(const QwtInterval &interval, double value) const;

private:
  ColorRamp m_ramp;
};

/// Bends the scale: the larger the factor's magnitude the more; a negative one bends at the upper end.
class LogarithmicColorMap : public HueColorMap {
public:
  LogarithmicColorMap(const ColorRamp &ramp, double logFactor)
      : HueColorMap(ramp)
      , m_logFactor(logFactor) {}

  double fraction(const QwtInterval &interval, double value) const override;

private:
  double m_logFactor;
};

/// The 256 colours with which a map is drawn, whatever the unit of the axis beside it.
class TableColorMap : public QwtColorMap {
public:
  static constexpr int Colors = 256;

  TableColorMap(const QwtColorMap &map, const QwtInterval &interval);

  QRgb rgb(const QwtInterval &interval, double value) const override;
  unsigned char colorIndex(const QwtInterval &interval, double value) const override;

private:
  std::array<QRgb, Colors> m_colors{};
};
