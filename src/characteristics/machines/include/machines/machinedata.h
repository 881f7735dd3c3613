#pragma once

#include <base/finding.h>

#include <QString>
#include <QStringList>

#include <machines/fits.h>
#include <machines/gassource.h>
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

/// Which function of a machine is computed with, where there are two.
enum class FunctionSource {
  Fitted,   ///< our own fit of the measured points, where there is one
  Published ///< the coefficients that came with the machine, where there are some
};

struct TurboCompressor {
  struct Functions {
    std::optional<Biquadratic> head;       ///< over flow and speed
    std::optional<Biquadratic> efficiency; ///< over flow and speed
    std::optional<Quadratic> surge;        ///< head over flow
    std::optional<Quadratic> choke;        ///< head over flow
  };

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

  Functions published; ///< as they came, kept by fit()
  Functions fitted;    ///< by us; empty where there are too few points

  /// Of our fits; not ok where there is none.
  Fits::Quality headQuality;
  Fits::Quality efficiencyQuality;
  Fits::Quality surgeQuality;
  /// How the published coefficients meet the measured points; not ok where either is missing.
  Fits::Quality publishedHeadQuality;
  Fits::Quality publishedEfficiencyQuality;

  /// Takes our own fits in place of given coefficients where enough points were measured; tells why not otherwise.
  Findings fit();
  /// Fitted ones as well as published ones are there.
  bool hasChoice() const;
  /// The same machine with the other functions.
  TurboCompressor by(FunctionSource source) const;
  bool isUsable() const { return head && speedMax > speedMin; }
  /// The flows between surge and choke line at a speed; nothing when the speed line lies in neither.
  std::optional<std::pair<double, double>> flows(double speed) const;
  /// Of the speeds that give the head at the flow those at which it grows with the speed, and of these the one nearest to
  /// the range of the machine; none where that is far beyond it, since the function was made for the range.
  std::optional<double> speedFor(double flow, double head) const;
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
  std::optional<Biquadratic> publishedPower;
  std::optional<Quadratic> publishedEnergy;
  std::optional<Biquadratic> fittedPower; ///< by us, as the following; empty where there are too few points
  std::optional<Quadratic> fittedEnergy;
  Fits::Quality powerQuality;
  Fits::Quality energyQuality;
  Fits::Quality publishedPowerQuality; ///< how the published coefficients meet the measured points

  Findings fit();
  bool hasChoice() const { return (publishedPower && powerQuality.ok) || (publishedEnergy && energyQuality.ok); }
  Drive by(FunctionSource source) const;
  bool isUsable() const { return power.has_value(); }
  /// The speeds of the measured points; nothing without two different ones.
  std::optional<std::pair<double, double>> speeds() const;
};

/// How the machines of a station work together: stages one behind the other, machines of a stage side by side.
struct StationConfiguration {
  struct Unit {
    QString compressor;
    double nominalSpeed = 0.0; ///< 1/min, 0 when it is not said
  };
  using Stage = std::vector<Unit>;

  QString station;
  QString name;
  std::vector<Stage> stages;
};

/// The machines of a scenario.
struct MachineData {
  static constexpr double UsualTemperature = 12.0; ///< degC

  double ambientTemperature = UsualTemperature; ///< degC, at which the drives work
  std::vector<TurboCompressor> turbos;
  std::vector<PistonCompressor> pistons;
  std::vector<Drive> drives;
  std::vector<StationConfiguration> configurations;
  ScenarioGas gas;
  FunctionSource source = FunctionSource::Fitted; ///< that all are computed with

  /// Has all machines and drives computed with these functions, where they have them.
  void use(FunctionSource wanted);
  /// Some machine has fitted functions and published ones.
  bool hasChoice() const;
  bool isEmpty() const { return turbos.empty() && pistons.empty() && drives.empty(); }
  /// Regardless of case; null when there is none.
  const TurboCompressor *turbo(const QString &name) const;
  const PistonCompressor *piston(const QString &name) const;
  const Drive *drive(const QString &name) const;
  /// The names of the compressors that stand in a station, in the order of the file.
  QStringList ofStation(const QString &station) const;
};
