#include "caseopening.h"

#include "casescenarios.h"
#include "lastscenario.h"
#include "layerkeeper.h"
#include "openingclock.h"
#include "reloadoffer.h"
#include "settings/numberlocale.h"
#include "subnetwindows.h"
#include "tooldocks.h"
#include "workspacememory.h"

#include <base/fileaccess.h>
#include <base/lastfolder.h>
#include <base/nivramsg.h>
#include <base/settings.h>
#include <view/netplot.h>
#include <view/netviscontrol.h>

#include <QCoreApplication>
#include <QDir>
#include <QMainWindow>
#include <QStatusBar>

#include <machines/functionmemory.h>
#include <utility>

CaseOpening::CaseOpening(const Parts &parts)
    : m_parts(parts)
    , m_loader(parts.control.net())
    , m_reading(m_loader, parts.control, parts.window)
    , m_reloadOffer(new ReloadOffer(parts.window)) {
  connect(&m_reading, &CaseReading::begins, this, [this] {
    m_parts.subnets.closeAll(); // parts of the network before
    m_parts.tools.forgetElements();
    m_checked.clear();
  });
  connectFiles();
}

void CaseOpening::connectFiles() {
  connect(m_reloadOffer, &ReloadOffer::reloadWanted, this, &CaseOpening::reload);
  connect(m_reloadOffer, &ReloadOffer::ignored, m_parts.control.plot(), [this] { m_parts.control.plot()->setFocus(); });
  connect(&m_parts.layers, &LayerKeeper::written, this, [this](const QString &path) { m_reloadOffer->accept({path}); });
  connect(&m_parts.control, &NetVisControl::styleFilesNoted, this, &CaseOpening::acceptStyleFiles);
  connect(&m_parts.subnets, &SubnetWindows::styleFilesNoted, this, &CaseOpening::acceptStyleFiles);
}

/// They were read or written here just now.
void CaseOpening::acceptStyleFiles() {
  m_reloadOffer->accept(
      {workspace().filePath(QStringLiteral("plotsettings.ini")), workspace().filePath(QStringLiteral("vfd.csv"))});
}

void CaseOpening::open(const QString &path) {
  NivraMsg::debug(QStringLiteral("opening file ") + path);
  const OpeningClock clock;
  NetworkLoader loader(m_parts.control.net());
  if (!resolve(loader, path))
    return;
  const UnsavedEdits::Answer answer = settle();
  if (answer == UnsavedEdits::Answer::Stay)
    return;
  leave(answer);
  m_parts.memory.leave();
  m_loader.useWorkspaceOf(loader);
  LastFolder::ofOpening().remember(path); // from wherever it came
  if (m_parts.window.centralWidget() != m_parts.control.plot())
    m_parts.window.setCentralWidget(m_parts.control.plot());
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); // which would meet half of two cases
  loadSettings();
  if (Settings::StartWithLastScenario.value() && !m_parts.memory.isClean())
    useLastScenario();
  m_loader.setFunctions(m_parts.memory.isClean() ? FunctionSource::Fitted : FunctionMemory::of(workspace().root()));
  const bool isDone = m_reading.read();
  m_isRead = isDone && !m_parts.control.net().isEmpty();
  m_parts.layers.enter(workspace(), m_loader.layers());
  m_parts.tools.refresh(workspace());
  show(isDone);
  if (m_isRead)
    m_parts.memory.enter(workspace());
  m_reloadOffer->hideBar(); // also where the window was left with it
  if (m_isRead && !m_parts.memory.isClean() && workspace().hasScenario())
    LastScenario::remember(workspace().caseDirectory(), workspace().chosenPath());
  tellOutcome(isDone, clock);
  emit ended();
}

bool CaseOpening::resolve(NetworkLoader &loader, const QString &path) {
  QStatusBar &bar = *m_parts.window.statusBar();
  OutcomeStyle::clear(bar);
  QString reason;
  if (loader.resolve(path) && hasGeometry(loader.workspace(), &reason)) {
    if (workspace().isValid()) // what is open may stay so
      FileAccess::confineTo(workspace().root());
    return true;
  }
  OutcomeStyle::show(bar, OutcomeStyle::Outcome::Failed);
  bar.showMessage(tr("Invalid Workspace"));
  if (NivraMsg::showsBoxes()) // else the log has said it already
    NivraMsg::message(NivraMsg::Kind::Warning, reason.isEmpty() ? loader.error() : reason);
  else if (!reason.isEmpty())
    NivraMsg::logWarning(reason);
  return false;
}

/// Else nothing can take the place of what is open.
bool CaseOpening::hasGeometry(const NivraWorkspace &wanted, QString *reason) const {
  const QDir folder(wanted.caseDirectory());
  if (!m_isRead || !folder.entryList({QStringLiteral("*.geom*")}, QDir::Files).isEmpty())
    return true;
  *reason = tr("%1 cannot be opened: there is no geometry in %2").arg(wanted.chosenPath(), folder.path());
  if (workspace().isValid())
    FileAccess::confineTo(workspace().root());
  return false;
}

/// In place of a case alone the scenario of it that was opened last, where it still belongs to the chosen geometry.
void CaseOpening::useLastScenario() {
  if (workspace().hasScenario())
    return;
  const QString last = LastScenario::of(workspace().caseDirectory());
  NetworkLoader loader(m_parts.control.net());
  if (last.isEmpty() || !loader.resolve(last) || !loader.workspace().hasScenario() ||
      loader.workspace().geometryPath() != workspace().geometryPath() || loader.workspace().isJson() != workspace().isJson())
    return;
  NivraMsg::log(tr("Opening the scenario %1, which was opened last").arg(last));
  m_loader.useWorkspaceOf(loader);
}

void CaseOpening::reload() {
  if (m_reading.isRunning() || !workspace().isValid())
    return;
  NetworkLoader loader(m_parts.control.net());
  const QString fault = m_loader.fault(); // what is shown stays as long as nothing can take its place
  if (!fault.isEmpty() || !loader.resolve(workspace().chosenPath())) {
    m_reloadOffer->tellFault(fault.isEmpty() ? loader.error() : fault);
    return;
  }
  readAgain(loader);
}

/// With everything that belongs to the case but not to its files.
void CaseOpening::readAgain(const NetworkLoader &wanted) {
  const OpeningClock clock;
  if (UnsavedEdits::settle(m_parts.subnets.unsaved()) == UnsavedEdits::Answer::Stay)
    return;       // those windows go
  if (m_isRead) { // else there is nothing to be taken, or it is aside since a reading that failed
    m_parts.memory.takeAside();
    m_parts.layers.takeAside();
  }
  m_loader.useWorkspaceOf(wanted);
  loadSettings();
  const bool isDone = m_reading.read();
  m_isRead = isDone && !m_parts.control.net().isEmpty(); // of a broken file nothing may be left
  m_parts.tools.refresh(workspace(), ToolDocks::Edits::Kept);
  show(isDone);
  if (m_isRead)
    comeBack();
  tellOutcome(isDone, clock);
  emit ended();
}

bool CaseOpening::switchTo(const QString &path) {
  NetworkLoader wanted(m_parts.control.net());
  if (m_reading.isRunning() || !m_isRead || !resolve(wanted, path))
    return false;
  const OpeningClock clock;
  m_parts.layers.takeAside();
  const NetworkLoader::Exchange exchange = m_reading.exchange(wanted);
  m_parts.layers.comeBack(m_loader.layers());
  if (exchange == NetworkLoader::Exchange::Failed) {
    tellFailure();
  } else if (exchange == NetworkLoader::Exchange::Impossible) {
    NetworkLoader before(m_parts.control.net());
    const bool canComeBack = before.resolve(workspace().chosenPath());
    readAgain(wanted);
    if (!m_isRead && canComeBack)
      readAgain(before);
  } else {
    showScenario();
    tellSwitch(clock);
  }
  const bool isShown = workspace().chosenPath() == wanted.workspace().chosenPath();
  if (isShown && !m_parts.memory.isClean())
    LastScenario::remember(workspace().caseDirectory(), workspace().chosenPath());
  if (exchange != NetworkLoader::Exchange::Impossible)
    emit ended();
  return isShown;
}

/// In the drawing and beside it, where another one was before.
void CaseOpening::showScenario() {
  m_parts.control.setCaption(workspace().caption());
  m_parts.memory.follow(workspace());
  m_parts.tools.setCase(workspace());
  m_parts.subnets.takeCase(workspace());
  m_checked.clear(); // of the scenario before
  showBeside(true);
  emit switched();
  showValues();
}

void CaseOpening::showValues() {
  m_parts.tools.showChanges();
  m_parts.control.redraw();
  m_parts.subnets.takeProperties();
}

void CaseOpening::tellFailure() {
  OutcomeStyle::show(*m_parts.window.statusBar(), outcome(false));
  m_parts.window.statusBar()->showMessage(m_loader.error());
}

bool CaseOpening::visit(const QString &path, const Look &look) {
  if (m_reading.isRunning() || !m_isRead)
    return false;
  if (path == workspace().chosenPath()) {
    look(m_parts.control.net(), m_loader);
    return true;
  }
  NetworkLoader wanted(m_parts.control.net());
  NetworkLoader shown(m_parts.control.net());
  if (!resolve(wanted, path) || !resolve(shown, workspace().chosenPath()))
    return false;
  NetData apart;
  if (!workspace().hasScenario()) // there is no way back to that
    return readApart(path, apart, look);
  m_parts.layers.takeAside();
  const NetworkLoader::Exchange exchange = m_reading.exchange(wanted);
  if (exchange == NetworkLoader::Exchange::Done) {
    look(m_parts.control.net(), m_loader);
    if (m_loader.exchangeScenario(shown, Progress()) != NetworkLoader::Exchange::Done)
      showScenario(); // its files have gone meanwhile
  }
  m_parts.layers.comeBack(m_loader.layers());
  if (exchange == NetworkLoader::Exchange::Impossible)
    return readApart(path, apart, look);
  if (exchange == NetworkLoader::Exchange::Failed)
    tellFailure();
  emit ended();
  return exchange == NetworkLoader::Exchange::Done;
}

bool CaseOpening::readApart(const QString &path, NetData &apart, const Look &look) {
  NetworkLoader loader(apart);
  if (m_reading.isRunning() || !resolve(loader, path))
    return false;
  const bool isRead = m_reading.readApart(loader);
  if (isRead) {
    look(apart, loader);
  } else {
    OutcomeStyle::show(*m_parts.window.statusBar(), OutcomeStyle::Outcome::Failed);
    m_parts.window.statusBar()->showMessage(loader.error());
  }
  emit ended();
  return isRead;
}

void CaseOpening::comeBack() {
  if (m_parts.memory.isAside()) {
    m_parts.layers.comeBack(m_loader.layers());
    m_parts.memory.comeBack();
  } else { // it could not be read before
    m_parts.layers.enter(workspace(), m_loader.layers());
    m_parts.memory.enter(workspace());
  }
}

UnsavedEdits::Answer CaseOpening::settle() {
  std::vector<UnsavedEdits::Kind> kinds = m_parts.tools.unsaved();
  for (UnsavedEdits::Kind &kind : m_parts.subnets.unsaved())
    kinds.push_back(std::move(kind));
  if (m_parts.layers.isUnsaved())
    kinds.push_back({tr("layers of elements (%1)").arg(m_parts.layers.count()),
                     tr("The layers of elements have changes that are not saved. Save them?"), [this] {
                       return m_parts.layers.save();
                     }});
  if (workspace().isValid() && !m_parts.memory.keepsSessions() && !m_parts.control.ownStyle().isEmpty())
    kinds.push_back({tr("how the network is drawn"), tr("How the network is drawn is not saved. Save it?"), [this] {
                       return m_parts.tools.saveStyle();
                     }});
  return UnsavedEdits::settle(kinds);
}

void CaseOpening::leave(UnsavedEdits::Answer answer) {
  if (answer == UnsavedEdits::Answer::Discarded)
    m_parts.layers.discard();
  m_parts.memory.keep();
}

void CaseOpening::show(bool isRead) {
  m_parts.control.plot()->setFocus(); // the keys are for the network that was asked for
  showBeside(isRead);
}

/// Beside the drawing.
void CaseOpening::showBeside(bool isRead) {
  m_reloadOffer->watch(isRead ? filesShown() : ReadFiles::Stamps());
  m_onPages.clear();
  showFindings();
  m_parts.tools.setScenario(m_loader.scenarioSummary());
  m_parts.tools.setMachines(m_loader.machines(), m_parts.memory.isClean() ? ToolDocks::Pages::New : ToolDocks::Pages::Kept);
  m_parts.control.setPageFacts(CaseScenarios::facts(workspace()),
                               CaseScenarios::of(workspace(), [this](const QString &scenario, const auto &groups) {
                                 noticeOnPage(scenario, groups);
                               }));
  emit shown();
}

void CaseOpening::noticeOnPage(const QString &scenario, const std::vector<FindingList::Group> &groups) {
  m_onPages[scenario] = groups;
  showFindings();
}

void CaseOpening::showFindings() {
  std::vector<FindingList::Group> groups = m_loader.noticed();
  for (const auto &[scenario, onPage] : m_onPages) {
    for (FindingList::Group group : onPage) {
      group.name = tr("Page of %1: %2").arg(scenario, group.name);
      groups.push_back(std::move(group));
    }
  }
  groups.insert(groups.end(), m_checked.begin(), m_checked.end());
  m_parts.tools.setFindings(groups);
}

void CaseOpening::noticeChecked(const std::vector<FindingList::Group> &groups) {
  m_checked = groups;
  showFindings();
}

std::vector<ElementChange> CaseOpening::useFunctions(FunctionSource source) {
  QString reason;
  if (!m_parts.memory.isClean() && !FunctionMemory::keep(workspace().root(), source, &reason))
    NivraMsg::logWarning(tr("Which functions of machines count cannot be kept: %1").arg(reason));
  return m_loader.useFunctions(source);
}

ReadFiles::Stamps CaseOpening::filesShown() const {
  ReadFiles::Stamps files = m_loader.files();
  files.emplace(workspace().filePath(QStringLiteral("plotsettings.ini")), m_parts.control.styleFiles().settings);
  files.emplace(workspace().filePath(QStringLiteral("vfd.csv")), m_parts.control.styleFiles().labels);
  files.emplace(GeneralSettings::settingsFile(workspace().root()), m_settingsRead);
  return files;
}

OutcomeStyle::Outcome CaseOpening::outcome(bool isRead) const {
  if (!isRead)
    return m_loader.wasCancelled() ? OutcomeStyle::Outcome::Stopped : OutcomeStyle::Outcome::Failed;
  for (const FindingList::Group &group : m_loader.noticed()) {
    for (const Finding &finding : group.findings) {
      if (finding.severity != Finding::Severity::Information)
        return OutcomeStyle::Outcome::Acceptable;
    }
  }
  return OutcomeStyle::Outcome::Successful;
}

void CaseOpening::tellOutcome(bool isRead, const OpeningClock &clock) {
  constexpr int ShownMs = 20000;
  QStatusBar &bar = *m_parts.window.statusBar();
  OutcomeStyle::show(bar, outcome(isRead));
  if (isRead)
    bar.showMessage(tr("Startup finished in %1ms").arg(clock.elapsed()), ShownMs);
  else
    bar.showMessage(m_loader.error());
}

void CaseOpening::tellSwitch(const OpeningClock &clock) {
  constexpr int ShownMs = 10000;
  QStatusBar &bar = *m_parts.window.statusBar();
  OutcomeStyle::show(bar, outcome(true));
  bar.showMessage(tr("Scenario %1 after %2 ms").arg(workspace().currentScenario()->workDir).arg(clock.elapsed()), ShownMs);
}

void CaseOpening::loadSettings() {
  const QString root = workspace().root();
  m_settingsRead = FileStamp::of(GeneralSettings::settingsFile(root));
  GeneralSettings::instance().load(root, logFinding);
  NumberLocale::apply();
  emit settingsLoaded();
}

void CaseOpening::takeSettings() {
  loadSettings();
  m_reloadOffer->accept({GeneralSettings::settingsFile(workspace().root())});
  if (!workspace().isValid())
    return;
  m_loader.tellBoundsAgain();
  showFindings();
  m_parts.control.takeSettings();
  m_parts.tools.takeSettings();
  m_parts.subnets.takeSettings();
}
