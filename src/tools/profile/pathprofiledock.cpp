#include "profile/pathprofilepage.h"

#include <tools/pathprofiledock.h>

PathProfileDock::PathProfileDock(NetData &net, SymbolPainter symbols, QWidget *parent)
    : QDockWidget(tr("Path Profile"), parent)
    , m_net(net)
    , m_symbols(std::move(symbols)) {}

PathProfileDock::~PathProfileDock() = default;

PathProfilePage &PathProfileDock::page() {
  if (m_page != nullptr)
    return *m_page;
  m_page = new PathProfilePage(m_net, m_symbols, this);
  setWidget(m_page);
  m_page->setScenarios(m_scenarios);
  m_page->setPageFacts(m_facts);
  m_page->setSelected(m_selected);
  connect(m_page, &PathProfilePage::pathChanged, this, &PathProfileDock::tellPath);
  connect(m_page, &PathProfilePage::pointed, this, &PathProfileDock::pointed);
  connect(m_page, &PathProfilePage::elementMarked, this, &PathProfileDock::elementMarked);
  connect(m_page, &PathProfilePage::elementWanted, this, &PathProfileDock::elementWanted);
  m_isStale = true;
  return *m_page;
}

void PathProfileDock::forget() {
  m_hasNetwork = false;
  if (m_page != nullptr)
    m_page->forget();
}

void PathProfileDock::refresh(const QString &directory) {
  m_hasNetwork = true;
  if (m_page != nullptr && directory != m_directory)
    m_page->setWayPoints({});
  m_directory = directory;
  m_isStale = true;
  if (isVisible())
    catchUp();
}

void PathProfileDock::showChanges() {
  m_isStale = true;
  if (isVisible())
    catchUp();
}

void PathProfileDock::setScenarios(const PathScenarios &scenarios) {
  m_scenarios = scenarios;
  if (m_page != nullptr)
    m_page->setScenarios(scenarios);
}

void PathProfileDock::setPageFacts(const PageFacts &facts) {
  m_facts = facts;
  if (m_page != nullptr)
    m_page->setPageFacts(facts);
}

void PathProfileDock::setSelected(std::function<QStringList()> selected) {
  m_selected = std::move(selected);
  if (m_page != nullptr)
    m_page->setSelected(m_selected);
}

void PathProfileDock::bring() {
  show();
  raise();
}

void PathProfileDock::showPath(QStringList nodes) {
  bring();
  page().setWayPointsInOrder(std::move(nodes));
  page().giveFocus();
}

void PathProfileDock::setStart(const QString &node) {
  bring();
  page().setStart(node);
}

void PathProfileDock::setEnd(const QString &node) {
  bring();
  page().setEnd(node);
}

void PathProfileDock::pointAt(const QString &element) {
  if (m_page != nullptr && isVisible())
    m_page->pointAt(element);
}

void PathProfileDock::showEvent(QShowEvent *event) {
  page();
  catchUp();
  QDockWidget::showEvent(event);
  tellPath();
}

void PathProfileDock::hideEvent(QHideEvent *event) {
  QDockWidget::hideEvent(event);
  if (isHidden()) // and not behind the tab of another one
    emit pathShown({}, {});
}

void PathProfileDock::catchUp() {
  if (!m_hasNetwork || !m_isStale)
    return;
  m_isStale = false;
  m_page->refresh();
}

void PathProfileDock::tellPath() {
  if (m_page != nullptr && !isHidden())
    emit pathShown(m_page->shownWayPoints(), m_page->legs());
}
