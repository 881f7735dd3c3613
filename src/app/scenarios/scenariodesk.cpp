#include "scenarios/scenariodesk.h"

#include "caseopening.h"
#include "mnemonics.h"
#include "scenarios/scenariofinder.h"
#include "scenarios/scenariolistmodel.h"
#include "scenarios/scenariosdock.h"
#include "tooldocks.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>

#include <algorithm>

ScenarioDesk::ScenarioDesk(QMainWindow &window, CaseOpening &opening, ToolDocks &tools, QMenuBar &bar, QMenu &before)
    : QObject(&window)
    , m_window(window)
    , m_opening(opening)
    , m_tools(tools)
    , m_finder(new ScenarioFinder(this))
    , m_menu(new QMenu(tr("Scenario"), &bar)) {
  addCommands(bar, before);
  connect(m_finder, &ScenarioFinder::found, this, [this](const ScenarioList &list) {
    model().setList(list);
    showMarks();
  });
  connect(&opening, &CaseOpening::shown, this, &ScenarioDesk::take);
  connect(&opening, &CaseOpening::switched, this, &ScenarioDesk::showMarks);
}

void ScenarioDesk::addCommands(QMenuBar &bar, QMenu &before) {
  bar.insertMenu(before.menuAction(), m_menu);
  m_previous = add(tr("Scenario before"), QStringLiteral("Alt+PgUp"), tr("Show the scenario before this one"));
  m_next = add(tr("Next scenario"), QStringLiteral("Alt+PgDown"), tr("Show the scenario after this one"));
  m_choose =
      add(tr("Choose scenario …"), QStringLiteral("Ctrl+Shift+G"), tr("Find a scenario of the case by its name or date"));
  m_show = new QAction(tr("Show this scenario"), this);
  connect(m_previous, &QAction::triggered, this, [this] { step(-1); });
  connect(m_next, &QAction::triggered, this, [this] { step(1); });
  connect(m_choose, &QAction::triggered, this, [this] { m_dock->bring(); });
  connect(m_show, &QAction::triggered, this, [this] { switchTo(m_dock->current()); });
  Mnemonics::assign(bar.actions());
  for (QAction *action : {m_previous, m_next, m_choose})
    action->setEnabled(false);
}

QAction *ScenarioDesk::add(const QString &text, const QString &key, const QString &tip) {
  QAction *action = m_menu->addAction(text);
  action->setShortcut(QKeySequence(key));
  action->setToolTip(tip);
  return action;
}

ScenarioListModel &ScenarioDesk::model() const {
  return m_dock->model();
}

/// A case was opened, or read again.
void ScenarioDesk::take() {
  if (m_dock == nullptr) {
    m_dock = m_tools.scenarios();
    m_dock->setMenuActions({m_show});
    connect(m_dock, &ScenariosDock::wanted, this, &ScenarioDesk::switchTo);
  }
  const NivraWorkspace &workspace = m_opening.workspace();
  m_choose->setEnabled(true);
  showMarks();
  m_finder->look(workspace.caseDirectory(), workspace.isJson());
}

QString ScenarioDesk::shownName() const {
  const NivraWorkspace &workspace = m_opening.workspace();
  return workspace.hasScenario() ? workspace.currentScenario()->workDir : QString();
}

void ScenarioDesk::showMarks() {
  const ScenarioList &list = model().list();
  const QString shown = shownName();
  model().setMarks(shown, QString());
  m_dock->showCurrent(shown);
  const Index current = list.indexOf(shown);
  m_previous->setEnabled(list.size() > 0 && current != 0);
  m_next->setEnabled(list.size() > 0 && (current == NoIndex || current + 1 < list.size()));
}

/// From a case without a scenario to the first or the last one.
void ScenarioDesk::step(int by) {
  const ScenarioList &list = model().list();
  const auto last = static_cast<qint64>(list.size()) - 1;
  const Index current = list.indexOf(shownName());
  const qint64 otherwise = by > 0 ? 0 : last;
  const qint64 wanted = current == NoIndex ? otherwise : std::clamp<qint64>(static_cast<qint64>(current) + by, 0, last);
  if (last >= 0 && toIndex(static_cast<std::size_t>(wanted)) != current)
    switchTo(list[toIndex(static_cast<std::size_t>(wanted))].file);
}

void ScenarioDesk::switchTo(const QString &file) {
  const Index wanted = model().list().indexOf(shownName());
  if (file.isEmpty() || (wanted != NoIndex && model().list()[wanted].file == file))
    return;
  if (!m_opening.switchTo(file))
    showMarks(); // what stays
}
