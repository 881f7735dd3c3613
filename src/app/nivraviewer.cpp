#include "ui_nivraviewer.h"

#include <base/generalsettings.h>
#include <base/logo.h>
#include <base/nivramsg.h>
#include <model/units.h>
#include <tools/nivrasearch.h>
#include <view/netplot.h>
#include <view/netviscontrol.h>

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMimeData>
#include <QStyleFactory>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>
#include <app/aboutbox.h>
#include <app/loadprogress.h>
#include <app/nivraviewer.h>
#include <app/subnetwindow.h>
#include <app/tooldocks.h>

namespace {

QList<QAction *> sortedByText(QList<QAction *> actions) {
  std::sort(actions.begin(), actions.end(), [](const QAction *a, const QAction *b) { return a->text() < b->text(); });
  return actions;
}

} // namespace

NivraViewer::NivraViewer(QWidget *parent)
    : QMainWindow(parent)
    , m_ui(std::make_unique<Ui::NivraViewer>())
    , m_control(std::make_unique<NetVisControl>(m_net, QString()))
    , m_loader(m_net) {
  m_ui->setupUi(this);
  setCentralWidget(m_ui->label);
  setWindowIcon(productLogo());
  if (QStyleFactory::keys().contains(QStringLiteral("Fusion")))
    QApplication::setStyle(QStringLiteral("Fusion"));
  const QString ownStyle = GeneralSettings::userDirectory() + QStringLiteral("/stylesheet.qss");
  if (QFileInfo::exists(ownStyle))
    applyStyleSheet(ownStyle);
  m_tools = new ToolDocks(*this, *m_control);
  m_ui->statusbar->showMessage(tr("No Workspace loaded"));
  show();
  QCoreApplication::processEvents();
  addAction(m_ui->actionSearch);
  connect(m_ui->menuView, &QMenu::aboutToShow, this, &NivraViewer::fillViewMenu);
  connect(this, &NivraViewer::currentEleChanged, m_tools, &ToolDocks::showElement);
  connect(m_tools, &ToolDocks::elementMarked, this,
          [this](const QString &name) { elementAction(name, NetPicker::EleAction::Mark); });
  connect(m_ui->actionSearch, &QAction::triggered, this, [this] {
    if (m_tools->search() != nullptr)
      m_tools->search()->enterLastField();
  });
  connect(m_control.get(), &NetVisControl::selectionChanged, this, &NivraViewer::showSelection);
  connect(m_control.get(), &NetVisControl::elementAction, this, [this](const QString &name, NetPicker::EleAction action) {
    if (action == NetPicker::EleAction::Mark)
      setCurrentElement(name); // the picker has marked it already
    else
      elementAction(name, action);
  });
  connect(m_control.get(), &NetVisControl::subnetWanted, this, &NivraViewer::openSubnet);
  connect(m_control.get(), &NetVisControl::configureDrawRequested, m_tools, &ToolDocks::showDrawConfiguration);
  connect(m_tools, &ToolDocks::propertyChanged, this, &NivraViewer::computeAgain);
  m_ui->statusbar->addPermanentWidget(m_tools->findingsButton());
  setAcceptDrops(true);
  GeneralSettings::instance().load();
  m_control->clear();
  Units::initialise();
}

NivraViewer::~NivraViewer() = default;

QString NivraViewer::openDialogStart(const QString &applicationDir) {
  const QString folder = applicationDir + QStringLiteral("/example");
  QString file = folder + QStringLiteral("/DE_H2/S5/S5.scen.jsn");
  if (QFileInfo(file).isFile())
    return file;
  return QFileInfo(folder).isDir() ? folder : applicationDir;
}

void NivraViewer::on_actionOpen_triggered() {
  const QString path = QFileDialog::getOpenFileName(
      this, tr("Select Geometry or Scenario File"), openDialogStart(QCoreApplication::applicationDirPath()),
      tr("Scenario Files (*.scen *.scen.jsn);;Geom Files (*.geom *.geom.jsn)"));
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

void NivraViewer::applyStyleSheet(const QString &path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    NivraMsg::logWarning(tr("Cannot read the style sheet %1: %2").arg(path, file.errorString()));
    return;
  }
  qApp->setStyleSheet(QString::fromUtf8(file.readAll()));
}

void NivraViewer::openWorkspace(const QString &path) {
  NivraMsg::debug(QStringLiteral("opening file ") + path);
  QElapsedTimer timer;
  timer.start();
  NetworkLoader loader(m_net);
  if (!loader.resolve(path)) {
    m_ui->statusbar->showMessage(tr("Invalid Workspace"));
    return;
  }
  m_loader.takeWorkspace(loader);
  if (centralWidget() != m_control->plot())
    setCentralWidget(m_control->plot());
  QCoreApplication::processEvents();
  GeneralSettings::instance().load(m_loader.workspace().root());
  m_control->clear();
  m_loader.readConfiguration();
  setBusy(true);
  const bool done = readWorkspace();
  setBusy(false);
  m_tools->refresh(m_loader.workspace());
  m_tools->setFindings(m_loader.noticed());
  m_tools->setMachines(m_loader.machines());
  for (QAction *action : {m_ui->actionSearch, m_ui->actionElement_Table, m_ui->actionMetadataTable})
    action->setEnabled(true);
  showTitle();
  constexpr int ShownMs = 20000;
  if (done)
    m_ui->statusbar->showMessage(tr("Startup finished in %1ms").arg(timer.elapsed()), ShownMs);
  else
    m_ui->statusbar->showMessage(m_loader.error());
}

bool NivraViewer::readWorkspace() {
  m_control->clear();
  m_net.clear();
  m_currentElement.clear();
  LoadProgress progress(m_ui->statusbar);
  m_progress = &progress;
  NetworkLoader::ReadOptions options;
  if (GeneralSettings::instance().isOn(QStringLiteral("ask for include lists")))
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
  m_control->showNetData(m_loader.workspace().filePath(QStringLiteral("plotsettings.ini")));
  return done;
}

bool NivraViewer::askForIncludeLists(NetworkLoader::ReadOptions &options) {
  bool accepted = false;
  options.includeTypes =
      QInputDialog::getText(this, tr("Include Types"), tr("Enter include list for types\n(regular expression):"),
                            QLineEdit::Normal, QString(), &accepted);
  if (accepted)
    options.includeProperties =
        QInputDialog::getText(this, tr("Include Properties"), tr("Enter include list for properties\n(regular expression):"),
                              QLineEdit::Normal, QString(), &accepted);
  return accepted;
}

void NivraViewer::openSubnet(const QString &name) {
  auto *window = new SubnetWindow(m_net, name, m_loader.workspace().filePath(QStringLiteral("plotsettings.ini")), this);
  connect(window->visControl(), &NetVisControl::elementAction, this,
          [this](const QString &picked, NetPicker::EleAction action) {
            elementAction(picked, action); // the tools know the elements by their names
          });
  window->show();
}

void NivraViewer::computeAgain(const QStringList &names, const QString &property) {
  m_loader.computeAgain(names, property);
  m_tools->setFindings(m_loader.noticed());
  m_tools->showElement(m_currentElement);
  m_control->plot()->update().updatePlot(false, NetUpdate::Which::EdgesAndNodes, false);
}

void NivraViewer::showTitle() {
  const NivraWorkspace &workspace = m_loader.workspace();
  QString title = tr("Nivra Reader %1  |  Workspace: %2  |  CASE: %3")
                      .arg(AboutBox::version(), workspace.root(), workspace.currentCase()->name);
  if (workspace.hasScenario())
    title += tr("  |  SCEN: %1").arg(workspace.currentScenario()->workDir);
  setWindowTitle(title);
}

void NivraViewer::setBusy(bool busy) {
  m_ui->menubar->setEnabled(!busy);
  m_ui->actionOpen->setEnabled(!busy);
  m_control->plot()->setEnabled(!busy);
}

void NivraViewer::fillViewMenu() {
  m_ui->menuView->clear();
  m_ui->menuView->addSection(tr("Dock Widgets"));
  QList<QAction *> toggles;
  for (const QDockWidget *dock : m_tools->docks())
    toggles.append(dock->toggleViewAction());
  m_ui->menuView->addActions(sortedByText(toggles));
  toggles.clear();
  for (const QToolBar *bar : findChildren<QToolBar *>())
    toggles.append(bar->toggleViewAction());
  m_ui->menuView->addSection(tr("Toolbars"));
  m_ui->menuView->addActions(sortedByText(toggles));
}

void NivraViewer::elementAction(const QString &eleName, NetPicker::EleAction eleAction) {
  switch (eleAction) {
  case NetPicker::EleAction::Mark:
    m_control->picker()->markElement(eleName);
    setCurrentElement(eleName);
    break;
  case NetPicker::EleAction::ShowInfo:
    setCurrentElement(eleName);
    m_tools->showInfo(eleName);
    break;
  case NetPicker::EleAction::OpenCharacteristics:
    m_tools->openCharacteristics({eleName});
    break;
  case NetPicker::EleAction::EditProperties: // a viewer changes no properties
    break;
  }
}

void NivraViewer::setCurrentElement(const QString &name) {
  if (name == m_currentElement)
    return;
  m_currentElement = name;
  emit currentEleChanged(name);
}

void NivraViewer::showSelection() {
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
  m_ui->statusbar->showMessage(parts.isEmpty() ? QString() : tr("Selected %1%2").arg(parts.join(tr(", ")), names));
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
  if (m_progress != nullptr)
    m_progress->cancel(); // reading ends at its next step, then the window goes
  QMainWindow::closeEvent(event);
}
