#pragma once

#include <tools/categorylist.h>

#include <QAbstractTableModel>

#include <memory>

/// A row for the window's search, which nobody edits, and one for each category of all windows.
class CategoryModel final : public QAbstractTableModel {
  Q_OBJECT
public:
  enum Columns { CategoryColumn, NameColumn, TypeColumn, PropertyColumn, ValueColumn, ColumnCount };
  static constexpr int SearchRow = 0;

  explicit CategoryModel(std::shared_ptr<CategoryList> list, QObject *parent = nullptr);

  void setSearch(const Category &search);
  const Category &category(int row) const;
  /// The row of a category of the list.
  static int rowOf(int index) { return index + 1; }
  /// The other way; -1 for the row of the search.
  static int indexOf(int row) { return row - 1; }

  int rowCount(const QModelIndex &parent = QModelIndex()) const final;
  int columnCount(const QModelIndex &parent = QModelIndex()) const final;
  Qt::ItemFlags flags(const QModelIndex &index) const final;
  QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const final;
  bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) final;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const final;

private:
  void beginChange(CategoryList::Change change, int category);
  void endChange(CategoryList::Change change, int category);
  void tellRow(int row) { emit dataChanged(index(row, CategoryColumn), index(row, ValueColumn)); }

  std::shared_ptr<CategoryList> m_list;
  Category m_search;
};
