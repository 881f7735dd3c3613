#include "findings/findingexport.h"
#include "findings/findingfilter.h"
#include "findings/findingmodel.h"
#include "shared/tablefiledialog.h"

#include <tools/filterfield.h>
#include <tools/nivrafindings.h>
#include <tools/tablemenu.h>

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

NivraFindings::NivraFindings(QWidget *parent)
    : QDockWidget(tr("Findings"), parent)
    , m_findings(new FindingModel(this))
    , m_shown(new FindingFilter(*m_findings, this))
    , m_filter(new FilterField)
    , m_kinds(new QComboBox)
    , m_next(new QPushButton(tr("Next")))
    , m_save(new QPushButton(tr("Save …")))
    , m_tree(new QTreeView)
    , m_nothing(new QLabel)
    , m_count(new QLabel) {
  auto *contents = new QWidget;
  auto *column = new QVBoxLayout(contents);
  makeRow(*column);
  column->addWidget(m_tree, 1);
  setWidget(contents);
  m_tree->setAccessibleName(tr("Findings"));
  m_tree->setModel(m_shown);
  m_tree->setUniformRowHeights(true);
  m_tree->setAlternatingRowColors(true);
  m_tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
  m_tree->header()->setStretchLastSection(false);
  m_tree->header()->setSectionResizeMode(FindingModel::TextColumn, QHeaderView::Stretch);
  auto *inTree = new QVBoxLayout(m_tree->viewport());
  inTree->setContentsMargins(m_tree->indentation(), 0, 0, 0);
  inTree->addWidget(m_nothing, 0, Qt::AlignTop);
  m_nothing->setEnabled(false);
  m_nothing->setWordWrap(true);
  TableMenu::offerCopy(*m_tree);
  connectAll();
  listKinds();
  showFiltered();
}

void NivraFindings::makeRow(QVBoxLayout &column) {
  auto *row = new QHBoxLayout;
  m_next->setShortcut(Qt::Key_F8);
  m_next->setToolTip(tr("Go to the next finding (F8)"));
  m_save->setToolTip(tr("Write the findings that are shown into a workbook or a CSV file"));
  m_filter->setPlaceholderText(tr("Filter"));
  m_filter->setAccessibleName(tr("Filter of the findings"));
  m_kinds->setAccessibleName(tr("Stage or rule"));
  m_kinds->setToolTip(tr("Shows what one stage or rule found"));
  m_kinds->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  row->addWidget(m_filter, 1);
  row->addWidget(m_kinds);
  row->addWidget(m_next);
  row->addWidget(m_save);
  row->addWidget(m_count);
  column.addLayout(row);
}

void NivraFindings::connectAll() {
  connect(m_filter, &QLineEdit::textChanged, m_shown, &FindingFilter::setText);
  connect(m_kinds, QOverload<int>::of(&QComboBox::activated), this,
          [this](int index) { m_shown->setGroup(m_kinds->itemData(index).toString()); });
  connect(m_shown, &QAbstractItemModel::modelReset, this, &NivraFindings::showFiltered);
  connect(m_shown, &QAbstractItemModel::layoutChanged, this, &NivraFindings::showFiltered);
  connect(m_next, &QPushButton::clicked, this, &NivraFindings::showNext);
  connect(m_save, &QPushButton::clicked, this, &NivraFindings::saveAs);
  connect(m_tree, &QTreeView::clicked, this, &NivraFindings::goTo);
  connect(m_tree, &QTreeView::activated, this, &NivraFindings::goTo);
}

void NivraFindings::setFindings(std::vector<FindingList::Group> groups) {
  m_findings->set(std::move(groups));
  listKinds();
}

/// What was chosen stays, as long as it still finds something.
void NivraFindings::listKinds() {
  const QString chosen = m_kinds->currentData().toString();
  m_kinds->clear();
  m_kinds->addItem(tr("All stages and rules"), QString());
  for (const FindingList::Group &group : m_findings->list().groups()) {
    if (m_kinds->findData(group.name) < 0) // a stage may come twice
      m_kinds->addItem(group.name, group.name);
  }
  m_kinds->setCurrentIndex(std::max(0, m_kinds->findData(chosen)));
  m_shown->setGroup(m_kinds->currentData().toString());
}

void NivraFindings::saveAs() {
  TableFileDialog::askAndSave(this, tr("findings"),
                              [this](const QString &path, TableExport::Format format, QString *reason) {
                                return FindingExport::of(*m_shown).save(path, format, reason);
                              });
}

int NivraFindings::count() const {
  return m_findings->list().count();
}

void NivraFindings::showFiltered() {
  for (int group = 0; group < m_shown->rowCount(); ++group) {
    m_tree->setFirstColumnSpanned(group, QModelIndex(), true);
    m_tree->expand(m_shown->index(group, FindingModel::TextColumn));
  }
  m_tree->resizeColumnToContents(FindingModel::ElementColumn);
  m_tree->resizeColumnToContents(FindingModel::RuleColumn);
  m_tree->resizeColumnToContents(FindingModel::FileColumn);
  const auto isRule = [](const FindingList::Group &group) {
    return group.isRule();
  };
  const std::vector<FindingList::Group> &groups = m_findings->list().groups();
  m_tree->setColumnHidden(FindingModel::RuleColumn, std::none_of(groups.begin(), groups.end(), isRule));
  const int all = count();
  const int shown = m_shown->count();
  m_nothing->setText(all == 0 ? tr("Nothing was found to be wrong. Info, \"Check the network\" (Shift+F8) looks for more.")
                              : tr("No finding has the text of the filter."));
  m_nothing->setVisible(shown == 0);
  m_save->setEnabled(shown > 0);
  m_count->setText(shown == all ? (shown == 1 ? tr("1 finding") : tr("%1 findings").arg(shown))
                                : tr("%1 of %2 findings").arg(shown).arg(all));
}

void NivraFindings::goTo(const QModelIndex &index) {
  const QStringList elements =
      index.siblingAtColumn(FindingModel::TextColumn).data(FindingModel::ElementsRole).toStringList();
  if (elements.size() == 1)
    emit elementWanted(elements.first());
  else if (!elements.isEmpty())
    emit elementsWanted(elements);
}

void NivraFindings::showNext() {
  QModelIndex index = m_tree->currentIndex();
  for (int i = 0; i < 2; ++i) { // a group, then its first finding
    index = index.isValid() ? m_tree->indexBelow(index) : index;
    if (!index.isValid())
      index = m_shown->index(0, 0);
    if (index.parent().isValid())
      break;
    m_tree->expand(index);
  }
  index = index.siblingAtColumn(FindingModel::TextColumn);
  m_tree->setCurrentIndex(index);
  m_tree->scrollTo(index);
  goTo(index);
}
