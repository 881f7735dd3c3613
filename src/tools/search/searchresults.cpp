#include "search/searchresults.h"

#include "shared/itemtable.h"
#include "shared/numberdelegate.h"

#include <model/elementtypes.h>
#include <tools/tablemenu.h>

#include <QAction>
#include <QHeaderView>

namespace {

/// The menu of a view that has its model.
TableMenu &withMenu(ItemTable &view, SearchResultsModel &model) {
  view.setModel(&model);
  return *new TableMenu(view);
}

} // namespace

SearchResults::SearchResults(ItemTable &view)
    : QObject(&view)
    , m_view(view)
    , m_model(*new SearchResultsModel(this))
    , m_menu(withMenu(view, m_model)) {
  constexpr int Widths[] = {120, 40, 120, 120, 100};
  for (int column = 0; column < SearchResultsModel::ColumnCount; ++column)
    view.setColumnWidth(column, Widths[column]);
  view.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  view.sortByColumn(SearchResultsModel::NameColumn, Qt::AscendingOrder);
  view.setItemDelegateForColumn(SearchResultsModel::ValueColumn,
                                new NumberDelegate(SearchResultsModel::PropertyColumn, &view));
  auto *characteristics = new QAction(tr("Open Characteristics"), &view);
  characteristics->setObjectName(QStringLiteral("actionOpenCharacteristics"));
  view.addAction(characteristics);
  TableMenu::offerActions(view, [this, characteristics] { characteristics->setVisible(!selectedMachines().isEmpty()); });
  connect(characteristics, &QAction::triggered, this, [this] { emit characteristicsWanted(selectedMachines()); });
}

void SearchResults::show(std::vector<SearchRow> rows) {
  clear(); // there is no use in sorting the rows that go
  m_view.sortByColumn(SearchResultsModel::NameColumn, Qt::AscendingOrder);
  m_model.setRows(std::move(rows));
  const int height = m_view.sizeHintForIndex(m_model.index(0, SearchResultsModel::NameColumn)).height(); // -1 without rows
  m_view.verticalHeader()->setMinimumSectionSize(height);
  m_view.verticalHeader()->setDefaultSectionSize(height);
  QHeaderView &header = *m_view.horizontalHeader();
  header.setSortIndicatorShown(false); // for which every column would keep room
  for (const int column : {SearchResultsModel::NameColumn, SearchResultsModel::TypeColumn,
                           SearchResultsModel::PropertyColumn, SearchResultsModel::UnitColumn})
    m_view.resizeColumnToContents(column);
  header.setSortIndicatorShown(true);
  m_view.scrollToTop();
}

void SearchResults::replace(const QString &name, const std::vector<SearchRow> &rows) {
  const QSignalBlocker blocker(&m_view);
  m_model.replace(name, rows);
  m_view.selectionModel()->clear();
}

bool SearchResults::select(const QString &name) {
  const QModelIndex current = m_view.currentIndex();
  if (current.isValid() &&
      m_model.text(current.row(), SearchResultsModel::NameColumn).compare(name, Qt::CaseInsensitive) == 0)
    return true;
  const QSignalBlocker blocker(&m_view);
  const QModelIndex found = m_model.find(name);
  if (found.isValid())
    m_view.setCurrentIndex(found);
  else
    m_view.selectionModel()->clear();
  return found.isValid();
}

QStringList SearchResults::selectedMachines() const {
  QStringList names;
  for (const QModelIndex &item : m_view.selectionModel()->selectedRows()) {
    const SearchRow &row = rows()[static_cast<std::size_t>(item.row())];
    if (!m_view.isRowHidden(item.row()) && ElementTypes::hasCharacteristics(row.type))
      names.append(row.name);
  }
  names.removeDuplicates();
  return names;
}
