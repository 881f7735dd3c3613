#include "search/searchresults.h"

#include "shared/itemtable.h"
#include "shared/machineaction.h"
#include "shared/numberdelegate.h"

#include <tools/tablemenu.h>

#include <QHeaderView>

#include <optional>
#include <set>
#include <utility>

SearchResults::SearchResults(ItemTable &view)
    : QObject(&view)
    , m_view(view)
    , m_model(*new SearchResultsModel(this)) {
  view.setModel(&m_model);
  constexpr int Widths[] = {120, 40, 120, 120, 100};
  for (int column = 0; column < SearchResultsModel::ColumnCount; ++column)
    view.setColumnWidth(column, Widths[column]);
  view.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  view.sortByColumn(SearchResultsModel::NameColumn, Qt::AscendingOrder);
  view.setItemDelegateForColumn(SearchResultsModel::ValueColumn,
                                new NumberDelegate(SearchResultsModel::PropertyColumn, &view));
  m_menu = new TableMenu(view);
  const auto *machines = new MachineAction(view, SearchResultsModel::NameColumn, SearchResultsModel::TypeColumn);
  connect(machines, &MachineAction::triggered, this, &SearchResults::characteristicsWanted);
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

void SearchResults::update(std::vector<SearchRow> rows) {
  const QSignalBlocker blocker(&m_view);
  using Subject = std::pair<QString, QString>; // element and property
  const auto subjectOf = [this](int row) -> Subject {
    return {m_model.text(row, SearchResultsModel::NameColumn), m_model.text(row, SearchResultsModel::PropertyColumn)};
  };
  std::set<Subject> selected;
  for (const QModelIndex &index : m_view.selectionModel()->selectedRows())
    selected.insert(subjectOf(index.row()));
  const int currentRow = m_view.currentIndex().row();
  const std::optional<Subject> current = currentRow < 0 ? std::nullopt : std::make_optional(subjectOf(currentRow));
  m_model.setRows(std::move(rows));
  if (!current && selected.empty())
    return;
  std::set<Subject> sought = selected; // no longer than until all are found
  if (current)
    sought.insert(*current);
  QItemSelection selection;
  for (int row = 0; row < m_model.rowCount() && !sought.empty(); ++row) {
    const auto found = sought.find(subjectOf(row));
    if (found == sought.end())
      continue;
    const QModelIndex index = m_model.index(row, SearchResultsModel::NameColumn);
    if (selected.count(*found) > 0)
      selection.select(index, index);
    if (*found == current)
      m_view.selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    sought.erase(found);
  }
  m_view.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
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
