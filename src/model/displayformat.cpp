#include <model/displayformat.h>

#include <algorithm>
#include <cmath>

namespace DisplayFormat {

namespace {

constexpr double SmallestPlain = 1e-5;
constexpr double LargestPlain = 1e15;

/// Of the number as it reads once it is rounded: 9.9999996 has the exponent of 10.
int decimalExponent(double magnitude, int digits) {
  const QString scientific = QString::number(magnitude, 'e', std::max(digits - 1, 0));
  return scientific.mid(scientific.indexOf(QLatin1Char('e')) + 1).toInt();
}

QString withoutTrailingZeros(QString text) {
  if (!text.contains(QLatin1Char('.')))
    return text;
  while (text.endsWith(QLatin1Char('0')))
    text.chop(1);
  if (text.endsWith(QLatin1Char('.')))
    text.chop(1);
  return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

} // namespace

QString number(double value, int digits) {
  const double magnitude = std::abs(value);
  if (!std::isfinite(value) || (magnitude > 0 && (magnitude < SmallestPlain || magnitude >= LargestPlain)))
    return QString::number(value, 'g', digits);
  return withoutTrailingZeros(QString::number(value, 'f', decimals(magnitude, digits)));
}

int decimals(double largestMagnitude, int digits) {
  const double magnitude = std::abs(largestMagnitude);
  if (!(magnitude > 0) || !std::isfinite(magnitude))
    return 0;
  return std::max(0, digits - 1 - decimalExponent(magnitude, digits));
}

QString fixed(double value, int decimals) {
  QString text = QString::number(value, 'f', decimals);
  const bool showsNoDigit =
      std::none_of(text.begin(), text.end(), [](QChar c) { return c >= QLatin1Char('1') && c <= QLatin1Char('9'); });
  if (!showsNoDigit)
    return text;
  return value == 0.0 ? QString::number(0.0, 'f', decimals) : number(value, 2);
}

} // namespace DisplayFormat
