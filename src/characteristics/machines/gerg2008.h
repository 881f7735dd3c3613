#pragma once

#include "gergcomponents.h"
#include "gergidealgas.h"

#include <array>

/// The equation of state of natural gases and other mixtures of Kunz and Wagner, "The GERG-2008 Wide-Range Equation of State
/// for Natural Gases and Other Mixtures: An Expansion of GERG-2004", J. Chem. Eng. Data 57 (2012) 3032-3091, for the
/// components that gas files let one infer. Stated uncertainty of the density between 250 and 450 K up to 350 bar: 0.1 %.
///
/// Density is molar, in kmol/m3; temperature in K; pressure in kPa; energies in kJ/kmol.
class Gerg2008 : public GergComponents {
public:
  static constexpr double GasConstant = 8.314472;          ///< kJ/(kmol K), the equation's own
  static const std::array<double, Components> MolarMasses; ///< kg/kmol

  using IdealGas = GergIdealGas;

  explicit Gerg2008(const Composition &composition);
  /// A gas that behaves as methane does at the same reduced temperature and pressure (corresponding states).
  static Gerg2008 likeMethane(double molarMass, double criticalTemperature, double criticalPressure);

  static double molarMass(const Composition &composition);
  double molarMass() const { return m_molarMass; }
  const IdealGas &idealGas() const { return m_ideal; }
  void setIdealGas(IdealGas ideal) { m_ideal = std::move(ideal); }

  /// What a state is like. Enthalpy and entropy count from an arbitrary state of the gas.
  struct State {
    double temperature = 0.0;
    double pressure = 0.0;
    double density = 0.0;
    double realGasFactor = 1.0;
    double enthalpy = 0.0;     ///< kJ/kmol
    double entropy = 0.0;      ///< kJ/(kmol K)
    double heatCapacity = 0.0; ///< at constant pressure, kJ/(kmol K)
    double exponent = 0.0;     ///< isentropic, of the volume: -(v/p)(dp/dv) at constant entropy
  };
  /// Of the gas, not of a liquid. Not a number where the equation gives no such state.
  State at(double pressure, double temperature) const;

private:
  /// Of the residual Helmholtz energy, each times the powers of the reduced density and temperature that belong to it.
  struct Residual {
    double a = 0.0;
    double d = 0.0;
    double dd = 0.0;
    double t = 0.0;
    double tt = 0.0;
    double dt = 0.0;
  };

  void reduce();
  Residual residual(double density, double temperature) const;
  double densityAt(double pressure, double temperature) const;

  Composition m_composition;
  double m_molarMass;
  double m_reducingDensity = 0.0;
  double m_reducingTemperature = 0.0;
  IdealGas m_ideal;
};
