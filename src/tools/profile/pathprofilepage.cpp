#include "profile/pathprofilepage.h"

#include "profile/profilefiles.h"
#include "profile/scenariooverlays.h"

#include <model/displayformat.h>
#include <model/elementtypes.h>
#include <model/titles.h>
#include <tools/elidedlabel.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QScopedValueRollback>
#include <QSplitter>
#include <QStackedLayout>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

QToolButton *menuButton(const QString &text, const QString &tip) {
  auto *button = new QToolButton;
  button->setText(text);
  button->setToolTip(tip);
  button->setPopupMode(QToolButton::InstantPopup);
  button->setMenu(new QMenu(button));
  return button;
}

/// What is shown as long as nobody chooses, where it varies.
const QStringList &usualProperties() {
  static const QStringList usual{QStringLiteral("p"), QStringLiteral("height"), QStringLiteral("v")};
  return usual;
}

bool varies(const PathProfile &profile, const ProfileQuantity &quantity) {
  double first = NetData::NoValue;
  for (const PathProfile::Row &row : profile.rows()) {
    const double value = profile.value(row, quantity);
    if (value == NetData::NoValue || value == first)
      continue;
    if (first != NetData::NoValue)
      return true;
    first = value;
  }
  return false;
}

QString withUnit(double value, const QString &unit) {
  return unit.isEmpty() ? DisplayFormat::number(value) : DisplayFormat::number(value) + QLatin1Char(' ') + unit;
}

} // namespace

PathProfilePage::PathProfilePage(NetData &net, SymbolPainter symbols, QWidget *parent)
    : QWidget(parent)
    , m_net(net)
    , m_bar(new QToolBar)
    , m_way(new QComboBox)
    , m_closed(new QCheckBox(tr("Through what is &closed")))
    , m_curves(menuButton(tr("C&urves"), tr("Which quantities are shown along the path")))
    , m_list(new QListView)
    , m_stack(new QStackedLayout)
    , m_hint(new QLabel)
    , m_chart(new ProfileChart(std::move(symbols)))
    , m_told(new ElidedLabel)
    , m_files(new ProfileFiles(*m_chart))
    , m_overlays(new ScenarioOverlays(this)) {
  makeBar();
  makeChart();
  auto *splitter = new QSplitter;
  splitter->addWidget(makeWayPoints());
  auto *shown = new QWidget;
  shown->setLayout(m_stack);
  splitter->addWidget(shown);
  splitter->setStretchFactor(1, 1);
  splitter->setChildrenCollapsible(false);
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 2);
  column->setSpacing(2);
  column->addWidget(m_bar);
  column->addWidget(splitter, 1);
  constexpr int Margin = 4;
  auto *below = new QHBoxLayout;
  below->setContentsMargins(Margin, 0, Margin, 0);
  below->addWidget(m_told);
  column->addLayout(below);
  connect(m_overlays, &ScenarioOverlays::changed, this, &PathProfilePage::showCurves);
  connect(m_overlays, &ScenarioOverlays::told, m_told, &QLabel::setText);
  find();
}

PathProfilePage::~PathProfilePage() = default;

void PathProfilePage::makeBar() {
  m_way->setAccessibleName(tr("How the way is chosen"));
  m_way->setToolTip(tr("Which of the ways between two way points is shown"));
  m_way->addItem(tr("Along the flow"));
  m_way->addItem(tr("Shortest way"));
  m_way->addItem(tr("Fewest elements"));
  m_closed->setToolTip(tr("Closed valves and what is out of use are ways, too; the gas never takes them"));
  m_closed->setEnabled(false);
  auto *scenarios = menuButton(tr("Sce&narios"), tr("Other scenarios of the case on the same path"));
  connect(scenarios->menu(), &QMenu::aboutToShow, this, [this, scenarios] { m_overlays->fillMenu(*scenarios->menu()); });
  connect(m_curves->menu(), &QMenu::aboutToShow, this, &PathProfilePage::fillCurves);
  auto *save = menuButton(tr("&Save"), tr("Tables, pictures and pages of the profile"));
  save->menu()->addActions(m_files->actions());
  m_bar->addWidget(m_way);
  m_bar->addWidget(m_closed);
  m_bar->addWidget(m_curves);
  m_bar->addWidget(scenarios);
  m_bar->addWidget(save);
  connect(m_way, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this] {
    m_closed->setEnabled(choice().way != PathChoice::Way::AlongFlow);
    find();
  });
  connect(m_closed, &QCheckBox::toggled, this, &PathProfilePage::find);
}

QWidget *PathProfilePage::makeWayPoints() {
  constexpr int Narrowest = 130;
  constexpr int Width = 170;
  m_list->setObjectName(QStringLiteral("listView_wayPoints"));
  m_list->setModel(&m_wayPoints);
  m_list->setAccessibleName(tr("Way points"));
  m_list->setToolTip(tr("Way points in their order: drag them, F2 to type a name, Delete to remove one"));
  m_list->setDragDropMode(QAbstractItemView::InternalMove);
  m_list->setDefaultDropAction(Qt::MoveAction);
  m_list->setDragDropOverwriteMode(false);
  m_list->setMinimumWidth(Narrowest);
  // A move is two changes, and a name that is typed comes after an empty row.
  const auto follow = [this] {
    if (!m_isSettingWayPoints)
      QTimer::singleShot(0, this, &PathProfilePage::find);
  };
  connect(&m_wayPoints, &QAbstractItemModel::dataChanged, this, follow);
  connect(&m_wayPoints, &QAbstractItemModel::rowsInserted, this, follow);
  connect(&m_wayPoints, &QAbstractItemModel::rowsRemoved, this, follow);
  auto *buttons = new QToolBar;
  buttons->setToolButtonStyle(Qt::ToolButtonTextOnly);
  const auto add = [&](const QString &text, const QString &tip, const QKeySequence &key, const auto &done) {
    auto *action = new QAction(text, m_list);
    action->setToolTip(key.isEmpty() ? tip : tr("%1 (%2)").arg(tip, key.toString(QKeySequence::NativeText)));
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, done);
    m_list->addAction(action);
    buttons->addAction(action);
  };
  add(QStringLiteral("+"), tr("Add the selected nodes"), QKeySequence(Qt::Key_Insert), [this] { addSelected(); });
  add(QStringLiteral("−"), tr("Remove this way point"), QKeySequence(Qt::Key_Delete), [this] { removeCurrent(); });
  add(QStringLiteral("↑"), tr("Move this way point up"), QKeySequence(Qt::ALT + Qt::Key_Up), [this] { moveCurrent(-1); });
  add(QStringLiteral("↓"), tr("Move this way point down"), QKeySequence(Qt::ALT + Qt::Key_Down), [this] { moveCurrent(1); });
  add(QStringLiteral("⇅"), tr("The other way round"), QKeySequence(), [this] { reverse(); });
  m_list->installEventFilter(this);
  auto *side = new QWidget;
  auto *column = new QVBoxLayout(side);
  column->setContentsMargins(2, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(m_list, 1);
  column->addWidget(buttons);
  side->resize(Width, side->height());
  return side;
}

/// Keys of the list are for the list while it has the keyboard, whatever the window does with them elsewhere.
bool PathProfilePage::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride)
    return QWidget::eventFilter(watched, event);
  const auto *key = static_cast<const QKeyEvent *>(event);
  const QKeySequence pressed(static_cast<int>(key->modifiers() & ~Qt::KeypadModifier) | key->key());
  for (QAction *action : m_list->actions()) {
    if (action->shortcut() != pressed)
      continue;
    if (event->type() == QEvent::KeyPress)
      action->trigger();
    event->accept();
    return true;
  }
  return QWidget::eventFilter(watched, event);
}

void PathProfilePage::makeChart() {
  m_hint->setWordWrap(true);
  m_hint->setAlignment(Qt::AlignCenter);
  m_hint->setTextFormat(Qt::PlainText);
  m_hint->setMargin(12);
  m_hint->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  m_stack->addWidget(m_hint);
  m_stack->addWidget(m_chart);
  m_chart->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(m_chart, &QWidget::customContextMenuRequested, this, &PathProfilePage::showMenu);
  connect(m_chart, &ProfileChart::copyWanted, m_files, &ProfileFiles::copyPicture);
  connect(m_chart, &ProfileChart::printWanted, m_files, &ProfileFiles::print);
  connect(m_chart, &ProfileChart::pointed, this, &PathProfilePage::tell);
  connect(m_chart, &ProfileChart::clicked, this, [this](Index row) { emit elementMarked(m_profile->rows()[row].name); });
  connect(m_chart, &ProfileChart::activated, this, [this](Index row) { emit elementWanted(m_profile->rows()[row].name); });
}

void PathProfilePage::setScenarios(const PathScenarios &scenarios) {
  m_overlays->setScenarios(scenarios);
}

void PathProfilePage::setPageFacts(const PageFacts &facts) {
  m_files->setFacts(facts);
}

void PathProfilePage::giveFocus() {
  if (m_chart->isEmpty())
    m_list->setFocus();
  else
    m_chart->setFocus();
}

void PathProfilePage::forget() {
  m_search.reset();
  m_profile.reset();
  m_chart->show({});
  m_files->refresh();
  emit pathChanged();
}

void PathProfilePage::refresh() {
  m_search.reset();
  find();
}

void PathProfilePage::setWayPoints(const QStringList &nodes) {
  {
    const QScopedValueRollback<bool> setting(m_isSettingWayPoints, true);
    m_wayPoints.setStringList(nodes);
  }
  find();
}

void PathProfilePage::setWayPointsInOrder(QStringList nodes) {
  setWayPoints(search().inOrder(std::move(nodes)));
}

void PathProfilePage::setStart(const QString &node) {
  QStringList nodes = wayPoints();
  nodes.removeAll(node);
  if (nodes.size() > 1)
    nodes.removeFirst();
  nodes.prepend(node);
  setWayPoints(nodes);
}

void PathProfilePage::setEnd(const QString &node) {
  QStringList nodes = wayPoints();
  nodes.removeAll(node);
  if (nodes.size() > 1)
    nodes.removeLast();
  nodes.append(node);
  setWayPoints(nodes);
}

void PathProfilePage::addSelected() {
  QStringList nodes = wayPoints();
  const QStringList added = m_selected ? m_selected() : QStringList();
  if (added.isEmpty())
    m_told->setText(tr("Select nodes in the drawing first."));
  else
    setWayPoints(nodes + (added.size() > 1 ? search().inOrder(added) : added));
}

void PathProfilePage::removeCurrent() {
  if (m_list->currentIndex().isValid())
    m_wayPoints.removeRow(m_list->currentIndex().row());
}

void PathProfilePage::moveCurrent(int by) {
  const int row = m_list->currentIndex().row();
  QStringList nodes = wayPoints();
  if (row < 0 || row + by < 0 || row + by >= nodes.size())
    return;
  nodes.move(row, row + by);
  setWayPoints(nodes);
  m_list->setCurrentIndex(m_wayPoints.index(row + by));
}

void PathProfilePage::reverse() {
  QStringList nodes = wayPoints();
  std::reverse(nodes.begin(), nodes.end());
  setWayPoints(nodes);
}

PathChoice PathProfilePage::choice() const {
  return {static_cast<PathChoice::Way>(m_way->currentIndex()), m_closed->isChecked()};
}

const PathSearch &PathProfilePage::search() {
  if (!m_search)
    m_search.emplace(m_net);
  return *m_search;
}

void PathProfilePage::find() {
  PathSearch::Found found;
  QStringList nodes = wayPoints();
  nodes.removeAll(QString());
  if (nodes.size() > 1)
    found = search().find(nodes, choice());
  const bool isFound = !found.path.isEmpty() && !found.path.steps.empty();
  m_profile = isFound ? std::make_shared<PathProfile>(m_net, found.path) : nullptr;
  if (isFound) {
    showCurves();
  } else {
    m_chart->show({});
    showFaults(found.faults);
  }
  m_stack->setCurrentIndex(isFound ? 1 : 0);
  m_files->refresh();
  m_files->setTitle(title());
  emit pathChanged();
}

void PathProfilePage::showFaults(const QStringList &faults) {
  m_told->clear();
  if (!faults.isEmpty())
    m_hint->setText(faults.join(QLatin1Char('\n')));
  else if (wayPoints().size() == 1)
    m_hint->setText(tr("One way point is not enough: select another node and press +, or choose \"Profile to here\" in its "
                       "right-click menu."));
  else
    m_hint->setText(tr("Pressure, height and other values along a way through the network. Select two nodes or more and "
                       "choose \"Path profile from selection\", or \"Profile from here\" and \"Profile to here\" in the "
                       "right-click menus of two nodes."));
}

std::vector<ProfileQuantity> PathProfilePage::chosenQuantities() const {
  std::vector<ProfileQuantity> chosen;
  const std::vector<ProfileQuantity> all = m_profile->quantities();
  const auto isWanted = [this](const ProfileQuantity &quantity) {
    const QString name = quantity.property.name();
    return m_chosen.isEmpty() ? usualProperties().contains(name, Qt::CaseInsensitive) && varies(*m_profile, quantity)
                              : m_chosen.contains(name);
  };
  std::copy_if(all.begin(), all.end(), std::back_inserter(chosen), isWanted);
  if (chosen.empty() && !all.empty())
    chosen.push_back(all.front());
  return chosen;
}

void PathProfilePage::showCurves() {
  if (m_profile == nullptr)
    return;
  ProfileChart::Content content{m_profile, wayPoints(), chosenQuantities(), m_hasBounds, m_overlays->current(), {}};
  if (content.title.isEmpty())
    content.title = tr("shown");
  QSet<QString> elements;
  for (const PathProfile::Row &row : m_profile->rows())
    elements.insert(row.name);
  QSet<QString> properties;
  for (const ProfileQuantity &quantity : content.quantities)
    properties.insert(quantity.property.name());
  m_overlays->setPath(elements, properties);
  content.overlays = m_overlays->overlays();
  m_chart->show(std::move(content));
  m_told->setText(summary());
}

void PathProfilePage::fillCurves() {
  QMenu &menu = *m_curves->menu();
  menu.clear();
  if (m_profile == nullptr) {
    menu.addAction(tr("There is no path yet"))->setEnabled(false);
    return;
  }
  QStringList shown;
  for (const ProfileQuantity &quantity : m_chart->content().quantities)
    shown.append(quantity.property.name());
  for (const ProfileQuantity &quantity : m_profile->quantities()) {
    const QString name = quantity.property.name();
    QAction *action = menu.addAction(QString(quantity.title).replace(QLatin1Char('&'), QStringLiteral("&&")));
    action->setCheckable(true);
    action->setChecked(shown.contains(name));
    connect(action, &QAction::toggled, this, [this, shown, name](bool isWanted) {
      m_chosen = shown;
      m_chosen.removeAll(name);
      if (isWanted)
        m_chosen.append(name);
      showCurves();
    });
  }
  menu.addSeparator();
  QAction *bounds = menu.addAction(tr("Bounds"));
  bounds->setCheckable(true);
  bounds->setChecked(m_hasBounds);
  connect(bounds, &QAction::toggled, this, [this](bool isWanted) {
    m_hasBounds = isWanted;
    showCurves();
  });
}

void PathProfilePage::pointAt(const QString &element) {
  const Index row = m_profile == nullptr ? NoIndex : m_profile->find(element);
  if (row == NoIndex)
    m_chart->clearCursor();
  else
    m_chart->setCursor(row, 0.5);
  if (m_profile != nullptr)
    tell(row, 0.5);
}

QStringList PathProfilePage::shownWayPoints() const {
  return m_profile == nullptr ? QStringList() : wayPoints();
}

std::vector<PathLeg> PathProfilePage::legs() const {
  std::vector<PathLeg> legs;
  if (m_profile == nullptr)
    return legs;
  for (const PathProfile::Row &row : m_profile->rows()) {
    if (!row.isNode)
      legs.push_back({row.name, row.isForward});
  }
  return legs;
}

QString PathProfilePage::title() const {
  const QStringList nodes = shownWayPoints();
  return nodes.isEmpty() ? windowTitle() : tr("%1 to %2").arg(nodes.first(), nodes.last());
}

QString PathProfilePage::summary() const {
  const int elements = toQt(m_profile->rows().size() / 2);
  const QString length = withUnit(m_profile->length(), m_profile->lengthUnit());
  QString text = elements == 1 ? tr("%1: %2, 1 element").arg(title(), length)
                               : tr("%1: %2, %3 elements").arg(title(), length, QString::number(elements));
  if (m_chart->content().quantities.empty())
    return text;
  const ProfileQuantity &first = m_chart->content().quantities.front();
  std::vector<double> values;
  for (const PathProfile::Row &row : m_profile->rows()) {
    if (const double value = m_profile->value(row, first); value != NetData::NoValue)
      values.push_back(value);
  }
  if (!values.empty())
    text += tr("; %1 from %2 to %3, lowest %4, highest %5")
                .arg(first.title, DisplayFormat::number(values.front()), DisplayFormat::number(values.back()),
                     DisplayFormat::number(*std::min_element(values.begin(), values.end())),
                     DisplayFormat::number(*std::max_element(values.begin(), values.end())));
  return text;
}

/// What stands where somebody points: of a node its values, of an edge its own and those of both ends.
void PathProfilePage::tell(Index row, double share) {
  if (m_profile == nullptr)
    return;
  if (row == NoIndex) {
    m_told->setText(summary());
    emit pointed(QString(), 0.0);
    return;
  }
  const PathProfile::Row &at = m_profile->rows()[row];
  const ElementType *type = ElementTypes::byCode(at.type);
  QString text = withUnit(at.from + share * (at.to - at.from), m_profile->lengthUnit()) + QStringLiteral(": ") + at.name;
  if (type != nullptr)
    text += QStringLiteral(" (") + Titles::of(*type) + QLatin1Char(')');
  for (const ProfileQuantity &quantity : m_chart->content().quantities) {
    QStringList values;
    for (const Index i : {row - 1, row, row + 1}) {
      const bool isMeant = i == row || (!at.isNode && quantity.isOfNodes);
      if (!isMeant || i >= m_profile->rows().size())
        continue;
      if (const double value = m_profile->value(m_profile->rows()[i], quantity); value != NetData::NoValue)
        values.append(DisplayFormat::number(value));
    }
    if (!values.isEmpty())
      text += QStringLiteral("; ") + quantity.title + QLatin1Char(' ') + values.join(QStringLiteral(" → "));
  }
  m_told->setText(text);
  emit pointed(at.name, at.isForward ? share : 1.0 - share);
}

void PathProfilePage::showMenu(const QPoint &position) {
  QMenu menu;
  const Index row = m_chart->cursorRow();
  QAction *show = menu.addAction(tr("Show in the &drawing"));
  show->setEnabled(row != NoIndex);
  connect(show, &QAction::triggered, this, [this, row] { emit elementWanted(m_profile->rows()[row].name); });
  menu.addAction(tr("Show the &whole path\tHome"), m_chart, &ProfileChart::showWhole);
  menu.addSeparator();
  menu.addActions(m_files->actions());
  menu.exec(m_chart->mapToGlobal(position));
}
