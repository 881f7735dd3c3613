#include "mapquantity.h"

#include "shownnumber.h"

#include <model/displayunits.h>

#include <QHash>

#include <algorithm>
#include <cmath>

namespace {

struct Known {
  QString quantity;
  QString unit; ///< as the unit tables know it
};

const QHash<QString, Known> &known() {
  static const QHash<QString, Known> all{
      {QStringLiteral("m³/s"), {QStringLiteral("volume flow in the machine"), QStringLiteral("m3/s")}},
      {QStringLiteral("kJ/kg"), {QStringLiteral("head"), QStringLiteral("kJ/kg")}},
      {QStringLiteral("1/min"), {QStringLiteral("speed"), QStringLiteral("1/min")}},
      {QStringLiteral("kW"), {QStringLiteral("power"), QStringLiteral("kW")}},
      {QStringLiteral("1000 m³/h"), {QStringLiteral("norm volume flow"), QStringLiteral("1000 m3/h")}},
      {QStringLiteral("°C"), {QStringLiteral("temperature"), QStringLiteral("degC")}}};
  return all;
}

std::vector<double> roundOnes(double from, double to) {
  constexpr double Parts = 6.0;
  if (!(to > from))
    return {from};
  const double smallest = (to - from) / Parts;
  const double power = std::pow(10.0, std::floor(std::log10(smallest)));
  double step = 10.0 * power;
  for (const double factor : {5.0, 2.5, 2.0, 1.0}) {
    if (factor * power >= smallest * (1.0 - 1e-9))
      step = factor * power;
  }
  constexpr double MostSteps = 1e6; // from 0; a range that narrow at so large numbers holds no round ones
  if (!(std::max(std::abs(from), std::abs(to)) < MostSteps * step))
    return {from, to};
  constexpr double Apart = 0.4; // of a step from the ends
  std::vector<double> values{from};
  const auto last = static_cast<int>(std::floor(to / step - Apart));
  for (auto i = static_cast<int>(std::ceil(from / step + Apart)); i <= last; ++i)
    values.push_back(i * step);
  values.push_back(to);
  return values;
}

} // namespace

MapQuantity::MapQuantity(const QString &unit)
    : m_unit(unit) {
  const auto found = known().constFind(unit);
  if (found == known().constEnd())
    return;
  const DisplayUnits::Shown shown = DisplayUnits::of(found->quantity, found->unit);
  m_unit = Units::written(shown.unit);
  m_toDisplay = shown.toDisplay;
}

QString MapQuantity::title(const QString &name) const {
  return m_unit.isEmpty() ? name : name + QStringLiteral(" [") + m_unit + QLatin1Char(']');
}

MapQuantity MapQuantity::ofDifferences() const {
  MapQuantity other = *this;
  other.m_toDisplay.offset = 0.0;
  return other;
}

QString MapQuantity::number(double value, int digits) const {
  return shownNumber(m_toDisplay(value), digits);
}

QString MapQuantity::text(double value, int digits) const {
  return m_unit.isEmpty() ? number(value, digits) : number(value, digits) + QLatin1Char(' ') + m_unit;
}

std::vector<double> MapQuantity::roundValues(double from, double to) const {
  std::vector<double> values = roundOnes(m_toDisplay(from), m_toDisplay(to));
  for (double &value : values)
    value = m_toDisplay.inverse(value);
  values.front() = from;
  if (values.size() > 1)
    values.back() = to;
  return values;
}
