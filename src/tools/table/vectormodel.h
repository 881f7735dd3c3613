#pragma once

#include "shared/texttablemodel.h"

#include <tools/vectorrows.h>

#include <QStringList>

using VectorTexts =
    TextRows<VectorRows::Row, &VectorRows::Row::name, &VectorRows::Row::type, &VectorRows::Row::property,
             &VectorRows::Row::value, &VectorRows::Row::unit, &VectorRows::Row::result, &VectorRows::Row::numsort>;

/// The rows of the vector table.
class VectorModel final : public VectorTexts {
  Q_OBJECT
public:
  enum Columns { NameColumn, TypeColumn, PropertyColumn, ValueColumn, UnitColumn, ResultColumn, NumsortColumn, ColumnCount };
  enum Roles { ElementRole = Qt::UserRole }; ///< the name of the element that the cell names; empty when it names none

  using VectorTexts::VectorTexts;

  /// Titles of all columns.
  void setTitles(const QStringList &titles);

  QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
  Qt::ItemFlags flags(const QModelIndex &index) const override;

protected:
  QString title(int column) const override { return m_titles.value(column); }

private:
  QString namedElement(const QModelIndex &cell) const;

  QStringList m_titles;
};
