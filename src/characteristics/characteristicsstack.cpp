#include "shownnumber.h"

#include <base/generalsettings.h>
#include <base/nivramsg.h>
#include <characteristics/characteristicsstack.h>
#include <characteristics/mapplot.h>

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QSaveFile>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

constexpr const char *SaidProperty = "said"; // of a page: its text when it was made

QString row(const QString &name, const QString &value) {
  return QStringLiteral("<tr><td>%1&nbsp;&nbsp;</td><td><b>%2</b></td></tr>").arg(name, value);
}

QString fitText(const QString &what, const Fits::Quality &quality, const QString &unit) {
  if (!quality.ok)
    return QString();
  constexpr double Rounding = 1e-9; // below it a residual says nothing about the points
  const auto residual = [](double value) {
    return shownNumber(value < Rounding ? 0.0 : value, 3);
  };
  return CharacteristicsStack::tr("%1 fitted: largest residual %2%3, mean %4%3, condition %5")
             .arg(what, residual(quality.largestResidual), unit.isEmpty() ? unit : QLatin1Char(' ') + unit,
                  residual(quality.meanResidual), shownNumber(quality.condition, 3)) +
         QStringLiteral("<br/>");
}

QString pointTable(const WorkingPoint &point) {
  using Stack = CharacteristicsStack;
  QString text = QStringLiteral("<table>");
  text += row(Stack::tr("volume flow"), shownNumber(point.flow) + QStringLiteral(" m³/s"));
  text += row(Stack::tr("adiabatic head"), shownNumber(point.head) + QStringLiteral(" kJ/kg"));
  text += row(Stack::tr("pressure ratio"), shownNumber(point.ratio));
  if (point.speed)
    text += row(Stack::tr("speed"), shownNumber(*point.speed) + QStringLiteral(" 1/min"));
  if (point.efficiency)
    text += row(Stack::tr("efficiency"), shownNumber(100.0 * *point.efficiency, 3) + QStringLiteral(" %"));
  if (point.power)
    text += row(Stack::tr("shaft power"), shownNumber(*point.power) + QStringLiteral(" kW"));
  if (point.powerLimit)
    text += row(Stack::tr("power limit"), shownNumber(*point.powerLimit) + QStringLiteral(" kW"));
  if (point.energyRate)
    text += row(Stack::tr("fuel or current"), shownNumber(*point.energyRate) + QStringLiteral(" kW"));
  text += QStringLiteral("</table>");
  if (!point.remark.isEmpty())
    text += QStringLiteral("<p style=\"color:#b22222;\">%1</p>").arg(point.remark.toHtmlEscaped());
  return text;
}

} // namespace

CharacteristicsStack::CharacteristicsStack(const NetData &net, QWidget *parent)
    : QDockWidget(tr("Characteristics"), parent)
    , m_net(net)
    , m_machines(net)
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
  m_machines.set(std::move(machines));
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

QString CharacteristicsStack::summary(const NetworkMachines::Machine &machine) {
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
  const NetworkMachines::Machine found = m_machines.machine(*e, m_machines.names(*e).first());
  return found.isThere() ? summary(found) : QString();
}

QWidget *CharacteristicsStack::makePage(const QString &elementName) const {
  const element *e = m_net.element(elementName);
  if (e == nullptr)
    return nullptr;
  const QStringList names = m_machines.names(*e);
  const NetworkMachines::Machine first = m_machines.machine(*e, names.first());
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
      column->addWidget(makeMap(m_machines.machine(*station, name)), 1);
  });
  return page;
}

QWidget *CharacteristicsStack::makeMap(const NetworkMachines::Machine &machine) {
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
