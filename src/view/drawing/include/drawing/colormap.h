#pragma once

#include <QColor>
#include <QRgb>
#include <QStringList>
#include <qwt_color_map.h>

#include <array>
#include <memory>
#include <vector>

/// What shapes a colour scale: hues of the user's choice, or one of the ramps that keep equal steps equally visible and
/// their order to colour-blind eyes.
struct ColorRamp {
  enum class Kind { Hue, Viridis, Cividis, Diverging, Plasma, Batlow };
  enum class Ground { Any, Light, Dark };
  static const QStringList &names(); ///< in the order of Kind, as PlotSettings::colorRamp has them
  static Kind kindOf(const QString &name);
  static QString title(Kind kind); ///< for people

  int firstHue = 0;     ///< degrees, at the low end
  int lastHue = 240;    ///< degrees, at the high end
  int saturation = 255; ///< 0 to 255
  int lightness = 230;  ///< 0 to 255, the "value" of the HSV colour

  Kind kind = Kind::Hue;
  /// What is drawn on. Of a ramp from dark to light the end that would be lost on it is left out.
  Ground ground = Ground::Any;

  /// \param fraction of the way from the low (0) to the high end (1)
  QRgb color(double fraction) const;
};

/// The colours of a ramp, linear in the value.
class HueColorMap : public QwtColorMap {
public:
  explicit HueColorMap(const ColorRamp &ramp)
      : m_ramp(ramp) {}

  const ColorRamp &ramp() const { return m_ramp; }

  /// Values outside the interval have the colours of its ends; without an interval the middle of the ramp is taken.
  QRgb rgb(const QwtInterval &interval, double value) const override;
  unsigned char colorIndex(const QwtInterval &interval, double value) const override;

  /// How far along the ramp the value lies, 0 to 1.
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

/// The 256 colours with which a map is drawn, at equal steps of its ramp: however a map bends the values, those that it
/// keeps apart have colours of their own.
class TableColorMap : public QwtColorMap {
public:
  static constexpr int Colors = 256;

  explicit TableColorMap(std::unique_ptr<HueColorMap> map);

  /// Marks by a darker shade what lies outside of the interval, as on the end caps of a scale.
  void setCaps(bool low, bool high);

  QRgb rgb(const QwtInterval &interval, double value) const override;
  unsigned char colorIndex(const QwtInterval &interval, double value) const override;

private:
  std::unique_ptr<HueColorMap> m_map;
  std::array<QRgb, Colors> m_colors{};
  bool m_hasLowCap = false;
  bool m_hasHighCap = false;
};

/// Few colours, one for each class between breaks.
class ClassColorMap : public QwtColorMap {
public:
  /// \param breaks ascending, between the classes
  /// \param map whose colours at equal steps are taken
  /// \param own in place of these from the lowest class on, where they are valid
  ClassColorMap(std::vector<double> breaks, const HueColorMap &map, const std::vector<QColor> &own = {});

  QRgb rgb(const QwtInterval &interval, double value) const override;
  unsigned char colorIndex(const QwtInterval &interval, double value) const override;

  static std::vector<double> equalBreaks(const QwtInterval &range, int classes);
  /// Breaks that put about as many of the values into each class; equal ones are taken once.
  static std::vector<double> quantileBreaks(std::vector<double> values, int classes);

private:
  std::vector<double> m_breaks;
  std::vector<QRgb> m_colors; ///< one more than breaks
};
