#include "setpointunits.h"

#include <base/settings.h>
#include <model/names.h>

#include <cmath>

namespace {

std::optional<double> positive(const element &e, PropertyKey property) {
  const double number = NetData::number(e.find(property));
  return number > 0.0 ? std::optional<double>(number) : std::nullopt;
}

/// Takes over what is not known yet.
void learn(Units::Gas &gas, const element &from) {
  if (!gas.normDensity)
    gas.normDensity = positive(from, Names::all().normDensity);
  if (!gas.calorificValue)
    gas.calorificValue = positive(from, Names::all().calorificValue);
}

void learnFromNode(Units::Gas &gas, const element &node, const GasTable &gases) {
  learn(gas, node);
  if (const auto *named = gasNamed(gases, node.value(Names::all().gas)))
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
  value = PropertyText::shortest(std::abs(*converted) < m_tiny ? 0.0 : *converted);
  return Outcome::Converted;
}

Units::Gas SetPointUnits::gasAt(const element &e, const NetData &net, const GasTable &gases) {
  Units::Gas gas;
  learnFromNode(gas, e, gases);
  for (const PropertyKey end : {Names::all().node1, Names::all().node2}) {
    const PropertyText *name = e.find(end);
    if (const element *node = name == nullptr ? nullptr : net.nodes().find(*name))
      learnFromNode(gas, *node, gases);
  }
  if (gases.size() == 1)
    learn(gas, gases.begin()->second);
  return gas;
}
