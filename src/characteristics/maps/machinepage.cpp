#include "machinepage.h"

#include "mapcolors.h"
#include "mapplot.h"
#include "shownnumber.h"

#include <base/generalsettings.h>
#include <model/displayformat.h>
#include <model/units.h>

#include <QComboBox>
#include <QEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QScrollArea>
#include <QTimer>
#include <QVBoxLayout>

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
  const QString difference = MachinePage::tr("%1 %").arg(DisplayFormat::fixed(std::abs(percent) < Shown ? 0.0 : percent, 1));
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
                                               : QStringLiteral("<tr><td></td>") + cell(MachinePage::tr("computed")) +
                                                     cell(MachinePage::tr("results")) + cell(MachinePage::tr("difference")) +
                                                     QStringLiteral("</tr>");
    return QStringLiteral("<table>") + head + m_rows + QStringLiteral("</table>");
  }

private:
  std::vector<Comparison> m_comparisons;
  QString m_rows;
};

QString pointTable(const WorkingPoint &point, const std::vector<Comparison> &comparisons) {
  PointTable table(comparisons);
  table.add("vflow", MachinePage::tr("volume flow"), point.flow, QStringLiteral("m³/s"));
  table.add("ratio", MachinePage::tr("pressure ratio"), point.ratio, QString());
  if (point.isCompressing())
    table.add("head", MachinePage::tr("adiabatic head"), point.head, QStringLiteral("kJ/kg"));
  if (point.speed)
    table.add("speed", MachinePage::tr("speed"), *point.speed, QStringLiteral("1/min"));
  if (point.efficiency)
    table.add("efficiency", MachinePage::tr("efficiency"), 100.0 * *point.efficiency, QStringLiteral("%"));
  if (point.power)
    table.add("power", MachinePage::tr("shaft power"), *point.power, QStringLiteral("kW"));
  if (point.powerLimit)
    table.add("", MachinePage::tr("power limit"), *point.powerLimit, QStringLiteral("kW"));
  if (point.energyRate)
    table.add("", MachinePage::tr("fuel or current"), *point.energyRate, QStringLiteral("kW"));
  if (point.outletTemperature)
    table.add("", MachinePage::tr("outlet temperature"), *point.outletTemperature - Units::ZeroCelsius,
              QStringLiteral("°C"));
  table.add("", MachinePage::tr("real gas factor z"), point.realGasFactor, QString());
  if (point.isCompressing())
    table.add("", MachinePage::tr("isentropic exponent"), point.exponent, QString());
  QString text = table.html();
  for (const QString &remark : point.remarks)
    text += warning(remark);
  return text;
}

QString stationTable(const std::vector<Comparison> &comparisons) {
  PointTable table(comparisons);
  for (const Comparison &comparison : comparisons)
    table.add(qPrintable(comparison.property), comparison.name, comparison.computed, comparison.unit);
  return comparisons.empty() ? QString() : plain(MachinePage::tr("The whole station:")) + table.html();
}

QString fitText(const QString &what, const Fits::Quality &quality, const QString &unit) {
  if (!quality.ok)
    return QString();
  constexpr double Rounding = 1e-9; // below it a residual says nothing about the points
  const auto residual = [quantity = MapQuantity(unit)](double value) {
    return quantity.text(value < Rounding ? 0.0 : value, 3);
  };
  QString text = MachinePage::tr("%1: largest residual %2, mean %3")
                     .arg(what, residual(quality.largestResidual), residual(quality.meanResidual));
  if (quality.condition > 0.0)
    text += MachinePage::tr(", condition %1").arg(shownNumber(quality.condition, 3));
  return text + QStringLiteral("<br/>");
}

QString fitTexts(const NetworkMachines::Machine &machine) {
  const QString head = QStringLiteral("kJ/kg");
  QString text;
  if (machine.turbo) {
    text = fitText(MachinePage::tr("Head fitted"), machine.turbo->headQuality, head) +
           fitText(MachinePage::tr("Head as published"), machine.turbo->publishedHeadQuality, head) +
           fitText(MachinePage::tr("Efficiency fitted"), machine.turbo->efficiencyQuality, QString()) +
           fitText(MachinePage::tr("Efficiency as published"), machine.turbo->publishedEfficiencyQuality, QString()) +
           fitText(MachinePage::tr("Surge line fitted"), machine.turbo->surgeQuality, head);
  } else if (machine.drive) {
    text = fitText(MachinePage::tr("Power limit fitted"), machine.drive->powerQuality, QStringLiteral("kW")) +
           fitText(MachinePage::tr("Power limit as published"), machine.drive->publishedPowerQuality, QStringLiteral("kW")) +
           fitText(MachinePage::tr("Energy rate fitted"), machine.drive->energyQuality, QStringLiteral("kW"));
  }
  return text.isEmpty() ? text : QStringLiteral("<p>%1</p>").arg(text);
}

} // namespace

QString MachinePage::text(const NetworkMachines::Machine &machine) {
  const bool isStation = !machine.configuration.isEmpty() && !machine.drive;
  QString text;
  if (machine.point)
    text = pointTable(*machine.point, isStation ? std::vector<Comparison>() : machine.comparisons);
  else if (!machine.split.isEmpty())
    text = plain(tr("The machine does not run."));
  else
    text = plain(tr("The network has no flow and pressures for a working point."));
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

MachinePage::MachinePage(const NetData &net, const NetworkMachines &machines, const QString &elementName, QWidget *parent)
    : QWidget(parent)
    , m_net(net)
    , m_machines(machines)
    , m_column(new QVBoxLayout(this))
    , m_text(new QLabel) {
  setObjectName(elementName);
  m_machine = addChoice(QStringLiteral("machine"), tr("The machines of this station"));
  m_configuration = addChoice(QStringLiteral("configuration"), tr("How the machines of the station work together"));
  m_functions = addChoice(QStringLiteral("functions"), tr("What the map is made of"));
  m_text->setObjectName(QStringLiteral("said"));
  m_text->setTextFormat(Qt::RichText);
  m_text->setWordWrap(true);
  m_text->setMargin(4);
  m_text->setAlignment(Qt::AlignTop);
  m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto *scroll = new QScrollArea;
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidget(m_text);
  m_column->addWidget(scroll, 2);
  if (const element *e = m_net.element(elementName)) {
    m_machine->addItems(m_machines.names(*e));
    const auto configurations = m_machines.configurations(*e);
    if (!configurations.empty())
      m_configuration->addItem(tr("as it suits: the first configuration in which all machines work inside their maps"));
    for (const StationConfiguration &configuration : configurations)
      m_configuration->addItem(tr("configuration %1").arg(configuration.name), configuration.name);
  }
  m_machine->setVisible(m_machine->count() > 1);
  m_configuration->setVisible(m_configuration->count() > 1);
  for (QComboBox *box : {m_machine, m_configuration, m_functions})
    connect(box, qOverload<int>(&QComboBox::currentIndexChanged), this, &MachinePage::refresh);
  refresh();
}

QComboBox *MachinePage::addChoice(const QString &name, const QString &tip) {
  auto *box = new QComboBox;
  box->setObjectName(name);
  box->setToolTip(tip);
  box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  m_column->addWidget(box);
  return box;
}

MachineChoice MachinePage::choice() const {
  MachineChoice choice;
  choice.configuration = m_configuration->currentData().toString();
  choice.source = m_functions->currentIndex() == 1 ? FunctionSource::Published : FunctionSource::Fitted;
  return choice;
}

void MachinePage::offerFunctions(const NetworkMachines::Machine &machine) {
  const QSignalBlocker blocker(m_functions);
  if (machine.hasChoice() && m_functions->count() == 0)
    m_functions->addItems({tr("our own fit of the measured points"), tr("the published coefficients")});
  m_functions->setVisible(machine.hasChoice());
}

void MachinePage::refresh() {
  const element *e = m_net.element(objectName());
  if (e == nullptr)
    return;
  const NetworkMachines::Machine machine = m_machines.machine(*e, m_machine->currentText(), choice());
  const QString said = text(machine);
  offerFunctions(machine);
  const unsigned settings = GeneralSettings::instance().revision(); // units and digits of the axes are among them
  if (m_map != nullptr && said == m_text->text() && settings == m_settings && sender() == nullptr)
    return;
  m_settings = settings;
  delete m_map;
  m_map = makeMap(machine);
  m_column->insertWidget(m_column->count() - 1, m_map, 3);
  m_text->setText(said);
}

/// What the text warns of has another colour on a dark ground. The map is made anew, but not while somebody goes through all
/// widgets to tell them of the change.
void MachinePage::changeEvent(QEvent *event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && m_map != nullptr)
    QTimer::singleShot(0, this, [this] { refresh(); });
}

void MachinePage::setPageFacts(const PageFacts &facts) {
  m_facts = facts;
  for (MapCanvas *map : findChildren<MapCanvas *>())
    map->setPageFacts(facts);
}

MapPlot *MachinePage::addPlot(QVBoxLayout &column) const {
  auto *plot = new MapPlot;
  plot->setPageFacts(m_facts);
  connect(plot, &MapPlot::saveFailed, this, &MachinePage::saveFailed);
  column.addWidget(plot, 1);
  return plot;
}

QWidget *MachinePage::makeMap(const NetworkMachines::Machine &machine) const {
  auto *map = new QWidget;
  auto *column = new QVBoxLayout(map);
  column->setContentsMargins(0, 0, 0, 0);
  MapPlot *plot = addPlot(*column);
  std::optional<double> storedHead;
  for (const Comparison &comparison : machine.comparisons) {
    if (machine.configuration.isEmpty() && comparison.property == QLatin1String("head"))
      storedHead = comparison.stored;
  }
  if (machine.turbo) {
    plot->show(*machine.turbo, machine.point, storedHead);
  } else if (machine.piston) {
    plot->show(*machine.piston, machine.point, machine.limits);
  } else if (machine.drive) {
    plot->show(*machine.drive, machine.point, machine.ambientTemperature, machine.driven);
    if (machine.drive->energy)
      addPlot(*column)->showConsumption(*machine.drive, machine.point);
  }
  return map;
}
