#include "subnetwindow.h"

#include "casescenarios.h"
#include "commands.h"
#include "elementcounts.h"
#include "svgicon.h"
#include "tooldocks.h"
#include "toolwindows.h"
#include "windowplace.h"

#include <base/finding.h>
#include <io/nivraworkspace.h>
#include <model/names.h>
#include <model/netmetadata.h>
#include <model/topology.h>
#include <tools/nivrasearch.h>
#include <view/netplot.h>
#include <view/netviscontrol.h>

#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <QStatusBar>

SubnetWindow::SubnetWindow(NetData &net, const QString &subnet, const NivraWorkspace &workspace,
                           std::shared_ptr<CategoryList> categories, QWidget *parent)
    : QMainWindow(parent)
    , m_whole(net)
    , m_subnet(subnet)
    , m_net(part(net, subnet))
    , m_control(std::make_unique<NetVisControl>(m_net, subnet, logFinding))
    , m_tools(new ToolDocks(*this, *m_control, std::move(categories), ToolDocks::Extent::Network)) {
  constexpr QSize Size(800, 600);
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(tr("Subassembly %1").arg(subnet));
  setCentralWidget(m_control->plot());
  resize(Size);
  new WindowPlace(*this, QStringLiteral("subnet"), parent == nullptr ? *this : *parent);
  takeCase(workspace);
  m_control->showNetData(workspace.filePath(QStringLiteral("plotsettings.ini")));
  m_control->plot()->setFocus();
  m_tools->refresh(workspace);
  fillMenus();
  statusBar()->addPermanentWidget(new QLabel(m_net.isEmpty() ? tr("The subnet has no elements") : ElementCounts::of(m_net)));
  connect(m_tools, &ToolDocks::elementMarked, this, &SubnetWindow::mark);
  connect(m_tools, &ToolDocks::elementsChanged, this, &SubnetWindow::giveProperty);
  connect(&m_control->actions(), &PlotActions::settingsChosen, m_tools, &ToolDocks::showDrawSettings);
  connect(m_control.get(), &NetVisControl::elementAction, this, [this](const QString &name, NetPicker::EleAction action) {
    if (action == NetPicker::EleAction::OpenCharacteristics)
      emit m_control->openCharacteristicsRequested({name});
    else if (action == NetPicker::EleAction::ShowInfo)
      m_tools->showInfo(name);
    m_control->setCurrentElement(name);
    emit elementMarked(name);
  });
}

SubnetWindow::~SubnetWindow() = default;

void SubnetWindow::fillMenus() {
  QMenu *file = menuBar()->addMenu(tr("File"));
  QAction *savePage = file->addAction(tr("Page &Setup and Save …"), m_control.get(), &NetVisControl::savePage,
                                      QKeySequence(Qt::CTRL + Qt::ALT + Qt::Key_P));
  QAction *print = file->addAction(tr("&Print …"), m_control.get(), &NetVisControl::print, QKeySequence::Print);
  print->setIcon(svgIcon(QStringLiteral("print")));
  file->addSeparator();
  file->addAction(tr("Close"), this, &QWidget::close, QKeySequence(Qt::CTRL + Qt::Key_W));
  QMenu *info = menuBar()->addMenu(tr("Info"));
  info->addAction(tr("Element Table"), &m_tools->windows(), &ToolWindows::showVectorTable);
  info->addAction(tr("Metadata Table"), &m_tools->windows(), &ToolWindows::showMetaData);
  info->addAction(
      tr("SearchElements"), m_tools, [this] { m_tools->search()->enterLastField(); }, QKeySequence::Find);
  info->addAction(tr("Guide"), &m_tools->windows(), &ToolWindows::showHelpOfFocus, QKeySequence::HelpContents);
  QMenu *view = menuBar()->addMenu(tr("View"));
  connect(view, &QMenu::aboutToShow, m_tools, [this, view] { m_tools->fillViewMenu(*view); });
  m_commands = new Commands(*this, *m_control, {menuBar(), file, info, print, savePage});
  connect(m_commands, &Commands::elementChosen, this, &SubnetWindow::mark);
}

void SubnetWindow::mark(const QString &name) {
  m_control->mark(name);
  emit elementMarked(name);
}

std::vector<UnsavedEdits::Kind> SubnetWindow::unsaved() {
  std::vector<UnsavedEdits::Kind> kinds = m_tools->unsaved();
  for (UnsavedEdits::Kind &kind : kinds)
    kind.name = tr("%1 (%2)").arg(kind.name, windowTitle());
  return kinds;
}

void SubnetWindow::closeEvent(QCloseEvent *event) {
  if (UnsavedEdits::settle(unsaved()) == UnsavedEdits::Answer::Stay)
    event->ignore();
  else
    QMainWindow::closeEvent(event);
}

void SubnetWindow::giveProperty(const ElementChange &change) {
  for (const QString &name : change.elements) {
    const element *here = m_net.element(name);
    element *there = m_whole.element(name);
    if (here == nullptr || there == nullptr)
      continue;
    if (const PropertyText *value = here->find(change.property))
      there->set(change.property, *value);
    else
      there->erase(change.property);
  }
  emit elementsChanged(change);
}

void SubnetWindow::takeCase(const NivraWorkspace &workspace) {
  m_control->setCaption(workspace.caption() + QStringLiteral(" · ") + m_subnet);
  PageFacts facts = CaseScenarios::facts(workspace);
  facts.subject = m_subnet;
  m_control->setPageFacts(facts);
}

void SubnetWindow::takeProperties() {
  m_net.setMetaData(std::make_shared<const NetMetaData>(*m_whole.metaData())); // which may know more properties now
  const PropertyKey searched = Names::all().searchResult;                      // each window has its own search
  m_net.forEach(NetData::AllTypes, [this, searched](element &here) {
    const element *there = m_whole.element(here.value(Names::all().name));
    if (there == nullptr)
      return;
    const PropertyText *mark = here.find(searched);
    element taken = *there;
    if (mark != nullptr)
      taken.set(searched, *mark);
    else
      taken.erase(searched);
    here = std::move(taken);
  });
  m_tools->showChanges(); // what a search marks is drawn, too
  m_control->redraw();
}

void SubnetWindow::takeSettings() {
  m_control->takeSettings();
  takeProperties(); // bounds are told in other words
  m_tools->takeSettings();
}

NetData SubnetWindow::part(const NetData &net, const QString &subnet) {
  NetData part;
  part.setMetaData(std::make_shared<const NetMetaData>(*net.metaData()));
  const element *source = net.assembledSubnets().find(subnet);
  if (source == nullptr)
    return part;
  const QStringList names = Topology::listed(*source, Names::all().pins) + Topology::listed(*source, Names::all().elements);
  for (const QString &name : names) {
    if (const element *e = net.nodes().find(name))
      part.addElement(*e);
  }
  // Also edges of the network itself that run between what is shown.
  for (const elements::Entry &entry : net.edges()) {
    const PropertyText *node1 = entry.value.find(Names::all().node1);
    const PropertyText *node2 = entry.value.find(Names::all().node2);
    if (node1 != nullptr && node2 != nullptr && part.nodes().find(*node1) != nullptr && part.nodes().find(*node2) != nullptr)
      part.addElement(entry.value);
  }
  return part;
}
