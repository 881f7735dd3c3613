#include "findings/findingfilter.h"
#include "findings/findingmodel.h"

#include <tools/filterfield.h>
#include <tools/nivrafindings.h>
#include <tools/tablemenu.h>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

NivraFindings::NivraFindings(QWidget *parent)
    : QDockWidget(tr("Findings"), parent)
    , m_findings(new FindingModel(this))
    , m_shown(new FindingFilter(*m_findings, this))
    , m_filter(new FilterField)
    , m_tree(new QTreeView)
    , m_nothing(new QLabel)
    , m_count(new QLabel) {
  auto *contents = new QWidget;
  auto *column = new QVBoxLayout(contents);
  auto *row = new QHBoxLayout;
  auto *next = new QPushButton(tr("Next"));
  next->setShortcut(Qt::Key_F8);
  next->setToolTip(tr("Go to the next finding (F8)"));
  m_filter->setPlaceholderText(tr("Filter"));
  m_filter->setAccessibleName(tr("Filter of the findings"));
  m_tree->setAccessibleName(tr("Findings"));
  row->addWidget(m_filter, 1);
  row->addWidget(next);
  row->addWidget(m_count);
  column->addLayout(row);
  column->addWidget(m_tree, 1);
  setWidget(contents);
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
  TableMenu::offerCopy(*m_tree);
  connect(m_filter, &QLineEdit::textChanged, m_shown, &FindingFilter::setText);
  connect(m_shown, &QAbstractItemModel::modelReset, this, &NivraFindings::showFiltered);
  connect(m_shown, &QAbstractItemModel::layoutChanged, this, &NivraFindings::showFiltered);
  connect(next, &QPushButton::clicked, this, &NivraFindings::showNext);
  connect(m_tree, &QTreeView::clicked, this, &NivraFindings::goTo);
  connect(m_tree, &QTreeView::activated, this, &NivraFindings::goTo);
  showFiltered();
}

void NivraFindings::setFindings(std::vector<FindingList::Group> groups) {
  m_findings->set(std::move(groups));
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
  m_tree->resizeColumnToContents(FindingModel::FileColumn);
  const int all = count();
  const int shown = m_shown->count();
  m_nothing->setText(all == 0 ? tr("Nothing was found to be wrong.") : tr("No finding has the text of the filter."));
  m_nothing->setVisible(shown == 0);
  m_count->setText(shown == all ? (shown == 1 ? tr("1 finding") : tr("%1 findings").arg(shown))
                                : tr("%1 of %2 findings").arg(shown).arg(all));
}

void NivraFindings::goTo(const QModelIndex &index) {
  const QString element = index.siblingAtColumn(FindingModel::ElementColumn).data().toString();
  if (!element.isEmpty())
    emit elementWanted(element);
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
