#pragma once

#include <model/netdata.h>

#include <QStringList>

#include <machines/gassource.h>
#include <memory>
#include <optional>

/// What a compression is like, from the values of the network.
struct Compression {
  double massFlow = 0.0;            ///< kg/s, positive
  bool isReversed = false;          ///< the flow goes from the outlet to the inlet
  double inletPressure = 0.0;       ///< bar, at the machine: behind the losses of its station
  double outletPressure = 0.0;      ///< bar, at the machine: before the losses of its station
  double inletTemperature = 288.15; ///< K
  double inletDensity = 0.0;        ///< kg/m3, as the network states it; 0 when it is to be computed
  std::shared_ptr<const GasLaw> gas = GasLaw::assumed();
  double fuelValue = 0.0; ///< MJ/m3 at norm conditions, the inferior calorific value of what the drive burns; 0 when unknown
  QString gasOrigin;      ///< for a person
  QStringList remarks;    ///< what is doubtful about these values

  /// Of an edge with flow, between its end nodes. Nothing without flow and pressures.
  static std::optional<Compression> of(const NetData &net, const element &compressor, const GasSource &gases);

  double ratio() const { return outletPressure / inletPressure; }
  double realGasFactor() const; ///< at the inlet
  double density() const;       ///< kg/m3 at the inlet
  double volumeFlow() const;    ///< m3/s at the inlet
  /// Isentropic, the mean of the way from inlet to outlet: with it the head below is the enthalpy that the real gas takes up
  /// at constant entropy.
  double exponent() const;
  /// kJ/kg, p/rho k/(k-1) (ratio^((k-1)/k) - 1) with the mean exponent.
  double adiabaticHead() const { return adiabaticHead(exponent()); }
  double adiabaticHead(double meanExponent) const; ///< for those who have asked for it already
  /// The ratio to which a head in kJ/kg compresses.
  double ratioOf(double head) const;
  /// K behind a compression with an efficiency (0 to 1): the real gas has the enthalpy of the inlet and head/efficiency.
  std::optional<double> outletTemperature(double efficiency) const { return outletTemperature(efficiency, adiabaticHead()); }
  std::optional<double> outletTemperature(double efficiency, double head) const;
  /// The same gas from the same inlet at another volume flow in m3/s and with another head in kJ/kg or pressure ratio.
  Compression withHead(double flow, double head) const;
  Compression withRatio(double flow, double ratio) const;
};
