#include "tooldocks.h"

#include "casescenarios.h"
#include "consoledock.h"
#include "dockroom.h"
#include "helpwindow.h"
#include "mnemonics.h"
#include "scenariodock.h"
#include "svgicon.h"

#include <base/nivramsg.h>
#include <characteristics/characteristicsstack.h>
#include <drawing/labelcontents.h>
#include <io/nivraworkspace.h>
#include <model/names.h>
#include <tools/elementtable.h>
#include <tools/metadatatable.h>
#include <tools/nivrafindings.h>
#include <tools/nivranetlayerseditor.h>
#include <tools/nivranetobjectcats.h>
#include <tools/nivrapropviewer.h>
#include <tools/nivrasearch.h>
#include <tools/nivravectable.h>
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
    , m_extent(extent) {
  window.installEventFilter(this);
  connect(&control, &NetVisControl::selectionChanged, this, &ToolDocks::showSelection);
  connect(&control, &NetVisControl::currentElementChanged, this, &ToolDocks::showContents);
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
  m_scenario = new ScenarioDock(&m_window);
  addDock(m_scenario, QStringLiteral("scenario"), Qt::BottomDockWidgetArea);
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
    if (isShown)
      dock->raise();
  });
  new DockRoom(*dock, m_window);
  dock->hide(); // the network gets the room; the "View" menu brings it
  m_docks.append(dock);
  return dock;
}

void ToolDocks::fillViewMenu(QMenu &menu) {
  createReports();
  menu.clear();
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
  if (selection.size() == 1)
    showContents(marked()); // in place of what the mouse went over
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
  if (m_propViewer == nullptr)
    createElement();
  if (m_layers == nullptr)
    createLayers();
  if (m_categories == nullptr)
    createCategories();
  if (m_search == nullptr)
    createSearch();
  if (m_characteristics == nullptr && m_extent == Extent::Program)
    createCharacteristics();
  if (m_characteristics != nullptr)
    m_characteristics->setPageFacts(CaseScenarios::facts(workspace));
  m_draw->setFiles(workspace.filePath(QStringLiteral("vfd.csv")), m_control.labelsRead(),
                   workspace.filePath(QStringLiteral("plotsettings.ini")), m_control.styleFiles().settings);
  if (edits == Edits::Dropped) {
    m_draw->refresh();
  } else {
    m_draw->changeUnits(); // the settings may be others too
    m_draw->refreshUntouched();
  }
  m_shown.clear();
  m_propViewer->showCurrentEleContents(nullptr);
  m_info->reset();
  m_search->clearResults();
  m_layers->setLayerProperty(m_control.plot()->settings().layerProp);
  m_layers->on_pushButtonReload_clicked();
  if (m_extent == Extent::Program && (edits == Edits::Dropped || !m_categoryList->isChanged()))
    m_categoryList->setFile(workspace.filePath(QStringLiteral("catdef.csv")));
  m_directory = QFileInfo(workspace.filePath(QStringLiteral("catdef.csv"))).path();
  if (m_vectorTable != nullptr) {
    m_vectorTable->setDirectory(m_directory);
    m_vectorTable->refresh();
    m_vectorTable->showValues();
  }
  if (m_elementTable == nullptr)
    createElementTable();
  m_elementTable->refresh(m_directory);
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
}

void ToolDocks::createCharacteristics() {
  m_characteristics = new CharacteristicsStack(m_net, showFinding, &m_window);
  addDock(m_characteristics, QStringLiteral("characteristics"), Qt::RightDockWidgetArea);
  connect(&m_control, &NetVisControl::openCharacteristicsRequested, this, &ToolDocks::openCharacteristics);
}

void ToolDocks::setMachines(const MachineData &machines, Pages pages) {
  m_characteristics->setCase(QString()); // the pages of the case before are no longer kept
  m_characteristics->setMachines(machines);
  if (pages == Pages::Kept)
    m_characteristics->setCase(m_directory);
}

void ToolDocks::openCharacteristics(const QStringList &names) {
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
          [this](const QString &category) { vectorTable()->on_showCat(category); });
}

NivraVecTable *ToolDocks::vectorTable() {
  if (m_vectorTable != nullptr)
    return m_vectorTable.get();
  m_vectorTable = std::make_unique<NivraVecTable>(m_net, logFinding);
  m_vectorTable->setDirectory(m_directory);
  connect(m_vectorTable.get(), &NivraVecTable::helpWanted, this, &ToolDocks::showHelp);
  connect(m_vectorTable.get(), &NivraVecTable::elementMarked, this, &ToolDocks::elementMarked);
  connect(m_vectorTable.get(), &NivraVecTable::characteristicsWanted, &m_control,
          &NetVisControl::openCharacteristicsRequested);
  if (m_categories != nullptr) {
    connect(m_categories, &NivraNetObjectCats::catChanged, m_vectorTable.get(), &NivraVecTable::on_updateCats);
    m_categories->on_pushButtonUse_clicked();
  }
  m_vectorTable->on_pushButtonUpdate_clicked();
  return m_vectorTable.get();
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
  m_layers->on_pushButtonReload_clicked();
  if (m_vectorTable != nullptr)
    m_vectorTable->showValues();
  m_elementTable->showChanges();
  m_search->searchAgain();
  if (m_characteristics != nullptr)
    m_characteristics->refresh(); // the working points
  showContents(m_shown);
}

void ToolDocks::takeSettings() {
  if (m_draw == nullptr)
    return; // there is no workspace
  m_draw->changeUnits();
  if (m_scenario != nullptr)
    m_scenario->setScenario(m_summary, *m_net.metaData());
  showChanges();
}

void ToolDocks::showVectorTable() {
  NivraVecTable *table = vectorTable();
  table->show();
  table->raise();
  table->activateWindow();
}

void ToolDocks::showMetaData() {
  if (m_metaData == nullptr)
    m_metaData = std::make_unique<MetaDataTable>(m_net);
  m_metaData->fill(); // formulas of another case may have described other properties
  m_metaData->show();
  m_metaData->raise();
}

void ToolDocks::setFindings(const std::vector<FindingList::Group> &groups) {
  m_findings->setFindings(groups);
  const int count = m_findings->count();
  m_findingsButton->setText(count == 1 ? tr("1 finding") : tr("%1 findings").arg(count));
  m_findingsButton->setVisible(count > 0);
}

void ToolDocks::setScenario(const ScenarioSummary &summary) {
  m_summary = summary;
  m_scenario->setScenario(summary, *m_net.metaData());
}

void ToolDocks::showHelp(const QString &page) {
  if (m_help == nullptr)
    m_help = std::make_unique<HelpWindow>();
  m_help->showPage(page);
}

void ToolDocks::createDraw() {
  m_draw = new viewFuncDialog(*m_control.plot());
  connect(&m_control, &NetVisControl::styleChanged, m_draw, &viewFuncDialog::refreshUntouched);
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

void ToolDocks::createElement() {
  m_info = new NivraEleInfoWidget([this](const element &e) { return plotLabel(e); });
  auto *infoDock = new QDockWidget(m_info->windowTitle(), &m_window);
  infoDock->setWidget(m_info);
  addDock(infoDock, QStringLiteral("elementInformation"), Qt::RightDockWidgetArea);
  m_propViewer = new NivraPropViewer(m_net, &m_window);
  addDock(m_propViewer, QStringLiteral("propertyViewer"), Qt::RightDockWidgetArea);
  for (const QDockWidget *dock : {infoDock, static_cast<QDockWidget *>(m_propViewer)}) {
    connect(dock, &QDockWidget::visibilityChanged, this, [this](bool isShown) {
      if (isShown)
        showContents(marked());
    });
  }
  connect(m_propViewer, &NivraPropViewer::characteristicsWanted, &m_control, &NetVisControl::openCharacteristicsRequested);
  connect(&m_control, &NetVisControl::editPropertiesRequested, this, &ToolDocks::showProperties);
  connect(m_control.picker(), &NetPicker::hovered, this, [this](const QString &name) {
    if (!name.isEmpty() && m_net.selection().isEmpty()) // what was picked stays until something else is
      showContents(name);
  });
}

NivraEleInfoWidget::PlotLabel ToolDocks::plotLabel(const element &e) const {
  const LabelContents *contents = m_control.labelContents();
  if (contents == nullptr)
    return {};
  const LabelText text = contents->text(e);
  const LabelStyle style = contents->style(e, m_net.findElement(e.value(Names::all().name), NetData::AllTypes).first);
  QStringList lines;
  for (const QString &line : text.lines)
    lines.append(line.toHtmlEscaped());
  return {text.html.isEmpty() ? lines.join(QStringLiteral("<br />")) : text.html, style.font, style.text, style.background};
}

QString ToolDocks::marked() const {
  const Selection::Names names = m_net.selection().names();
  if (names.size() == 1)
    return *names.cbegin();
  return names.contains(m_control.currentElement()) ? m_control.currentElement() : QString();
}

void ToolDocks::showContents(const QString &name) {
  if (m_propViewer == nullptr)
    return;
  m_shown = name;
  const element *e = m_net.element(name);
  if (m_propViewer->isVisible())
    m_propViewer->showCurrentEleContents(e);
  if (!m_info->isVisible())
    return;
  m_info->reset();
  m_info->showEleLabel(e);
  m_info->showSubLabel(m_net.assembledSubnets().find(name));
}

void ToolDocks::showInfo(const QString &name) {
  if (m_propViewer == nullptr)
    return;
  m_info->parentWidget()->show();
  m_propViewer->show();
  m_propViewer->raise();
  showContents(name);
}

void ToolDocks::showProperties(const QStringList &names) {
  if (names.isEmpty())
    return;
  if (names.size() > 1) { // the viewer shows one at a time; the others are told by the selection
    Selection selection;
    for (const QString &name : names)
      Topology::select(m_net, name, selection);
    m_control.picker()->setSelection(selection);
  }
  m_propViewer->show();
  m_propViewer->raise();
  showContents(names.first());
}

void ToolDocks::createSearch() {
  m_search = new NivraSearch(m_net, logFinding, &m_window);
  addDock(m_search, QStringLiteral("search"), Qt::LeftDockWidgetArea);
  connect(m_search, &NivraSearch::elementMarked, this, &ToolDocks::elementMarked);
  connect(m_search, &NivraSearch::itemDoubleClicked, this,
          [this](const QModelIndex &item) { m_control.showElement(item.data().toString()); });
  connect(m_search, &NivraSearch::markSearchResults, &m_control, &NetVisControl::selectSearchResults);
  connect(m_search, &NivraSearch::searchCompleted, &m_control, &NetVisControl::refreshSearchResults);
  connect(m_control.picker(), &NetPicker::picked, m_search, &NivraSearch::select);
  connect(m_search, &NivraSearch::definitionChanged, m_categories, &NivraNetObjectCats::updateTempCategory);
  connect(m_search, &NivraSearch::categoryWanted, m_categories,
          [this](const QStringList &definition) { m_categories->addCategory(definition); });
  connect(m_search, &NivraSearch::showInTable, this, [this] { vectorTable()->on_useSearchConfig(); });
  connect(m_search, &NivraSearch::characteristicsWanted, &m_control, &NetVisControl::openCharacteristicsRequested);
  connect(m_categories, &NivraNetObjectCats::toSearch, m_search, [this](const QStringList &definition, bool regex) {
    m_search->show();
    m_search->raise();
    m_search->defineSearch(definition, regex);
  });
}
