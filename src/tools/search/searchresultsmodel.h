#pragma once

#include "search/networksearch.h"
#include "shared/texttablemodel.h"

using SearchRows =
    TextRows<SearchRow, &SearchRow::name, &SearchRow::type, &SearchRow::property, &SearchRow::value, &SearchRow::unit>;

/// The rows that a search has found.
class SearchResultsModel final : public SearchRows {
  Q_OBJECT
public:
  enum Columns { NameColumn, TypeColumn, PropertyColumn, ValueColumn, UnitColumn, ColumnCount };
  enum Roles { ElementRole = Qt::UserRole }; ///< the name of the element, in every column

  using SearchRows::SearchRows;

  /// Puts these rows in place of those of the element; the others stay where they are.
  void replace(const QString &name, const std::vector<SearchRow> &rows);
  /// The name cell of the first row of the element, regardless of case; invalid when there is none.
  QModelIndex find(const QString &name) const;

  QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

protected:
  QString title(int column) const override;
};
