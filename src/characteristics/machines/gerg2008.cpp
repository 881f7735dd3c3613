#include "gerg2008.h"

#include "gergcoefficients.h"

#include <algorithm>
#include <cmath>
#include <limits>

const std::array<double, Gerg2008::Components> Gerg2008::MolarMasses{16.04246, 28.0134,  44.0095,
                                                                     30.06904, 44.09562, 2.01588};

namespace {

using GergCoefficients::pairs;
using GergCoefficients::pures;

/// Adds factor n delta^d tau^t exp(g(delta)) to the sums; first = delta g', second = delta^2 g''.
template <typename Residual>
void add(Residual &sum, double value, double d, double t, double first, double second) {
  const double byDensity = d + first;
  sum.a += value;
  sum.d += value * byDensity;
  sum.dd += value * (byDensity * byDensity - d + second);
  sum.t += value * t;
  sum.tt += value * t * (t - 1.0);
  sum.dt += value * t * byDensity;
}

} // namespace

Gerg2008::Gerg2008(const Composition &composition)
    : m_composition(composition)
    , m_molarMass(molarMass(composition)) {
  reduce();
  for (std::size_t i = 0; i < Components; ++i) {
    const IdealGas &pure = pures()[i].ideal;
    if (m_composition[i] == 0.0)
      continue;
    for (std::size_t power = 0; power < pure.polynomial.size(); ++power)
      m_ideal.polynomial[power] += m_composition[i] * pure.polynomial[power];
    for (const IdealGas::Term &term : pure.hyperbolicSines)
      m_ideal.hyperbolicSines.push_back({m_composition[i] * term.factor, term.temperature});
    for (const IdealGas::Term &term : pure.hyperbolicCosines)
      m_ideal.hyperbolicCosines.push_back({m_composition[i] * term.factor, term.temperature});
  }
}

Gerg2008 Gerg2008::likeMethane(double molarMass, double criticalTemperature, double criticalPressure) {
  Gerg2008 gas(Composition{1.0});
  constexpr double CriticalPressure = 4599.2; // kPa, of methane
  const auto &methane = pures()[Methane];
  const double ratio = criticalPressure / CriticalPressure * methane.criticalTemperature / criticalTemperature;
  gas.m_molarMass = molarMass;
  gas.m_reducingTemperature = criticalTemperature;
  gas.m_reducingDensity = methane.criticalDensity * ratio; // of like compressibility at the critical point
  return gas;
}

double Gerg2008::molarMass(const Composition &composition) {
  double sum = 0.0;
  for (std::size_t i = 0; i < Components; ++i)
    sum += composition[i] * MolarMasses[i];
  return sum;
}

void Gerg2008::reduce() {
  double volume = 0.0;
  for (std::size_t i = 0; i < Components; ++i) {
    volume += m_composition[i] * m_composition[i] / pures()[i].criticalDensity;
    m_reducingTemperature += m_composition[i] * m_composition[i] * pures()[i].criticalTemperature;
  }
  for (const GergCoefficients::Pair &pair : pairs()) {
    const double x1 = m_composition[pair.first];
    const double x2 = m_composition[pair.second];
    if (x1 == 0.0 || x2 == 0.0)
      continue;
    const auto &first = pures()[pair.first];
    const auto &second = pures()[pair.second];
    const double both = 2.0 * x1 * x2 * (x1 + x2);
    const double length = std::cbrt(1.0 / first.criticalDensity) + std::cbrt(1.0 / second.criticalDensity);
    volume += both * pair.betaV * pair.gammaV / (pair.betaV * pair.betaV * x1 + x2) * length * length * length / 8.0;
    m_reducingTemperature += both * pair.betaT * pair.gammaT / (pair.betaT * pair.betaT * x1 + x2) *
                             std::sqrt(first.criticalTemperature * second.criticalTemperature);
  }
  m_reducingDensity = 1.0 / volume;
}

Gerg2008::Residual Gerg2008::residual(double density, double temperature) const {
  const double delta = density / m_reducingDensity;
  const double logDelta = std::log(delta);
  const double logTau = std::log(m_reducingTemperature / temperature);
  Residual sum;
  for (std::size_t i = 0; i < Components; ++i) {
    if (m_composition[i] == 0.0)
      continue;
    for (const GergCoefficients::PureTerm &term : pures()[i].terms) {
      const double power = term.c == 0 ? 0.0 : std::exp(term.c * logDelta);
      const double value = m_composition[i] * term.n * std::exp(term.d * logDelta + term.t * logTau - power);
      add(sum, value, term.d, term.t, -term.c * power, -term.c * (term.c - 1.0) * power);
    }
  }
  for (const GergCoefficients::Pair &pair : pairs()) {
    const double share = m_composition[pair.first] * m_composition[pair.second] * pair.factor;
    if (share == 0.0)
      continue;
    for (const GergCoefficients::BinaryTerm &term : pair.departure) {
      const double apart = delta - term.epsilon;
      const double exponent = -term.eta * apart * apart - term.beta * (delta - term.gamma);
      const double value = share * term.n * std::exp(term.d * logDelta + term.t * logTau + exponent);
      add(sum, value, term.d, term.t, delta * (-2.0 * term.eta * apart - term.beta), -2.0 * term.eta * delta * delta);
    }
  }
  return sum;
}

double Gerg2008::densityAt(double pressure, double temperature) const {
  constexpr int Turns = 60;
  constexpr double Precision = 1e-13;
  const double ideal = pressure / (GasConstant * temperature);
  double density = ideal;
  for (int i = 0; i < Turns; ++i) {
    const Residual r = residual(density, temperature);
    const double slope = 1.0 + 2.0 * r.d + r.dd; // dp/drho over R T
    const double miss = density * (1.0 + r.d) - ideal;
    // Newton's step, kept from leaving the gas.
    double next = slope > 0.0 ? density - miss / slope : density / 2.0;
    next = std::min(std::max(next, density / 2.0), density * 1.5);
    const bool isThere = std::abs(next - density) <= Precision * density;
    density = next;
    if (isThere)
      return density;
  }
  return std::numeric_limits<double>::quiet_NaN();
}

Gerg2008::State Gerg2008::at(double pressure, double temperature) const {
  State state;
  state.temperature = temperature;
  state.pressure = pressure;
  state.density = densityAt(pressure, temperature);
  const Residual r = residual(state.density, temperature);
  state.realGasFactor = 1.0 + r.d;
  state.enthalpy = GasConstant * (m_ideal.enthalpy(temperature) + temperature * (r.t + r.d));
  // That of the ideal gas at the same density; ln(rho R T) stands for the pressure that it has there.
  state.entropy =
      GasConstant * (m_ideal.entropy(temperature) - std::log(state.density * GasConstant * temperature) + r.t - r.a);
  const double isochoric = m_ideal.heatCapacity(temperature) - 1.0 - r.tt;
  const double byTemperature = 1.0 + r.d - r.dt;
  const double byDensity = 1.0 + 2.0 * r.d + r.dd;
  state.heatCapacity = GasConstant * (isochoric + byTemperature * byTemperature / byDensity);
  state.exponent = (byDensity + byTemperature * byTemperature / isochoric) / state.realGasFactor;
  return state;
}
