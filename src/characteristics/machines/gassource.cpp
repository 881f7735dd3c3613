#include "gascomposition.h"

#include <model/names.h>
#include <model/units.h>

#include <machines/gassource.h>

namespace {

/// What makes a law, as text: equal texts are equal gases.
QString keyOf(const GasData &data) {
  QStringList parts;
  for (const double value : {data.normDensity, data.molarMass, data.calorificValue, data.lowerCalorificValue,
                             data.criticalPressure, data.criticalTemperature})
    parts.append(QString::number(value, 'g', 17));
  for (const auto &share : {data.methane, data.nitrogen, data.carbonDioxide, data.hydrogen})
    parts.append(share ? QString::number(*share, 'g', 17) : QString());
  for (const double coefficient : data.heatCapacity.value_or(std::array<double, 3>{}))
    parts.append(QString::number(coefficient, 'g', 17));
  return parts.join(QLatin1Char(';'));
}

bool isPossible(double temperature) {
  constexpr double Coldest = 200.0; // K
  constexpr double Warmest = 600.0;
  return temperature >= Coldest && temperature <= Warmest;
}

} // namespace

void GasSource::set(ScenarioGas scenario) {
  m_scenario = std::move(scenario);
  if (!isPossible(m_scenario.temperature)) // a text that is no number is read as 0
    m_scenario.temperature = ScenarioGas().temperature;
  m_gasesByData.clear();
  forget();
}

GasSource::Gas GasSource::gasOf(const GasData &data, const QString &origin) const {
  constexpr std::size_t MaximumGases = 1000; // nodes that all differ must not fill the memory
  const QString key = keyOf(data);
  auto found = m_gasesByData.find(key);
  if (found == m_gasesByData.end()) {
    if (m_gasesByData.size() >= MaximumGases)
      m_gasesByData.clear();
    Gas gas;
    gas.law = GasLaw::of(data, m_scenario.law);
    constexpr double NormPressure = 1.01325;
    gas.normDensity = data.normDensity > 0.0 ? data.normDensity : gas.law->at(NormPressure, Units::NormTemperature).density;
    gas.fuelValue = GasComposition::lowerCalorificValue(data);
    found = m_gasesByData.emplace(key, gas).first;
  }
  Gas gas = found->second;
  gas.origin = origin;
  return gas;
}

GasSource::Gas GasSource::at(const element &node) const {
  const GasData own = GasData::of(node);
  if (own.isEnough())
    return gasOf(own, tr("of the node %1").arg(node.value(Names::all().name)));
  if (const auto *named = gasNamed(m_scenario.gases, node.value(Names::all().gas))) {
    const GasData data = GasData::of(named->second);
    if (data.isEnough())
      return gasOf(data, tr("%1, which the node names").arg(named->first));
  }
  return scenario();
}

const GasSource::Gas &GasSource::scenario() const {
  if (!m_scenarioGas)
    m_scenarioGas = findScenario();
  return *m_scenarioGas;
}

GasSource::Gas GasSource::findScenario() const {
  for (const auto &[name, gas] : m_scenario.gases) {
    const GasData data = GasData::of(gas);
    if (data.isEnough())
      return gasOf(data, tr("%1 of the scenario").arg(name));
  }
  const PropertyKey mass = PropertyKey::find("molarmass");
  for (const elements::Entry &entry : m_net.nodes()) {
    if (entry.value.find(Names::all().normDensity) == nullptr &&
        entry.value.find(mass) == nullptr) // as in nearly all of a million
      continue;
    const GasData data = GasData::of(entry.value);
    if (data.isEnough())
      return gasOf(data, tr("of the node %1, the first that states one").arg(entry.value.value(Names::all().name)));
  }
  return gasOf(GasData(), tr("assumed"));
}

double GasSource::temperatureAt(const element &node, QStringList *remarks) const {
  const double own = m_net.value(node, PropertyKey::find("t"));
  if (own == NetData::NoValue)
    return m_scenario.temperature;
  if (isPossible(own))
    return own;
  if (remarks != nullptr)
    remarks->append(tr("The temperature %1 K at the inlet cannot be, %2 K are taken").arg(own).arg(m_scenario.temperature));
  return m_scenario.temperature;
}

Findings GasSource::findings() const {
  Findings found;
  const Gas &gas = scenario();
  for (const QString &remark : gas.law->remarks())
    found.push_back({Finding::Severity::Warning, {}, 0, tr("Gas %1: %2").arg(gas.origin, remark)});
  int usable = 0;
  for (const auto &[name, stated] : m_scenario.gases) {
    QStringList faults;
    usable += GasData::of(stated, &faults).isEnough() ? 1 : 0;
    for (const QString &fault : faults)
      found.push_back({Finding::Severity::Warning, {}, 0, tr("Gas %1: %2").arg(name, fault)});
  }
  if (usable > 1)
    found.push_back({Finding::Severity::Warning,
                     {},
                     0,
                     tr("The scenario has %1 gases: where a machine's inlet node says none, it is taken to be %2")
                         .arg(usable)
                         .arg(gas.origin)});
  return found;
}
