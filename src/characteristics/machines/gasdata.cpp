#include <model/names.h>

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <machines/gasdata.h>

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(GasData)
};

constexpr double Percent = 0.01;

} // namespace

GasData GasData::of(const element &gas, QStringList *faults) {
  const auto number = [&](const char *property) -> std::optional<double> {
    const PropertyText *text = gas.find(PropertyKey::find(property));
    const std::optional<double> value = text == nullptr ? std::nullopt : text->toDouble();
    if (value && std::isfinite(*value))
      return value;
    if (text != nullptr && faults != nullptr)
      faults->append(Texts::tr("\"%1\" is no number: %2").arg(QLatin1String(property), text->toString()));
    return std::nullopt;
  };
  const auto positive = [&](const char *property) {
    const std::optional<double> value = number(property);
    if (value && *value < 0.0 && faults != nullptr)
      faults->append(Texts::tr("\"%1\" cannot be %2").arg(QLatin1String(property)).arg(*value));
    return value ? std::max(*value, 0.0) : 0.0;
  };
  const auto share = [&](const char *property) -> std::optional<double> {
    const std::optional<double> value = number(property);
    if (value && *value >= 0.0 && *value <= 100.0)
      return *value * Percent;
    if (value && faults != nullptr)
      faults->append(Texts::tr("\"%1\" cannot be %2 %").arg(QLatin1String(property)).arg(*value));
    return std::nullopt;
  };
  GasData data;
  data.name = gas.value(Names::all().name);
  data.normDensity = positive("rhon");
  data.molarMass = positive("molarmass");
  data.calorificValue = positive("hs");
  data.lowerCalorificValue = positive("hi");
  data.criticalPressure = positive("pcrit");
  data.criticalTemperature = positive("tcrit");
  data.methane = share("ch4");
  data.nitrogen = share("n2");
  data.carbonDioxide = share("co2");
  data.hydrogen = share("h2");
  if (const auto constant = number("cpa"); constant && *constant > 0.0)
    data.heatCapacity = {{*constant, number("cpb").value_or(0.0), number("cpc").value_or(0.0)}};
  return data;
}
