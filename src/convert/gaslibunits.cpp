#include "gaslibunits.h"

#include <io/gaslibxml.h>

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

/// Without leading zeros and exponent.
int significantDigits(std::string_view text) {
  int digits = 0;
  for (const char c : text.substr(0, text.find_first_of("eE"))) {
    if (c >= '0' && c <= '9' && (c != '0' || digits > 0))
      ++digits;
  }
  return digits;
}

} // namespace

GasLibUnits::Number GasLibUnits::Number::negated() const {
  Number other = *this;
  other.value = value == 0.0 ? 0.0 : -value;
  const std::string_view digits = text.utf8().substr(text.utf8().front() == '-' ? 1 : 0);
  other.text = PropertyText((value > 0.0 ? std::string("-") : std::string()).append(digits));
  return other;
}

std::optional<GasLibUnits::Number> GasLibUnits::read(const QString &text) {
  static const QRegularExpression written(QStringLiteral("^-?(0|[1-9][0-9]*)(\\.[0-9]+)?([eE][+-]?[0-9]+)?$"));
  const QString trimmed = text.trimmed();
  bool isNumber = false;
  const double value = trimmed.toDouble(&isNumber);
  if (!isNumber || !std::isfinite(value))
    return std::nullopt;
  return Number{written.match(trimmed).hasMatch() ? PropertyText(trimmed) : PropertyText::shortest(value), value, false};
}

std::optional<GasLibUnits::Number> GasLibUnits::convert(const Number &number, const QString &given, const QString &wanted,
                                                        const Units::Gas &gas) {
  constexpr double Atmosphere = 1.01325; // bar
  const bool isGauge = given == QLatin1String("barg");
  const QString known = GasLibXml::unitOf(isGauge ? QStringLiteral("bar") : given);
  if (given.isEmpty() || wanted.isEmpty() || known == wanted) {
    if (!isGauge)
      return number;
  } else if (known.isEmpty()) {
    return std::nullopt;
  }
  const double value = number.value + (isGauge ? Atmosphere : 0.0);
  const std::optional<double> converted =
      wanted.isEmpty() || known == wanted ? value : Units::convert(value, known, wanted, gas);
  if (!converted || !std::isfinite(*converted))
    return std::nullopt;
  // What a conversion adds beyond the digits that were given is noise: 0.7342 km are 734.2 m, not 734.1999999999999.
  constexpr int FewestDigits = 14;
  constexpr int MostDigits = 17; // of a double
  const int digits = std::clamp(significantDigits(number.text.utf8()), FewestDigits, MostDigits);
  return Number{PropertyText::ofNumber(*converted, digits), *converted, true};
}
