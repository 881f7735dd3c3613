#include "mapplot.h"

#include "shownnumber.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int Steps = 60;

MapQuantity flowUnit() {
  return MapQuantity(QStringLiteral("m³/s"));
}
MapQuantity headUnit() {
  return MapQuantity(QStringLiteral("kJ/kg"));
}
MapQuantity speedUnit() {
  return MapQuantity(QStringLiteral("1/min"));
}
MapQuantity powerUnit() {
  return MapQuantity(QStringLiteral("kW"));
}
MapQuantity temperatureUnit() {
  return MapQuantity(QStringLiteral("°C"));
}

/// At a line of one speed: "5000 /min".
QString speedLabel(double speed) {
  const MapQuantity quantity = speedUnit();
  return quantity.number(speed) + QLatin1Char(' ') + quantity.unit().mid(1);
}

/// The working point in two lines.
QString pointText(const std::optional<WorkingPoint> &point) {
  if (!point)
    return MapPlot::tr("no working point");
  if (!point->isCompressing())
    return point->remarks.value(0);
  const QString coordinates = MapPlot::tr("Q = %1, H = %2").arg(flowUnit().text(point->flow), headUnit().text(point->head));
  QStringList parts;
  if (point->speed)
    parts.append(MapPlot::tr("n = %1").arg(speedUnit().text(*point->speed)));
  if (point->efficiency)
    parts.append(MapPlot::tr("η = %1 %").arg(shownNumber(100.0 * *point->efficiency, 3)));
  if (point->power)
    parts.append(MapPlot::tr("P = %1").arg(powerUnit().text(*point->power)));
  return coordinates + QLatin1Char('\n') + parts.join(QStringLiteral(", ")); // a dock is narrower than all in one line
}

QString heading(const QString &name, const std::optional<WorkingPoint> &point) {
  return name + QLatin1Char('\n') + pointText(point);
}

/// "CS1: T1", or the name alone where it stands in no station.
QString machineName(const QString &station, const QString &name) {
  return station.isEmpty() ? name : station + QStringLiteral(": ") + name;
}

} // namespace

/// Points of equal efficiency, speed by speed: the efficiency is quadratic in the flow, so each speed has two of them.
void MapPlot::addEfficiencies(const TurboCompressor &machine, const QPointF &corner) {
  if (!machine.efficiency)
    return;
  constexpr double Beside = 0.15; // of the corner's own coordinates
  const auto isBeside = [&corner](const QPointF &at) {
    return std::abs(at.x() - corner.x()) < Beside * corner.x() && std::abs(at.y() - corner.y()) < Beside * corner.y();
  };
  for (int percent = 50; percent < 95; percent += 5) {
    QVector<QPointF> rising;
    QVector<QPointF> falling;
    for (int i = 0; i <= Steps; ++i) {
      const double speed = machine.speedMin + (machine.speedMax - machine.speedMin) * i / Steps;
      const auto flows = machine.flows(speed);
      const Quadratic line = machine.efficiency->inX(speed);
      for (const double flow : Fits::solve(line, percent / 100.0)) {
        if (!flows || flow < flows->first || flow > flows->second)
          continue;
        const bool isRising = line.c[1] + 2.0 * line.c[2] * flow > 0.0;
        (isRising ? rising : falling).append(QPointF(flow, (*machine.head)(flow, speed)));
      }
    }
    for (const QVector<QPointF> &branch : {rising, falling}) {
      const bool isFree = !branch.isEmpty() && !isBeside(branch.last());
      addLine(branch, QPen(Green, 1.0, Qt::DashLine), isFree ? QStringLiteral("%1 %").arg(percent) : QString());
    }
  }
}

/// Speed lines, surge and choke line with the area between them, lines of equal efficiency.
void MapPlot::addLines(const TurboCompressor &machine) {
  const auto at = [&machine](double flow, double speed) {
    return QPointF(flow, (*machine.head)(flow, speed));
  };
  QVector<QPointF> surge; // from the largest speed to the smallest, as the following: labels stand at the end
  QVector<QPointF> choke;
  for (int i = Steps; i >= 0; --i) {
    const double speed = machine.speedMin + (machine.speedMax - machine.speedMin) * i / Steps;
    if (const auto flows = machine.flows(speed)) {
      surge.append(at(flows->first, speed));
      choke.append(at(flows->second, speed));
    }
  }
  QVector<QPointF> top; // from the surge line to the choke line
  QVector<QPointF> bottom;
  for (const double speed : speedUnit().roundValues(machine.speedMin, machine.speedMax)) {
    const auto flows = machine.flows(speed);
    QVector<QPointF> line;
    for (int i = 0; flows && i <= Steps; ++i)
      line.append(at(flows->first + (flows->second - flows->first) * i / Steps, speed));
    const bool isEdge = speed == machine.speedMin || speed == machine.speedMax;
    addLine(line, QPen(Blue, isEdge ? 2.0 : 1.0), speedLabel(speed));
    if (speed == machine.speedMin)
      bottom = line;
    top = line;
  }
  constexpr double LabelRoom = 1.15;
  const QPointF corner = top.isEmpty() ? QPointF() : top.last();
  addRoom({corner.x() * LabelRoom, corner.y()});
  std::reverse(bottom.begin(), bottom.end());
  addArea(top + choke + bottom + QVector<QPointF>(surge.rbegin(), surge.rend()));
  for (const QVector<QPointF> &line : {surge, choke}) {
    if (line.isEmpty())
      continue;
    constexpr double Below = 0.1; // of the height of the map: for the label at the lower end
    const double height = line.first().y() - line.last().y();
    addRoom({line.last().x(), std::max(0.0, line.last().y() - Below * height)});
  }
  addLine(surge, QPen(Red, 2.0), machine.surge ? tr("surge") : QString(), Qt::AlignRight | Qt::AlignBottom);
  addLine(choke, QPen(Orange, 2.0), machine.choke ? tr("choke") : QString(), Qt::AlignLeft | Qt::AlignBottom);
  addEfficiencies(machine, corner);
}

/// The same speeds and the surge line, each dashed.
void MapPlot::addOtherLines(const TurboCompressor &other, const QString &name) {
  const QPen pen(Orange, 1.0, Qt::DashLine);
  const auto along = [&other](double speed, double part) {
    const auto flows = other.flows(speed);
    const double flow = flows ? flows->first + part * (flows->second - flows->first) : 0.0;
    return flows ? std::optional<QPointF>(QPointF(flow, (*other.head)(flow, speed))) : std::nullopt;
  };
  bool isNamed = false;
  for (const double speed : speedUnit().roundValues(other.speedMin, other.speedMax)) {
    QVector<QPointF> line;
    for (int i = 0; i <= Steps; ++i) {
      if (const auto at = along(speed, static_cast<double>(i) / Steps))
        line.append(*at);
    }
    addNamedLine(line, pen, isNamed ? QString() : name);
    isNamed = true;
  }
  QVector<QPointF> surge;
  for (int i = 0; other.surge && i <= Steps; ++i) {
    if (const auto at = along(other.speedMin + (other.speedMax - other.speedMin) * i / Steps, 0.0))
      surge.append(*at);
  }
  addNamedLine(surge, QPen(Orange, 2.0, Qt::DashLine), QString());
}

void MapPlot::show(const TurboCompressor &machine, const std::optional<WorkingPoint> &point,
                   const std::optional<double> &storedHead, const TurboCompressor *other) {
  reset(heading(machineName(machine.station, machine.name), point), {tr("volume flow at the inlet"), flowUnit()},
        {tr("adiabatic head"), headUnit()});
  setReadout([machine](const QPointF &at) {
    QString text = tr("Q = %1\nH = %2").arg(flowUnit().text(at.x()), headUnit().text(at.y()));
    if (!machine.head)
      return text;
    for (const double speed : Fits::solve(machine.head->inY(at.x()), at.y())) {
      if (speed < machine.speedMin || speed > machine.speedMax)
        continue;
      text += tr("\nn = %1").arg(speedUnit().text(speed));
      if (machine.efficiency)
        text += tr("\nη = %1 %").arg(shownNumber(100.0 * (*machine.efficiency)(at.x(), speed), 3));
    }
    return text;
  });
  if (other != nullptr && other->isUsable())
    addOtherLines(*other, tr("the functions that do not count"));
  if (machine.isUsable())
    addLines(machine);
  QVector<QPointF> dots;
  for (const auto *points : {&machine.points, &machine.surgePoints}) {
    for (const MeasuredPoint &measured : *points)
      dots.append(QPointF(measured.flow, measured.head));
  }
  addDots(dots);
  if (point && point->isCompressing()) {
    addWorkingPoint({point->flow, point->head}, point->isInside);
    letMove({point->flow, point->head});
    constexpr double Apart = 0.005; // of the head: nearer ones cover each other
    if (storedHead && std::abs(*storedHead - point->head) > Apart * point->head)
      addStoredPoint({point->flow, *storedHead});
  }
  finish();
}

void MapPlot::show(const PistonCompressor &machine, const std::optional<WorkingPoint> &point,
                   const QVector<QPointF> &limits) {
  constexpr double ShownRatio = 4.0; // of a machine that says no largest
  reset(heading(machineName(machine.station, machine.name), point), {tr("volume flow at the inlet"), flowUnit()},
        {tr("pressure ratio"), MapQuantity()});
  setReadout([machine](const QPointF &at) {
    return tr("Q = %1\nratio = %2\nn = %3")
        .arg(flowUnit().text(at.x()), shownNumber(at.y()), speedUnit().text(machine.speed(at.x())));
  });
  QVector<QPointF> top; // from the smallest speed to the largest
  for (const QPointF &limit : limits)
    top.append(QPointF(machine.flow(limit.x()), std::max(1.0, limit.y())));
  const bool isLimited = !top.isEmpty() || machine.maximalRatio > 0.0;
  if (top.isEmpty()) {
    const double ratio = machine.maximalRatio > 0.0 ? machine.maximalRatio : ShownRatio;
    top = {{machine.flow(machine.speedMin), ratio}, {machine.flow(machine.speedMax), ratio}};
  }
  QVector<QPointF> outline{{top.last().x(), 1.0}, {top.first().x(), 1.0}};
  addArea(outline + top);
  for (const double speed : speedUnit().roundValues(machine.speedMin, machine.speedMax)) {
    const double flow = machine.flow(speed);
    const auto end =
        std::find_if(top.begin(), top.end(), [flow](const QPointF &at) { return at.x() >= flow * (1.0 - 1e-9); });
    const double ratio = end == top.end() ? top.last().y() : end->y();
    const bool isEdge = speed == machine.speedMin || speed == machine.speedMax;
    addLine({{flow, 1.0}, {flow, ratio}}, QPen(Blue, isEdge ? 2.0 : 1.0), speedLabel(speed), Qt::AlignRight | Qt::AlignTop);
  }
  constexpr double LabelRoom = 1.1;
  addRoom({LabelRoom * top.last().x(), top.last().y()});
  addLine(top, QPen(Red, isLimited ? 2.0 : 0.5));
  if (point && point->isCompressing()) {
    addWorkingPoint({point->flow, point->ratio}, point->isInside);
    letMove({point->flow, point->ratio});
  }
  finish();
}

/// Where the power of a drive is known: over the speeds that were measured, else over those of the machine that it drives,
/// else up to where it works.
static std::pair<double, double> speedsOf(const Drive &drive, const std::optional<WorkingPoint> &point,
                                          const std::optional<std::pair<double, double>> &ofMachine) {
  constexpr double Usual = 10000.0;
  constexpr double Beyond = 1.2; // of the present speed
  if (const auto measured = drive.speeds())
    return *measured;
  if (ofMachine && ofMachine->second > ofMachine->first)
    return *ofMachine;
  return {0.0, point && point->speed ? Beyond * *point->speed : Usual};
}

/// One line for each temperature; lines that lie on one another are one, with all their temperatures.
void MapPlot::addPowers(const Drive &drive, const std::pair<double, double> &speeds, double temperature) {
  std::vector<double> temperatures{-10.0, 30.0};
  const auto colder = [](const Drive::PowerPoint &a, const Drive::PowerPoint &b) {
    return a.temperature < b.temperature;
  };
  const auto ends = std::minmax_element(drive.powerPoints.begin(), drive.powerPoints.end(), colder);
  if (!drive.powerPoints.empty())
    temperatures = {ends.first->temperature, ends.second->temperature};
  temperatures.push_back(temperature);
  std::sort(temperatures.begin(), temperatures.end());
  temperatures.erase(std::unique(temperatures.begin(), temperatures.end()), temperatures.end());
  constexpr double Near = 0.05; // of the power: labels would cover each other
  const auto last = [&](double at) {
    return (*drive.power)(at, speeds.second);
  };
  for (std::size_t i = 0; i < temperatures.size();) {
    std::size_t next = i;
    QStringList label;
    bool isPresent = false;
    for (; next < temperatures.size() &&
           std::abs(last(temperatures[next]) - last(temperatures[i])) <= Near * std::abs(last(temperatures[i]));
         ++next) {
      label.append(temperatureUnit().number(temperatures[next], 3));
      isPresent = isPresent || temperatures[next] == temperature;
    }
    QVector<QPointF> line;
    const double at = isPresent ? temperature : temperatures[i];
    for (int step = 0; step <= Steps; ++step) {
      const double speed = speeds.first + (speeds.second - speeds.first) * step / Steps;
      if (const double limit = (*drive.power)(at, speed); limit > 0.0)
        line.append(QPointF(speed, limit));
    }
    addLine(line, QPen(isPresent ? Blue : PaleBlue, isPresent ? 2.0 : 1.2),
            label.join(QStringLiteral(", ")) + QLatin1Char(' ') + temperatureUnit().unit(),
            Qt::AlignRight | Qt::AlignVCenter);
    i = std::max(next, i + 1);
  }
}

void MapPlot::show(const Drive &drive, const std::optional<WorkingPoint> &point, double temperature,
                   const std::optional<std::pair<double, double>> &machineSpeeds) {
  reset(heading(drive.name, point), {tr("speed"), speedUnit()}, {tr("largest power"), powerUnit()});
  const auto power = drive.power;
  setReadout([power, temperature](const QPointF &at) {
    QString text = tr("n = %1\nP = %2").arg(speedUnit().text(at.x()), powerUnit().text(at.y()));
    if (power)
      text += tr("\nlimit = %1 at %2")
                  .arg(powerUnit().text((*power)(temperature, at.x())), temperatureUnit().text(temperature, 3));
    return text;
  });
  if (drive.power) {
    const std::pair<double, double> speeds = speedsOf(drive, point, machineSpeeds);
    addPowers(drive, speeds, temperature);
    constexpr double LabelRoom = 0.12; // of the width
    addRoom({speeds.second + LabelRoom * (speeds.second - speeds.first), (*drive.power)(temperature, speeds.second)});
  }
  QVector<QPointF> dots;
  for (const Drive::PowerPoint &measured : drive.powerPoints)
    dots.append(QPointF(measured.speed, measured.power));
  addDots(dots);
  if (point && point->speed && point->power)
    addWorkingPoint({*point->speed, *point->power}, !point->powerLimit || *point->power <= *point->powerLimit);
  finish();
}

void MapPlot::showConsumption(const Drive &drive, const std::optional<WorkingPoint> &point) {
  reset(heading(drive.name, point), {tr("power"), powerUnit()},
        {drive.kind == Drive::Kind::ElectricMotor ? tr("current taken") : tr("fuel taken"), powerUnit()});
  const auto energy = drive.energy;
  setReadout([energy](const QPointF &at) {
    QString text = tr("P = %1").arg(powerUnit().text(at.x()));
    if (energy)
      text += tr("\ntakes %1").arg(powerUnit().text((*energy)(at.x())));
    return text;
  });
  double last = point && point->power ? 1.3 * *point->power : 0.0;
  for (const Drive::EnergyPoint &measured : drive.energyPoints)
    last = std::max(last, measured.power);
  constexpr double Usual = 10000.0; // kW
  last = last > 0.0 ? last : Usual;
  QVector<QPointF> line;
  for (int i = 0; drive.energy && i <= Steps; ++i)
    line.append(QPointF(last * i / Steps, (*drive.energy)(last * i / Steps)));
  addLine(line, QPen(Blue, 2.0));
  QVector<QPointF> dots;
  for (const Drive::EnergyPoint &measured : drive.energyPoints)
    dots.append(QPointF(measured.power, measured.rate));
  addDots(dots);
  if (point && point->power && point->energyRate)
    addWorkingPoint({*point->power, *point->energyRate}, true);
  finish();
}
