#pragma once

#include <QString>

#include <optional>

/// Conversion of values between units, by UDUNITS-2 and a few names of the gas field that it does not know.
namespace Units {

constexpr double ZeroCelsius = 273.15;          ///< K
constexpr double NormTemperature = ZeroCelsius; ///< K, of norm conditions

/// What a gas-dependent conversion needs; absent values are NaN-free optionals.
struct Gas {
  std::optional<double> normDensity;    ///< kg/m3 at norm conditions (NormTemperature, 1.01325 bar)
  std::optional<double> calorificValue; ///< upper, MJ/m3 at norm conditions
};

bool isKnown(const QString &unit);

/// As people write it, such as "m³" for "m3": the unit tables know plain ASCII only.
QString written(QString unit);
/// The other way: as the tables know it, from what a person typed.
QString fromTyped(const QString &unit);

/// value in unit "from" expressed in unit "to". Norm volume flow converts to mass flow when the norm density is known
/// and to energy flow when the calorific value is known. Nothing when the units are unknown or do not fit.
std::optional<double> convert(double value, const QString &from, const QString &to, const Gas &gas = Gas());

/// convert() as a linear function y = factor * x + offset, for whole columns. Finer than the values, so that a factor such
/// as 1/3600 adds no digits of its own to them.
struct Linear {
  long double factor = 1.0L;
  long double offset = 0.0L;
  double operator()(double x) const { return static_cast<double>(factor * static_cast<long double>(x) + offset); }
  double inverse(double y) const { return static_cast<double>((static_cast<long double>(y) - offset) / factor); }
};
std::optional<Linear> conversion(const QString &from, const QString &to, const Gas &gas = Gas());

} // namespace Units
