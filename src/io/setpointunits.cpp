#include "setpointunits.h"

#include <base/settings.h>

#include <cmath>

namespace {

/// Converting back and forth must not change a bit, and nobody wants to read noise.
PropertyText shortestText(double number) {
  constexpr int Enough = 17;
  for (int digits = 15; digits < Enough; ++digits) {
    const std::string text = formatNumber(number, digits);
    if (parseNumber(text) == number)
      return PropertyText(std::string_view(text));
  }
  return PropertyText::ofNumber(number, Enough);
}

std::optional<double> positive(const element &e, const char *property) {
  const double number = NetData::number(e.find(PropertyKey::find(property)));
  return number > 0.0 ? std::optional<double>(number) : std::nullopt;
}

/// Takes over what is not known yet.
void learn(Units::Gas &gas, const element &from) {
  if (!gas.normDensity)
    gas.normDensity = positive(from, "rhon");
  if (!gas.calorificValue)
    gas.calorificValue = positive(from, "hs");
}

void learnFromNode(Units::Gas &gas, const element &node, const GasTable &gases) {
  learn(gas, node);
  if (const auto *named = gasNamed(gases, node.value(QStringLiteral("gas"))))
    learn(gas, named->second);
}

} // namespace

SetPointUnits::SetPointUnits()
    : m_tiny(Settings::TinyConversionTolerance.value()) {}

SetPointUnits::Outcome SetPointUnits::convert(PropertyText &value, const QString &unit, const QString &storedUnit,
                                              const Units::Gas &gas) const {
  if (unit.isEmpty() || storedUnit.isEmpty() || unit == storedUnit)
    return Outcome::AsItIs;
  const std::optional<double> number = value.toDouble();
  if (!number)
    return Outcome::AsItIs;
  const std::optional<double> converted = Units::convert(*number, unit, storedUnit, gas);
  if (!converted) {
    const Units::Gas any{1.0, 1.0};
    return Units::conversion(unit, storedUnit, any) ? Outcome::NeedsGas : Outcome::Impossible;
  }
  value = shortestText(std::abs(*converted) < m_tiny ? 0.0 : *converted);
  return Outcome::Converted;
}

Units::Gas SetPointUnits::gasAt(const element &e, const NetData &net, const GasTable &gases) {
  Units::Gas gas;
  learnFromNode(gas, e, gases);
  for (const char *end : {"node1", "node2"}) {
    const PropertyText *name = e.find(PropertyKey::find(end));
    if (const element *node = name == nullptr ? nullptr : net.nodes().find(*name))
      learnFromNode(gas, *node, gases);
  }
  if (gases.size() == 1)
    learn(gas, gases.begin()->second);
  return gas;
}
