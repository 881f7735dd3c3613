#pragma once

#include <model/element.h>

#include <QString>
#include <QStringList>

#include <array>
#include <optional>

/// What the files say of a gas. 0 stands for what they do not say.
struct GasData {
  QString name;
  double normDensity = 0.0;         ///< kg/m3 at 273.15 K and 1.01325 bar
  double molarMass = 0.0;           ///< kg/kmol
  double calorificValue = 0.0;      ///< superior, MJ/m3 at norm conditions
  double lowerCalorificValue = 0.0; ///< inferior, likewise
  double criticalPressure = 0.0;    ///< bar
  double criticalTemperature = 0.0; ///< K
  std::optional<double> methane;    ///< molar shares, 0 to 1
  std::optional<double> nitrogen;
  std::optional<double> carbonDioxide;
  std::optional<double> hydrogen;
  /// cp = A + B T + C T^2 of the ideal gas, kJ/(kmol K).
  std::optional<std::array<double, 3>> heatCapacity;

  /// From the properties "rhon", "molarmass", "hs", "hi", "pcrit", "tcrit", "ch4", "n2", "co2", "h2" (percent) and "cpa",
  /// "cpb", "cpc" of a gas or a node. Numbers that are none or cannot be are told.
  static GasData of(const element &gas, QStringList *faults = nullptr);
  /// Whether a law can be made of it.
  bool isEnough() const { return normDensity > 0.0 || molarMass > 0.0; }
};
