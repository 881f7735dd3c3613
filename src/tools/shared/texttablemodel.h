#pragma once

#include <base/index.h>

#include <QAbstractTableModel>

#include <map>
#include <vector>

/// A table of exact texts that is always sorted by one of its columns, in the order in which people count. The rows lie in a
/// vector of the derived class, in the order in which they are shown.
class TextTableModel : public QAbstractTableModel {
  Q_OBJECT
public:
  using QAbstractTableModel::QAbstractTableModel;

  virtual const QString &text(int row, int column) const = 0;

  QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
  /// Only for the marks of a filter, an icon and a tip; the titles are the model's own.
  bool setHeaderData(int section, Qt::Orientation orientation, const QVariant &value, int role) override;
  /// Rows that are equal keep their order, also in a descending one.
  void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

protected:
  virtual QString title(int column) const = 0;
  /// Puts the rows into another order. \param rows the present row of each one to come
  virtual void reorder(const std::vector<int> &rows) = 0;

  /// Sorts rows that no view has seen yet.
  void sortNewRows() { reorder(sortedRows()); }
  /// The row before which a row with this text in the sorted column belongs: behind those equal to it.
  int rowFor(const QString &text) const;
  int sortedColumn() const { return m_sortedColumn; }

private:
  std::vector<int> sortedRows() const;

  int m_sortedColumn = 0;
  Qt::SortOrder m_order = Qt::AscendingOrder;
  std::map<std::pair<int, int>, QVariant> m_marks; ///< of the header, by column and role
};

/// The rows of a vector in another order. \param rows the present row of each one to come
template <typename Row>
std::vector<Row> reordered(std::vector<Row> from, const std::vector<int> &rows) {
  std::vector<Row> result;
  result.reserve(from.size());
  for (const int row : rows)
    result.push_back(std::move(from[fromQt(row)]));
  return result;
}
