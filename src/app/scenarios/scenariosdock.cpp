#include "scenarios/scenariosdock.h"

#include "scenarios/scenariolistmodel.h"

#include <tools/elidedlabel.h>
#include <tools/filterfield.h>

#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <QVBoxLayout>

ScenariosDock::ScenariosDock(QWidget *parent)
    : QDockWidget(tr("Scenarios"), parent)
    , m_model(*new ScenarioListModel(this))
    , m_shown(new QSortFilterProxyModel(this))
    , m_filter(new FilterField)
    , m_tree(new QTreeView)
    , m_hint(new ElidedLabel) {
  auto *contents = new QWidget;
  auto *column = new QVBoxLayout(contents);
  column->addWidget(m_filter);
  column->addWidget(m_hint);
  column->addWidget(m_tree, 1);
  setWidget(contents);
  m_filter->setPlaceholderText(tr("Filter by name or date"));
  m_filter->setAccessibleName(tr("Filter of the scenarios"));
  m_tree->setAccessibleName(tr("Scenarios of the case"));
  m_shown->setSourceModel(&m_model);
  m_shown->setFilterKeyColumn(-1);
  m_shown->setFilterCaseSensitivity(Qt::CaseInsensitive);
  m_shown->setSortRole(ScenarioListModel::SortRole);
  m_shown->setSortLocaleAware(true);
  m_tree->setModel(m_shown);
  m_tree->setRootIsDecorated(false);
  m_tree->setUniformRowHeights(true);
  m_tree->setAlternatingRowColors(true);
  m_tree->setSortingEnabled(true);
  m_tree->sortByColumn(ScenarioListModel::DateColumn, Qt::AscendingOrder);
  m_tree->setContextMenuPolicy(Qt::CustomContextMenu);
  m_tree->installEventFilter(this);
  m_filter->installEventFilter(this);
  connect(m_filter, &QLineEdit::textChanged, this, [this](const QString &text) {
    m_shown->setFilterFixedString(text);
    showHint();
  });
  connect(m_tree, &QTreeView::clicked, this, &ScenariosDock::want);
  connect(m_tree, &QWidget::customContextMenuRequested, this, &ScenariosDock::showMenu);
  connect(&m_model, &QAbstractItemModel::modelReset, this, [this] {
    for (const int narrow : {ScenarioListModel::NameColumn, ScenarioListModel::DateColumn})
      m_tree->resizeColumnToContents(narrow);
    showHint();
  });
  showHint();
}

void ScenariosDock::setMenuActions(const QList<QAction *> &actions) {
  m_actions = actions;
}

QString ScenariosDock::current() const {
  return m_tree->currentIndex().data(ScenarioListModel::FileRole).toString();
}

void ScenariosDock::bring() {
  show();
  raise();
  m_filter->setFocus(Qt::ShortcutFocusReason);
  m_filter->selectAll();
}

void ScenariosDock::showCurrent(const QString &name) {
  const Index index = m_model.list().indexOf(name);
  if (index == NoIndex)
    return;
  const QModelIndex row = m_shown->mapFromSource(m_model.index(toQt(index), 0));
  m_tree->setCurrentIndex(row);
  m_tree->scrollTo(row);
}

bool ScenariosDock::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() != QEvent::KeyPress)
    return QDockWidget::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent *>(event)->key();
  if (key == Qt::Key_Return || key == Qt::Key_Enter) {
    want(m_tree->currentIndex().isValid() ? m_tree->currentIndex() : m_shown->index(0, 0));
    return true;
  }
  if (watched == m_filter && (key == Qt::Key_Down || key == Qt::Key_Up)) {
    m_tree->setFocus(Qt::OtherFocusReason);
    if (!m_tree->currentIndex().isValid())
      m_tree->setCurrentIndex(m_shown->index(0, 0));
    return true;
  }
  return QDockWidget::eventFilter(watched, event);
}

void ScenariosDock::want(const QModelIndex &index) {
  if (index.isValid())
    emit wanted(index.data(ScenarioListModel::FileRole).toString());
}

void ScenariosDock::showMenu(const QPoint &at) {
  if (!m_tree->currentIndex().isValid())
    return;
  QMenu menu;
  menu.addActions(m_actions);
  menu.exec(m_tree->viewport()->mapToGlobal(at));
}

void ScenariosDock::showHint() {
  const bool isEmpty = m_model.rowCount() == 0;
  if (isEmpty)
    m_hint->setText(tr("No case with scenarios is open. Each folder of a case that holds a scenario file is listed here."));
  else
    m_hint->setText(m_shown->rowCount() == 0 ? tr("No scenario has the text of the filter.") : QString());
  m_hint->setVisible(!m_hint->text().isEmpty());
  m_tree->setVisible(!isEmpty);
}
