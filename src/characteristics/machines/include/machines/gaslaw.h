#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <machines/gasdata.h>
#include <memory>
#include <optional>

/// How a gas behaves, good for 250 to 450 K and up to 120 bar.
class GasLaw {
  Q_DECLARE_TR_FUNCTIONS(GasLaw)
public:
  /// What the scenario asks for; the order is that of the names of "ntype_gasLaw".
  enum class Wanted { Aga, Dc92, Papay };

  /// The law for a gas: the equation GERG-2008 with the shares that density and calorific value let one infer, or by
  /// corresponding states where only critical values are given. When the scenario asks for a formula of z alone (AGA,
  /// Papay), it serves within its range.
  static std::shared_ptr<const GasLaw> of(const GasData &gas, Wanted wanted = Wanted::Dc92);
  /// The law of methane, for where nothing says what the gas is.
  static std::shared_ptr<const GasLaw> assumed();

  virtual ~GasLaw() = default;

  struct State {
    double density = 0.0;       ///< kg/m3
    double realGasFactor = 1.0; ///< z
    double heatCapacity = 0.0;  ///< kJ/(kg K), at constant pressure
    double exponent = 0.0;      ///< isentropic, -(v/p)(dp/dv)
    double enthalpy = 0.0;      ///< kJ/kg, from an arbitrary zero
    double entropy = 0.0;       ///< kJ/(kg K), likewise
  };
  /// \param pressure bar \param temperature K
  virtual State at(double pressure, double temperature) const = 0;
  virtual double molarMass() const = 0; ///< kg/kmol

  /// The temperature in K that the gas has at a pressure in bar with this entropy or enthalpy; nothing when it is not found
  /// between 100 and 1000 K.
  std::optional<double> temperatureByEntropy(double pressure, double entropy) const;
  std::optional<double> temperatureByEnthalpy(double pressure, double enthalpy) const;

  /// The equation and what it was made of, for a person.
  QString name() const { return m_name; }
  /// What is doubtful about it, for a person; empty when nothing is.
  const QStringList &remarks() const { return m_remarks; }
  void tell(const QString &remark) { m_remarks.append(remark); }

protected:
  QString m_name;
  QStringList m_remarks;
};
