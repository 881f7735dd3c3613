#include <QCoreApplication>

#include <algorithm>
#include <machines/machinedata.h>
#include <map>
#include <set>

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(MachineData)
};

Finding warning(const QString &machine, const QString &text) {
  return Finding::about(machine, machine + QStringLiteral(": ") + text);
}

template <typename Machine>
const Machine *named(const std::vector<Machine> &machines, const QString &name) {
  for (const Machine &machine : machines) {
    if (machine.name.compare(name, Qt::CaseInsensitive) == 0)
      return &machine;
  }
  return nullptr;
}

/// Takes a fit of the points in place of what is given; says why there is none when points were measured.
template <typename Function>
void take(const QString &machine, const QString &what, const std::vector<FitPoint> &points,
          std::optional<Function> &function, Fits::Quality &quality, Findings &findings) {
  if (points.empty())
    return;
  Function fitted;
  quality = Fits::fit(points, fitted);
  if (quality.ok)
    function = fitted;
  else
    findings.push_back(warning(machine, Texts::tr("no fit of the %1: %2").arg(what, quality.reason)));
}

/// The same for power limits. What was measured at one temperature, as where it does not matter, is a function of the speed
/// alone.
void takePower(const QString &drive, const std::vector<FitPoint> &points, std::optional<Biquadratic> &power,
               Fits::Quality &quality, Findings &findings) {
  const QString what = Texts::tr("power limit");
  const bool isAtOneTemperature =
      std::all_of(points.begin(), points.end(), [&points](const FitPoint &point) { return point.x == points.front().x; });
  if (!isAtOneTemperature) {
    take(drive, what, points, power, quality, findings);
    return;
  }
  std::vector<FitPoint> bySpeed;
  bySpeed.reserve(points.size());
  for (const FitPoint &point : points)
    bySpeed.push_back({point.y, 0.0, point.z});
  std::optional<Quadratic> overSpeed;
  take(drive, what, bySpeed, overSpeed, quality, findings);
  if (overSpeed) {
    power = Biquadratic();
    std::copy(overSpeed->c.begin(), overSpeed->c.end(), power->c.begin());
  }
}

/// The points that a machine can have; tells of the others.
std::vector<MeasuredPoint> soundOnes(const QString &name, const std::vector<MeasuredPoint> &points, Findings &findings) {
  std::vector<MeasuredPoint> sound;
  for (const MeasuredPoint &point : points) {
    if (point.speed > 0.0 && point.flow > 0.0 && point.head > 0.0 && point.efficiency >= 0.0 && point.efficiency <= 1.0)
      sound.push_back(point);
    else
      findings.push_back(warning(name, Texts::tr("a point is left out: speed %1, flow %2, head %3, efficiency %4")
                                           .arg(point.speed)
                                           .arg(point.flow)
                                           .arg(point.head)
                                           .arg(point.efficiency)));
  }
  return sound;
}

/// A choke line where nobody measured one: along the largest flows that were measured.
std::optional<Quadratic> alongLargestFlows(const std::vector<FitPoint> &heads) {
  std::map<double, FitPoint> last; // by speed
  for (const FitPoint &point : heads) {
    FitPoint &largest = last[point.y];
    if (point.x > largest.x)
      largest = {point.x, 0.0, point.z};
  }
  std::vector<FitPoint> chokes;
  chokes.reserve(last.size());
  for (const auto &entry : last)
    chokes.push_back(entry.second);
  Quadratic fitted;
  return Fits::fit(chokes, fitted).ok ? std::optional<Quadratic>(fitted) : std::nullopt;
}

} // namespace

Findings TurboCompressor::fit() {
  Findings findings;
  std::vector<FitPoint> heads;
  std::vector<FitPoint> efficiencies;
  std::vector<FitPoint> surges;
  std::set<double> speeds;
  for (const MeasuredPoint &point : soundOnes(name, points, findings)) {
    heads.push_back({point.flow, point.speed, point.head});
    if (point.efficiency > 0.0)
      efficiencies.push_back({point.flow, point.speed, point.efficiency});
    speeds.insert(point.speed);
  }
  for (const MeasuredPoint &point : soundOnes(name, surgePoints, findings)) {
    surges.push_back({point.flow, 0.0, point.head});
    heads.push_back({point.flow, point.speed, point.head});
  }
  published = {head, efficiency, surge, choke};
  take(name, Texts::tr("head"), heads, head, headQuality, findings);
  take(name, Texts::tr("efficiency"), efficiencies, efficiency, efficiencyQuality, findings);
  take(name, Texts::tr("surge line"), surges, surge, surgeQuality, findings);
  if (published.head)
    publishedHeadQuality = Fits::compare(heads, *published.head);
  if (published.efficiency)
    publishedEfficiencyQuality = Fits::compare(efficiencies, *published.efficiency);
  if (!choke)
    choke = alongLargestFlows(heads);
  if (speedMax <= speedMin && speeds.size() > 1) {
    speedMin = *speeds.begin();
    speedMax = *speeds.rbegin();
  }
  if (!head)
    findings.push_back(warning(name, Texts::tr("there are neither coefficients nor enough points for its map")));
  if (headQuality.ok)
    fitted.head = head;
  if (efficiencyQuality.ok)
    fitted.efficiency = efficiency;
  if (surgeQuality.ok)
    fitted.surge = surge;
  return findings;
}

bool TurboCompressor::hasChoice() const {
  return (published.head && fitted.head) || (published.efficiency && fitted.efficiency) || (published.surge && fitted.surge);
}

TurboCompressor TurboCompressor::by(FunctionSource source) const {
  TurboCompressor machine = *this;
  const Functions &chosen = source == FunctionSource::Published ? published : fitted;
  const auto take = [](auto &target, const auto &other) {
    if (other)
      target = other;
  };
  take(machine.head, chosen.head);
  take(machine.efficiency, chosen.efficiency);
  take(machine.surge, chosen.surge);
  return machine;
}

std::optional<std::pair<double, double>> TurboCompressor::flows(double speed) const {
  if (!head)
    return std::nullopt;
  const Quadratic line = head->inX(speed);
  const auto crossing = [&line](const Quadratic &bound) {
    const Quadratic difference{{line.c[0] - bound.c[0], line.c[1] - bound.c[1], line.c[2] - bound.c[2]}};
    double found = -1.0;
    for (const double flow : Fits::solve(difference, 0.0)) {
      if (flow > 0.0 && (found < 0.0 || flow < found))
        found = flow;
    }
    return found;
  };
  // Without lines of its own the speed line ends where it has no head.
  double first = surge ? crossing(*surge) : 0.0;
  double last = choke ? crossing(*choke) : -1.0;
  if (last < 0.0) {
    for (const double flow : Fits::solve(line, 0.0))
      last = std::max(last, flow);
  }
  first = std::max(first, 0.0);
  if (!(last > first))
    return std::nullopt;
  return std::make_pair(first, last);
}

std::optional<double> TurboCompressor::speedFor(double flow, double value) const {
  constexpr double FarthestSpeed = 2.0; // times the largest
  if (!head)
    return std::nullopt;
  const Quadratic heads = head->inY(flow);
  const auto distance = [this](double speed) {
    return std::max({0.0, speedMin - speed, speed - speedMax});
  };
  std::optional<double> best;
  for (const double speed : Fits::solve(heads, value)) {
    const bool isPossible = speed > 0.0 && speed <= FarthestSpeed * speedMax && heads.c[1] + 2.0 * heads.c[2] * speed > 0.0;
    if (isPossible && (!best || distance(speed) < distance(*best)))
      best = speed;
  }
  return best;
}

Findings Drive::fit() {
  Findings findings;
  std::vector<FitPoint> powers;
  for (const PowerPoint &point : powerPoints)
    powers.push_back({point.temperature, point.speed, point.power});
  std::vector<FitPoint> rates;
  for (const EnergyPoint &point : energyPoints)
    rates.push_back({point.power, 0.0, point.rate});
  publishedPower = power;
  publishedEnergy = energy;
  if (power)
    publishedPowerQuality = Fits::compare(powers, *power);
  takePower(name, powers, power, powerQuality, findings);
  take(name, Texts::tr("energy rate"), rates, energy, energyQuality, findings);
  fittedPower = powerQuality.ok ? power : std::nullopt;
  fittedEnergy = energyQuality.ok ? energy : std::nullopt;
  if (!power)
    findings.push_back(warning(name, Texts::tr("there are neither coefficients nor enough points for its power limit")));
  return findings;
}

Drive Drive::by(FunctionSource source) const {
  Drive drive = *this;
  const bool isPublished = source == FunctionSource::Published;
  if (const auto &chosen = isPublished ? publishedPower : fittedPower)
    drive.power = chosen;
  if (const auto &chosen = isPublished ? publishedEnergy : fittedEnergy)
    drive.energy = chosen;
  return drive;
}

std::optional<std::pair<double, double>> Drive::speeds() const {
  const auto ends = std::minmax_element(powerPoints.begin(), powerPoints.end(),
                                        [](const PowerPoint &a, const PowerPoint &b) { return a.speed < b.speed; });
  if (powerPoints.empty() || !(ends.second->speed > ends.first->speed))
    return std::nullopt;
  return std::make_pair(ends.first->speed, ends.second->speed);
}

void MachineData::use(FunctionSource wanted) {
  source = wanted;
  for (TurboCompressor &turbo : turbos)
    turbo = turbo.by(wanted);
  for (Drive &drive : drives)
    drive = drive.by(wanted);
}

bool MachineData::hasChoice() const {
  const auto has = [](const auto &machine) {
    return machine.hasChoice();
  };
  return std::any_of(turbos.begin(), turbos.end(), has) || std::any_of(drives.begin(), drives.end(), has);
}

const TurboCompressor *MachineData::turbo(const QString &name) const {
  return named(turbos, name);
}

QStringList MachineData::ofStation(const QString &station) const {
  QStringList names;
  const auto take = [&](const auto &machines) {
    for (const auto &machine : machines) {
      if (!machine.station.isEmpty() && machine.station.compare(station, Qt::CaseInsensitive) == 0)
        names.append(machine.name);
    }
  };
  take(turbos);
  take(pistons);
  return names;
}

const PistonCompressor *MachineData::piston(const QString &name) const {
  return named(pistons, name);
}

const Drive *MachineData::drive(const QString &name) const {
  return named(drives, name);
}
