#include <QCoreApplication>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <machines/workingpoint.h>

namespace {

constexpr double SecondsPerMinute = 60.0;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(WorkingPoint)
};

QString speedRemark(bool isBelow) {
  return isBelow ? Texts::tr("The speed is below the smallest.") : Texts::tr("The speed is above the largest.");
}

} // namespace

std::optional<double> WorkingPoint::largestRatio(const PistonCompressor &machine, double speed, const Drive *drive,
                                                 const Compression &compression, double ambientTemperature) {
  std::optional<double> largest;
  const auto take = [&largest](double ratio) {
    largest = largest ? std::min(*largest, ratio) : ratio;
  };
  if (machine.maximalRatio > 0.0)
    take(machine.maximalRatio);
  const double massPerTurn = compression.density() * machine.displacement; // kg
  if (machine.efficiency > 0.0 && machine.maximalTorque > 0.0)
    take(compression.ratioOf(machine.maximalTorque * 2.0 * M_PI * machine.efficiency / massPerTurn));
  if (machine.efficiency > 0.0 && drive != nullptr && drive->power && speed > 0.0) {
    const double power = std::max(0.0, (*drive->power)(ambientTemperature, speed));
    take(compression.ratioOf(power * machine.efficiency / (massPerTurn * speed / SecondsPerMinute)));
  }
  return largest;
}

WorkingPoint::WorkingPoint(const Compression &compression)
    : flow(compression.volumeFlow())
    , ratio(compression.ratio())
    , realGasFactor(compression.realGasFactor())
    , exponent(compression.exponent())
    , massFlow(compression.massFlow) {
  head = compression.adiabaticHead(exponent);
  judgeMode(compression);
}

void WorkingPoint::judgeMode(const Compression &compression) {
  constexpr double LossOfBypass = 0.01; // of the pressure
  if (!std::isfinite(flow) || !std::isfinite(head)) {
    flow = head = 0.0;
    mode = Mode::NotCompressing;
    remarks.append(Texts::tr("The gas law does not hold at these pressures and this temperature."));
  } else if (compression.isReversed) {
    mode = Mode::Backwards;
    remarks.append(Texts::tr("The gas flows backwards through the machine: it does not compress."));
  } else if (ratio <= 1.0 && ratio >= 1.0 - LossOfBypass) {
    mode = Mode::Bypass;
    remarks.append(Texts::tr("Bypass: the gas passes without being compressed."));
  } else if (ratio < 1.0) {
    mode = Mode::NotCompressing;
    remarks.append(Texts::tr("Not compressing: the pressure at the outlet is below that at the inlet."));
  }
}

void WorkingPoint::exceed(const QString &remark) {
  isInside = false;
  remarks.append(remark);
}

void WorkingPoint::takeDrive(const Drive *drive, const Compression &compression, double ambientTemperature) {
  if (efficiency && *efficiency > 0.0) {
    power = massFlow * head / *efficiency;
    outletTemperature = compression.outletTemperature(*efficiency, head);
  }
  if (drive == nullptr || !power)
    return;
  if (drive->energy)
    energyRate = (*drive->energy)(*power);
  const bool burnsGas = drive->kind == Drive::Kind::GasTurbine || drive->kind == Drive::Kind::GasEngine;
  constexpr double ThousandPerHour = 3600.0 / 1e6; // MJ/h and 1000 m3/h from kW and m3/h
  if (burnsGas && energyRate && compression.fuelValue > 0.0)
    fuelFlow = ThousandPerHour * *energyRate / compression.fuelValue;
  if (drive->power && speed)
    powerLimit = (*drive->power)(ambientTemperature, *speed);
  if (powerLimit)
    margins.power = *powerLimit - *power;
  if (powerLimit && *power > *powerLimit)
    exceed(Texts::tr("The drive cannot give this power."));
}

void WorkingPoint::judgeMap(const TurboCompressor &machine) {
  isInside = true;
  if (*speed < machine.speedMin || *speed > machine.speedMax)
    exceed(speedRemark(*speed < machine.speedMin));
  const auto flows = machine.flows(*speed);
  if (flows && flow < flows->first)
    exceed(Texts::tr("The point lies beyond the surge line."));
  else if (!flows || flow > flows->second)
    exceed(Texts::tr("The point lies beyond the choke line."));
}

WorkingPoint WorkingPoint::of(const TurboCompressor &machine, const Drive *drive, const Compression &compression,
                              double ambientTemperature) {
  WorkingPoint point(compression);
  if (!point.isCompressing())
    return point;
  if (!machine.head) {
    point.remarks.append(Texts::tr("The machine has no map."));
    return point;
  }
  point.speed = machine.speedFor(point.flow, point.head);
  if (!point.speed) {
    point.remarks.append(Texts::tr("No speed gives this head at this flow."));
    return point;
  }
  point.judgeMap(machine);
  point.margins = MachineMargins::of(machine, point.flow, point.head, *point.speed);
  const double efficiency = machine.efficiency ? (*machine.efficiency)(point.flow, *point.speed) : 0.0;
  if (efficiency > 0.0 && efficiency <= 1.0) // far from the map the function says anything
    point.efficiency = efficiency;
  else if (machine.efficiency)
    point.remarks.append(Texts::tr("The map tells no efficiency here."));
  point.takeDrive(drive, compression, ambientTemperature);
  return point;
}

WorkingPoint WorkingPoint::of(const PistonCompressor &machine, const Drive *drive, const Compression &compression,
                              double ambientTemperature) {
  WorkingPoint point(compression);
  if (!point.isCompressing())
    return point;
  if (!machine.isUsable()) {
    point.remarks.append(Texts::tr("The machine has no displacement."));
    return point;
  }
  point.isInside = true;
  point.speed = machine.speed(point.flow);
  point.margins = MachineMargins::of(machine, *point.speed);
  if (*point.speed < machine.speedMin || *point.speed > machine.speedMax)
    point.exceed(speedRemark(*point.speed < machine.speedMin));
  if (machine.maximalRatio > 0.0 && point.ratio > machine.maximalRatio)
    point.exceed(Texts::tr("The pressure ratio is above the largest."));
  if (machine.efficiency > 0.0)
    point.efficiency = machine.efficiency;
  point.takeDrive(drive, compression, ambientTemperature);
  const double torque = point.power ? *point.power / (2.0 * M_PI * *point.speed / SecondsPerMinute) : 0.0; // kNm
  if (machine.maximalTorque > 0.0 && torque > machine.maximalTorque)
    point.exceed(Texts::tr("The torque is above the largest."));
  return point;
}
