#include "nivraviewer.h"

#include "aboutbox.h"
#include "caseopening.h"
#include "casescenarios.h"
#include "commandicons.h"
#include "commands.h"
#include "language/languagechoice.h"
#include "layerkeeper.h"
#include "logo.h"
#include "mnemonics.h"
#include "networkcheck.h"
#include "opendialog.h"
#include "otherwindows.h"
#include "recentmenu.h"
#include "scenarios/scenariodesk.h"
#include "settings/settingsdialog.h"
#include "subnetwindows.h"
#include "svgicon.h"
#include "theme/appearance.h"
#include "toolbar.h"
#include "tooldocks.h"
#include "toolwindows.h"
#include "ui_nivraviewer.h"
#include "wheelguard.h"
#include "why/whydock.h"

#include <base/fileaccess.h>
#include <base/finding.h>
#include <base/generalsettings.h>
#include <base/lastfolder.h>
#include <base/nivramsg.h>
#include <tools/categorylist.h>
#include <tools/nivrasearch.h>
#include <view/netplot.h>
#include <view/netviscontrol.h>

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QFileInfo>
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
    , m_categories(std::make_shared<CategoryList>(logFinding))
    , m_subnets(new SubnetWindows(m_net, m_categories, *this))
    , m_layers(new LayerKeeper(m_net, *this))
    , m_reload(new QAction(tr("&Reload"), this))
    , m_showingChanges(OncePerTurn::Stage::Compute, [this] { showChanges(); }) {
  qApp->installEventFilter(new WheelGuard(this));
  qApp->installEventFilter(new Mnemonics(this));
  m_appearance = new Appearance(this);
  m_language = new LanguageChoice(*this);
  setUpForm();
  setCentralWidget(m_ui->label);
  setWindowIcon(productLogo());
  const QString ownStyle = GeneralSettings::userDirectory() + QStringLiteral("/stylesheet.qss");
  if (QFileInfo::exists(ownStyle))
    applyStyleSheet(ownStyle);
  m_tools = new ToolDocks(*this, *m_control, m_categories);
  m_memory = new WorkspaceMemory(*this, *m_control, *m_tools, *m_layers);
  m_opening =
      std::make_unique<CaseOpening>(CaseOpening::Parts{*this, *m_control, *m_tools, *m_subnets, *m_layers, *m_memory});
  setUpCommands();
  m_ui->statusbar->showMessage(tr("No Workspace loaded"));
  show();
  QCoreApplication::processEvents();
  addAction(m_ui->actionSearch);
  connect(m_ui->menuView, &QMenu::aboutToShow, m_tools, [this] {
    m_tools->fillViewMenu(*m_ui->menuView);
    m_ui->menuView->insertMenu(m_ui->menuView->actions().constFirst(), &m_appearance->menu());
    m_language->addTo(*m_ui->menuView);
  });
  connect(m_language, &LanguageChoice::chosen, m_opening.get(), &CaseOpening::takeSettings);
  connect(m_language, &LanguageChoice::chosen, m_language, &LanguageChoice::offerRestart);
  connect(m_language, &LanguageChoice::restartWanted, this, [this] { m_restarts = close(); });
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
  connect(m_tools, &ToolDocks::elementsChanged, this, &NivraViewer::addChange);
  connect(m_tools, &ToolDocks::figuresChanged, this, &NivraViewer::addChange);
  connect(
      m_tools, &ToolDocks::scenarioWanted, this, [this](const QString &file) { m_opening->switchTo(file); },
      Qt::QueuedConnection); // the dock is asked again meanwhile
  m_ui->statusbar->addPermanentWidget(m_tools->findingsButton());
  setAcceptDrops(true);
  setUpFileMenu();
  setUpOpening();
  setUpSubnets();
  setUpExplanations();
  connect(m_opening.get(), &CaseOpening::settingsLoaded, m_appearance, &Appearance::refresh);
  m_opening->loadSettings();
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
  m_commands->toolBar()->addOpening(m_ui->actionOpen, recent, m_reload);
  connect(m_reload, &QAction::triggered, this, &NivraViewer::reload);
}

void NivraViewer::setUpOpening() {
  connect(&m_opening->reading(), &CaseReading::begins, this, [this] {
    setBusy(true);
    m_showingChanges.cancel();
    m_changes.clear();
  });
  connect(&m_opening->reading(), &CaseReading::takesLong, this, [this] { setBusy(true); });
  connect(&m_opening->reading(), &CaseReading::ended, this, [this] { setBusy(false); });
  connect(m_opening.get(), &CaseOpening::shown, this, [this] {
    m_reload->setEnabled(true);
    showTitle();
  });
  connect(m_opening.get(), &CaseOpening::switched, this, &NivraViewer::showTitle);
  connect(m_opening.get(), &CaseOpening::ended, this, &NivraViewer::closeIfWanted);
  connect(m_layers, &LayerKeeper::elementsChanged, this, &NivraViewer::addChange);
  connect(m_tools, &ToolDocks::elementsChanged, m_layers, &LayerKeeper::note);
  connect(m_tools, &ToolDocks::saveLayersWanted, m_layers, &LayerKeeper::saveAs);
  connect(m_tools, &ToolDocks::loadLayersWanted, m_layers, &LayerKeeper::load);
  connect(m_tools, &ToolDocks::scenarioNamed, this,
          [this](const QString &name) { m_opening->switchTo(CaseScenarios::fileOf(m_opening->workspace(), name)); });
  connect(m_tools, &ToolDocks::functionsChosen, this, [this](FunctionSource source) {
    for (const ElementChange &change : m_opening->useFunctions(source))
      addChange(change);
  });
}

/// The panel is made with the first network, as those of the tools are.
void NivraViewer::setUpExplanations() {
  connect(m_opening.get(), &CaseOpening::shown, this, [this] {
    if (m_why == nullptr) {
      m_why = new WhyDock(m_net, m_opening->loader(), this);
      m_tools->addDock(m_why, QStringLiteral("why"), Qt::RightDockWidgetArea);
      connect(m_tools, &ToolDocks::whyWanted, m_why, &WhyDock::ask);
      connect(m_why, &WhyDock::elementAsked, this,
              [this](const QString &name) { elementAction(name, NetPicker::EleAction::Mark); });
      connect(&m_opening->reading(), &CaseReading::begins, m_why, &WhyDock::pause);
      connect(m_opening.get(), &CaseOpening::switched, m_why, &WhyDock::refresh);
    }
    m_why->refresh();
  });
}

void NivraViewer::setUpSubnets() {
  connect(m_control.get(), &NetVisControl::subnetWanted, this,
          [this](const QString &name) { m_subnets->open(name, m_opening->workspace(), m_control->ownStyle()); });
  connect(m_subnets, &SubnetWindows::elementMarked, this,
          [this](const QString &name) { elementAction(name, NetPicker::EleAction::Mark); });
  connect(m_subnets, &SubnetWindows::elementsChanged, this, &NivraViewer::addChange);
  connect(m_subnets, &SubnetWindows::elementsChanged, m_layers, &LayerKeeper::note);
  connect(m_subnets, &SubnetWindows::characteristicsWanted, m_tools, &ToolDocks::openCharacteristics);
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
                            {m_ui->menubar, m_ui->menuFile, m_ui->menuInfo, m_ui->actionPrint, m_ui->actionSavePage});
  connect(m_commands, &Commands::elementChosen, this,
          [this](const QString &name) { elementAction(name, NetPicker::EleAction::Mark); });
  connect(&m_control->actions(), &PlotActions::settingsChosen, m_tools, &ToolDocks::showDrawSettings);
  new ScenarioDesk(*this, *m_opening, *m_control, *m_tools, *m_commands->goMenu());
  setUpCheck();
}

void NivraViewer::setUpCheck() {
  m_check = new NetworkCheck(m_net, *m_ui->statusbar, this);
  m_ui->menuInfo->addAction(m_check->action());
  connect(&m_opening->reading(), &CaseReading::begins, m_check, &NetworkCheck::forget);
  connect(m_opening.get(), &CaseOpening::switched, m_check, &NetworkCheck::forget);
  connect(m_check, &NetworkCheck::found, m_opening.get(), &CaseOpening::noticeChecked);
  connect(m_check, &NetworkCheck::told, m_tools, &ToolDocks::bringFindings);
}

QString NivraViewer::openFile() const {
  const NivraWorkspace &workspace = m_opening->workspace();
  return workspace.isValid() ? workspace.chosenPath() : QString();
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
  m_tools->windows().showVectorTable();
}

void NivraViewer::on_actionMetadataTable_triggered() {
  m_tools->windows().showMetaData();
}

void NivraViewer::on_actionHelp_triggered() {
  m_tools->windows().showHelpOfFocus();
}

void NivraViewer::on_actionAboutNivra_triggered() {
  AboutBox::show(this);
}

void NivraViewer::open(const QString &path) {
  if (m_opening->reading().isRunning())
    return; // a drop or a shortcut while the network is being read
  if (path.endsWith(QStringLiteral(".qss")))
    applyStyleSheet(path);
  else
    m_opening->open(path);
}

void NivraViewer::reload() {
  m_opening->reload();
}

/// A window that was to be closed while it read asks now for what is not saved, and goes.
void NivraViewer::closeIfWanted() {
  if (std::exchange(m_closesThen, false))
    QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

void NivraViewer::applyStyleSheet(const QString &path) {
  QString reason;
  const auto text = FileAccess::readWhole(path, FileAccess::Source::Trusted, FileAccess::LargestConfiguration, &reason);
  if (text)
    qApp->setStyleSheet(QString::fromUtf8(*text));
  else
    NivraMsg::logWarning(tr("Cannot read the style sheet %1").arg(reason));
}

/// What depends on a change waits for the end of the turn of the event loop, and with it for other changes.
void NivraViewer::addChange(const ElementChange &change) {
  m_changes.push_back(change);
  m_showingChanges.request();
}

void NivraViewer::showChanges() {
  m_opening->loader().computeAgain(std::exchange(m_changes, {}));
  m_opening->showFindings();
  m_tools->showChanges();
  if (m_why != nullptr)
    m_why->refresh();
  m_control->redraw();
  m_subnets->takeProperties();
}

void NivraViewer::on_actionSettings_triggered() {
  auto *dialog = new SettingsDialog(m_opening->workspace().root(), this);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialog, &SettingsDialog::applied, m_opening.get(), &CaseOpening::takeSettings);
  connect(dialog, &SettingsDialog::applied, m_check, &NetworkCheck::again);
  connect(dialog, &SettingsDialog::applied, m_language, &LanguageChoice::offerRestart);
  dialog->open();
}

void NivraViewer::showTitle() {
  const NivraWorkspace &workspace = m_opening->workspace();
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
                          m_ui->actionMetadataTable, m_ui->actionPrint, m_ui->actionSavePage, m_reload, m_check->action()})
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
  if (m_opening->reading().isRunning()) {
    m_opening->reading().stop();
    m_closesThen = true;
    event->ignore();
    return;
  }
  const UnsavedEdits::Answer answer = m_opening->settle();
  if (answer == UnsavedEdits::Answer::Stay) {
    event->ignore();
    return;
  }
  QMainWindow::closeEvent(event);
  if (event->isAccepted() && !OtherWindows::close(*this))
    event->ignore();
  if (event->isAccepted())
    m_opening->leave(answer);
}
