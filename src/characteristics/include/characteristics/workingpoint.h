#pragma once

#include <characteristics/machinedata.h>
#include <model/netdata.h>

#include <QString>

#include <optional>

/// What a compression is like, from the values of the network.
struct Compression {
  double massFlow = 0.0;              ///< kg/s, positive
  bool isReversed = false;            ///< the flow goes from the outlet to the inlet
  double inletPressure = 0.0;         ///< bar
  double outletPressure = 0.0;        ///< bar
  double inletTemperature = 288.15;   ///< K
  double inletDensity = 0.0;          ///< kg/m3, 0 when it is to be computed
  double molarMass = 18.0;            ///< kg/kmol
  double exponent = 1.296;            ///< isentropic
  double criticalPressure = 45.0;     ///< bar
  double criticalTemperature = 200.0; ///< K
  double calorificValue = 0.0;        ///< MJ/m3 at norm conditions, 0 when it is not known
  double normDensity = 0.0;           ///< kg/m3

  /// Of an edge with flow, between its end nodes; what the network does not say stays as above. Nothing without flow and
  /// pressures.
  static std::optional<Compression> of(const NetData &net, const element &compressor);

  double ratio() const { return outletPressure / inletPressure; }
  /// Real gas factor at the inlet: from the density where it is known, else after Papay (A termelestechnologiai parameterek
  /// valtozasa, OGIL 1968), z = 1 - 3.52 pr exp(-2.26 Tr) + 0.247 pr^2 exp(-1.878 Tr).
  double realGasFactor() const;
  double density() const;    ///< kg/m3 at the inlet
  double volumeFlow() const; ///< m3/s at the inlet
  /// kJ/kg, z R T k/(k-1) (ratio^((k-1)/k) - 1).
  double adiabaticHead() const;
  /// The ratio to which a head in kJ/kg compresses.
  double ratioOf(double head) const;
};

/// Where a machine works.
struct WorkingPoint {
  double flow = 0.0; ///< m3/s at the inlet
  double head = 0.0; ///< kJ/kg
  double ratio = 0.0;
  std::optional<double> speed;      ///< 1/min; none where no speed of the machine gives the head
  std::optional<double> efficiency; ///< 0 to 1
  std::optional<double> power;      ///< kW, at the shaft
  std::optional<double> energyRate; ///< kW, what the drive takes
  std::optional<double> powerLimit; ///< kW, of the drive at this speed
  bool isInside = false;            ///< of the machine's map
  QString remark;                   ///< why something is missing or outside

  /// \param drive null when it is not known
  static WorkingPoint of(const TurboCompressor &machine, const Drive *drive, const Compression &compression,
                         double ambientTemperature);
  static WorkingPoint of(const PistonCompressor &machine, const Drive *drive, const Compression &compression,
                         double ambientTemperature);

  /// The largest pressure ratio that a piston compressor reaches at a speed, by its own limit, its torque and the power of
  /// its drive; nothing when none of them is known. P = rho Q H / eta, M = rho V H / (2 pi eta).
  static std::optional<double> largestRatio(const PistonCompressor &machine, double speed, const Drive *drive,
                                            const Compression &compression, double ambientTemperature);

private:
  explicit WorkingPoint(const Compression &compression);
  void judgeDirection(const Compression &compression);
  void takeDrive(const Drive *drive, double massFlow, double ambientTemperature);
};
