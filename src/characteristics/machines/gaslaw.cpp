#include "gascomposition.h"
#include "gerg2008.h"

#include <model/displayformat.h>

#include <cmath>
#include <machines/gaslaw.h>

namespace {

constexpr double KiloPascalPerBar = 100.0;
constexpr double Percent = 0.01;

/// A gas by the equation of state.
class EquationOfState : public GasLaw {
public:
  EquationOfState(Gerg2008 equation, const QString &name, const QStringList &remarks)
      : m_equation(std::move(equation)) {
    m_name = name;
    m_remarks = remarks;
  }

  State at(double pressure, double temperature) const override {
    const Gerg2008::State molar = m_equation.at(pressure * KiloPascalPerBar, temperature);
    const double mass = m_equation.molarMass();
    State state;
    state.density = molar.density * mass;
    state.realGasFactor = molar.realGasFactor;
    state.heatCapacity = molar.heatCapacity / mass;
    state.exponent = molar.exponent;
    state.enthalpy = molar.enthalpy / mass;
    state.entropy = molar.entropy / mass;
    return state;
  }
  double molarMass() const override { return m_equation.molarMass(); }

private:
  Gerg2008 m_equation;
};

/// The real gas factor by a formula of pressure and temperature, everything else by the equation of state.
class Formula : public GasLaw {
public:
  Formula(std::shared_ptr<const GasLaw> rest, const GasData &gas, Wanted wanted)
      : m_rest(std::move(rest))
      , m_criticalPressure(gas.criticalPressure)
      , m_criticalTemperature(gas.criticalTemperature)
      , m_wanted(wanted) {
    m_remarks = m_rest->remarks();
    m_name = GasLaw::tr("z by the formula of %1, as the scenario asks; the rest by %2")
                 .arg(wanted == Wanted::Papay ? GasLaw::tr("Papay (OGIL 1968)") : GasLaw::tr("AGA (up to 70 bar)"),
                      m_rest->name());
  }

  /// Both are made for natural gases: from 1.1 to 3 times the critical temperature between -10 and 60 degC.
  static bool holdsFor(const GasData &gas) {
    constexpr double Coldest = 263.0;
    constexpr double Warmest = 333.0;
    return gas.criticalPressure > 0.0 && Coldest >= 1.1 * gas.criticalTemperature &&
           Warmest <= 3.0 * gas.criticalTemperature;
  }

  State at(double pressure, double temperature) const override {
    State state = m_rest->at(pressure, temperature);
    const double z = realGasFactor(pressure, temperature, state.realGasFactor);
    state.density *= state.realGasFactor / z;
    state.realGasFactor = z;
    return state;
  }
  double molarMass() const override { return m_rest->molarMass(); }

private:
  double realGasFactor(double pressure, double temperature, double otherwise) const {
    constexpr double LargestOfAga = 70.0; // bar
    const double pr = pressure / m_criticalPressure;
    const double tr = temperature / m_criticalTemperature;
    if (m_wanted == Wanted::Papay)
      return 1.0 - 3.52 * pr * std::exp(-2.26 * tr) + 0.247 * pr * pr * std::exp(-1.878 * tr);
    return pressure <= LargestOfAga ? 1.0 + 0.257 * pr - 0.533 * pr / tr : otherwise;
  }

  std::shared_ptr<const GasLaw> m_rest;
  double m_criticalPressure;
  double m_criticalTemperature;
  Wanted m_wanted;
};

void takeHeatCapacity(Gerg2008 &equation, const GasData &gas) {
  if (!gas.heatCapacity)
    return;
  Gerg2008::IdealGas ideal;
  for (std::size_t i = 0; i < ideal.polynomial.size(); ++i)
    ideal.polynomial[i] = (*gas.heatCapacity)[i] / Gerg2008::GasConstant;
  equation.setIdealGas(ideal);
}

/// Telling of a molar mass that is another than the density asks for.
void judgeMolarMass(const GasData &gas, double molarMass, QStringList &remarks) {
  constexpr double Near = 0.01;
  if (gas.normDensity > 0.0 && gas.molarMass > 0.0 && std::abs(gas.molarMass / molarMass - 1.0) > Near)
    remarks.append(GasLaw::tr("The molar mass %1 does not fit the norm density %2 kg/m³, to which %3 belongs")
                       .arg(DisplayFormat::number(gas.molarMass, 5), DisplayFormat::number(gas.normDensity, 4),
                            DisplayFormat::number(molarMass, 5)));
}

QString shareText(const Gerg2008::Composition &shares) {
  static const std::array<const char *, Gerg2008::Components> names{"CH4", "N2", "CO2", "C2H6", "C3H8", "H2"};
  QStringList parts;
  for (std::size_t i = 0; i < shares.size(); ++i) {
    if (shares[i] > 0.0005)
      parts.append(QStringLiteral("%1 % %2").arg(shares[i] / Percent, 0, 'f', 1).arg(QLatin1String(names[i])));
  }
  return parts.join(QStringLiteral(", "));
}

std::shared_ptr<const GasLaw> bySharesOf(const GasData &gas, const GasComposition::Inferred &inferred) {
  Gerg2008 equation(inferred.shares);
  takeHeatCapacity(equation, gas);
  QStringList remarks = inferred.remarks;
  judgeMolarMass(gas, equation.molarMass(), remarks);
  const QString name = GasLaw::tr("GERG-2008 for %1, by its %2").arg(shareText(inferred.shares), inferred.basis);
  return std::make_shared<EquationOfState>(std::move(equation), name, remarks);
}

std::shared_ptr<const GasLaw> byCriticalValues(const GasData &gas, const std::optional<GasComposition::Inferred> &inferred) {
  constexpr double MolarVolume = 22.414; // m3/kmol, of the ideal gas
  const double molarMass = gas.normDensity > 0.0 ? gas.normDensity * MolarVolume : gas.molarMass;
  auto equation = Gerg2008::likeMethane(molarMass, gas.criticalTemperature, gas.criticalPressure * KiloPascalPerBar);
  if (inferred)
    equation.setIdealGas(Gerg2008(inferred->shares).idealGas());
  takeHeatCapacity(equation, gas);
  return std::make_shared<EquationOfState>(
      std::move(equation), GasLaw::tr("corresponding states by its critical values (methane of GERG-2008)"), QStringList());
}

/// Newton's method with a bisection behind it: the function grows with the temperature. Nothing beyond 100 to 1000 K.
template <typename Value>
std::optional<double> temperatureFor(double wanted, double start, const Value &value) {
  constexpr double Coldest = 100.0; // K
  constexpr double Warmest = 1000.0;
  constexpr double Beside = 1e-3; // of an end: nothing lies between the ends
  double low = Coldest;
  double high = Warmest;
  double temperature = start;
  constexpr int Turns = 80;
  for (int i = 0; i < Turns; ++i) {
    const auto [found, slope] = value(temperature);
    const double miss = found - wanted;
    if (!(miss <= 0.0) && !(miss > 0.0)) // no state there: the gas would be liquid
      low = temperature;
    else
      (miss > 0.0 ? high : low) = temperature;
    double next = temperature - miss / slope;
    if (!(next > low && next < high))
      next = 0.5 * (low + high);
    if (std::abs(next - temperature) < 1e-9 * temperature)
      return next - Coldest > Beside && Warmest - next > Beside ? std::optional<double>(next) : std::nullopt;
    temperature = next;
  }
  return std::nullopt;
}

constexpr double Usual = 288.15; // K, to begin with

} // namespace

std::shared_ptr<const GasLaw> GasLaw::of(const GasData &gas, Wanted wanted) {
  const auto inferred = GasComposition::infer(gas);
  const bool isCriticalKnown = gas.isEnough() && gas.criticalPressure > 0.0 && gas.criticalTemperature > 0.0;
  std::shared_ptr<const GasLaw> law;
  if (inferred && (inferred->isTold || !isCriticalKnown))
    law = bySharesOf(gas, *inferred);
  else if (isCriticalKnown)
    law = byCriticalValues(gas, inferred);
  else
    return assumed();
  if (wanted != Wanted::Aga && wanted != Wanted::Papay) // whatever number a file holds
    return law;
  if (Formula::holdsFor(gas))
    return std::make_shared<Formula>(law, gas, wanted);
  auto other = std::make_shared<EquationOfState>(static_cast<const EquationOfState &>(*law));
  other->tell(tr("The scenario asks for the formula \"%1\", which does not hold for this gas")
                  .arg(wanted == Wanted::Papay ? QStringLiteral("papay") : QStringLiteral("aga")));
  return other;
}

std::shared_ptr<const GasLaw> GasLaw::assumed() {
  static const auto methane = std::make_shared<EquationOfState>(
      Gerg2008(Gerg2008::Composition{1.0}), tr("GERG-2008 for methane, since nothing says what the gas is"),
      QStringList{tr("The gas is not known, methane is assumed")});
  return methane;
}

std::optional<double> GasLaw::temperatureByEntropy(double pressure, double entropy) const {
  return temperatureFor(entropy, Usual, [&](double temperature) {
    const State state = at(pressure, temperature);
    return std::make_pair(state.entropy, state.heatCapacity / temperature);
  });
}

std::optional<double> GasLaw::temperatureByEnthalpy(double pressure, double enthalpy) const {
  return temperatureFor(enthalpy, Usual, [&](double temperature) {
    const State state = at(pressure, temperature);
    return std::make_pair(state.enthalpy, state.heatCapacity);
  });
}
