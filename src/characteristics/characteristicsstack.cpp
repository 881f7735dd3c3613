#include <base/generalsettings.h>
#include <base/nivramsg.h>
#include <characteristics/characteristicsstack.h>
#include <characteristics/mapplot.h>
#include <characteristics/workingpoint.h>

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QSaveFile>
#include <QTabWidget>
#include <QVBoxLayout>

#include <cmath>

namespace {

constexpr const char *SaidProperty = "said"; // of a page: its text when it was made

QString number(double value, int digits = 4) {
  constexpr double Whole = 1000.0;
  return std::abs(value) >= Whole ? QString::number(value, 'f', 0) : QString::number(value, 'g', digits);
}

QString row(const QString &name, const QString &value) {
  return QStringLiteral("<tr><td>%1&nbsp;&nbsp;</td><td><b>%2</b></td></tr>").arg(name, value);
}

QString fitText(const QString &what, const Fits::Quality &quality, const QString &unit) {
  if (!quality.ok)
    return QString();
  constexpr double Rounding = 1e-9; // below it a residual says nothing about the points
  const auto residual = [](double value) {
    return number(value < Rounding ? 0.0 : value, 3);
  };
  return CharacteristicsStack::tr("%1 fitted: largest residual %2%3, mean %4%3, condition %5")
             .arg(what, residual(quality.largestResidual), unit.isEmpty() ? unit : QLatin1Char(' ') + unit,
                  residual(quality.meanResidual), number(quality.condition, 3)) +
         QStringLiteral("<br/>");
}

QString pointTable(const WorkingPoint &point) {
  using Stack = CharacteristicsStack;
  QString text = QStringLiteral("<table>");
  text += row(Stack::tr("volume flow"), number(point.flow) + QStringLiteral(" m³/s"));
  text += row(Stack::tr("adiabatic head"), number(point.head) + QStringLiteral(" kJ/kg"));
  text += row(Stack::tr("pressure ratio"), number(point.ratio));
  if (point.speed)
    text += row(Stack::tr("speed"), number(*point.speed) + QStringLiteral(" 1/min"));
  if (point.efficiency)
    text += row(Stack::tr("efficiency"), number(100.0 * *point.efficiency, 3) + QStringLiteral(" %"));
  if (point.power)
    text += row(Stack::tr("shaft power"), number(*point.power) + QStringLiteral(" kW"));
  if (point.powerLimit)
    text += row(Stack::tr("power limit"), number(*point.powerLimit) + QStringLiteral(" kW"));
  if (point.energyRate)
    text += row(Stack::tr("fuel or current"), number(*point.energyRate) + QStringLiteral(" kW"));
  text += QStringLiteral("</table>");
  if (!point.remark.isEmpty())
    text += QStringLiteral("<p style=\"color:#b22222;\">%1</p>").arg(point.remark.toHtmlEscaped());
  return text;
}

QVector<QPointF> limitsOf(const PistonCompressor &machine, const Drive *drive, const Compression &compression,
                          double ambientTemperature) {
  constexpr int Steps = 40;
  QVector<QPointF> limits;
  for (int i = 0; i <= Steps; ++i) {
    const double speed = machine.speedMin + (machine.speedMax - machine.speedMin) * i / Steps;
    const auto ratio = WorkingPoint::largestRatio(machine, speed, drive, compression, ambientTemperature);
    if (ratio)
      limits.append(QPointF(speed, *ratio));
  }
  return limits;
}

} // namespace

CharacteristicsStack::CharacteristicsStack(const NetData &net, QWidget *parent)
    : QDockWidget(tr("Characteristics"), parent)
    , m_net(net)
    , m_tabs(new QTabWidget) {
  m_tabs->setTabsClosable(true);
  m_tabs->setMovable(true);
  m_tabs->setDocumentMode(true);
  setWidget(m_tabs);
  connect(m_tabs, &QTabWidget::tabCloseRequested, this, [this](int index) {
    delete m_tabs->widget(index);
    keep();
    showHint();
  });
  showHint();
}

/// An empty panel says how it is filled.
void CharacteristicsStack::showHint() {
  const bool isEmpty = opened().isEmpty();
  if (isEmpty && m_tabs->count() == 0) {
    auto *hint =
        new QLabel(tr("Open the characteristics of a compressor or drive\nby the right-click menu of the drawing."));
    hint->setAlignment(Qt::AlignCenter);
    m_tabs->addTab(hint, tr("none open"));
    m_tabs->setTabsClosable(false);
  } else if (!isEmpty && qobject_cast<QLabel *>(m_tabs->widget(0)) != nullptr) {
    delete m_tabs->widget(0);
    m_tabs->setTabsClosable(true);
  }
}

QStringList CharacteristicsStack::opened() const {
  QStringList names;
  for (int i = 0; i < m_tabs->count(); ++i) {
    if (!m_tabs->widget(i)->objectName().isEmpty())
      names.append(m_tabs->widget(i)->objectName());
  }
  return names;
}

void CharacteristicsStack::setMachines(MachineData machines) {
  m_machines = std::move(machines);
  const QStringList names = opened();
  while (m_tabs->count() > 0)
    delete m_tabs->widget(0);
  for (const QString &name : names) {
    if (QWidget *page = makePage(name))
      m_tabs->addTab(page, name);
  }
  showHint();
}

void CharacteristicsStack::refresh() {
  const int current = m_tabs->currentIndex();
  for (int i = 0; i < m_tabs->count(); ++i) {
    QWidget *before = m_tabs->widget(i);
    const QString name = before->objectName();
    if (name.isEmpty() || before->property(SaidProperty).toString() == summary(name))
      continue;
    QWidget *page = makePage(name);
    if (page == nullptr)
      continue;
    delete before;
    m_tabs->insertTab(i, page, name);
  }
  m_tabs->setCurrentIndex(current);
}

void CharacteristicsStack::setFile(const QString &path) {
  m_path = path;
  QFile file(path);
  if (!GeneralSettings::instance().isOn(QStringLiteral("auto-save PE and CHAR widget list")) || path.isEmpty() ||
      !file.open(QIODevice::ReadOnly))
    return;
  for (const QByteArray &line : file.readAll().split('\n')) {
    const QString name = QString::fromUtf8(line).trimmed();
    QWidget *page = name.isEmpty() || opened().contains(name) ? nullptr : makePage(name);
    if (page != nullptr)
      m_tabs->addTab(page, name);
  }
  showHint();
}

void CharacteristicsStack::keep() const {
  if (m_path.isEmpty() || !GeneralSettings::instance().isOn(QStringLiteral("auto-save PE and CHAR widget list")))
    return;
  QSaveFile file(m_path);
  const QByteArray text = opened().join(QLatin1Char('\n')).toUtf8();
  if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
    NivraMsg::logWarning(tr("The list of open characteristics cannot be kept in %1: %2").arg(m_path, file.errorString()));
}

QString CharacteristicsStack::machineOf(const element &e) const {
  const QString machine = e.value(QStringLiteral("machine"));
  QString name = machine.isEmpty() ? e.value(QStringLiteral("name")) : machine;
  const element *driven = m_net.edges().find(e.value(QStringLiteral("driven")));
  if (driven == nullptr || m_machines.drive(name) != nullptr)
    return name;
  // A drive may name its compressor's machine, or none: then it has the data of the drive that this one names.
  const TurboCompressor *turbo = m_machines.turbo(machine.isEmpty() ? machineOf(*driven) : machine);
  return turbo == nullptr ? name : turbo->drive;
}

const Drive *CharacteristicsStack::driveOf(const element &compressor, const QString &named) const {
  const element *drive = m_net.nodes().find(compressor.value(QStringLiteral("drive")));
  const bool isOneOfSeveral = machinesOf(compressor).size() > 1; // the drive that the network names is that of the first
  const Drive *own = drive == nullptr || isOneOfSeveral ? nullptr : m_machines.drive(machineOf(*drive));
  return own != nullptr ? own : m_machines.drive(named);
}

bool CharacteristicsStack::open(const QString &elementName) {
  const int tab = opened().indexOf(elementName);
  QWidget *page = tab >= 0 ? m_tabs->widget(tab) : nullptr;
  if (page == nullptr) {
    page = makePage(elementName);
    if (page == nullptr) {
      NivraMsg::message(NivraMsg::Kind::Information,
                        tr("There are no machine data for %1: neither its property \"machine\" nor its name is in the "
                           "machine data of the scenario.")
                            .arg(elementName));
      return false;
    }
    m_tabs->addTab(page, elementName);
    showHint();
    keep();
  }
  m_tabs->setCurrentWidget(page);
  show();
  raise();
  return true;
}

QStringList CharacteristicsStack::machinesOf(const element &e) const {
  const QString name = machineOf(e);
  const QStringList all = m_machines.ofStation(e.value(QStringLiteral("name")));
  if (all.size() < 2)
    return {name};
  const int first = all.indexOf(name);
  return first <= 0 ? all : QStringList{name} + all.mid(0, first) + all.mid(first + 1);
}

CharacteristicsStack::Machine CharacteristicsStack::machine(const element &e, const QString &machineName) const {
  Machine found;
  const double ambient = m_machines.ambientTemperature;
  found.ambientTemperature = ambient;
  found.ofStation = machinesOf(e).size();
  found.turbo = m_machines.turbo(machineName);
  found.piston = found.turbo == nullptr ? m_machines.piston(machineName) : nullptr;
  found.drive = found.turbo == nullptr && found.piston == nullptr ? m_machines.drive(machineName) : nullptr;
  const element *driven = m_net.edges().find(e.value(QStringLiteral("driven")));
  const element *compressor = found.drive == nullptr ? &e : driven; // a drive works where its compressor does
  const auto compression = compressor == nullptr ? std::nullopt : Compression::of(m_net, *compressor);
  if (!compression)
    return found;
  if (found.turbo != nullptr) {
    found.point = WorkingPoint::of(*found.turbo, driveOf(e, found.turbo->drive), *compression, ambient);
  } else if (found.piston != nullptr) {
    const Drive *drive = driveOf(e, found.piston->drive);
    found.point = WorkingPoint::of(*found.piston, drive, *compression, ambient);
    found.limits = limitsOf(*found.piston, drive, *compression, ambient);
  } else if (found.drive != nullptr) {
    const QString driving = machineOf(*compressor);
    const TurboCompressor *turbo = m_machines.turboOf(*found.drive);
    const PistonCompressor *piston = m_machines.pistonOf(*found.drive);
    if (turbo == nullptr && piston == nullptr) {
      turbo = m_machines.turbo(driving);
      piston = m_machines.piston(driving);
    }
    if (turbo != nullptr)
      found.point = WorkingPoint::of(*turbo, found.drive, *compression, ambient);
    else if (piston != nullptr)
      found.point = WorkingPoint::of(*piston, found.drive, *compression, ambient);
  }
  return found;
}

QString CharacteristicsStack::summary(const Machine &machine) {
  QString text;
  if (machine.turbo != nullptr)
    text = fitText(tr("Head"), machine.turbo->headQuality, QStringLiteral("kJ/kg")) +
           fitText(tr("Efficiency"), machine.turbo->efficiencyQuality, QString()) +
           fitText(tr("Surge line"), machine.turbo->surgeQuality, QStringLiteral("kJ/kg"));
  else if (machine.drive != nullptr)
    text = fitText(tr("Power limit"), machine.drive->powerQuality, QStringLiteral("kW")) +
           fitText(tr("Energy rate"), machine.drive->energyQuality, QStringLiteral("kW")) +
           tr("Power at %1 °C").arg(machine.ambientTemperature);
  if (!machine.point)
    return text + tr("<p>The network has no flow and pressures for a working point.</p>");
  text += pointTable(*machine.point);
  if (machine.ofStation > 1)
    text += tr("<p>The station has %1 compressors; the point is that of its whole flow through this one.</p>")
                .arg(machine.ofStation);
  return text;
}

QString CharacteristicsStack::summary(const QString &elementName) const {
  const element *e = m_net.element(elementName);
  if (e == nullptr)
    return QString();
  const Machine found = machine(*e, machinesOf(*e).first());
  return found.isThere() ? summary(found) : QString();
}

QWidget *CharacteristicsStack::makePage(const QString &elementName) const {
  const element *e = m_net.element(elementName);
  if (e == nullptr)
    return nullptr;
  const QStringList names = machinesOf(*e);
  const Machine first = machine(*e, names.first());
  if (!first.isThere())
    return nullptr;
  auto *page = new QWidget;
  page->setObjectName(elementName);
  page->setProperty(SaidProperty, summary(first));
  auto *column = new QVBoxLayout(page);
  auto *choice = new QComboBox;
  choice->addItems(names);
  choice->setVisible(names.size() > 1);
  column->addWidget(choice);
  column->addWidget(makeMap(first), 1);
  connect(choice, &QComboBox::currentTextChanged, page, [this, column, elementName](const QString &name) {
    delete column->itemAt(1)->widget();
    if (const element *station = m_net.element(elementName))
      column->addWidget(makeMap(machine(*station, name)), 1);
  });
  return page;
}

QWidget *CharacteristicsStack::makeMap(const Machine &machine) {
  auto *map = new QWidget;
  auto *column = new QVBoxLayout(map);
  column->setContentsMargins(0, 0, 0, 0);
  auto *plot = new MapPlot;
  column->addWidget(plot, 1);
  if (machine.turbo != nullptr) {
    plot->show(*machine.turbo, machine.point);
  } else if (machine.piston != nullptr) {
    plot->show(*machine.piston, machine.point, machine.limits);
  } else if (machine.drive != nullptr) {
    plot->show(*machine.drive, machine.point, machine.ambientTemperature);
    if (machine.drive->energy) {
      auto *consumption = new MapPlot;
      column->addWidget(consumption, 1);
      consumption->showConsumption(*machine.drive, machine.point);
    }
  }
  auto *text = new QLabel(summary(machine));
  text->setTextFormat(Qt::RichText);
  text->setWordWrap(true);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse);
  column->addWidget(text);
  return map;
}
