#include "gaslibunits.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace {

/// The units of the format as UDUNITS-2 writes them; empty for one that is not known.
QString unitOf(const QString &name) {
  static const QHash<QString, QString> units{{QStringLiteral("1000m_cube_per_hour"), QStringLiteral("1000 m3/h")},
                                             {QStringLiteral("m_cube_per_hour"), QStringLiteral("m3/h")},
                                             {QStringLiteral("m_cube_per_s"), QStringLiteral("m3/s")},
                                             {QStringLiteral("m_cube_per_second"), QStringLiteral("m3/s")},
                                             {QStringLiteral("m_cube_per_day"), QStringLiteral("m3/day")},
                                             {QStringLiteral("kg_per_s"), QStringLiteral("kg/s")},
                                             {QStringLiteral("kg_per_hour"), QStringLiteral("kg/h")},
                                             {QStringLiteral("W"), QStringLiteral("W")},
                                             {QStringLiteral("kW"), QStringLiteral("kW")},
                                             {QStringLiteral("MW"), QStringLiteral("MW")},
                                             {QStringLiteral("GW"), QStringLiteral("GW")},
                                             {QStringLiteral("bar"), QStringLiteral("bar")},
                                             {QStringLiteral("mbar"), QStringLiteral("mbar")},
                                             {QStringLiteral("Pa"), QStringLiteral("Pa")},
                                             {QStringLiteral("kPa"), QStringLiteral("kPa")},
                                             {QStringLiteral("MPa"), QStringLiteral("MPa")},
                                             {QStringLiteral("km"), QStringLiteral("km")},
                                             {QStringLiteral("m"), QStringLiteral("m")},
                                             {QStringLiteral("meter"), QStringLiteral("m")},
                                             {QStringLiteral("cm"), QStringLiteral("cm")},
                                             {QStringLiteral("mm"), QStringLiteral("mm")},
                                             {QStringLiteral("K"), QStringLiteral("K")},
                                             {QStringLiteral("C"), QStringLiteral("degC")},
                                             {QStringLiteral("Celsius"), QStringLiteral("degC")},
                                             {QStringLiteral("percent"), QStringLiteral("%")},
                                             {QStringLiteral("MJ_per_m_cube"), QStringLiteral("MJ/m3")},
                                             {QStringLiteral("kWh_per_m_cube"), QStringLiteral("kWh/m3")},
                                             {QStringLiteral("kg_per_m_cube"), QStringLiteral("kg/m3")},
                                             {QStringLiteral("kg_per_kmol"), QStringLiteral("g/mol")},
                                             {QStringLiteral("g_per_mol"), QStringLiteral("g/mol")},
                                             {QStringLiteral("W_per_m_square_per_K"), QStringLiteral("W/(m2 K)")}};
  return units.value(name);
}

/// Without leading zeros and exponent.
int significantDigits(std::string_view text) {
  int digits = 0;
  for (const char c : text.substr(0, text.find_first_of("eE"))) {
    if (c >= '0' && c <= '9' && (c != '0' || digits > 0))
      ++digits;
  }
  return digits;
}

/// The shortest text that reads as the very same number.
PropertyText shortest(double value) {
  char text[32];
  const auto [end, error] = std::to_chars(text, text + sizeof text, value);
  return PropertyText(std::string_view(text, static_cast<std::size_t>(end - text)));
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
  return Number{written.match(trimmed).hasMatch() ? PropertyText(trimmed) : shortest(value), value, false};
}

std::optional<GasLibUnits::Number> GasLibUnits::convert(const Number &number, const QString &given, const QString &wanted,
                                                        const Units::Gas &gas) {
  constexpr double Atmosphere = 1.01325; // bar
  const bool isGauge = given == QLatin1String("barg");
  const QString known = unitOf(isGauge ? QStringLiteral("bar") : given);
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
  constexpr int Usual = 14;
  constexpr int Most = 17; // of a double
  const int digits = std::clamp(significantDigits(number.text.utf8()), Usual, Most);
  return Number{PropertyText::ofNumber(*converted, digits), *converted, true};
}
