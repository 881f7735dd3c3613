#pragma once

#include <base/finding.h>
#include <characteristics/fits.h>

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// Units of machine data: speed 1/min, volume flow m3/s at the inlet, adiabatic head kJ/kg, efficiency 0 to 1, power kW,
/// ambient temperature degC, torque kNm.
struct MeasuredPoint {
  double speed = 0.0;
  double flow = 0.0;
  double head = 0.0;
  double efficiency = 0.0; ///< 0 where it was not measured
};

struct TurboCompressor {
  QString name;
  QString station; ///< in which it stands, empty when that is not said
  QString drive;
  double speedMin = 0.0;
  double speedMax = 0.0;
  std::vector<MeasuredPoint> points;
  std::vector<MeasuredPoint> surgePoints;
  double chokeEfficiency = 0.0; ///< at the choke line, 0 when it is not said

  std::optional<Biquadratic> head;       ///< over flow and speed
  std::optional<Biquadratic> efficiency; ///< over flow and speed
  std::optional<Quadratic> surge;        ///< head over flow
  std::optional<Quadratic> choke;        ///< head over flow

  /// Of our fits; not ok where coefficients were given, or neither these nor points.
  Fits::Quality headQuality;
  Fits::Quality efficiencyQuality;
  Fits::Quality surgeQuality;

  /// Replaces given coefficients by our own fits where enough points were measured; tells why not otherwise.
  Findings fit();
  bool isUsable() const { return head && speedMax > speedMin; }
  /// The flows between surge and choke line at a speed; nothing when the speed line lies in neither.
  std::optional<std::pair<double, double>> flows(double speed) const;
};

struct PistonCompressor {
  QString name;
  QString station; ///< in which it stands, empty when that is not said
  QString drive;
  double speedMin = 0.0;
  double speedMax = 0.0;
  double displacement = 0.0;  ///< m3 a revolution
  double maximalTorque = 0.0; ///< kNm, 0 for no limit
  double maximalRatio = 0.0;  ///< 0 for no limit
  double efficiency = 0.0;    ///< adiabatic

  bool isUsable() const { return displacement > 0.0 && speedMax > speedMin; }
  /// m3/s at the inlet at a speed in 1/min, and the other way round.
  double flow(double speed) const { return displacement * speed / SecondsPerMinute; }
  double speed(double flow) const { return flow / displacement * SecondsPerMinute; }

private:
  static constexpr double SecondsPerMinute = 60.0;
};

struct Drive {
  enum class Kind { GasTurbine, GasEngine, ElectricMotor, SteamTurbine };
  struct PowerPoint {
    double speed = 0.0;
    double temperature = 0.0; ///< degC
    double power = 0.0;
  };
  struct EnergyPoint {
    double power = 0.0;
    double rate = 0.0; ///< kW of fuel or current
  };

  QString name;
  Kind kind = Kind::GasTurbine;
  std::vector<PowerPoint> powerPoints;
  std::vector<EnergyPoint> energyPoints;
  std::optional<Biquadratic> power; ///< largest, over temperature and speed
  std::optional<Quadratic> energy;  ///< rate over power
  Fits::Quality powerQuality;
  Fits::Quality energyQuality;

  Findings fit();
  bool isUsable() const { return power.has_value(); }
};

/// The machines of a scenario.
struct MachineData {
  static constexpr double UsualTemperature = 12.0; ///< degC

  double ambientTemperature = UsualTemperature; ///< degC, at which the drives work
  std::vector<TurboCompressor> turbos;
  std::vector<PistonCompressor> pistons;
  std::vector<Drive> drives;

  bool isEmpty() const { return turbos.empty() && pistons.empty() && drives.empty(); }
  /// Regardless of case; null when there is none.
  const TurboCompressor *turbo(const QString &name) const;
  const PistonCompressor *piston(const QString &name) const;
  const Drive *drive(const QString &name) const;
  /// The names of the compressors that stand in a station, in the order of the file.
  QStringList ofStation(const QString &station) const;
  /// Null when the drive drives none.
  const TurboCompressor *turboOf(const Drive &drive) const;
  const PistonCompressor *pistonOf(const Drive &drive) const;
};
