#pragma once

#include "shared/texttablemodel.h"

#include <tools/vectorrows.h>

#include <QStringList>

/// The rows of the vector table.
class VectorModel final : public TextTableModel {
  Q_OBJECT
public:
  enum Columns { NameColumn, TypeColumn, PropertyColumn, ValueColumn, UnitColumn, ResultColumn, NumsortColumn, ColumnCount };
  enum Roles { ElementRole = Qt::UserRole }; ///< the name of the element that the cell names; empty when it names none

  using TextTableModel::TextTableModel;

  /// Puts these rows in place of those before, in the order of the sorted column.
  void setRows(std::vector<VectorRows::Row> rows);
  /// Titles of all columns.
  void setTitles(const QStringList &titles);
  /// In the order in which they are shown.
  const std::vector<VectorRows::Row> &rows() const { return m_rows; }

  const QString &text(int row, int column) const override;
  int rowCount(const QModelIndex &parent = QModelIndex()) const override;
  int columnCount(const QModelIndex &parent = QModelIndex()) const override;
  QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
  Qt::ItemFlags flags(const QModelIndex &index) const override;

protected:
  QString title(int column) const override { return m_titles.value(column); }
  void reorder(const std::vector<int> &rows) override { m_rows = reordered(std::move(m_rows), rows); }

private:
  QString namedElement(const QModelIndex &cell) const;

  std::vector<VectorRows::Row> m_rows;
  QStringList m_titles;
};
