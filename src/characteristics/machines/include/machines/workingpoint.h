#pragma once

#include <QString>
#include <QStringList>

#include <machines/compression.h>
#include <machines/machinedata.h>
#include <machines/machinemargins.h>
#include <optional>

/// Where a machine works.
struct WorkingPoint {
  enum class Mode {
    Compressing,
    Bypass,         ///< the gas passes with hardly any change of its pressure
    NotCompressing, ///< the outlet has a lower pressure than the inlet
    Backwards       ///< the gas flows from the outlet to the inlet
  };

  Mode mode = Mode::Compressing; ///< in the others there is neither speed nor efficiency nor power
  double flow = 0.0;             ///< m3/s at the inlet
  double head = 0.0;             ///< kJ/kg
  double ratio = 0.0;
  double realGasFactor = 1.0;              ///< at the inlet
  double exponent = 0.0;                   ///< isentropic, the mean of the way
  double massFlow = 0.0;                   ///< kg/s
  std::optional<double> speed;             ///< 1/min; none where no speed of the machine gives the head
  std::optional<double> efficiency;        ///< 0 to 1
  std::optional<double> power;             ///< kW, at the shaft
  std::optional<double> outletTemperature; ///< K
  std::optional<double> energyRate;        ///< kW, what the drive takes
  std::optional<double> fuelFlow;          ///< 1000 m3/h at norm conditions, of drives that burn gas
  std::optional<double> powerLimit;        ///< kW, of the drive at this speed
  MachineMargins margins;                  ///< to the limits of machine and drive
  bool isInside = false;                   ///< of the machine's map
  QStringList remarks;                     ///< all that is missing or outside

  /// \param drive null when it is not known
  static WorkingPoint of(const TurboCompressor &machine, const Drive *drive, const Compression &compression,
                         double ambientTemperature);
  static WorkingPoint of(const PistonCompressor &machine, const Drive *drive, const Compression &compression,
                         double ambientTemperature);

  bool isCompressing() const { return mode == Mode::Compressing; }

  /// The largest pressure ratio that a piston compressor reaches at a speed, by its own limit, its torque and the power of
  /// its drive; nothing when none of them is known. P = rho Q H / eta, M = rho V H / (2 pi eta).
  static std::optional<double> largestRatio(const PistonCompressor &machine, double speed, const Drive *drive,
                                            const Compression &compression, double ambientTemperature);

private:
  explicit WorkingPoint(const Compression &compression);
  void judgeMode(const Compression &compression);
  void exceed(const QString &remark);
  void judgeMap(const TurboCompressor &machine);
  void takeDrive(const Drive *drive, const Compression &compression, double ambientTemperature);
};
