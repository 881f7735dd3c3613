#include "machinepage.h"

#include "cloudview.h"
#include "machinetext.h"
#include "mapplot.h"
#include "residualview.h"
#include "scenariocloud.h"
#include "stationplot.h"

#include <base/generalsettings.h>

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QScrollArea>
#include <QTabBar>
#include <QTimer>
#include <QVBoxLayout>

#include <machines/stationreach.h>

MachinePage::MachinePage(const NetData &net, const NetworkMachines &machines, const QString &elementName, Clouds clouds,
                         QWidget *parent)
    : QWidget(parent)
    , m_net(net)
    , m_machines(machines)
    , m_clouds(std::move(clouds))
    , m_column(new QVBoxLayout(this))
    , m_text(new QLabel) {
  setObjectName(elementName);
  addControls();
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
  for (QComboBox *box : {m_machine, m_configuration})
    connect(box, qOverload<int>(&QComboBox::currentIndexChanged), this, &MachinePage::showAnew);
  connect(m_functions, qOverload<int>(&QComboBox::currentIndexChanged), this,
          [this](int index) { emit functionsChosen(index == 1 ? FunctionSource::Published : FunctionSource::Fitted); });
  connect(m_both, &QCheckBox::toggled, this, &MachinePage::showAnew);
  connect(m_views, &QTabBar::currentChanged, this, &MachinePage::showAnew);
  refresh();
}

void MachinePage::addControls() {
  m_machine = addChoice(QStringLiteral("machine"), tr("The machines of this station"));
  m_configuration = addChoice(QStringLiteral("configuration"), tr("How the machines of the station work together"));
  m_functions = addChoice(QStringLiteral("functions"),
                          tr("What maps, working points and distances to limits are computed with, in the whole workspace"));
  m_both = new QCheckBox(tr("Show the lines of the other functions, too"));
  m_both->setObjectName(QStringLiteral("both"));
  m_column->addWidget(m_both);
  m_views = new QTabBar;
  m_views->setObjectName(QStringLiteral("views"));
  m_views->setDrawBase(false);
  m_views->setExpanding(false);
  m_views->setTabData(m_views->addTab(tr("Map")), static_cast<int>(View::Map));
  m_column->addWidget(m_views);
}

MachinePage::View MachinePage::view() const {
  return static_cast<View>(m_views->tabData(m_views->currentIndex()).toInt());
}

int MachinePage::viewNumber() const {
  return static_cast<int>(view());
}

void MachinePage::showView(int number) {
  for (int i = 0; i < m_views->count(); ++i) {
    if (m_views->tabData(i).toInt() == number)
      m_views->setCurrentIndex(i);
  }
}

/// The map is always there.
void MachinePage::offerViews(const NetworkMachines::Machine &machine) {
  const QSignalBlocker blocker(m_views);
  const auto offer = [this](View view, const QString &name, bool isThere) {
    int at = -1;
    for (int i = 0; i < m_views->count(); ++i)
      at = m_views->tabData(i).toInt() == static_cast<int>(view) ? i : at;
    if (isThere && at < 0)
      m_views->setTabData(m_views->addTab(name), static_cast<int>(view));
    else if (!isThere && at >= 0)
      m_views->removeTab(at);
  };
  offer(View::Station, tr("Station"), m_configuration->count() > 1 && !machine.drive && machine.compression);
  offer(View::Residuals, tr("Residuals"),
        machine.turbo && !(machine.turbo->points.empty() && machine.turbo->surgePoints.empty()));
  offer(View::Scenarios, tr("Scenarios"), m_clouds && (machine.turbo || machine.piston));
  m_views->setVisible(m_views->count() > 1);
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
  return choice;
}

void MachinePage::offerFunctions(const NetworkMachines::Machine &machine) {
  const QSignalBlocker blocker(m_functions);
  if (machine.hasChoice() && m_functions->count() == 0)
    m_functions->addItems({tr("our own fit of the measured points"), tr("the published coefficients")}); // in this order
  m_functions->setCurrentIndex(m_machines.data().source == FunctionSource::Published ? 1 : 0);
  m_functions->setVisible(machine.hasChoice());
  m_both->setVisible(machine.turbo && machine.hasChoice() && view() == View::Map);
}

void MachinePage::showAnew() {
  m_settings = 0;
  refresh();
}

void MachinePage::refresh() {
  const element *e = m_net.element(objectName());
  if (e == nullptr)
    return;
  const NetworkMachines::Machine machine = m_machines.machine(*e, m_machine->currentText(), choice());
  offerViews(machine);
  offerFunctions(machine);
  const QString text = said(*e, machine);
  const unsigned settings = GeneralSettings::instance().revision(); // units and digits of the axes are among them
  if (m_map != nullptr && text == m_said && settings == m_settings)
    return;
  m_settings = settings;
  delete m_map;
  m_map = makeView(*e, machine);
  m_column->insertWidget(m_column->count() - 1, m_map, 3);
  m_said = text;
  m_text->setText(text);
}

QString MachinePage::said(const element &e, const NetworkMachines::Machine &machine) const {
  const auto station = view() == View::Station ? m_machines.station(e, choice()) : std::nullopt;
  return station ? MachineText::station(*station) + MachineText::of(machine) : MachineText::of(machine);
}

QWidget *MachinePage::makeView(const element &e, const NetworkMachines::Machine &machine) {
  switch (view()) {
  case View::Station:
    return makeStation(e);
  case View::Residuals:
    return makeResiduals(machine);
  case View::Scenarios:
    return makeScenarios(e, machine);
  case View::Map:
    break;
  }
  return makeMap(machine);
}

void MachinePage::prepare(MapCanvas &canvas) {
  canvas.setPageFacts(m_facts);
  connect(&canvas, &MapCanvas::saveFailed, this, &MachinePage::saveFailed);
}

QWidget *MachinePage::makeStation(const element &compressor) {
  auto *plot = new StationPlot;
  prepare(*plot);
  const auto whole = m_machines.compression(compressor);
  const auto station = m_machines.station(compressor, choice());
  if (!whole || !station)
    return plot;
  StationReach reach(
      m_machines.data(),
      [this, &compressor](const QString &machine) { return m_machines.driveOfMachine(compressor, machine); }, *whole);
  std::vector<StationPlot::Outline> outlines;
  for (const StationConfiguration &configuration : m_machines.configurations(compressor))
    outlines.push_back(
        {configuration.name, reach.outline(configuration)}); // NOLINT(performance-inefficient-vector-operation)
  plot->show(objectName(), outlines, *station, *whole);
  return plot;
}

/// Reading begins when somebody looks at it for the first time.
QWidget *MachinePage::makeScenarios(const element &compressor, const NetworkMachines::Machine &machine) {
  const std::shared_ptr<ScenarioCloud> cloud = m_clouds(compressor);
  auto *view = new CloudView(cloud, m_machine->currentText());
  prepare(*view->canvas());
  connect(view, &CloudView::scenarioWanted, this, &MachinePage::scenarioWanted);
  if (machine.turbo)
    view->show(*machine.turbo, machine.point);
  else
    view->show(*machine.piston, machine.point);
  if (cloud->scenarios().empty())
    cloud->start();
  return view;
}

QWidget *MachinePage::makeResiduals(const NetworkMachines::Machine &machine) {
  auto *view = new ResidualView;
  prepare(*view->canvas());
  view->show(*machine.turbo);
  return view;
}

/// What the machine would need there, with the gas and the inlet that the scenario has.
void MachinePage::showMoved(const NetworkMachines::Machine &machine, const QPointF &to, MapPlot &map) {
  const Drive *drive = machine.drivenBy ? &*machine.drivenBy : nullptr;
  const auto at = machine.turbo ? WorkingPoint::of(*machine.turbo, drive, machine.compression->withHead(to.x(), to.y()),
                                                   machine.ambientTemperature)
                                : WorkingPoint::of(*machine.piston, drive, machine.compression->withRatio(to.x(), to.y()),
                                                   machine.ambientTemperature);
  map.setMovedInside(at.isInside);
  m_text->setText(MachineText::moved(*machine.point, at));
}

/// What the text warns of has another colour on a dark ground. The map is made anew, but not while somebody goes through all
/// widgets to tell them of the change.
void MachinePage::changeEvent(QEvent *event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && m_map != nullptr)
    QTimer::singleShot(0, this, &MachinePage::showAnew);
}

void MachinePage::setPageFacts(const PageFacts &facts) {
  m_facts = facts;
  for (MapCanvas *map : findChildren<MapCanvas *>())
    map->setPageFacts(facts);
}

MapPlot *MachinePage::addPlot(QVBoxLayout &column) {
  auto *plot = new MapPlot;
  prepare(*plot);
  column.addWidget(plot, 1);
  return plot;
}

QWidget *MachinePage::makeMap(const NetworkMachines::Machine &machine) {
  auto *map = new QWidget;
  auto *column = new QVBoxLayout(map);
  column->setContentsMargins(0, 0, 0, 0);
  MapPlot *plot = addPlot(*column);
  std::optional<double> storedHead;
  for (const NetworkMachines::Comparison &comparison : machine.comparisons) {
    if (machine.configuration.isEmpty() && comparison.property == QLatin1String("head"))
      storedHead = comparison.stored;
  }
  if (machine.turbo) {
    const bool isFitted = m_machines.data().source == FunctionSource::Fitted;
    const TurboCompressor other = machine.turbo->by(isFitted ? FunctionSource::Published : FunctionSource::Fitted);
    plot->show(*machine.turbo, machine.point, storedHead, m_both->isChecked() && machine.hasChoice() ? &other : nullptr);
  } else if (machine.piston) {
    plot->show(*machine.piston, machine.point, machine.limits);
  } else if (machine.drive) {
    plot->show(*machine.drive, machine.point, machine.ambientTemperature, machine.driven);
    if (machine.drive->energy)
      addPlot(*column)->showConsumption(*machine.drive, machine.point);
  }
  if ((machine.turbo || machine.piston) && machine.point && machine.compression) {
    connect(plot, &MapPlot::pointMoved, this, [this, machine, plot](const QPointF &to) { showMoved(machine, to, *plot); });
    connect(plot, &MapPlot::pointReturned, this, [this] { m_text->setText(m_said); });
  }
  return map;
}
