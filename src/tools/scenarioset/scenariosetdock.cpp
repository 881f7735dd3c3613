#include "scenarioset/scenariosetpage.h"

#include <tools/scenariosetdock.h>

ScenarioSetDock::ScenarioSetDock(NetData &net, QWidget *parent)
    : QDockWidget(tr("Scenario Set"), parent)
    , m_net(net) {}

ScenarioSetDock::~ScenarioSetDock() = default;

void ScenarioSetDock::forget() {
  if (m_page != nullptr)
    m_page->forget();
}

void ScenarioSetDock::refresh(const NivraWorkspace &workspace) {
  m_workspace = workspace;
  m_isStale = true;
  if (isVisible() || (m_page != nullptr && m_page->hasFigures()))
    showEvent(nullptr);
}

void ScenarioSetDock::showElement(const QString &name) {
  m_element = name;
  if (isVisible() && m_page != nullptr)
    m_page->showElement(name);
}

void ScenarioSetDock::showAgain() {
  showElement(m_element);
}

void ScenarioSetDock::showEvent(QShowEvent *event) {
  if (m_page == nullptr) {
    m_page = new ScenarioSetPage(m_net, this);
    setWidget(m_page);
    connect(m_page, &ScenarioSetPage::elementsChanged, this, &ScenarioSetDock::elementsChanged);
    connect(m_page, &ScenarioSetPage::scenarioWanted, this, &ScenarioSetDock::scenarioWanted);
  }
  if (m_isStale)
    m_page->refresh(m_workspace);
  m_isStale = false;
  m_page->showElement(m_element);
  if (event != nullptr)
    QDockWidget::showEvent(event);
}
