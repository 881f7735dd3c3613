#include <algorithm>
#include <array>
#include <cmath>
#include <machines/stationreach.h>
#include <machines/workingpoint.h>

namespace {

constexpr double LargestRatio = 6.0; // of a stage
constexpr int HeadSteps = 25;
constexpr int RatioSteps = 60;
constexpr int FlowSteps = 48;
constexpr int PressureSteps = 12; // of the inlets of later stages
constexpr int MassSteps = 60;
constexpr int Halvings = 20;

/// Where a condition that holds at one end and not at the other changes: the last place at which it holds.
template <typename Holds>
double edge(double holding, double failing, const Holds &holds) {
  for (int i = 0; i < Halvings; ++i) {
    const double middle = 0.5 * (holding + failing);
    (holds(middle) ? holding : failing) = middle;
  }
  return holding;
}

} // namespace

/// A state in front of a stage, and what head it takes to reach a ratio from there.
struct StationReach::Inlet {
  explicit Inlet(Compression from)
      : compression(std::move(from))
      , density(compression.density()) {
    for (int i = 0; i < HeadSteps; ++i)
      heads[static_cast<std::size_t>(i)] = compression.withRatio(1.0, ratioOf(i)).adiabaticHead();
  }

  static double ratioOf(int i) { return std::pow(LargestRatio, static_cast<double>(i) / (HeadSteps - 1)); }

  /// Between the points a cubic over the logarithm of the ratio, through the four beside it.
  double head(double ratio) const {
    const double at = std::log(ratio) / std::log(LargestRatio) * (HeadSteps - 1);
    const int first = std::clamp(static_cast<int>(at) - 1, 0, HeadSteps - 4);
    double sum = 0.0;
    for (int i = first; i < first + 4; ++i) {
      double weight = 1.0;
      for (int other = first; other < first + 4; ++other)
        weight *= other == i ? 1.0 : (at - other) / (i - other);
      sum += weight * heads[static_cast<std::size_t>(i)];
    }
    return sum;
  }

  Compression compression;
  double density; ///< kg/m3
  std::array<double, HeadSteps> heads{};
};

StationReach::StationReach(const MachineData &data, Drives drives, const Compression &inlet)
    : m_data(data)
    , m_drives(std::move(drives))
    , m_inlet(inlet) {}

StationReach::~StationReach() = default;

const StationReach::Inlet &StationReach::inletAt(double pressure) {
  std::unique_ptr<Inlet> &inlet = m_inlets[pressure];
  if (inlet == nullptr) {
    Compression from = m_inlet;
    if (pressure != m_inlet.inletPressure)
      from.inletDensity = 0.0; // the network states it at the inlet of the station only
    from.inletPressure = pressure;
    inlet = std::make_unique<Inlet>(std::move(from));
  }
  return *inlet;
}

bool StationReach::contains(const QString &machine, const Inlet &inlet, double ratio, double head, double flow) const {
  const Drive *drive = m_drives(machine);
  double speed = 0.0;
  double efficiency = 0.0;
  if (const TurboCompressor *turbo = m_data.turbo(machine)) {
    const auto found = turbo->speedFor(flow, head);
    if (!found || *found < turbo->speedMin || *found > turbo->speedMax)
      return false;
    const auto bounds = turbo->flows(*found);
    if (!bounds || flow < bounds->first || flow > bounds->second)
      return false;
    speed = *found;
    efficiency = turbo->efficiency ? (*turbo->efficiency)(flow, speed) : 0.0;
  } else if (const PistonCompressor *piston = m_data.piston(machine)) {
    speed = piston->speed(flow);
    const auto largest = WorkingPoint::largestRatio(*piston, speed, nullptr, inlet.compression, m_data.ambientTemperature);
    if (speed < piston->speedMin || speed > piston->speedMax || (largest && ratio > *largest))
      return false;
    efficiency = piston->efficiency;
  }
  if (drive == nullptr || !drive->power || !(efficiency > 0.0 && efficiency <= 1.0))
    return speed > 0.0;
  return inlet.density * flow * head / efficiency <= (*drive->power)(m_data.ambientTemperature, speed);
}

/// m3/s at the machine's own inlet.
std::optional<StationReach::Range> StationReach::flows(const StationConfiguration::Unit &unit, const Inlet &inlet,
                                                       double ratio) const {
  double last = 0.0;
  if (const TurboCompressor *turbo = m_data.turbo(unit.compressor)) {
    const auto ends = turbo->flows(turbo->speedMax);
    last = ends ? ends->second : 0.0;
  } else if (const PistonCompressor *piston = m_data.piston(unit.compressor)) {
    last = piston->flow(piston->speedMax);
  }
  const double head = inlet.head(ratio);
  const auto holds = [&](double flow) {
    return contains(unit.compressor, inlet, ratio, head, flow);
  };
  constexpr double Beyond = 1.02;
  const double step = Beyond * last / FlowSteps;
  int first = 1;
  while (first <= FlowSteps && !holds(first * step))
    ++first;
  if (!(step > 0.0) || first > FlowSteps)
    return std::nullopt;
  int end = FlowSteps;
  while (!holds(end * step))
    --end;
  return Range{edge(first * step, (first - 1) * step, holds), edge(end * step, (end + 1) * step, holds)};
}

std::optional<StationReach::Row> StationReach::row(const StationConfiguration::Stage &stage, const Inlet &inlet,
                                                   double ratio) const {
  Row sum{ratio, 0.0, 0.0};
  for (const StationConfiguration::Unit &unit : stage) {
    const auto range = flows(unit, inlet, ratio);
    if (!range)
      return std::nullopt;
    sum.least += range->low * inlet.density;
    sum.most += range->high * inlet.density;
  }
  return sum;
}

StationReach::Rows StationReach::rows(const StationConfiguration::Stage &stage, const Inlet &inlet) const {
  const auto works = [&](double ratio) {
    return row(stage, inlet, ratio).has_value();
  };
  const auto ratioOf = [](int i) {
    return std::pow(LargestRatio, static_cast<double>(i) / RatioSteps);
  };
  int first = 1;
  while (first <= RatioSteps && !works(ratioOf(first)))
    ++first;
  if (first > RatioSteps)
    return {};
  int last = RatioSteps;
  while (!works(ratioOf(last)))
    --last;
  const double low = edge(ratioOf(first), ratioOf(first - 1), works);
  const double high = last == RatioSteps ? LargestRatio : edge(ratioOf(last), ratioOf(last + 1), works);
  Rows found;
  found.reserve(RatioSteps + 1);
  for (int i = 0; i <= RatioSteps; ++i) {
    if (const auto one = row(stage, inlet, low + (high - low) * i / RatioSteps))
      found.push_back(*one);
  }
  return found;
}

std::optional<StationReach::Range> StationReach::ratios(const Rows &rows, double massFlow) {
  std::optional<Range> range;
  const auto take = [&range](double ratio) {
    range = range ? Range{std::min(range->low, ratio), std::max(range->high, ratio)} : Range{ratio, ratio};
  };
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (massFlow >= rows[i].least && massFlow <= rows[i].most)
      take(rows[i].ratio);
    for (const auto bound : {&Row::least, &Row::most}) { // where the outline crosses the flow between two rows
      if (i == 0)
        continue;
      const double before = rows[i - 1].*bound - massFlow;
      const double here = rows[i].*bound - massFlow;
      if (before * here < 0.0)
        take(rows[i - 1].ratio + (rows[i].ratio - rows[i - 1].ratio) * before / (before - here));
    }
  }
  return range;
}

/// The ratios that all stages reach together. The pressures between stages are taken at those for which there are rows.
std::optional<StationReach::Range> StationReach::through(const std::vector<std::map<double, Rows>> &stages,
                                                         double massFlow) const {
  Range pressures{m_inlet.inletPressure, m_inlet.inletPressure};
  for (const std::map<double, Rows> &stage : stages) {
    std::optional<Range> behind;
    bool hasBefore = false; // whether there is a row of pressures below, and which
    std::pair<double, Range> before;
    const auto take = [&behind](double pressure, const Range &ratios) {
      const Range reached{pressure * ratios.low, pressure * ratios.high};
      behind = behind ? Range{std::min(behind->low, reached.low), std::max(behind->high, reached.high)} : reached;
    };
    for (const auto &[pressure, rows] : stage) {
      const auto own = ratios(rows, massFlow);
      if (own && pressure >= pressures.low && pressure <= pressures.high)
        take(pressure, *own);
      for (const double end : {pressures.low, pressures.high}) {
        if (!own || !hasBefore || !(end > before.first && end < pressure))
          continue;
        const double part = (end - before.first) / (pressure - before.first);
        take(end, {before.second.low + part * (own->low - before.second.low),
                   before.second.high + part * (own->high - before.second.high)});
      }
      hasBefore = own.has_value();
      if (own)
        before = {pressure, *own};
    }
    if (!behind)
      return std::nullopt;
    pressures = *behind;
  }
  return Range{pressures.low / m_inlet.inletPressure, pressures.high / m_inlet.inletPressure};
}

QVector<QPointF> StationReach::outline(const StationConfiguration &configuration) {
  std::vector<std::map<double, Rows>> stages;
  Range pressures{m_inlet.inletPressure, m_inlet.inletPressure};
  for (const StationConfiguration::Stage &stage : configuration.stages) {
    std::map<double, Rows> all;
    Range behind{HUGE_VAL, 0.0};
    const int steps = stages.empty() ? 0 : PressureSteps;
    for (int i = 0; i <= steps; ++i) {
      const double pressure = steps == 0
                                  ? pressures.low
                                  : pressures.low * std::pow(pressures.high / pressures.low, static_cast<double>(i) / steps);
      Rows found = rows(stage, inletAt(pressure));
      if (found.empty())
        continue;
      behind.low = std::min(behind.low, pressure * found.front().ratio);
      behind.high = std::max(behind.high, pressure * found.back().ratio);
      all.emplace(pressure, std::move(found));
    }
    if (all.empty())
      return {};
    stages.push_back(std::move(all));
    pressures = behind;
  }
  if (stages.empty())
    return {};
  const double density = inletAt(m_inlet.inletPressure).density;
  QVector<QPointF> left; // or the lower line
  QVector<QPointF> right;
  const Rows &first = stages.front().begin()->second;
  if (stages.size() == 1) {
    for (const Row &row : first) {
      left.append(QPointF(row.least / density, row.ratio));
      right.append(QPointF(row.most / density, row.ratio));
    }
  } else {
    Range masses{HUGE_VAL, 0.0};
    for (const Row &row : first)
      masses = {std::min(masses.low, row.least), std::max(masses.high, row.most)};
    for (int i = 0; i <= MassSteps; ++i) {
      const double mass = masses.low + (masses.high - masses.low) * i / MassSteps;
      if (const auto range = through(stages, mass)) {
        left.append(QPointF(mass / density, range->low));
        right.append(QPointF(mass / density, range->high));
      }
    }
  }
  std::reverse(right.begin(), right.end());
  left += right;
  return left;
}
