#include "scenariodock.h"

#include "gasmodel.h"
#include "scenariomodel.h"

#include <model/displayformat.h>
#include <tools/elidedlabel.h>
#include <tools/filterfield.h>
#include <tools/tablemenu.h>

#include <QHeaderView>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

QSortFilterProxyModel *filterOf(QAbstractItemModel &model, int role) {
  auto *proxy = new QSortFilterProxyModel(&model);
  proxy->setSourceModel(&model);
  proxy->setFilterRole(role);
  proxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
  proxy->setRecursiveFilteringEnabled(true); // a section is shown for its settings
  return proxy;
}

/// Numbers as people chose to read them; the texts of the model, which are copied, stay exact.
class ShownNumbers : public QStyledItemDelegate {
public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QString displayText(const QVariant &value, const QLocale & /*locale*/) const override {
    return DisplayFormat::shown(value.toString(), false);
  }
};

} // namespace

ScenarioDock::ScenarioDock(QWidget *parent)
    : QDockWidget(tr("Scenario"), parent)
    , m_settings(new ScenarioModel(this))
    , m_gases(new GasModel(this))
    , m_shownSettings(filterOf(*m_settings, ScenarioModel::FilterRole))
    , m_shownGases(filterOf(*m_gases, GasModel::FilterRole))
    , m_filter(new FilterField)
    , m_tree(new QTreeView)
    , m_gasTable(new QTableView)
    , m_hint(new ElidedLabel)
    , m_missing(tr("Nothing is open. Open a scenario file to see its settings and gases.")) {
  auto *contents = new QWidget;
  auto *column = new QVBoxLayout(contents);
  auto *parts = new QSplitter(Qt::Horizontal);
  m_filter->setPlaceholderText(tr("Filter"));
  m_filter->setAccessibleName(tr("Filter of the scenario's settings"));
  m_tree->setAccessibleName(tr("Settings of the scenario"));
  m_gasTable->setAccessibleName(tr("Gases"));
  column->addWidget(m_filter);
  column->addWidget(m_hint);
  column->addWidget(parts, 1);
  parts->addWidget(m_tree);
  parts->addWidget(m_gasTable);
  parts->setStretchFactor(0, 3);
  parts->setStretchFactor(1, 2);
  setWidget(contents);
  m_tree->setModel(m_shownSettings);
  m_tree->setUniformRowHeights(true);
  m_tree->setAlternatingRowColors(true);
  m_tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
  m_gasTable->setModel(m_shownGases);
  m_gasTable->setAlternatingRowColors(true);
  m_gasTable->setItemDelegate(new ShownNumbers(m_gasTable));
  m_gasTable->setSelectionBehavior(QAbstractItemView::SelectRows);
  m_gasTable->setWordWrap(false);
  m_gasTable->verticalHeader()->hide();
  m_gasTable->verticalHeader()->setDefaultSectionSize(m_gasTable->fontMetrics().height() * 3 / 2);
  TableMenu::offerCopy(*m_tree);
  TableMenu::offerCopy(*m_gasTable);
  connect(m_filter, &QLineEdit::textChanged, this, &ScenarioDock::filter);
  m_gasTable->hide();
  m_tree->hide();
  showHint();
}

void ScenarioDock::setScenario(const ScenarioSummary &summary, const NetMetaData &metaData) {
  m_settings->set(summary);
  m_gases->set(summary.gases, metaData);
  if (summary.root.isEmpty())
    m_missing = tr("Nothing is open. Open a scenario file to see its settings and gases.");
  else if (!summary.hasScenario)
    m_missing = tr("The case was opened without a scenario. Open a scenario file to see its settings and gases.");
  else
    m_missing = summary.gases.empty() ? tr("The scenario has no gases.") : QString();
  m_tree->setVisible(!summary.rows.empty());
  m_gasTable->setVisible(!summary.gases.empty());
  filter(m_filter->text());
  constexpr int Widest = 240; // pixels; a long text of a file pushes nothing out of sight
  for (int i = 0; i < ScenarioModel::CommentColumn; ++i) {
    m_tree->resizeColumnToContents(i);
    m_tree->setColumnWidth(i, std::min(m_tree->columnWidth(i), Widest));
  }
  m_gasTable->resizeColumnsToContents();
  for (int i = 0; i < m_gases->columnCount(); ++i)
    m_gasTable->setColumnWidth(i, std::min(m_gasTable->columnWidth(i), Widest));
}

void ScenarioDock::filter(const QString &text) {
  m_shownSettings->setFilterFixedString(text);
  m_shownGases->setFilterFixedString(text);
  m_tree->expandAll();
  showHint();
}

void ScenarioDock::showHint() {
  const bool isAllHidden = m_settings->rowCount() > 0 && m_shownSettings->rowCount() == 0 && m_shownGases->rowCount() == 0;
  m_hint->setText(isAllHidden ? tr("Nothing has the text of the filter.") : m_missing);
  m_hint->setVisible(!m_hint->text().isEmpty());
}
