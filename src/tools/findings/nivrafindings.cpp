#include <tools/filterfield.h>
#include <tools/nivrafindings.h>
#include <tools/plaintip.h>
#include <tools/tablemenu.h>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

enum Column { TextColumn, ElementColumn, PlaceColumn };

} // namespace

NivraFindings::NivraFindings(QWidget *parent)
    : QDockWidget(tr("Findings"), parent)
    , m_filter(new FilterField)
    , m_tree(new QTreeWidget)
    , m_count(new QLabel) {
  auto *contents = new QWidget;
  auto *column = new QVBoxLayout(contents);
  auto *row = new QHBoxLayout;
  auto *next = new QPushButton(tr("Next"));
  next->setShortcut(Qt::Key_F8);
  next->setToolTip(tr("Go to the next finding (F8)"));
  m_filter->setPlaceholderText(tr("Filter"));
  row->addWidget(m_filter, 1);
  row->addWidget(next);
  row->addWidget(m_count);
  column->addLayout(row);
  column->addWidget(m_tree, 1);
  setWidget(contents);
  m_tree->setHeaderLabels({tr("finding"), tr("element"), tr("file")});
  m_tree->setUniformRowHeights(true);
  m_tree->setAlternatingRowColors(true);
  m_tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
  m_tree->header()->setStretchLastSection(false);
  m_tree->header()->setSectionResizeMode(TextColumn, QHeaderView::Stretch);
  TableMenu::offerCopy(*m_tree);
  connect(m_filter, &QLineEdit::textChanged, this, [this](const QString &text) {
    m_list.setFilter(text);
    fill();
  });
  connect(next, &QPushButton::clicked, this, &NivraFindings::showNext);
  connect(m_tree, &QTreeWidget::itemClicked, this, &NivraFindings::goTo);
  connect(m_tree, &QTreeWidget::itemActivated, this, &NivraFindings::goTo);
  fill();
}

void NivraFindings::setFindings(std::vector<FindingList::Group> groups) {
  m_list.set(std::move(groups));
  fill();
}

void NivraFindings::fill() {
  constexpr std::size_t Most = 5000; // rows of a group; nobody looks through more, and the filter finds the others
  m_tree->clear();
  int shown = 0;
  for (const FindingList::Group &group : m_list.shown()) {
    auto *parent = new QTreeWidgetItem(m_tree, {tr("%1 (%2)").arg(group.name).arg(group.findings.size())});
    parent->setFirstColumnSpanned(true);
    QFont bold = m_tree->font();
    bold.setBold(true);
    parent->setFont(TextColumn, bold);
    QList<QTreeWidgetItem *> rows;
    for (std::size_t i = 0; i < std::min(group.findings.size(), Most); ++i) {
      const Finding &finding = group.findings[i];
      auto *row = new QTreeWidgetItem({finding.text, finding.element, FindingList::place(finding)});
      row->setToolTip(TextColumn, PlainTip::of(finding.text));
      row->setToolTip(PlaceColumn, PlainTip::of(finding.logText()));
      rows.append(row);
    }
    if (group.findings.size() > Most)
      rows.append(new QTreeWidgetItem({tr("… and %1 more, which the filter finds").arg(group.findings.size() - Most)}));
    parent->addChildren(rows);
    parent->setExpanded(true);
    shown += static_cast<int>(group.findings.size());
  }
  if (m_tree->topLevelItemCount() == 0) {
    auto *none = new QTreeWidgetItem(
        m_tree, {m_list.count() == 0 ? tr("Nothing was found to be wrong.") : tr("No finding has the text of the filter.")});
    none->setFlags(Qt::NoItemFlags);
  }
  m_tree->resizeColumnToContents(ElementColumn);
  m_tree->resizeColumnToContents(PlaceColumn);
  m_count->setText(shown == m_list.count() ? (shown == 1 ? tr("1 finding") : tr("%1 findings").arg(shown))
                                           : tr("%1 of %2 findings").arg(shown).arg(m_list.count()));
}

void NivraFindings::goTo(QTreeWidgetItem *item) {
  if (item != nullptr && !item->text(ElementColumn).isEmpty())
    emit elementWanted(item->text(ElementColumn));
}

void NivraFindings::showNext() {
  QTreeWidgetItem *item = m_tree->currentItem();
  for (int i = 0; i < 2; ++i) { // a group, then its first finding
    item = item == nullptr ? nullptr : m_tree->itemBelow(item);
    if (item == nullptr)
      item = m_tree->topLevelItem(0);
    if (item->parent() != nullptr)
      break;
    item->setExpanded(true);
  }
  m_tree->setCurrentItem(item);
  m_tree->scrollToItem(item);
  goTo(item);
}
