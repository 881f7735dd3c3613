#include <characteristics/workingpoint.h>

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace {

constexpr double GasConstant = 8.314462618; // kJ/(kmol K)
constexpr double KiloPascalPerBar = 100.0;
constexpr double NormFlowsPerSecond = 1000.0 / 3600.0; // from 1000 m3/h
constexpr double SecondsPerMinute = 60.0;
constexpr double Pi = 3.14159265358979323846;

QString tr(const char *text) {
  return QCoreApplication::translate("WorkingPoint", text);
}

double value(const NetData &net, const element &e, const char *property) {
  const double number = net.value(e, PropertyKey::find(property));
  return number == NetData::NoValue ? 0.0 : number;
}

/// Gas data stand at the supplies; networks of one gas say them once.
const element *gasSource(const NetData &net) {
  static const PropertyKey density = PropertyKey::intern("rhon");
  for (const elements::Entry &entry : net.nodes()) {
    if (entry.value.find(density) != nullptr)
      return &entry.value;
  }
  return nullptr;
}

QString speedRemark(bool isBelow) {
  return isBelow ? tr("The speed is below the smallest.") : tr("The speed is above the largest.");
}

/// Of the speeds that give the head those at which it grows with the speed, and of these the one nearest to the range of the
/// machine; none where that is far beyond it, since the function was made for the range.
std::optional<double> speedFor(const TurboCompressor &machine, double flow, double head) {
  constexpr double Farthest = 2.0; // largest speeds
  const Quadratic heads = machine.head->inY(flow);
  const auto distance = [&machine](double speed) {
    return std::max({0.0, machine.speedMin - speed, speed - machine.speedMax});
  };
  std::optional<double> best;
  for (const double speed : Fits::solve(heads, head)) {
    const bool isPossible =
        speed > 0.0 && speed <= Farthest * machine.speedMax && heads.c[1] + 2.0 * heads.c[2] * speed > 0.0;
    if (isPossible && (!best || distance(speed) < distance(*best)))
      best = speed;
  }
  return best;
}

} // namespace

std::optional<Compression> Compression::of(const NetData &net, const element &compressor) {
  const element *inlet = net.nodes().find(compressor.value(QStringLiteral("node1")));
  const element *outlet = net.nodes().find(compressor.value(QStringLiteral("node2")));
  if (inlet == nullptr || outlet == nullptr)
    return std::nullopt;
  Compression c;
  c.inletPressure = value(net, *inlet, "p");
  c.outletPressure = value(net, *outlet, "p");
  c.inletDensity = value(net, *inlet, "rho");
  const double temperature = value(net, *inlet, "t");
  if (temperature > 0.0)
    c.inletTemperature = temperature;
  if (const element *gas = gasSource(net)) {
    c.normDensity = value(net, *gas, "rhon");
    c.calorificValue = value(net, *gas, "hs");
    const auto take = [&](double &target, const char *property) {
      const double number = value(net, *gas, property);
      if (number > 0.0)
        target = number;
    };
    take(c.molarMass, "molarmass");
    take(c.criticalPressure, "pcrit");
    take(c.criticalTemperature, "tcrit");
    constexpr double DiatomicBelow = 5.0; // kg/kmol: hydrogen
    if (c.molarMass < DiatomicBelow)
      c.exponent = 1.405;
  }
  c.massFlow = value(net, compressor, "m");
  if (c.massFlow == 0.0)
    c.massFlow = value(net, compressor, "q") * NormFlowsPerSecond * c.normDensity;
  c.isReversed = c.massFlow < 0.0;
  c.massFlow = std::abs(c.massFlow);
  if (!(c.massFlow > 0.0 && c.inletPressure > 0.0 && c.outletPressure > 0.0))
    return std::nullopt;
  return c;
}

double Compression::realGasFactor() const {
  if (inletDensity > 0.0)
    return inletPressure * KiloPascalPerBar * molarMass / (inletDensity * GasConstant * inletTemperature);
  const double pr = inletPressure / criticalPressure;
  const double tr = inletTemperature / criticalTemperature;
  return 1.0 - 3.52 * pr * std::exp(-2.26 * tr) + 0.247 * pr * pr * std::exp(-1.878 * tr);
}

double Compression::density() const {
  return inletDensity > 0.0
             ? inletDensity
             : inletPressure * KiloPascalPerBar * molarMass / (realGasFactor() * GasConstant * inletTemperature);
}

double Compression::volumeFlow() const {
  return massFlow / density();
}

double Compression::adiabaticHead() const {
  const double k = (exponent - 1.0) / exponent;
  return realGasFactor() * GasConstant / molarMass * inletTemperature / k * (std::pow(ratio(), k) - 1.0);
}

double Compression::ratioOf(double head) const {
  const double k = (exponent - 1.0) / exponent;
  return std::pow(1.0 + head * k * molarMass / (realGasFactor() * GasConstant * inletTemperature), 1.0 / k);
}

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
    take(compression.ratioOf(machine.maximalTorque * 2.0 * Pi * machine.efficiency / massPerTurn));
  if (machine.efficiency > 0.0 && drive != nullptr && drive->power && speed > 0.0) {
    const double power = std::max(0.0, (*drive->power)(ambientTemperature, speed));
    take(compression.ratioOf(power * machine.efficiency / (massPerTurn * speed / SecondsPerMinute)));
  }
  return largest;
}

WorkingPoint::WorkingPoint(const Compression &compression)
    : flow(compression.volumeFlow())
    , head(compression.adiabaticHead())
    , ratio(compression.ratio()) {}

void WorkingPoint::judgeDirection(const Compression &compression) {
  if (!compression.isReversed)
    return;
  isInside = false;
  remark = tr("The gas flows backwards through the machine.");
}

void WorkingPoint::takeDrive(const Drive *drive, double massFlow, double ambientTemperature) {
  if (efficiency && *efficiency > 0.0)
    power = massFlow * head / *efficiency;
  if (drive == nullptr || !power)
    return;
  if (drive->energy)
    energyRate = (*drive->energy)(*power);
  if (drive->power && speed)
    powerLimit = (*drive->power)(ambientTemperature, *speed);
  if (powerLimit && *power > *powerLimit) {
    isInside = false;
    remark = tr("The drive cannot give this power.");
  }
}

WorkingPoint WorkingPoint::of(const TurboCompressor &machine, const Drive *drive, const Compression &compression,
                              double ambientTemperature) {
  WorkingPoint point(compression);
  if (!machine.head) {
    point.remark = tr("The machine has no map.");
    return point;
  }
  point.speed = speedFor(machine, point.flow, point.head);
  if (!point.speed) {
    point.remark = tr("No speed gives this head at this flow.");
    return point;
  }
  const auto flows = machine.flows(*point.speed);
  const bool isSpeedInside = *point.speed >= machine.speedMin && *point.speed <= machine.speedMax;
  point.isInside = isSpeedInside && flows && point.flow >= flows->first && point.flow <= flows->second;
  if (!isSpeedInside)
    point.remark = speedRemark(*point.speed < machine.speedMin);
  else if (!point.isInside)
    point.remark = flows && point.flow < flows->first ? tr("The point lies beyond the surge line.")
                                                      : tr("The point lies beyond the choke line.");
  const double efficiency = machine.efficiency ? (*machine.efficiency)(point.flow, *point.speed) : 0.0;
  if (efficiency > 0.0 && efficiency <= 1.0) // far from the map the function says anything
    point.efficiency = efficiency;
  point.takeDrive(drive, compression.massFlow, ambientTemperature);
  point.judgeDirection(compression);
  return point;
}

WorkingPoint WorkingPoint::of(const PistonCompressor &machine, const Drive *drive, const Compression &compression,
                              double ambientTemperature) {
  WorkingPoint point(compression);
  if (!machine.isUsable()) {
    point.remark = tr("The machine has no displacement.");
    return point;
  }
  point.speed = machine.speed(point.flow);
  point.isInside = *point.speed >= machine.speedMin && *point.speed <= machine.speedMax;
  if (!point.isInside)
    point.remark = speedRemark(*point.speed < machine.speedMin);
  if (machine.maximalRatio > 0.0 && point.ratio > machine.maximalRatio) {
    point.isInside = false;
    point.remark = tr("The pressure ratio is above the largest.");
  }
  if (machine.efficiency > 0.0)
    point.efficiency = machine.efficiency;
  point.takeDrive(drive, compression.massFlow, ambientTemperature);
  const double torque = point.power ? *point.power / (2.0 * Pi * *point.speed / SecondsPerMinute) : 0.0; // kNm
  if (machine.maximalTorque > 0.0 && torque > machine.maximalTorque) {
    point.isInside = false;
    point.remark = tr("The torque is above the largest.");
  }
  point.judgeDirection(compression);
  return point;
}
