#pragma once

#include <base/index.h>

#include <QAbstractTableModel>

#include <map>
#include <vector>

/// A table of exact texts that is always sorted by one of its columns, in the order in which people count.
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

/// A table of the rows of a vector; each column shows one of their texts.
template <typename Row, QString Row::*...Texts>
class TextRows : public TextTableModel {
public:
  using TextTableModel::TextTableModel;

  /// Puts these rows in place of those before, in the order of the sorted column.
  void setRows(std::vector<Row> rows) {
    beginResetModel();
    m_rows = std::move(rows);
    sortNewRows();
    endResetModel();
  }
  /// In the order in which they are shown.
  const std::vector<Row> &rows() const { return m_rows; }

  const QString &text(int row, int column) const final { return m_rows[fromQt(row)].*TextOf[column]; }
  int rowCount(const QModelIndex &parent = QModelIndex()) const final { return parent.isValid() ? 0 : toQt(m_rows.size()); }
  int columnCount(const QModelIndex &parent = QModelIndex()) const final {
    return parent.isValid() ? 0 : toQt(sizeof...(Texts));
  }

protected:
  static constexpr QString Row::*TextOf[] = {Texts...};

  void reorder(const std::vector<int> &rows) final {
    std::vector<Row> reordered;
    reordered.reserve(m_rows.size());
    for (const int row : rows)
      reordered.push_back(std::move(m_rows[fromQt(row)]));
    m_rows = std::move(reordered);
  }

  std::vector<Row> m_rows;
};
