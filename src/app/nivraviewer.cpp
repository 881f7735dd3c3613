#include "nivraviewer.h"

#include "aboutbox.h"
#include "casescenarios.h"
#include "commandicons.h"
#include "commands.h"
#include "lastscenario.h"
#include "layerkeeper.h"
#include "loadprogress.h"
#include "logo.h"
#include "mnemonics.h"
#include "opendialog.h"
#include "openingclock.h"
#include "otherwindows.h"
#include "outcomestyle.h"
#include "recentmenu.h"
#include "reloadoffer.h"
#include "settings/numberlocale.h"
#include "settings/settingsdialog.h"
#include "subnetwindow.h"
#include "svgicon.h"
#include "theme/appearance.h"
#include "toolbar.h"
#include "tooldocks.h"
#include "ui_nivraviewer.h"
#include "wheelguard.h"

#include <base/fileaccess.h>
#include <base/finding.h>
#include <base/lastfolder.h>
#include <base/nivramsg.h>
#include <base/settings.h>
#include <tools/categorylist.h>
#include <tools/nivrasearch.h>
#include <view/netplot.h>
#include <view/netviscontrol.h>

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QInputDialog>
#include <QMimeData>
#include <QTimer>
#include <QToolButton>

#include <utility>

namespace {

/// Menu bar and tool bar have an icon each. To read a picture the toolkit loads all of its plugins for pictures and asks
/// them, which was a fifth of the start; while it does not see them it reads these by itself.
class WithoutPlugins {
public:
  WithoutPlugins()
      : m_paths(QCoreApplication::libraryPaths()) {
    QCoreApplication::setLibraryPaths({});
  }
  ~WithoutPlugins() { QCoreApplication::setLibraryPaths(m_paths); }
  WithoutPlugins(const WithoutPlugins &) = delete;
  WithoutPlugins &operator=(const WithoutPlugins &) = delete;

private:
  QStringList m_paths;
};

} // namespace

NivraViewer::NivraViewer(QWidget *parent)
    : QMainWindow(parent)
    , m_ui(std::make_unique<Ui::NivraViewer>())
    , m_control(std::make_unique<NetVisControl>(m_net, QString(), logFinding))
    , m_loader(m_net)
    , m_categories(std::make_shared<CategoryList>(logFinding))
    , m_layers(new LayerKeeper(m_net, *this))
    , m_reloadOffer(new ReloadOffer(*this))
    , m_reload(new QAction(tr("&Reload"), this))
    , m_showingChanges(OncePerTurn::Stage::Compute, [this] { showChanges(); }) {
  qApp->installEventFilter(new WheelGuard(this));
  qApp->installEventFilter(new Mnemonics(this));
  m_appearance = new Appearance(this);
  setUpForm();
  setCentralWidget(m_ui->label);
  setWindowIcon(productLogo());
  const QString ownStyle = GeneralSettings::userDirectory() + QStringLiteral("/stylesheet.qss");
  if (QFileInfo::exists(ownStyle))
    applyStyleSheet(ownStyle);
  m_tools = new ToolDocks(*this, *m_control, m_categories);
  m_memory = new WorkspaceMemory(*this, *m_control, *m_tools, *m_layers);
  setUpCommands();
  m_ui->statusbar->showMessage(tr("No Workspace loaded"));
  show();
  QCoreApplication::processEvents();
  addAction(m_ui->actionSearch);
  connect(m_ui->menuView, &QMenu::aboutToShow, m_tools, [this] {
    m_tools->fillViewMenu(*m_ui->menuView);
    m_ui->menuView->insertMenu(m_ui->menuView->actions().constFirst(), &m_appearance->menu());
  });
  connect(m_control.get(), &NetVisControl::currentElementChanged, this, &NivraViewer::currentEleChanged);
  connect(m_tools, &ToolDocks::elementMarked, this,
          [this](const QString &name) { elementAction(name, NetPicker::EleAction::Mark); });
  connect(m_ui->actionSearch, &QAction::triggered, this, [this] {
    if (m_tools->search() != nullptr)
      m_tools->search()->enterLastField();
  });
  connect(m_control.get(), &NetVisControl::elementAction, this, [this](const QString &name, NetPicker::EleAction action) {
    if (action == NetPicker::EleAction::Mark)
      m_control->setCurrentElement(name); // the picker has selected it already
    else
      elementAction(name, action);
  });
  connect(m_ui->actionPrint, &QAction::triggered, m_control.get(), &NetVisControl::print);
  connect(m_ui->actionSavePage, &QAction::triggered, m_control.get(), &NetVisControl::savePage);
  connect(m_control.get(), &NetVisControl::subnetWanted, this, &NivraViewer::openSubnet);
  connect(m_tools, &ToolDocks::elementsChanged, this, &NivraViewer::addChange);
  m_ui->statusbar->addPermanentWidget(m_tools->findingsButton());
  setAcceptDrops(true);
  setUpFileMenu();
  setUpReloading();
  loadSettings();
  connect(m_appearance, &Appearance::changed, this, [this] { OutcomeStyle::refresh(*m_ui->statusbar); });
  m_control->clear();
}

NivraViewer::~NivraViewer() = default;

void NivraViewer::setUpFileMenu() {
  auto *recent = new RecentMenu(m_memory->recent(), m_ui->menuFile);
  QAction *behindOpen = m_ui->menuFile->actions().at(1);
  m_ui->menuFile->insertMenu(behindOpen, recent);
  connect(recent, &RecentMenu::fileWanted, this, &NivraViewer::open);
  connect(m_ui->label, &StartPage::openWanted, this, &NivraViewer::on_actionOpen_triggered);
  connect(m_ui->label, &StartPage::fileWanted, this, &NivraViewer::open);
  m_reload->setIcon(svgIcon(QStringLiteral("reload")));
  m_reload->setShortcut(Qt::Key_F5);
  m_reload->setToolTip(tr("Read the files of the case again (F5)"));
  m_reload->setEnabled(false);
  m_ui->menuFile->insertAction(behindOpen, m_reload);
  connect(m_reload, &QAction::triggered, this, &NivraViewer::reload);
}

void NivraViewer::setUpReloading() {
  connect(m_reloadOffer, &ReloadOffer::reloadWanted, this, &NivraViewer::reload);
  connect(m_reloadOffer, &ReloadOffer::ignored, m_control->plot(), [this] { m_control->plot()->setFocus(); });
  connect(m_layers, &LayerKeeper::written, this, [this](const QString &path) { m_reloadOffer->accept({path}); });
  connect(m_control.get(), &NetVisControl::styleFilesNoted, this, &NivraViewer::acceptStyleFiles);
  connect(m_layers, &LayerKeeper::elementsChanged, this, &NivraViewer::addChange);
  connect(m_tools, &ToolDocks::elementsChanged, m_layers, &LayerKeeper::note);
  connect(m_tools, &ToolDocks::saveLayersWanted, m_layers, &LayerKeeper::saveAs);
  connect(m_tools, &ToolDocks::loadLayersWanted, m_layers, &LayerKeeper::load);
}

/// They were read or written here just now.
void NivraViewer::acceptStyleFiles() {
  const NivraWorkspace &workspace = m_loader.workspace();
  m_reloadOffer->accept(
      {workspace.filePath(QStringLiteral("plotsettings.ini")), workspace.filePath(QStringLiteral("vfd.csv"))});
}

void NivraViewer::remember(WorkspaceMemory::Keeps keeps) {
  m_memory->setKeeps(keeps);
  if (keeps != WorkspaceMemory::Keeps::Nothing) // once the window stands
    QTimer::singleShot(0, m_ui->label, [this] {
      if (centralWidget() == m_ui->label) // and not a drawing already
        m_ui->label->showRecent(m_memory->recent());
    });
}

void NivraViewer::setUpForm() {
  const WithoutPlugins own;
  m_ui->setupUi(this);
}

void NivraViewer::setUpCommands() {
  const WithoutPlugins own;
  CommandIcons::give(*this);
  m_commands = new Commands(*this, *m_control,
                            {m_ui->menubar, m_ui->menuFile, m_ui->menuInfo, m_ui->actionOpen, m_ui->actionSavePage});
  connect(m_commands, &Commands::elementWanted, this, [this](const QString &name) {
    elementAction(name, NetPicker::EleAction::Mark);
    if (m_control->showElement(name))
      m_control->plot()->setFocus();
    else
      m_ui->statusbar->showMessage(tr("%1 has no place in the drawing").arg(name));
  });
  connect(&m_control->actions(), &PlotActions::settingsChosen, m_tools, &ToolDocks::showDrawSettings);
}

QString NivraViewer::openDialogStart(const QString &applicationDir) {
  const QString folder = applicationDir + QStringLiteral("/example");
  QString file = folder + QStringLiteral("/DE_H2/S5/S5.scen.jsn");
  if (QFileInfo(file).isFile())
    return file;
  return QFileInfo(folder).isDir() ? folder : applicationDir;
}

void NivraViewer::on_actionOpen_triggered() {
  const LastFolder &folder = LastFolder::ofOpening();
  m_memory->recent().read();
  const QString path = OpenDialog::ask(
      this, folder.path().isEmpty() ? openDialogStart(QCoreApplication::applicationDirPath()) : folder.path(),
      m_memory->recent().folders());
  if (!path.isEmpty())
    open(path);
}

void NivraViewer::on_actionExit_triggered() {
  close();
}

void NivraViewer::on_actionElement_Table_triggered() {
  m_tools->showVectorTable();
}

void NivraViewer::on_actionMetadataTable_triggered() {
  m_tools->showMetaData();
}

void NivraViewer::on_actionHelp_triggered() {
  const QWidget *at = QApplication::focusWidget();
  while (at != nullptr && qobject_cast<const QDockWidget *>(at) == nullptr)
    at = at->parentWidget();
  m_tools->showHelp(at == nullptr ? QString() : at->objectName());
}

void NivraViewer::on_actionAboutNivra_triggered() {
  AboutBox::show(this);
}

void NivraViewer::open(const QString &path) {
  if (m_progress != nullptr)
    return; // a drop or a shortcut while the network is being read
  if (path.endsWith(QStringLiteral(".qss")))
    applyStyleSheet(path);
  else
    openWorkspace(path);
}

std::vector<UnsavedEdits::Kind> NivraViewer::unsavedInSubnets() const {
  std::vector<UnsavedEdits::Kind> kinds;
  for (SubnetWindow *window : subnetWindows()) {
    for (UnsavedEdits::Kind &kind : window->unsaved())
      kinds.push_back(std::move(kind));
  }
  return kinds;
}

/// Before another case; nothing is discarded yet.
UnsavedEdits::Answer NivraViewer::settleChanges() {
  std::vector<UnsavedEdits::Kind> kinds = m_tools->unsaved();
  for (UnsavedEdits::Kind &kind : unsavedInSubnets())
    kinds.push_back(std::move(kind));
  if (m_layers->isUnsaved())
    kinds.push_back({tr("layers of elements (%1)").arg(m_layers->count()),
                     tr("The layers of elements have changes that are not saved. Save them?"), [this] {
                       return m_layers->save();
                     }});
  if (m_loader.workspace().isValid() && !m_memory->keepsSessions() && !m_control->ownStyle().isEmpty())
    kinds.push_back({tr("how the network is drawn"), tr("How the network is drawn is not saved. Save it?"), [this] {
                       return m_tools->saveStyle();
                     }});
  return UnsavedEdits::settle(kinds);
}

void NivraViewer::applyStyleSheet(const QString &path) {
  QString reason;
  const auto text = FileAccess::readWhole(path, FileAccess::Source::Trusted, FileAccess::LargestConfiguration, &reason);
  if (text)
    qApp->setStyleSheet(QString::fromUtf8(*text));
  else
    NivraMsg::logWarning(tr("Cannot read the style sheet %1").arg(reason));
}

bool NivraViewer::resolve(NetworkLoader &loader, const QString &path) {
  OutcomeStyle::clear(*m_ui->statusbar);
  if (loader.resolve(path)) {
    if (m_loader.workspace().isValid()) // what is open may stay so
      FileAccess::confineTo(m_loader.workspace().root());
    return true;
  }
  OutcomeStyle::show(*m_ui->statusbar, OutcomeStyle::Outcome::Failed);
  m_ui->statusbar->showMessage(tr("Invalid Workspace"));
  if (NivraMsg::showsBoxes()) // else the log has said it already
    NivraMsg::message(NivraMsg::Kind::Warning, loader.error());
  return false;
}

void NivraViewer::openWorkspace(const QString &path) {
  NivraMsg::debug(QStringLiteral("opening file ") + path);
  const OpeningClock clock;
  NetworkLoader loader(m_net);
  if (!resolve(loader, path))
    return;
  const UnsavedEdits::Answer answer = settleChanges();
  if (answer == UnsavedEdits::Answer::Stay)
    return;
  if (answer == UnsavedEdits::Answer::Discarded)
    m_layers->discard();
  m_memory->keep();
  m_memory->leave();
  m_loader.useWorkspaceOf(loader);
  LastFolder::ofOpening().remember(path); // from wherever it came
  if (centralWidget() != m_control->plot())
    setCentralWidget(m_control->plot());
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); // which would meet half of two cases
  loadSettings();
  if (Settings::StartWithLastScenario.value() && !m_memory->isClean())
    useLastScenario();
  const bool done = readWorkspace();
  m_isRead = done && !m_net.isEmpty();
  m_layers->enter(m_loader.workspace(), m_loader.layers());
  m_tools->refresh(m_loader.workspace());
  showWorkspace(done);
  if (m_isRead)
    m_memory->enter(m_loader.workspace());
  m_reloadOffer->hideBar(); // also where the window was left with it
  if (m_isRead && !m_memory->isClean() && m_loader.workspace().hasScenario())
    LastScenario::remember(m_loader.workspace().caseDirectory(), m_loader.workspace().chosenPath());
  showOutcome(done, clock);
  closeIfWanted();
}

/// Tells how the opening went.
void NivraViewer::showOutcome(bool isRead, const OpeningClock &clock) {
  constexpr int ShownMs = 20000;
  OutcomeStyle::show(*m_ui->statusbar, outcome(isRead));
  if (isRead)
    m_ui->statusbar->showMessage(tr("Startup finished in %1ms").arg(clock.elapsed()), ShownMs);
  else
    m_ui->statusbar->showMessage(m_loader.error());
}

void NivraViewer::reload() {
  if (m_progress != nullptr || !m_loader.workspace().isValid())
    return;
  const OpeningClock clock;
  NetworkLoader loader(m_net);
  const QString fault = m_loader.fault(); // what is shown stays as long as nothing can take its place
  if (!fault.isEmpty() || !loader.resolve(m_loader.workspace().chosenPath())) {
    m_reloadOffer->tellFault(fault.isEmpty() ? loader.error() : fault);
    return;
  }
  if (UnsavedEdits::settle(unsavedInSubnets()) == UnsavedEdits::Answer::Stay)
    return;       // those windows go
  if (m_isRead) { // else there is nothing to be taken, or it is aside since a reading that failed
    m_memory->takeAside();
    m_layers->takeAside();
  }
  m_loader.useWorkspaceOf(loader);
  loadSettings();
  const bool done = readWorkspace();
  m_isRead = done && !m_net.isEmpty(); // of a broken file nothing may be left
  m_tools->refresh(m_loader.workspace(), ToolDocks::Edits::Kept);
  showWorkspace(done);
  if (m_isRead)
    comeBack();
  showOutcome(done, clock);
  closeIfWanted();
}

void NivraViewer::comeBack() {
  if (m_memory->isAside()) {
    m_layers->comeBack(m_loader.layers());
    m_memory->comeBack();
  } else { // it could not be read before
    m_layers->enter(m_loader.workspace(), m_loader.layers());
    m_memory->enter(m_loader.workspace());
  }
}

/// A window that was to be closed while it read asks now for what is not saved, and goes.
void NivraViewer::closeIfWanted() {
  if (std::exchange(m_closesThen, false))
    QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

void NivraViewer::loadSettings() {
  const QString root = m_loader.workspace().root();
  m_settingsRead = FileStamp::of(GeneralSettings::settingsFile(root));
  GeneralSettings::instance().load(root, logFinding);
  NumberLocale::apply();
  m_appearance->refresh();
}

ReadFiles::Stamps NivraViewer::filesShown() const {
  const NivraWorkspace &workspace = m_loader.workspace();
  ReadFiles::Stamps files = m_loader.files();
  files.emplace(workspace.filePath(QStringLiteral("plotsettings.ini")), m_control->styleFiles().settings);
  files.emplace(workspace.filePath(QStringLiteral("vfd.csv")), m_control->styleFiles().labels);
  files.emplace(GeneralSettings::settingsFile(workspace.root()), m_settingsRead);
  return files;
}

/// Beside the drawing.
void NivraViewer::showWorkspace(bool isRead) {
  m_control->plot()->setFocus(); // the keys are for the network that was asked for
  m_reload->setEnabled(true);
  m_reloadOffer->watch(isRead ? filesShown() : ReadFiles::Stamps());
  m_tools->setFindings(m_loader.noticed());
  m_tools->setScenario(m_loader.scenarioSummary());
  m_tools->setMachines(m_loader.machines(), m_memory->isClean() ? ToolDocks::Pages::New : ToolDocks::Pages::Kept);
  m_control->setPageFacts(CaseScenarios::facts(m_loader.workspace()), CaseScenarios::of(m_loader.workspace()));
  showTitle();
}

/// In place of a case alone the scenario of it that was opened last, where it still belongs to the chosen geometry.
void NivraViewer::useLastScenario() {
  const NivraWorkspace &workspace = m_loader.workspace();
  if (workspace.hasScenario())
    return;
  const QString last = LastScenario::of(workspace.caseDirectory());
  NetworkLoader loader(m_net);
  if (last.isEmpty() || !loader.resolve(last) || !loader.workspace().hasScenario() ||
      loader.workspace().geometryPath() != workspace.geometryPath() || loader.workspace().isJson() != workspace.isJson())
    return;
  NivraMsg::log(tr("Opening the scenario %1, which was opened last").arg(last));
  m_loader.useWorkspaceOf(loader);
}

OutcomeStyle::Outcome NivraViewer::outcome(bool isDone) const {
  if (!isDone)
    return m_loader.wasCancelled() ? OutcomeStyle::Outcome::Stopped : OutcomeStyle::Outcome::Failed;
  for (const FindingList::Group &group : m_loader.noticed()) {
    for (const Finding &finding : group.findings) {
      if (finding.severity != Finding::Severity::Information)
        return OutcomeStyle::Outcome::Acceptable;
    }
  }
  return OutcomeStyle::Outcome::Successful;
}

bool NivraViewer::readWorkspace() {
  setBusy(true);
  m_control->clear();
  m_loader.readConfiguration();
  qDeleteAll(subnetWindows()); // parts of the network before
  m_tools->forgetElements();
  m_net.clear();
  m_showingChanges.cancel();
  m_changes.clear();
  LoadProgress progress(m_ui->statusbar);
  m_progress = &progress;
  NetworkLoader::ReadOptions options;
  if (Settings::AskForIncludeLists.value())
    askForIncludeLists(options);
  options.progress = [&progress](double fraction) {
    return progress.update(fraction);
  };
  options.told = [&progress](const QString &text) {
    progress.tell(text);
  };
  const bool done = m_loader.readNetwork(options);
  m_progress = nullptr;
  if (!done)
    m_net.clear(); // half a network would look like a whole one
  m_control->setSubnetIcons(m_loader.templateFolder());
  m_control->setCaption(m_loader.workspace().caption());
  m_control->showNetData(m_loader.workspace().filePath(QStringLiteral("plotsettings.ini")));
  setBusy(false);
  return done;
}

void NivraViewer::askForIncludeLists(NetworkLoader::ReadOptions &options) {
  bool accepted = false;
  options.includeTypes =
      QInputDialog::getText(this, tr("Include Types"), tr("Enter include list for types\n(regular expression):"),
                            QLineEdit::Normal, QString(), &accepted);
  if (accepted)
    options.includeProperties =
        QInputDialog::getText(this, tr("Include Properties"), tr("Enter include list for properties\n(regular expression):"),
                              QLineEdit::Normal, QString(), &accepted);
}

void NivraViewer::openSubnet(const QString &name) {
  for (SubnetWindow *window : subnetWindows()) {
    if (window->subnet() != name)
      continue;
    window->raise();
    window->activateWindow();
    return;
  }
  auto *window = new SubnetWindow(m_net, name, m_loader.workspace(), m_categories, this);
  connect(window, &SubnetWindow::elementMarked, this,
          [this](const QString &picked) { elementAction(picked, NetPicker::EleAction::Mark); });
  connect(window, &SubnetWindow::elementsChanged, this, &NivraViewer::addChange);
  connect(window, &SubnetWindow::elementsChanged, m_layers, &LayerKeeper::note);
  connect(window->visControl(), &NetVisControl::styleFilesNoted, this, &NivraViewer::acceptStyleFiles);
  connect(window->visControl(), &NetVisControl::openCharacteristicsRequested, m_tools, &ToolDocks::openCharacteristics);
  window->show();
}

QList<SubnetWindow *> NivraViewer::subnetWindows() const {
  return findChildren<SubnetWindow *>(QString(), Qt::FindDirectChildrenOnly);
}

/// What depends on a change waits for the end of the turn of the event loop, and with it for other changes.
void NivraViewer::addChange(const ElementChange &change) {
  m_changes.push_back(change);
  m_showingChanges.request();
}

void NivraViewer::showChanges() {
  m_loader.computeAgain(std::exchange(m_changes, {}));
  m_tools->setFindings(m_loader.noticed());
  m_tools->showChanges();
  m_control->redraw();
  for (SubnetWindow *window : subnetWindows())
    window->takeProperties();
}

void NivraViewer::on_actionSettings_triggered() {
  auto *dialog = new SettingsDialog(m_loader.workspace().root(), this);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialog, &SettingsDialog::applied, this, &NivraViewer::takeSettings);
  dialog->open();
}

void NivraViewer::takeSettings() {
  loadSettings();
  m_reloadOffer->accept({GeneralSettings::settingsFile(m_loader.workspace().root())});
  if (!m_loader.workspace().isValid())
    return;
  m_loader.tellBoundsAgain();
  m_tools->setFindings(m_loader.noticed());
  m_control->takeSettings();
  m_tools->takeSettings();
  for (SubnetWindow *window : subnetWindows())
    window->takeSettings();
}

void NivraViewer::showTitle() {
  const NivraWorkspace &workspace = m_loader.workspace();
  QString title = tr("Nivra Reader %1  |  Workspace: %2  |  CASE: %3")
                      .arg(AboutBox::version(), workspace.root(), workspace.currentCase()->name);
  if (workspace.hasScenario())
    title += tr("  |  SCEN: %1").arg(workspace.currentScenario()->workDir);
  setWindowTitle(title);
}

/// While a network is read the program answers "Cancel" and the frames of its windows alone: tools would show half of it,
/// and change it under the reader's hands.
void NivraViewer::setBusy(bool busy) {
  for (QAction *action : {m_ui->actionOpen, m_ui->actionSettings, m_ui->actionSearch, m_ui->actionElement_Table,
                          m_ui->actionMetadataTable, m_ui->actionPrint, m_ui->actionSavePage, m_reload})
    action->setEnabled(!busy);
  QWidgetList widgets{m_ui->menubar, m_commands->toolBar(), m_control->plot()};
  for (QDockWidget *dock : findChildren<QDockWidget *>(QString(), Qt::FindDirectChildrenOnly))
    widgets.append(dock);
  for (const QPointer<QWidget> &window : OtherWindows::beside(*this))
    widgets.append(window);
  for (QWidget *widget : qAsConst(widgets))
    widget->setEnabled(!busy);
}

void NivraViewer::elementAction(const QString &eleName, NetPicker::EleAction eleAction) {
  switch (eleAction) {
  case NetPicker::EleAction::Mark:
    m_control->mark(eleName);
    break;
  case NetPicker::EleAction::ShowInfo:
    m_control->setCurrentElement(eleName);
    m_tools->showInfo(eleName);
    break;
  case NetPicker::EleAction::OpenCharacteristics:
    m_tools->openCharacteristics({eleName});
    break;
  case NetPicker::EleAction::EditProperties: // a viewer changes no properties
    break;
  }
}

void NivraViewer::dragEnterEvent(QDragEnterEvent *event) {
  if (event->mimeData()->hasUrls())
    event->acceptProposedAction();
}

void NivraViewer::dropEvent(QDropEvent *event) {
  const QList<QUrl> urls = event->mimeData()->urls();
  if (urls.isEmpty())
    return;
  event->acceptProposedAction();
  open(urls.first().toLocalFile());
}

void NivraViewer::closeEvent(QCloseEvent *event) {
  if (m_progress != nullptr) {
    m_progress->cancel(); // reading ends at its next step
    m_closesThen = true;
    event->ignore();
    return;
  }
  const UnsavedEdits::Answer answer = settleChanges();
  if (answer == UnsavedEdits::Answer::Stay) {
    event->ignore();
    return;
  }
  QMainWindow::closeEvent(event);
  if (event->isAccepted() && !OtherWindows::close(*this))
    event->ignore();
  if (!event->isAccepted())
    return;
  if (answer == UnsavedEdits::Answer::Discarded)
    m_layers->discard();
  m_memory->keep();
}
