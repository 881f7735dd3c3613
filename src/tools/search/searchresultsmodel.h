#pragma once

#include "shared/texttablemodel.h"

#include <tools/networksearch.h>

/// The rows that a search has found.
class SearchResultsModel final : public TextTableModel {
  Q_OBJECT
public:
  enum Columns { NameColumn, TypeColumn, PropertyColumn, ValueColumn, UnitColumn, ColumnCount };
  enum Roles { ElementRole = Qt::UserRole }; ///< the name of the element, in every column

  using TextTableModel::TextTableModel;

  /// Puts these rows in place of those before, in the order of the sorted column.
  void setRows(std::vector<SearchRow> rows);
  /// Puts these rows in place of those of the element; the others stay where they are.
  void replace(const QString &name, const std::vector<SearchRow> &rows);
  /// In the order in which they are shown.
  const std::vector<SearchRow> &rows() const { return m_rows; }
  /// The name cell of the first row of the element, regardless of case; invalid when there is none.
  QModelIndex find(const QString &name) const;

  const QString &text(int row, int column) const override;
  int rowCount(const QModelIndex &parent = QModelIndex()) const override;
  int columnCount(const QModelIndex &parent = QModelIndex()) const override;
  QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

protected:
  QString title(int column) const override;
  void reorder(const std::vector<int> &rows) override { m_rows = reordered(std::move(m_rows), rows); }

private:
  std::vector<SearchRow> m_rows;
};
