#include "elementtable/elementtablepage.h"

#include "elementtable/columnchooser.h"
#include "elementtable/elementtableview.h"
#include "elementtable/filterheader.h"
#include "elementtable/selectionlink.h"
#include "elementtable/tablesummary.h"
#include "elementtable/typebox.h"
#include "elementtable/usualcolumns.h"

#include <base/index.h>
#include <model/netdata.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int WidestColumn = 240; // px, unless somebody wants it wider
constexpr int NarrowestColumn = 60;

} // namespace

ElementTablePage::ElementTablePage(NetData &net, QWidget *parent)
    : QWidget(parent)
    , m_net(net)
    , m_model(net)
    , m_bar(new QToolBar)
    , m_types(new TypeBox)
    , m_groups(new QComboBox)
    , m_onlySelected(new QCheckBox(tr("Only &selected elements")))
    , m_endFilters(new QPushButton(tr("Show &all rows")))
    , m_view(new ElementTableView)
    , m_file(m_model, *m_view) {
  m_view->setTable(&m_model);
  m_view->setSortingEnabled(true);
  m_summary = new TableSummary(*m_view, m_model);
  m_link = new SelectionLink(net, *m_view, m_model);
  makeActions();
  makeBar();
  constexpr int Margin = 4;
  auto *below = new QHBoxLayout;
  below->setContentsMargins(Margin, 0, Margin, 0);
  below->addWidget(m_summary, 1);
  below->addWidget(m_endFilters);
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 2);
  column->setSpacing(2);
  column->addWidget(m_bar);
  column->addWidget(m_view, 1);
  column->addLayout(below);
  setFocusProxy(m_view);
  m_endFilters->hide();
  m_endFilters->setToolTip(tr("Ends the filters of all columns (Alt+A)"));
  connect(m_endFilters, &QPushButton::clicked, this, &ElementTablePage::endFilters);
  connect(m_link, &SelectionLink::selected, this, &ElementTablePage::selected);
  connect(m_link, &SelectionLink::currentChanged, this, &ElementTablePage::currentChanged);
  connect(m_view, &ElementTableView::elementActivated, this, &ElementTablePage::elementWanted);
  connect(m_view, &ElementTableView::columnMoveWanted, this, &ElementTablePage::moveColumn);
  connect(m_view->selectionModel(), &QItemSelectionModel::currentColumnChanged, m_summary, &TableSummary::tell);
  connect(&m_model, &ElementTableModel::marked, m_summary, &TableSummary::tell);
  connect(&m_model, &QAbstractItemModel::modelReset, this, &ElementTablePage::showHeader);
  FilterHeader *header = m_view->filters();
  header->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(header, &QWidget::customContextMenuRequested, this, &ElementTablePage::showColumnMenu);
  connect(header, &FilterHeader::filterChanged, this,
          [this](int section, const QString &text) { m_model.setFilter(section, text); });
  connect(header, &FilterHeader::left, m_view, QOverload<>::of(&QWidget::setFocus));
  connect(header, &QHeaderView::sectionMoved, this,
          [this] { QTimer::singleShot(0, this, &ElementTablePage::orderByHeader); });
  connect(header, &QHeaderView::sectionResized, this, [this](int section, int, int width) {
    if (!m_isFitting && section < m_model.columnCount())
      m_widths.insert(m_model.column(section).key().name(), width);
  });
}

/// The view goes before the model that it shows.
ElementTablePage::~ElementTablePage() {
  delete m_view;
}

QAction *ElementTablePage::addAction(const QString &text, const QKeySequence &key, void (ElementTablePage::*slot)()) {
  auto *action = new QAction(text, this);
  action->setShortcut(key);
  action->setShortcutContext(Qt::WidgetShortcut); // for the menu; the keys come to keyPressEvent()
  action->setToolTip(key.isEmpty() ? text
                                   : QStringLiteral("%1 (%2)").arg(QString(text).remove(QLatin1Char('&')),
                                                                   key.toString(QKeySequence::NativeText)));
  connect(action, &QAction::triggered, this, slot);
  QWidget::addAction(action);
  return action;
}

/// Keys of the table are for the table while it has the keyboard, whatever the window does with them elsewhere.
QAction *ElementTablePage::actionFor(const QKeyEvent &event) const {
  const QKeySequence pressed(static_cast<int>(event.modifiers() & ~Qt::KeypadModifier) | event.key());
  for (QAction *action : actions()) {
    if (action->shortcut() == pressed && action->isEnabled())
      return action;
  }
  return nullptr;
}

bool ElementTablePage::event(QEvent *event) {
  if (event->type() == QEvent::ShortcutOverride && actionFor(*static_cast<QKeyEvent *>(event)) != nullptr) {
    event->accept();
    return true;
  }
  return QWidget::event(event);
}

void ElementTablePage::keyPressEvent(QKeyEvent *event) {
  if (QAction *action = actionFor(*event))
    action->trigger();
  else
    QWidget::keyPressEvent(event);
}

void ElementTablePage::makeActions() {
  addAction(tr("&Copy"), QKeySequence::Copy, &ElementTablePage::copyRows);
  addAction(tr("Copy with &header"), QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_C), &ElementTablePage::copyWithHeader);
  addAction(tr("Copy this c&ell"), QKeySequence(Qt::CTRL + Qt::ALT + Qt::Key_C), &ElementTablePage::copyCell);
  addAction(tr("&Filter this column"), QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_L), &ElementTablePage::enterFilter);
  addAction(tr("Show &all rows"), QKeySequence(), &ElementTablePage::endFilters);
  addAction(tr("Sort by this column, &smallest first"), QKeySequence(Qt::ALT + Qt::Key_Up), &ElementTablePage::sortUp);
  addAction(tr("Sort by this column, &largest first"), QKeySequence(Qt::ALT + Qt::Key_Down), &ElementTablePage::sortDown);
  addAction(tr("&Group by this column"), QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_G), &ElementTablePage::groupByColumn);
  m_view->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(m_view, &QWidget::customContextMenuRequested, this, [this](const QPoint &position) {
    QMenu menu;
    QAction *show = menu.addAction(tr("Show in the &drawing"));
    const QString name = m_view->currentIndex().data(ElementTableModel::ElementRole).toString();
    show->setEnabled(!name.isEmpty());
    show->setShortcut(Qt::Key_Return);
    connect(show, &QAction::triggered, this, [this, name] { emit elementWanted(name); });
    menu.addSeparator();
    menu.addActions(actions());
    menu.exec(m_view->viewport()->mapToGlobal(position));
  });
}

void ElementTablePage::makeBar() {
  constexpr int Characters = 14;
  m_groups->setObjectName(QStringLiteral("comboBox_groups"));
  m_groups->setAccessibleName(tr("Group by"));
  m_groups->setToolTip(tr("Elements of one value stand together, with what they sum up to"));
  for (QComboBox *box : {static_cast<QComboBox *>(m_types), m_groups}) {
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(Characters);
  }
  m_onlySelected->setToolTip(tr("Lists what was selected in the drawing last"));
  m_groupMenu = new QToolButton;
  m_groupMenu->setText(tr("Grou&ps"));
  m_groupMenu->setPopupMode(QToolButton::InstantPopup);
  m_groupMenu->setToolTip(tr("Which figures of the groups are shown; all groups opened or closed"));
  m_groupMenu->setMenu(new QMenu(m_groupMenu));
  makeGroupMenu(*m_groupMenu->menu());
  m_bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
  m_bar->addWidget(m_types);
  m_bar->addAction(addAction(tr("Co&lumns …"), QKeySequence(Qt::CTRL + Qt::Key_K), &ElementTablePage::chooseColumns));
  m_bar->addWidget(m_groups);
  m_bar->addWidget(m_groupMenu);
  m_bar->addWidget(m_onlySelected);
  m_bar->addAction(
      addAction(tr("Sa&ve table …"), QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_S), &ElementTablePage::saveAs));
  connect(m_types, QOverload<int>::of(&QComboBox::activated), this, [this] {
    keepChoices();
    showType();
  });
  connect(m_groups, QOverload<int>::of(&QComboBox::activated), this, &ElementTablePage::chooseGroup);
  connect(m_onlySelected, &QCheckBox::toggled, this, &ElementTablePage::showOnlySelected);
}

void ElementTablePage::makeGroupMenu(QMenu &menu) {
  const auto *group = new QObject(&menu);
  for (const ColumnFigures::Kind kind : ColumnFigures::kinds()) {
    QAction *figure = menu.addAction(ColumnFigures::title(kind));
    figure->setCheckable(true);
    figure->setChecked(true);
    figure->setData(int(kind));
    connect(figure, &QAction::toggled, group, [this, &menu] {
      std::vector<ColumnFigures::Kind> figures;
      for (const QAction *action : menu.actions()) {
        if (action->isChecked())
          figures.push_back(static_cast<ColumnFigures::Kind>(action->data().toInt()));
      }
      m_model.setFigures(figures);
    });
  }
  menu.addSeparator();
  connect(menu.addAction(tr("&Open all groups")), &QAction::triggered, m_view, [this] { m_view->collapseAll(false); });
  connect(menu.addAction(tr("&Close all groups")), &QAction::triggered, m_view, [this] { m_view->collapseAll(true); });
}

void ElementTablePage::forget() {
  keepChoices();
  m_model.clear();
}

void ElementTablePage::forgetChoices() {
  m_choices.clear();
  m_scope.clear();
  m_types->clear();
  m_onlySelected->setChecked(false);
}

std::vector<PropertyKey> ElementTablePage::usualColumns() const {
  return UsualColumns::of(m_census, *m_net.metaData(), m_types->types());
}

void ElementTablePage::keepChoices() {
  if (m_scope.isEmpty() || m_model.columnCount() == 0)
    return;
  m_choices[m_scope] = {m_model.columns(),  m_model.filters(),   m_model.sortedProperty(),         m_model.sortOrder(),
                        m_model.grouping(), m_model.groupedBy(), m_model.arrangement().collapsed()};
}

void ElementTablePage::refresh() {
  m_census = PropertyCensus(m_net);
  m_types->fill(m_census, m_scope.split(QLatin1Char(';')));
  showType();
}

void ElementTablePage::follow() {
  m_model.refresh();
  if (m_chooser != nullptr && m_chooser->isVisible())
    fillChooser();
}

void ElementTablePage::showType() {
  m_scope = m_types->types().join(QLatin1Char(';'));
  const bool isKnown = m_choices.contains(m_scope);
  Choices choices = m_choices.value(m_scope);
  if (!isKnown)
    choices.columns = usualColumns();
  m_model.clear();
  m_model.setFilters(choices.filters);
  m_model.setSorted(choices.sorted, choices.order);
  m_model.setCollapsed(choices.collapsed);
  m_model.groupBy(choices.grouping, choices.groupedBy);
  m_model.restrictTo(m_onlySelected->isChecked() ? std::make_optional(m_net.selection()) : std::nullopt);
  m_model.show(m_types->types(), choices.columns);
  m_model.mark(m_net.selection());
  fitColumns();
  if (m_chooser != nullptr && m_chooser->isVisible())
    fillChooser();
}

void ElementTablePage::showSelection() {
  const bool isFromElsewhere = m_link->show();
  if (isFromElsewhere && m_onlySelected->isChecked())
    m_model.restrictTo(m_net.selection());
}

void ElementTablePage::showOnlySelected(bool isOnly) {
  m_model.restrictTo(isOnly ? std::make_optional(m_net.selection()) : std::nullopt);
}

/// After the rows or columns were laid out anew.
void ElementTablePage::showHeader() {
  FilterHeader *header = m_view->filters();
  QStringList filters;
  for (int column = 0; column < m_model.columnCount(); ++column)
    filters.append(m_model.filter(column));
  header->setFilters(filters);
  for (int column = 0; column < m_model.columnCount(); ++column)
    header->setFault(column, m_model.fault(column));
  const QSignalBlocker blocker(header); // the rows are sorted already
  header->setSortIndicator(m_model.sortedColumn(), m_model.sortOrder());
  m_endFilters->setVisible(!m_model.filters().isEmpty() && m_model.isFiltered());
  m_view->numberRows(std::max(m_model.elementCount(), fromQt(m_model.rowCount())));
  fillGroups();
  showHint();
  m_summary->tell();
}

void ElementTablePage::showHint() {
  m_view->setHint(m_net.isEmpty()               ? tr("There is no network")
                  : m_model.elementCount() == 0 ? tr("There are no such elements")
                  : m_onlySelected->isChecked() ? tr("None of these elements is selected in the drawing")
                                                : tr("No element passes the filters; \"Show all rows\" ends them"));
}

void ElementTablePage::fillGroups() {
  const auto grouping = m_model.grouping();
  m_groups->clear();
  m_groups->addItem(tr("No groups"));
  m_groups->addItem(tr("All in one group"));
  int current = grouping == ElementTableModel::Grouping::All ? 1 : 0;
  for (int column = 1; column < m_model.columnCount(); ++column) {
    const QString property = m_model.column(column).key().name();
    m_groups->addItem(tr("Group by %1").arg(property), property);
    if (grouping == ElementTableModel::Grouping::Property && property == m_model.groupedBy())
      current = m_groups->count() - 1;
  }
  m_groups->setCurrentIndex(current);
  m_groupMenu->setEnabled(current > 0);
}

void ElementTablePage::chooseGroup(int index) {
  using Grouping = ElementTableModel::Grouping;
  m_model.setCollapsed(QSet<QString>());
  m_model.groupBy(index == 0   ? Grouping::None
                  : index == 1 ? Grouping::All
                               : Grouping::Property,
                  m_groups->itemData(index).toString());
}

void ElementTablePage::setColumns(const std::vector<PropertyKey> &columns) {
  m_model.setColumns(columns);
  fitColumns();
}

/// Widths that a person has chosen stay; the others fit what is seen first.
void ElementTablePage::fitColumns() {
  constexpr int LookedAt = 40; // rows
  const QScopedValueRollback<bool> guard(m_isFitting, true);
  FilterHeader *header = m_view->filters();
  header->setResizeContentsPrecision(LookedAt);
  for (int column = 0; column < m_model.columnCount(); ++column) {
    const QString property = m_model.column(column).key().name();
    if (m_widths.contains(property)) {
      header->resizeSection(column, m_widths.value(property));
      continue;
    }
    m_view->resizeColumnToContents(column);
    header->resizeSection(column, std::clamp(header->sectionSize(column), NarrowestColumn, WidestColumn));
  }
}

void ElementTablePage::orderByHeader() {
  FilterHeader *header = m_view->filters();
  std::vector<PropertyKey> columns;
  for (int visual = 1; visual < header->count(); ++visual)
    columns.push_back(m_model.column(header->logicalIndex(visual)).key());
  {
    const QSignalBlocker blocker(header);
    for (int section = 0; section < header->count(); ++section)
      header->moveSection(header->visualIndex(section), section);
  }
  setColumns(columns);
  if (m_chooser != nullptr && m_chooser->isVisible())
    fillChooser();
}

void ElementTablePage::moveColumn(int column, int by) {
  std::vector<PropertyKey> columns = m_model.columns();
  const int to = column + by;
  if (column < 1 || to < 1 || to >= m_model.columnCount())
    return; // the name stays in front
  std::swap(columns[fromQt(column - 1)], columns[fromQt(to - 1)]);
  const int line = m_view->currentIndex().row();
  setColumns(columns);
  m_view->selectionModel()->setCurrentIndex(m_model.index(line, to), QItemSelectionModel::NoUpdate);
}

void ElementTablePage::hideColumn(int column) {
  std::vector<PropertyKey> columns = m_model.columns();
  columns.erase(columns.begin() + (column - 1));
  setColumns(columns);
}

void ElementTablePage::showColumnMenu(const QPoint &position) {
  FilterHeader *header = m_view->filters();
  const int column = header->logicalIndexAt(position);
  if (column < 0)
    return;
  const QString property = m_model.column(column).key().name();
  QMenu menu;
  connect(menu.addAction(tr("Sort &ascending")), &QAction::triggered, this, [this, column] { m_model.sort(column); });
  connect(menu.addAction(tr("Sort &descending")), &QAction::triggered, this,
          [this, column] { m_model.sort(column, Qt::DescendingOrder); });
  connect(menu.addAction(tr("&Filter")), &QAction::triggered, header, [header, column] { header->enter(column); });
  QAction *group = menu.addAction(tr("&Group by this"));
  QAction *hide = menu.addAction(tr("&Hide this column"));
  group->setEnabled(column > 0);
  hide->setEnabled(column > 0);
  connect(group, &QAction::triggered, this, [this, property] { chooseGroup(m_groups->findData(property)); });
  connect(hide, &QAction::triggered, this, [this, column] { hideColumn(column); });
  menu.addSeparator();
  connect(menu.addAction(tr("&Columns …")), &QAction::triggered, this, &ElementTablePage::chooseColumns);
  menu.exec(header->mapToGlobal(position));
}

void ElementTablePage::chooseColumns() {
  if (m_chooser == nullptr) {
    m_chooser = new ColumnChooser(this);
    connect(m_chooser, &ColumnChooser::columnsChosen, this, &ElementTablePage::setColumns);
    connect(m_chooser, &ColumnChooser::usualWanted, this, [this] {
      setColumns(usualColumns());
      fillChooser();
    });
  }
  m_census = PropertyCensus(m_net); // formulas may have made others
  fillChooser();
  m_chooser->show();
  m_chooser->raise();
  m_chooser->activateWindow();
}

void ElementTablePage::fillChooser() {
  m_chooser->setEntries(UsualColumns::entries(m_census, *m_net.metaData(), m_types->types()), m_model.columns());
}

void ElementTablePage::enterFilter() {
  m_view->filters()->enter(std::max(0, m_view->currentIndex().column()));
}

void ElementTablePage::sortBy(Qt::SortOrder order) {
  const int column = std::max(0, m_view->currentIndex().column());
  m_view->sortByColumn(column, order);
  m_view->selectionModel()->setCurrentIndex(m_model.index(0, column), QItemSelectionModel::NoUpdate);
  m_view->scrollToTop();
}

void ElementTablePage::groupByColumn() {
  const int column = m_view->currentIndex().column();
  if (column > 0)
    chooseGroup(m_groups->findData(m_model.column(column).key().name()));
}

void ElementTablePage::endFilters() {
  m_model.setFilters({});
  m_view->setFocus();
}

void ElementTablePage::copy(bool withHeader) {
  const std::vector<int> lines = m_link->lines();
  if (!lines.empty())
    QApplication::clipboard()->setText(m_file.of(lines).tabbed(withHeader));
}

void ElementTablePage::copyCell() {
  const QModelIndex cell = m_view->currentIndex();
  if (cell.isValid())
    QApplication::clipboard()->setText(cell.data().toString());
}

void ElementTablePage::saveAs() {
  m_file.askAndSave(this, m_directory + QStringLiteral("/elements"));
}
