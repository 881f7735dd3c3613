#include "machinetext.h"

#include "mapcolors.h"
#include "mapquantity.h"
#include "shownnumber.h"

#include <model/displayformat.h>
#include <model/units.h>

#include <QGuiApplication>

#include <cmath>

namespace {

using Comparison = NetworkMachines::Comparison;

QString warningColor() {
  return MapColors::onScreen(QGuiApplication::palette()).warning().name();
}

QString cell(const QString &text) {
  return QStringLiteral("<td>%1&nbsp;&nbsp;</td>").arg(text);
}

QString valueText(double value, const QString &unit) {
  return MapQuantity(unit).text(value);
}

QString warning(const QString &text) {
  return QStringLiteral("<p style=\"color:%1;\">%2</p>").arg(warningColor(), text.toHtmlEscaped());
}

QString plain(const QString &text) {
  return QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped());
}

/// "stored" and "difference" of a row, red where they are apart.
QString storedCells(const Comparison &comparison) {
  constexpr double Shown = 0.05; // percent; below it there is no sign to show
  const double percent = comparison.computed == 0.0 ? 0.0 : 100.0 * comparison.difference() / comparison.computed;
  const QString difference = MachineText::tr("%1 %").arg(DisplayFormat::fixed(std::abs(percent) < Shown ? 0.0 : percent, 1));
  const QString color = comparison.isApart() ? QStringLiteral(" style=\"color:%1;\"").arg(warningColor()) : QString();
  return QStringLiteral("<td%1><b>%2</b>&nbsp;&nbsp;</td><td%1>%3</td>")
      .arg(color, valueText(comparison.stored, comparison.unit), difference);
}

/// The rows of a table of what the map tells beside what the results state.
class PointTable {
public:
  explicit PointTable(std::vector<Comparison> comparisons)
      : m_comparisons(std::move(comparisons)) {}

  void add(const char *property, const QString &name, double value, const QString &unit) {
    m_rows += QStringLiteral("<tr>") + cell(name) + cell(QStringLiteral("<b>%1</b>").arg(valueText(value, unit)));
    for (const Comparison &comparison : m_comparisons) {
      if (comparison.property == QLatin1String(property))
        m_rows += storedCells(comparison);
    }
    m_rows += QStringLiteral("</tr>");
  }

  QString html() const {
    const QString head = m_comparisons.empty() ? QString()
                                               : QStringLiteral("<tr><td></td>") + cell(MachineText::tr("computed")) +
                                                     cell(MachineText::tr("results")) + cell(MachineText::tr("difference")) +
                                                     QStringLiteral("</tr>");
    return QStringLiteral("<table>") + head + m_rows + QStringLiteral("</table>");
  }

private:
  std::vector<Comparison> m_comparisons;
  QString m_rows;
};

void addMargins(PointTable &table, const MachineMargins &margins) {
  constexpr double Percent = 100.0;
  const auto add = [&table](const QString &name, const std::optional<double> &margin, double factor, const QString &unit) {
    if (margin)
      table.add("", name, *margin * factor, unit);
  };
  const QString percent = QStringLiteral("%");
  add(MachineText::tr("power reserve"), margins.power, 1.0, QStringLiteral("kW"));
  add(MachineText::tr("speed reserve"), margins.speed, Percent, percent);
  add(MachineText::tr("distance to surge"), margins.surge, Percent, percent);
  add(MachineText::tr("turndown"), margins.turndown, Percent, percent);
  add(MachineText::tr("distance to choke"), margins.choke, Percent, percent);
}

QString pointTable(const WorkingPoint &point, const std::vector<Comparison> &comparisons) {
  PointTable table(comparisons);
  table.add("vflow", MachineText::tr("volume flow"), point.flow, QStringLiteral("m³/s"));
  table.add("ratio", MachineText::tr("pressure ratio"), point.ratio, QString());
  if (point.isCompressing())
    table.add("head", MachineText::tr("adiabatic head"), point.head, QStringLiteral("kJ/kg"));
  if (point.speed)
    table.add("speed", MachineText::tr("speed"), *point.speed, QStringLiteral("1/min"));
  if (point.efficiency)
    table.add("efficiency", MachineText::tr("efficiency"), 100.0 * *point.efficiency, QStringLiteral("%"));
  if (point.power)
    table.add("power", MachineText::tr("shaft power"), *point.power, QStringLiteral("kW"));
  if (point.powerLimit)
    table.add("", MachineText::tr("power limit"), *point.powerLimit, QStringLiteral("kW"));
  addMargins(table, point.margins);
  if (point.energyRate)
    table.add("", MachineText::tr("fuel or current"), *point.energyRate, QStringLiteral("kW"));
  if (point.fuelFlow)
    table.add("", MachineText::tr("fuel gas"), *point.fuelFlow, QStringLiteral("1000 m³/h"));
  if (point.outletTemperature)
    table.add("", MachineText::tr("outlet temperature"), *point.outletTemperature - Units::ZeroCelsius,
              QStringLiteral("°C"));
  table.add("", MachineText::tr("real gas factor z"), point.realGasFactor, QString());
  if (point.isCompressing())
    table.add("", MachineText::tr("isentropic exponent"), point.exponent, QString());
  QString text = table.html();
  for (const QString &remark : point.remarks)
    text += warning(remark);
  return text;
}

/// A row of what the scenario's point has beside the moved one's.
QString movedRow(const QString &name, const std::optional<double> &scenario, const std::optional<double> &moved,
                 const QString &unit) {
  if (!scenario && !moved)
    return QString();
  const auto text = [&unit](const std::optional<double> &value) {
    return value ? valueText(*value, unit) : QStringLiteral("–");
  };
  return QStringLiteral("<tr>") + cell(name) + cell(text(scenario)) + cell(QStringLiteral("<b>%1</b>").arg(text(moved))) +
         QStringLiteral("</tr>");
}

std::optional<double> times(double factor, const std::optional<double> &value) {
  return value ? std::optional<double>(factor * *value) : std::nullopt;
}

/// Of what the drive takes that becomes power at the shaft.
std::optional<double> driveEfficiency(const WorkingPoint &point) {
  const bool isKnown = point.power && point.energyRate && *point.energyRate > 0.0;
  return isKnown ? std::optional<double>(*point.power / *point.energyRate) : std::nullopt;
}

QString stationTable(const std::vector<Comparison> &comparisons) {
  PointTable table(comparisons);
  for (const Comparison &comparison : comparisons)
    table.add(qPrintable(comparison.property), comparison.name, comparison.computed, comparison.unit);
  return comparisons.empty() ? QString() : plain(MachineText::tr("The whole station:")) + table.html();
}

QString fitText(const QString &what, const Fits::Quality &quality, const QString &unit) {
  if (!quality.ok)
    return QString();
  constexpr double Rounding = 1e-9; // below it a residual says nothing about the points
  const auto residual = [quantity = MapQuantity(unit)](double value) {
    return quantity.text(value < Rounding ? 0.0 : value, 3);
  };
  QString text = MachineText::tr("%1: largest residual %2, mean %3")
                     .arg(what, residual(quality.largestResidual), residual(quality.meanResidual));
  if (quality.condition > 0.0)
    text += MachineText::tr(", condition %1").arg(shownNumber(quality.condition, 3));
  return text + QStringLiteral("<br/>");
}

QString fitTexts(const NetworkMachines::Machine &machine) {
  const QString head = QStringLiteral("kJ/kg");
  QString text;
  if (machine.turbo) {
    text = fitText(MachineText::tr("Head fitted"), machine.turbo->headQuality, head) +
           fitText(MachineText::tr("Head as published"), machine.turbo->publishedHeadQuality, head) +
           fitText(MachineText::tr("Efficiency fitted"), machine.turbo->efficiencyQuality, QString()) +
           fitText(MachineText::tr("Efficiency as published"), machine.turbo->publishedEfficiencyQuality, QString()) +
           fitText(MachineText::tr("Surge line fitted"), machine.turbo->surgeQuality, head);
  } else if (machine.drive) {
    text = fitText(MachineText::tr("Power limit fitted"), machine.drive->powerQuality, QStringLiteral("kW")) +
           fitText(MachineText::tr("Power limit as published"), machine.drive->publishedPowerQuality, QStringLiteral("kW")) +
           fitText(MachineText::tr("Energy rate fitted"), machine.drive->energyQuality, QStringLiteral("kW"));
  }
  return text.isEmpty() ? text : QStringLiteral("<p>%1</p>").arg(text);
}

} // namespace

QString MachineText::of(const NetworkMachines::Machine &machine) {
  const bool isStation = !machine.configuration.isEmpty() && !machine.drive;
  QString text;
  if (machine.point)
    text = pointTable(*machine.point, isStation ? std::vector<Comparison>() : machine.comparisons);
  else if (!machine.split.isEmpty())
    text = plain(tr("The machine does not run."));
  else
    text = plain(tr("The network has no flow and pressures for a working point."));
  if (machine.point && machine.point->isCompressing() && !machine.drive)
    text += plain(tr("Drag the diamond, or use the arrow keys, to see what another point would need."));
  if (isStation)
    text += stationTable(machine.comparisons);
  if (!machine.split.isEmpty())
    text += plain(tr("Configuration %1: %2").arg(machine.configuration, machine.split));
  if (machine.drive)
    text += plain(tr("Power at %1").arg(MapQuantity(QStringLiteral("°C")).text(machine.ambientTemperature)));
  for (const QString &remark : machine.remarks)
    text += warning(remark);
  if (!machine.gas.isEmpty())
    text += plain(tr("Gas: %1").arg(machine.gas));
  return text + fitTexts(machine);
}

QString MachineText::moved(const WorkingPoint &scenario, const WorkingPoint &at) {
  constexpr double Percent = 100.0;
  const QString percent = QStringLiteral("%");
  const QString kilowatts = QStringLiteral("kW");
  const auto celsius = [](const WorkingPoint &point) {
    return point.outletTemperature ? std::optional<double>(*point.outletTemperature - Units::ZeroCelsius) : std::nullopt;
  };
  QString rows = QStringLiteral("<tr><td></td>") + cell(tr("scenario")) + cell(tr("moved point")) + QStringLiteral("</tr>");
  const auto add = [&rows](const QString &name, const std::optional<double> &before, const std::optional<double> &now,
                           const QString &unit) {
    rows += movedRow(name, before, now, unit);
  };
  add(tr("volume flow"), scenario.flow, at.flow, QStringLiteral("m³/s"));
  add(tr("adiabatic head"), scenario.head, at.head, QStringLiteral("kJ/kg"));
  add(tr("pressure ratio"), scenario.ratio, at.ratio, QString());
  add(tr("speed"), scenario.speed, at.speed, QStringLiteral("1/min"));
  add(tr("efficiency"), times(Percent, scenario.efficiency), times(Percent, at.efficiency), percent);
  add(tr("shaft power"), scenario.power, at.power, kilowatts);
  add(tr("power reserve"), scenario.margins.power, at.margins.power, kilowatts);
  add(tr("fuel or current"), scenario.energyRate, at.energyRate, kilowatts);
  add(tr("efficiency of the drive"), times(Percent, driveEfficiency(scenario)), times(Percent, driveEfficiency(at)),
      percent);
  add(tr("fuel gas"), scenario.fuelFlow, at.fuelFlow, QStringLiteral("1000 m³/h"));
  add(tr("outlet temperature"), celsius(scenario), celsius(at), QStringLiteral("°C"));
  add(tr("distance to surge"), times(Percent, scenario.margins.surge), times(Percent, at.margins.surge), percent);
  add(tr("distance to choke"), times(Percent, scenario.margins.choke), times(Percent, at.margins.choke), percent);
  QString text = QStringLiteral("<table>") + rows + QStringLiteral("</table>");
  for (const QString &remark : at.remarks)
    text += warning(remark);
  return text + plain(tr("Esc or a double click goes back to the scenario's point. Nothing in the network changes."));
}

QString MachineText::station(const NetworkMachines::Station &station) {
  constexpr double Percent = 100.0;
  const auto percent = [](const std::optional<double> &value) {
    return value ? valueText(Percent * *value, QStringLiteral("%")) : QStringLiteral("–");
  };
  const auto value = [](const std::optional<double> &known, const char *unit) {
    return known ? valueText(*known, QString::fromUtf8(unit)) : QStringLiteral("–");
  };
  QString rows = QStringLiteral("<tr>");
  for (const QString &head : {tr("machine"), tr("stage"), tr("part of the flow"), tr("volume flow"), tr("pressure ratio"),
                              tr("speed"), tr("efficiency"), tr("shaft power"), tr("distance to surge")})
    rows += cell(QStringLiteral("<b>%1</b>").arg(head));
  rows += QStringLiteral("</tr>");
  QString remarks;
  for (const NetworkMachines::Unit &unit : station.units) {
    const WorkingPoint &point = unit.point;
    rows += QStringLiteral("<tr>") + cell(unit.machine.toHtmlEscaped()) + cell(QString::number(unit.stage + 1)) +
            cell(percent(unit.share)) + cell(value(point.flow, "m³/s")) + cell(value(point.ratio, "")) +
            cell(value(point.speed, "1/min")) + cell(percent(point.efficiency)) + cell(value(point.power, "kW")) +
            cell(percent(point.margins.surge)) + QStringLiteral("</tr>");
    for (const QString &remark : point.remarks)
      remarks += warning(unit.machine + QStringLiteral(": ") + remark);
  }
  QString text = QStringLiteral("<table>") + rows + QStringLiteral("</table>") + remarks;
  if (const double power = station.power(); power > 0.0)
    text += plain(tr("Shaft power of all: %1").arg(valueText(power, QStringLiteral("kW"))));
  return text;
}
