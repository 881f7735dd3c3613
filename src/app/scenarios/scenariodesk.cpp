#include "scenarios/scenariodesk.h"

#include "caseopening.h"
#include "scenarios/referenceview.h"
#include "scenarios/scenariocomparison.h"
#include "scenarios/scenariofinder.h"
#include "scenarios/scenariolistmodel.h"
#include "scenarios/scenariosdock.h"
#include "scenarios/scenariostrip.h"
#include "tooldocks.h"

#include <view/netplot.h>
#include <view/netviscontrol.h>

#include <QAction>
#include <QActionGroup>
#include <QMainWindow>
#include <QMenu>

#include <algorithm>
#include <memory>
#include <utility>

ScenarioDesk::ScenarioDesk(QMainWindow &window, CaseOpening &opening, NetVisControl &control, ToolDocks &tools, QMenu &go)
    : QObject(&window)
    , m_window(window)
    , m_opening(opening)
    , m_control(control)
    , m_tools(tools)
    , m_finder(new ScenarioFinder(this))
    , m_comparison(new ScenarioComparison(opening, control, this))
    , m_menu(go.addMenu(tr("Scenario"))) {
  addCommands();
  connect(m_finder, &ScenarioFinder::found, this, &ScenarioDesk::takeList);
  connect(m_comparison, &ScenarioComparison::changed, this, &ScenarioDesk::showMarks);
  connect(m_comparison, &ScenarioComparison::changed, this, [this] { showReference(m_reference != nullptr); });
  connect(m_comparison, &ScenarioComparison::styleChanged, &tools, &ToolDocks::showDrawSettings);
  connect(&opening, &CaseOpening::shown, this, &ScenarioDesk::take);
  connect(&opening, &CaseOpening::switched, this, &ScenarioDesk::showMarks);
}

void ScenarioDesk::addCommands() {
  m_previous = add(tr("Scenario before"), QStringLiteral("Alt+PgUp"), tr("Show the scenario before this one"));
  m_next = add(tr("Next scenario"), QStringLiteral("Alt+PgDown"), tr("Show the scenario after this one"));
  m_choose =
      add(tr("Choose scenario …"), QStringLiteral("Ctrl+Shift+G"), tr("Find a scenario of the case by its name or date"));
  addComparing();
  m_show = new QAction(tr("Show this scenario"), this);
  m_compare = new QAction(tr("Compare with this scenario"), this);
  connect(m_previous, &QAction::triggered, this, [this] { step(-1); });
  connect(m_next, &QAction::triggered, this, [this] { step(1); });
  connect(m_choose, &QAction::triggered, this, [this] { m_dock->bring(); });
  connect(m_show, &QAction::triggered, this, [this] { switchTo(m_dock->current()); });
  connect(m_compare, &QAction::triggered, this, [this] { compareWith(m_dock->current()); });
  for (QAction *action : {m_previous, m_next, m_choose, m_compareShown, m_noReference, m_beside})
    action->setEnabled(false);
}

void ScenarioDesk::addComparing() {
  using Kind = Comparison::Kind;
  m_menu->addSeparator();
  m_compareShown =
      add(tr("Compare with the scenario shown"), QStringLiteral("Ctrl+Shift+R"),
          tr("The scenario that is shown becomes the reference; scenarios shown after it are compared with it"));
  m_noReference = add(tr("Compare no more"), QString(), tr("Forget the reference, and colour by values"));
  connect(m_compareShown, &QAction::triggered, this,
          [this] { m_comparison->compareWith(shownName(), m_opening.workspace().chosenPath()); });
  connect(m_noReference, &QAction::triggered, m_comparison, &ScenarioComparison::drop);
  m_beside = add(tr("Reference beside"), QStringLiteral("Ctrl+Shift+B"),
                 tr("Show the reference in a second drawing; view and selection go together"));
  m_beside->setCheckable(true);
  connect(m_beside, &QAction::triggered, this, &ScenarioDesk::showReference);
  connect(&m_opening.reading(), &CaseReading::begins, this, [this] { showReference(false); });
  m_menu->addSeparator();
  m_colours = new QActionGroup(this);
  const auto addKind = [this](Kind kind, const QString &text, const QString &key, const QString &tip) {
    QAction *action = add(text, key, tip);
    action->setCheckable(true);
    m_colours->addAction(action);
    connect(action, &QAction::triggered, m_comparison, [this, kind] { m_comparison->show(kind); });
    connect(m_menu, &QMenu::aboutToShow, action,
            [this, action, kind] { action->setChecked(m_comparison->shown() == kind); });
  };
  addKind(Kind::None, tr("Colour by values"), QString(), tr("Colours show the values of the scenario"));
  addKind(Kind::Difference, tr("Colour by differences"), QStringLiteral("Ctrl+Shift+D"),
          tr("Colours show the values less those of the reference"));
  addKind(Kind::Ratio, tr("Colour by ratios"), QString(), tr("Colours show the values by those of the reference"));
  m_colours->setEnabled(false);
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
    m_dock->setMenuActions({m_show, m_compare});
    connect(m_dock, &ScenariosDock::wanted, this, &ScenarioDesk::switchTo);
  }
  const NivraWorkspace &workspace = m_opening.workspace();
  m_choose->setEnabled(true);
  const QString before = std::exchange(m_case, workspace.caseDirectory());
  if (before != m_case)
    takeList(ScenarioList()); // those of another case lead away
  showMarks();
  m_finder->look(workspace.caseDirectory(), workspace.isJson());
}

void ScenarioDesk::takeList(const ScenarioList &list) {
  model().setList(list);
  const bool isDated = list.dated() > 1;
  if (isDated && m_strip == nullptr) {
    m_strip = new ScenarioStrip(m_previous, m_next, &m_window);
    m_window.addToolBar(Qt::BottomToolBarArea, m_strip);
    connect(m_strip, &ScenarioStrip::wanted, this, &ScenarioDesk::switchTo);
  }
  if (m_strip != nullptr) {
    m_strip->setList(model().list());
    m_strip->setVisible(isDated);
    m_strip->toggleViewAction()->setVisible(isDated);
  }
  showMarks();
}

void ScenarioDesk::compareWith(const QString &file) {
  for (const ScenarioEntry &entry : model().list().entries()) {
    if (entry.file == file)
      m_comparison->compareWith(entry.name, entry.file);
  }
}

/// The panel takes half of the drawing's width.
void ScenarioDesk::showReference(bool isWanted) {
  delete m_reference;
  m_beside->setChecked(false);
  const Index index = isWanted ? model().list().indexOf(m_comparison->reference()) : NoIndex;
  if (index == NoIndex)
    return;
  auto view = std::make_unique<ReferenceView>(m_control, &m_window);
  const bool isRead =
      m_opening.readApart(model().list()[index].file, view->net(), [&](const NetData &, const NetworkLoader &) {
        const int half = m_control.plot()->width() / 2;
        m_reference = view.release();
        m_window.addDockWidget(Qt::RightDockWidgetArea, m_reference);
        m_reference->show();
        m_window.resizeDocks({m_reference}, {half}, Qt::Horizontal);
        m_reference->draw(m_opening.workspace(), m_comparison->reference());
        connect(m_reference, &QObject::destroyed, m_beside, [this] { m_beside->setChecked(false); });
      });
  m_beside->setChecked(isRead);
}

QString ScenarioDesk::shownName() const {
  const NivraWorkspace &workspace = m_opening.workspace();
  return workspace.hasScenario() ? workspace.currentScenario()->workDir : QString();
}

void ScenarioDesk::showMarks() {
  const ScenarioList &list = model().list();
  const QString shown = shownName();
  const bool isCompared = !m_comparison->reference().isEmpty();
  model().setMarks(shown, m_comparison->reference());
  m_compareShown->setEnabled(!shown.isEmpty());
  m_noReference->setEnabled(isCompared);
  m_beside->setEnabled(isCompared);
  m_colours->setEnabled(isCompared);
  if (m_strip != nullptr)
    m_strip->showCurrent(shown);
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
