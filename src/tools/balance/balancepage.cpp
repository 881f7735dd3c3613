#include "balance/balancepage.h"

#include "shared/itemtable.h"
#include "shared/tablefiledialog.h"

#include <model/netdata.h>
#include <model/netmetadata.h>
#include <tools/categorylist.h>
#include <tools/tablemenu.h>

#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

TableExport tableOf(const BalanceModel &model) {
  TableExport table;
  for (int column = 0; column < model.columnCount(); ++column)
    table.headers.append(model.headerData(column, Qt::Horizontal).toString().replace(QLatin1Char('\n'), QLatin1Char(' ')));
  table.rows = model.rowCount();
  table.value = [&model](int row, int column) {
    return model.index(row, column).data(BalanceModel::ValueRole);
  };
  table.isEmphasised = [&model](int row) {
    return model.isSum(row);
  };
  return table;
}

} // namespace

BalancePage::BalancePage(NetData &net, const CategoryList &categories, QWidget *parent)
    : QWidget(parent)
    , m_net(net)
    , m_categories(categories)
    , m_grouping(new QComboBox)
    , m_save(new QPushButton(tr("Save …")))
    , m_hint(new QLabel)
    , m_table(new ItemTable) {
  auto *column = new QVBoxLayout(this);
  makeRow(*column);
  makeTable();
  column->addWidget(m_table, 1);
  setFocusProxy(m_table);
  showHint();
}

void BalancePage::makeRow(QVBoxLayout &column) {
  auto *row = new QHBoxLayout;
  auto *label = new QLabel(tr("Group by"));
  label->setBuddy(m_grouping);
  m_grouping->setAccessibleName(tr("Group by"));
  m_grouping->setToolTip(tr("What nodes have in common that are summed up together"));
  m_grouping->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  m_save->setToolTip(tr("Write the table into a workbook or a CSV file"));
  m_hint->setWordWrap(true);
  row->addWidget(label);
  row->addWidget(m_grouping);
  row->addWidget(m_hint, 1);
  row->addWidget(m_save);
  column.addLayout(row);
  connect(m_grouping, QOverload<int>::of(&QComboBox::activated), this, &BalancePage::showGroups);
  connect(m_save, &QPushButton::clicked, this, &BalancePage::saveAs);
}

void BalancePage::makeTable() {
  m_table->setModel(&m_model);
  m_table->setAccessibleName(tr("Balance"));
  m_table->setAlternatingRowColors(true);
  m_table->setWordWrap(false);
  m_table->verticalHeader()->hide();
  m_table->verticalHeader()->setDefaultSectionSize(m_table->fontMetrics().height() * 3 / 2);
  TableMenu::offerCopy(*m_table);
  const auto ask = [this](const QModelIndex &cell) {
    const QStringList names = m_model.elements(cell);
    if (!names.isEmpty())
      emit elementsWanted(names);
  };
  connect(m_table, &ItemTable::itemClicked, this, ask);
  connect(m_table, &QAbstractItemView::activated, this, ask);
}

void BalancePage::forget() {
  m_model.clear();
  m_facts.reset();
  showHint();
}

void BalancePage::refresh() {
  QApplication::setOverrideCursor(Qt::WaitCursor);
  m_facts = std::make_shared<const NetworkFacts>(m_net);
  listChoices();
  showGroups();
  QApplication::restoreOverrideCursor();
}

/// What was chosen stays where there is still something of it.
void BalancePage::listChoices() {
  const QString chosen = m_grouping->currentData().toString();
  m_choices = GroupingChoice::all(*m_facts, !m_categories.categories().empty());
  m_grouping->clear();
  for (const GroupingChoice &choice : m_choices)
    m_grouping->addItem(choice.title(), choice.key());
  m_grouping->setCurrentIndex(std::max(0, m_grouping->findData(chosen)));
}

void BalancePage::showGroups() {
  if (m_facts == nullptr)
    return;
  const GroupingChoice &choice = m_choices[fromQt(std::max(0, m_grouping->currentIndex()))];
  const NetMetaData::Attribute *flow = m_net.metaData()->attribute(QStringLiteral("n"), QStringLiteral("qset"));
  m_model.set(Balance(m_facts, choice.grouping(m_net, *m_facts, m_categories.categories())), DisplayUnits::of(flow));
  m_table->resizeColumnsToContents();
  showHint();
}

void BalancePage::showHint() {
  QString hint;
  if (m_facts == nullptr)
    hint = tr("Nothing is open.");
  else if (!m_facts->isNominated())
    hint = tr("No node states a flow. Open a scenario to see what enters and leaves.");
  else if (m_model.rowCount() == 2 && m_grouping->currentIndex() < 2)
    hint = tr("All nodes are in one group. Give them layers, zones or categories to tell them apart.");
  m_hint->setText(hint);
  m_save->setEnabled(m_model.rowCount() > 0);
  m_grouping->setEnabled(m_facts != nullptr);
}

void BalancePage::saveAs() {
  TableFileDialog::askAndSave(this, tr("balance"), [this](const QString &path, TableExport::Format format, QString *reason) {
    return tableOf(m_model).save(path, format, reason);
  });
}
