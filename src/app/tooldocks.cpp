#include "tooldocks.h"

#include "casemachines.h"
#include "casescenarios.h"
#include "consoledock.h"
#include "dockroom.h"
#include "elementpanels.h"
#include "mnemonics.h"
#include "panelfocus.h"
#include "pathprofilelink.h"
#include "scenariodock.h"
#include "scenarios/scenariosdock.h"
#include "svgicon.h"
#include "toolwindows.h"

#include <base/nivramsg.h>
#include <characteristics/characteristicsstack.h>
#include <io/nivraworkspace.h>
#include <tools/balancedock.h>
#include <tools/categorylist.h>
#include <tools/elementtable.h>
#include <tools/nivrafindings.h>
#include <tools/nivranetlayerseditor.h>
#include <tools/nivranetobjectcats.h>
#include <tools/nivrasearch.h>
#include <tools/nivravectable.h>
#include <tools/scenariosetdock.h>
#include <view/netplot.h>
#include <view/netviscontrol.h>
#include <view/viewfuncdialog.h>

#include <QAction>
#include <QDockWidget>
#include <QFileInfo>
#include <QMainWindow>
#include <QMenu>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>

namespace {

QList<QAction *> sortedByText(QList<QAction *> actions) {
  std::sort(actions.begin(), actions.end(),
            [](const QAction *a, const QAction *b) { return Mnemonics::plain(a->text()) < Mnemonics::plain(b->text()); });
  return actions;
}

} // namespace

ToolDocks::ToolDocks(QMainWindow &window, NetVisControl &control, std::shared_ptr<CategoryList> categories, Extent extent)
    : QObject(&window)
    , m_window(window)
    , m_control(control)
    , m_net(control.net())
    , m_categoryList(std::move(categories))
    , m_extent(extent)
    , m_windows(new ToolWindows(window, control.net())) {
  window.installEventFilter(this);
  connect(m_windows, &ToolWindows::vectorTableMade, this, &ToolDocks::connectVectorTable);
  connect(&control, &NetVisControl::selectionChanged, this, &ToolDocks::showSelection);
  connect(&control, &NetVisControl::configureDrawRequested, this, &ToolDocks::showDrawConfiguration);
  if (extent == Extent::Network)
    return;
  m_findingsButton = new QToolButton;
  m_findingsButton->setAutoRaise(true);
  m_findingsButton->setAccessibleName(tr("Show the findings"));
  m_findingsButton->hide();
  connect(m_findingsButton, &QToolButton::clicked, this, [this] {
    m_findings->show();
    m_findings->raise();
  });
  connect(&NivraMsg::NivraLogger::instance(), &NivraMsg::NivraLogger::msgConsole, this,
          [this](const QString &text) { m_messagesBefore.append(text); });
}

// The first dock makes the toolkit load what reads its icons, which a start without a network need not wait for.
void ToolDocks::createReports() {
  if (m_findings != nullptr || m_extent == Extent::Network)
    return;
  disconnect(&NivraMsg::NivraLogger::instance(), nullptr, this, nullptr);
  addDock(new ConsoleDock(m_messagesBefore, &m_window), QStringLiteral("messages"), Qt::BottomDockWidgetArea);
  m_messagesBefore.clear();
  m_findings = new NivraFindings(&m_window);
  addDock(m_findings, QStringLiteral("findings"), Qt::BottomDockWidgetArea);
  connect(m_findings, &NivraFindings::elementWanted, this, [this](const QString &name) {
    m_control.showElement(name);
    emit elementMarked(name);
  });
  connect(m_findings, &NivraFindings::elementsWanted, this, &ToolDocks::selectElements);
  m_scenario = new ScenarioDock(&m_window);
  addDock(m_scenario, QStringLiteral("scenario"), Qt::BottomDockWidgetArea);
  m_scenarios = new ScenariosDock(&m_window);
  addDock(m_scenarios, QStringLiteral("scenarios"), Qt::LeftDockWidgetArea);
}

ToolDocks::~ToolDocks() = default;

// Entries of menus ask for tips in the status bar. They have none, and an empty one would wipe out what stands there.
bool ToolDocks::eventFilter(QObject *watched, QEvent *event) {
  return event->type() == QEvent::StatusTip || QObject::eventFilter(watched, event);
}

QDockWidget *ToolDocks::addDock(QDockWidget *dock, const QString &name, Qt::DockWidgetArea area) {
  dock->setObjectName(name);
  m_window.addDockWidget(area, dock);
  for (QDockWidget *other : qAsConst(m_docks)) { // one tool at a time on each side, the others behind tabs
    if (m_window.dockWidgetArea(other) == area) {
      m_window.tabifyDockWidget(other, dock);
      break;
    }
  }
  connect(dock->toggleViewAction(), &QAction::triggered, dock, [dock](bool isShown) {
    if (!isShown)
      return;
    dock->raise();
    PanelFocus::give(*dock);
  });
  new DockRoom(*dock, m_window);
  dock->hide(); // the network gets the room; the "View" menu brings it
  m_docks.append(dock);
  return dock;
}

void ToolDocks::fillViewMenu(QMenu &menu) {
  createReports();
  menu.clear();
  const StyleActions &styles = m_control.styles();
  menu.addMenu(styles.menu());
  menu.addActions({styles.undoAction(), styles.redoAction()});
  QList<QAction *> toggles;
  for (const QDockWidget *dock : m_docks)
    toggles.append(dock->toggleViewAction());
  menu.addSection(tr("Dock Widgets"));
  menu.addActions(sortedByText(toggles));
  toggles.clear();
  for (const QToolBar *bar : m_window.findChildren<QToolBar *>(QString(), Qt::FindDirectChildrenOnly))
    toggles.append(bar->toggleViewAction());
  menu.addSection(tr("Toolbars"));
  menu.addActions(sortedByText(toggles));
}

void ToolDocks::showSelection() {
  const Selection &selection = m_net.selection();
  QStringList parts;
  const auto add = [&parts](int count, const QString &one, const QString &many) {
    if (count > 0)
      parts.append(count == 1 ? one : many.arg(count));
  };
  add(selection.nodes.size(), tr("1 node"), tr("%1 nodes"));
  add(selection.edges.size(), tr("1 edge"), tr("%1 edges"));
  add(selection.subnets.size(), tr("1 subnet"), tr("%1 subnets"));
  add(selection.others.size(), tr("1 other"), tr("%1 others"));
  const QString names = selection.size() == 1 ? tr(": %1").arg(*selection.names().cbegin()) : QString();
  m_window.statusBar()->showMessage(parts.isEmpty() ? QString() : tr("Selected %1%2").arg(parts.join(tr(", ")), names));
}

void ToolDocks::refresh(const NivraWorkspace &workspace, Edits edits) {
  createReports();
  if (m_draw == nullptr)
    createDraw();
  if (m_element == nullptr)
    createElement();
  if (m_layers == nullptr)
    createLayers();
  if (m_categories == nullptr)
    createCategories();
  if (m_search == nullptr)
    createSearch();
  if (m_characteristics == nullptr && m_extent == Extent::Program)
    createCharacteristics();
  setCase(workspace);
  m_draw->setFiles(workspace.filePath(QStringLiteral("vfd.csv")), m_control.labelsRead(),
                   workspace.filePath(QStringLiteral("plotsettings.ini")), m_control.styleFiles().settings);
  if (edits == Edits::Dropped) {
    m_draw->refresh();
  } else {
    m_draw->changeUnits(); // the settings may be others too
    m_draw->refreshUntouched();
  }
  m_element->reset();
  m_search->clearResults();
  m_layers->takeNetwork(m_control.plot()->settings().layerProp);
  if (m_extent == Extent::Program && (edits == Edits::Dropped || !m_categoryList->isChanged()))
    m_categoryList->setFile(workspace.filePath(QStringLiteral("catdef.csv")));
  m_directory = QFileInfo(workspace.filePath(QStringLiteral("catdef.csv"))).path();
  m_windows->takeNetwork(m_directory);
  if (m_elementTable == nullptr)
    createElementTable();
  m_elementTable->refresh(m_directory);
  if (m_balance == nullptr && m_extent == Extent::Program)
    createBalance();
  if (m_balance != nullptr)
    m_balance->refresh();
  if (m_scenarioSet == nullptr && m_extent == Extent::Program)
    createScenarioSet();
  if (m_scenarioSet != nullptr)
    m_scenarioSet->refresh(workspace);
  if (m_pathProfile == nullptr)
    createPathProfile();
  m_pathProfile->refresh(workspace, m_directory);
}

void ToolDocks::createBalance() {
  m_balance = new BalanceDock(m_net, *m_categoryList, &m_window);
  addDock(m_balance, QStringLiteral("balance"), Qt::BottomDockWidgetArea);
  connect(m_balance, &BalanceDock::elementsWanted, this, &ToolDocks::selectElements);
  connect(m_categoryList.get(), &CategoryList::changed, m_balance, &BalanceDock::refresh);
}

/// All of them, and the first in the middle of the drawing where it is out of sight.
void ToolDocks::selectElements(const QStringList &names) {
  Selection selection;
  for (const QString &name : names)
    Topology::select(m_net, name, selection);
  m_control.picker()->setSelection(selection);
  m_control.showElement(names.first());
}

void ToolDocks::createScenarioSet() {
  m_scenarioSet = new ScenarioSetDock(m_net, &m_window);
  addDock(m_scenarioSet, QStringLiteral("scenarioSet"), Qt::BottomDockWidgetArea);
  connect(m_scenarioSet, &ScenarioSetDock::elementsChanged, this, &ToolDocks::figuresChanged);
  connect(m_scenarioSet, &ScenarioSetDock::scenarioWanted, this, &ToolDocks::scenarioWanted);
  connect(&m_control, &NetVisControl::currentElementChanged, m_scenarioSet, &ScenarioSetDock::showElement);
}

void ToolDocks::createPathProfile() {
  m_pathProfile = new PathProfileLink(m_control, m_window);
  addDock(m_pathProfile->dock(), QStringLiteral("pathProfile"), Qt::BottomDockWidgetArea);
  connect(m_pathProfile, &PathProfileLink::elementMarked, this, &ToolDocks::elementMarked);
}

void ToolDocks::createElementTable() {
  m_elementTable = new ElementTable(m_net, &m_window);
  addDock(m_elementTable, QStringLiteral("elementTable"), Qt::BottomDockWidgetArea);
  m_elementTable->openAction()->setIcon(svgIcon(QStringLiteral("element-table")));
  m_window.addAction(m_elementTable->openAction());
  connect(m_elementTable, &ElementTable::selected, m_control.picker(), &NetPicker::setSelection);
  connect(m_elementTable, &ElementTable::currentChanged, &m_control, &NetVisControl::setCurrentElement);
  connect(m_elementTable, &ElementTable::elementWanted, &m_control, &NetVisControl::showElement);
  connect(&m_control, &NetVisControl::selectionChanged, m_elementTable, &ElementTable::showSelection);
}

void ToolDocks::forgetElements() {
  if (m_elementTable != nullptr)
    m_elementTable->forget();
  if (m_balance != nullptr)
    m_balance->forget();
  if (m_scenarioSet != nullptr)
    m_scenarioSet->forget();
  if (m_pathProfile != nullptr)
    m_pathProfile->dock()->forget();
  if (m_characteristics != nullptr)
    m_characteristics->cancelReading();
}

void ToolDocks::createCharacteristics() {
  m_characteristics = new CharacteristicsStack(m_net, showFinding, &m_window);
  addDock(m_characteristics, QStringLiteral("characteristics"), Qt::RightDockWidgetArea);
  connect(&m_control, &NetVisControl::openCharacteristicsRequested, this, &ToolDocks::openCharacteristics);
  connect(m_characteristics, &CharacteristicsStack::functionsChosen, this, &ToolDocks::functionsChosen);
  connect(m_characteristics, &CharacteristicsStack::scenarioWanted, this, &ToolDocks::scenarioNamed);
}

void ToolDocks::setMachines(const MachineData &machines, Pages pages) {
  m_characteristics->setCase(QString()); // the pages of the case before are no longer kept
  m_characteristics->setMachines(machines);
  if (pages == Pages::Kept)
    m_characteristics->setCase(m_directory);
}

void ToolDocks::openCharacteristics(const QStringList &names) {
  if (names.isEmpty())
    m_window.statusBar()->showMessage(tr("No machine is selected"));
  for (const QString &name : names) {
    if (m_characteristics == nullptr || !m_characteristics->open(name))
      return; // the reason was shown once
  }
}

void ToolDocks::createLayers() {
  m_layers = new NivraNetLayersEditor(m_net, logFinding, &m_window);
  addDock(m_layers, QStringLiteral("layers"), Qt::LeftDockWidgetArea);
  connect(m_layers, &NivraNetLayersEditor::layerVisChanged, &m_control, &NetVisControl::setHiddenLayers);
  connect(&m_control, &NetVisControl::hiddenLayersChanged, m_layers, &NivraNetLayersEditor::setHiddenLayers);
  connect(m_layers, &NivraNetLayersEditor::elementsChanged, this, &ToolDocks::elementsChanged);
  connect(m_layers, &NivraNetLayersEditor::saveWanted, this, &ToolDocks::saveLayersWanted);
  connect(m_layers, &NivraNetLayersEditor::loadWanted, this, &ToolDocks::loadLayersWanted);
  m_layers->setOffersFiles(m_extent == Extent::Program); // those of a part are saved with the whole
  connect(m_layers, &NivraNetLayersEditor::itemClicked, this, &ToolDocks::elementMarked);
  connect(m_layers, &NivraNetLayersEditor::itemDoubleClicked, &m_control, &NetVisControl::showElement);
}

void ToolDocks::createCategories() {
  m_categories = new NivraNetObjectCats(m_categoryList, &m_window);
  addDock(m_categories, QStringLiteral("categories"), Qt::BottomDockWidgetArea);
  connect(m_categories, &NivraNetObjectCats::showInTable, this,
          [this](const QString &category) { m_windows->vectorTable().on_showCat(category); });
}

void ToolDocks::connectVectorTable(NivraVecTable *table) {
  connect(table, &NivraVecTable::elementMarked, this, &ToolDocks::elementMarked);
  connect(table, &NivraVecTable::characteristicsWanted, &m_control, &NetVisControl::openCharacteristicsRequested);
  if (m_categories == nullptr)
    return;
  connect(m_categories, &NivraNetObjectCats::catChanged, table, &NivraVecTable::on_updateCats);
  m_categories->on_pushButtonUse_clicked();
}

void ToolDocks::createElement() {
  m_element = new ElementPanels(m_window, m_control);
  addDock(m_element->info(), QStringLiteral("elementInformation"), Qt::RightDockWidgetArea);
  addDock(m_element->properties(), QStringLiteral("propertyViewer"), Qt::RightDockWidgetArea);
  connect(m_element, &ElementPanels::characteristicsWanted, &m_control, &NetVisControl::openCharacteristicsRequested);
  connect(m_element, &ElementPanels::whyWanted, this, &ToolDocks::whyWanted);
  m_element->setExplains(m_extent == Extent::Program);
}

void ToolDocks::showInfo(const QString &name) {
  if (m_element != nullptr)
    m_element->bring(name);
}

std::vector<UnsavedEdits::Kind> ToolDocks::unsaved() {
  std::vector<UnsavedEdits::Kind> kinds;
  if (m_extent == Extent::Program && m_categories != nullptr && m_categories->hasChanges()) // those of all windows
    kinds.push_back({tr("categories"), tr("The categories have changes that are not saved. Save them?"), [this] {
                       return m_categories->save();
                     }});
  if (m_draw != nullptr && m_draw->hasUnapplied())
    kinds.push_back({tr("what was typed in \"Configure Draw\""),
                     tr("What was typed in \"Configure Draw\" is not applied. Save it?"), [this] {
                       m_draw->on_applyAndSave_clicked();
                       return !m_draw->hasUnapplied();
                     }});
  return kinds;
}

bool ToolDocks::saveStyle() {
  m_draw->on_applyAndSave_clicked();
  return m_control.ownStyle().isEmpty();
}

void ToolDocks::setHiddenLayers(const QString &property, const QSet<QString> &layers) {
  m_layers->setLayerProperty(property);
  m_control.setHiddenLayers(property, layers);
}

void ToolDocks::showChanges() {
  m_layers->takeChanges();
  m_windows->showChanges();
  m_elementTable->showChanges();
  if (m_balance != nullptr)
    m_balance->refresh();
  m_pathProfile->dock()->showChanges();
  m_search->takeChanges(m_control.showsSearchResults());
  if (m_characteristics != nullptr)
    m_characteristics->refresh(); // the working points
  m_element->showAgain();
}

void ToolDocks::takeSettings() {
  if (m_draw == nullptr)
    return; // there is no workspace
  m_draw->changeUnits();
  if (m_scenario != nullptr)
    m_scenario->setScenario(m_summary, *m_net.metaData());
  if (m_scenarioSet != nullptr)
    m_scenarioSet->showAgain();
  showChanges();
}

void ToolDocks::setFindings(const std::vector<FindingList::Group> &groups) {
  m_findings->setFindings(groups);
  const int count = m_findings->count();
  m_findingsButton->setText(count == 1 ? tr("1 finding") : tr("%1 findings").arg(count));
  m_findingsButton->setVisible(count > 0);
}

void ToolDocks::bringFindings() {
  if (m_findings->count() > 0)
    m_findingsButton->click();
}

void ToolDocks::setCase(const NivraWorkspace &workspace) {
  if (m_characteristics != nullptr)
    m_characteristics->setPageFacts(CaseScenarios::facts(workspace));
  if (m_characteristics != nullptr && workspace.isValid())
    m_characteristics->setScenarios(CaseMachines::of(workspace), workspace.caseDirectory());
  if (m_scenarioSet != nullptr)
    m_scenarioSet->refresh(workspace);
}

void ToolDocks::setScenario(const ScenarioSummary &summary) {
  m_summary = summary;
  m_scenario->setScenario(summary, *m_net.metaData());
}

void ToolDocks::createDraw() {
  m_draw = new viewFuncDialog(*m_control.plot());
  connect(&m_control, &NetVisControl::styleChanged, m_draw, &viewFuncDialog::refreshUntouched);
  connect(m_draw, &viewFuncDialog::applied, &m_control.styles(), &StyleActions::record);
  m_draw->setStyleMenu(m_control.styles().menu());
  connect(m_draw, &viewFuncDialog::filesTaken, &m_control, &NetVisControl::noteStyleFiles);
  auto *dock = new QDockWidget(m_draw->windowTitle(), &m_window);
  dock->setWidget(m_draw);
  addDock(dock, QStringLiteral("configureDraw"), Qt::RightDockWidgetArea);
}

void ToolDocks::showDrawConfiguration() {
  if (m_draw == nullptr)
    return;
  QWidget *dock = m_draw->parentWidget();
  dock->show();
  dock->raise();
}

void ToolDocks::showDrawSettings() {
  if (m_draw != nullptr)
    m_draw->refreshUntouched();
}

void ToolDocks::createSearch() {
  m_search = new NivraSearch(m_net, logFinding, &m_window);
  addDock(m_search, QStringLiteral("search"), Qt::LeftDockWidgetArea);
  connect(m_search, &NivraSearch::elementMarked, this, &ToolDocks::elementMarked);
  connect(m_search, &NivraSearch::itemDoubleClicked, this,
          [this](const QModelIndex &item) { m_control.showElement(item.data().toString()); });
  connect(m_search, &NivraSearch::markSearchResults, &m_control, &NetVisControl::selectSearchResults);
  connect(&m_control.actions(), &PlotActions::searchResultsRequested, m_search, &NivraSearch::catchUp);
  connect(m_search, &NivraSearch::searchCompleted, &m_control, &NetVisControl::refreshSearchResults);
  connect(m_control.picker(), &NetPicker::picked, m_search, &NivraSearch::select);
  connect(m_search, &NivraSearch::definitionChanged, m_categories, &NivraNetObjectCats::updateTempCategory);
  connect(m_search, &NivraSearch::categoryWanted, m_categories,
          [this](const QStringList &definition) { m_categories->addCategory(definition); });
  connect(m_search, &NivraSearch::showInTable, this, [this] { m_windows->vectorTable().on_useSearchConfig(); });
  connect(m_search, &NivraSearch::characteristicsWanted, &m_control, &NetVisControl::openCharacteristicsRequested);
  connect(m_categories, &NivraNetObjectCats::toSearch, m_search, [this](const QStringList &definition, bool regex) {
    m_search->show();
    m_search->raise();
    m_search->defineSearch(definition, regex);
  });
}
