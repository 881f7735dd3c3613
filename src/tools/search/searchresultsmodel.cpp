#include "search/searchresultsmodel.h"

#include "search/searchtable.h"

#include <algorithm>

void SearchResultsModel::replace(const QString &name, const std::vector<SearchRow> &rows) {
  const auto isOfElement = [&name](const SearchRow &row) {
    return row.name.compare(name, Qt::CaseInsensitive) == 0;
  };
  for (auto first = m_rows.begin(); (first = std::find_if(first, m_rows.end(), isOfElement)) != m_rows.end();) {
    const auto last = std::find_if_not(first, m_rows.end(), isOfElement);
    beginRemoveRows(QModelIndex(), static_cast<int>(first - m_rows.begin()), static_cast<int>(last - m_rows.begin()) - 1);
    first = m_rows.erase(first, last);
    endRemoveRows();
  }
  for (const SearchRow &row : rows) {
    const int at = rowFor(row.*TextOf[sortedColumn()]);
    beginInsertRows(QModelIndex(), at, at);
    m_rows.insert(m_rows.begin() + at, row);
    endInsertRows();
  }
}

QModelIndex SearchResultsModel::find(const QString &name) const {
  const auto found = std::find_if(m_rows.begin(), m_rows.end(), [&name](const SearchRow &row) {
    return row.name.compare(name, Qt::CaseInsensitive) == 0;
  });
  return found == m_rows.end() ? QModelIndex() : index(static_cast<int>(found - m_rows.begin()), NameColumn);
}

QVariant SearchResultsModel::data(const QModelIndex &index, int role) const {
  return index.isValid() && role == ElementRole ? QVariant(text(index.row(), NameColumn)) : SearchRows::data(index, role);
}

QString SearchResultsModel::title(int column) const {
  return SearchTable::title(column);
}
