#pragma once

#include "search/searchresultsmodel.h"

#include <QObject>
#include <QStringList>

class ItemTable;
class TableMenu;

/// The table of a search: a row for each property that was found. Its menu opens the maps of machines.
class SearchResults : public QObject {
  Q_OBJECT
public:
  /// Belongs to the view.
  explicit SearchResults(ItemTable &view);

  void clear() { m_model.setRows({}); }
  /// Of the header, with its filters.
  TableMenu &menu() const { return *m_menu; }
  /// Puts these rows in place of those before, sorted by name.
  void show(std::vector<SearchRow> rows);
  /// Puts these rows in place of those before, in the order in which they are shown now. The element of the current row
  /// stays the current one, and no signal tells of it.
  void update(std::vector<SearchRow> rows);
  /// Puts these rows in place of those of the element. No row is the current one afterwards, and no signal tells it.
  void replace(const QString &name, const std::vector<SearchRow> &rows);
  /// Makes the first row of the element the current one, without a signal; false, and no current row, when there is none.
  bool select(const QString &name);
  /// In the order in which they are shown.
  const std::vector<SearchRow> &rows() const { return m_model.rows(); }

signals:
  void characteristicsWanted(const QStringList &machines);

private:
  ItemTable &m_view;
  SearchResultsModel &m_model;
  TableMenu *m_menu;
};
