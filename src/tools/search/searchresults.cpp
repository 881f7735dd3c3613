#include "search/searchresults.h"

#include "search/searchtable.h"
#include "shared/naturalorder.h"
#include "shared/numberdelegate.h"

#include <model/elementtypes.h>

#include <QHeaderView>
#include <QTreeWidget>

#include <optional>

namespace {

/// What sorting takes is found out once, for the column by which the rows are sorted.
class ResultItem : public QTreeWidgetItem {
public:
  ResultItem(const SearchRow &row, const NaturalOrder::Rank &rankOfName)
      : QTreeWidgetItem({row.name, row.type, row.property, row.value, row.unit}, UserType)
      , m_rank(rankOfName)
      , m_ranked(SearchResults::NameColumn) {}
  bool operator<(const QTreeWidgetItem &other) const override {
    const int column = treeWidget() == nullptr ? int(SearchResults::NameColumn) : treeWidget()->sortColumn();
    return rank(column) < static_cast<const ResultItem &>(other).rank(column);
  }

private:
  const NaturalOrder::Rank &rank(int column) const {
    if (m_ranked != column)
      m_rank = NaturalOrder::Rank(text(column));
    m_ranked = column;
    return m_rank;
  }

  mutable NaturalOrder::Rank m_rank;
  mutable int m_ranked; ///< the column whose rank it is
};

/// The rows of an element follow each other and share what their name is sorted by.
QList<QTreeWidgetItem *> itemsOf(const std::vector<SearchRow> &rows) {
  QList<QTreeWidgetItem *> items;
  items.reserve(static_cast<int>(rows.size()));
  const QString *name = nullptr;
  std::optional<NaturalOrder::Rank> rank;
  for (const SearchRow &row : rows) {
    if (name == nullptr || *name != row.name)
      rank.emplace(row.name);
    name = &row.name;
    items.append(new ResultItem(row, *rank));
  }
  return items;
}

} // namespace

SearchResults::SearchResults(QTreeWidget &tree)
    : m_tree(tree) {
  tree.setHeaderLabels(SearchTable::headers());
  constexpr int Widths[] = {120, 40, 120, 120, 100};
  for (int column = 0; column < ColumnCount; ++column)
    tree.setColumnWidth(column, Widths[column]);
  tree.sortByColumn(NameColumn, Qt::AscendingOrder);
  tree.setItemDelegateForColumn(ValueColumn, new NumberDelegate(PropertyColumn, &tree));
}

void SearchResults::show(const std::vector<SearchRow> &rows) {
  constexpr int Looked = 1000; // rows that a column's width is taken from
  m_tree.setSortingEnabled(false);
  m_tree.clear();
  m_tree.addTopLevelItems(itemsOf(rows));
  m_tree.header()->setResizeContentsPrecision(Looked);
  for (const int column : {NameColumn, TypeColumn, PropertyColumn, UnitColumn})
    m_tree.resizeColumnToContents(column);
  m_tree.header()->setSortIndicator(NameColumn, Qt::AscendingOrder);
  m_tree.setSortingEnabled(true); // sorts by what the header shows
}

void SearchResults::replace(const QString &name, const std::vector<SearchRow> &rows) {
  m_tree.setSortingEnabled(false);
  qDeleteAll(m_tree.findItems(name, Qt::MatchFixedString, NameColumn));
  m_tree.addTopLevelItems(itemsOf(rows));
  m_tree.setCurrentItem(nullptr);
  m_tree.setSortingEnabled(true);
}

std::vector<QStringList> SearchResults::rows() const {
  std::vector<QStringList> rows;
  rows.reserve(static_cast<std::size_t>(m_tree.topLevelItemCount()));
  for (int i = 0; i < m_tree.topLevelItemCount(); ++i) {
    QStringList row;
    for (int column = 0; column < ColumnCount; ++column)
      row.append(m_tree.topLevelItem(i)->text(column));
    rows.push_back(row);
  }
  return rows;
}

QStringList SearchResults::selectedMachines() const {
  QStringList names;
  for (const QTreeWidgetItem *item : m_tree.selectedItems()) {
    if (!item->isHidden() && ElementTypes::hasCharacteristics(item->text(TypeColumn)))
      names.append(item->text(NameColumn));
  }
  names.removeDuplicates();
  return names;
}
