#pragma once

#include "elementtable/elementcolumn.h"
#include "elementtable/elementlist.h"
#include "elementtable/rowarrangement.h"

#include <model/selection.h>
#include <tools/displayvalue.h>

#include <QAbstractTableModel>

#include <memory>
#include <optional>

class NetData;

/// Elements of some types with any number of their properties: sorted, filtered, grouped.
///
/// 1. The first column is the name; the others are chosen. What is asked of a column (its filter, the order, the groups)
/// goes by
///    the property: it has no effect while the column is not there.
/// 2. A column is read when something needs it: shown cells one by one, all of it when it is sorted, filtered or summed up.
/// 3. Elements that go must be forgotten before, by clear(); values that have changed are told by refresh().
/// 4. Whatever changes which lines there are resets the model; which elements are marked changes data alone.
class ElementTableModel final : public QAbstractTableModel {
  Q_OBJECT
public:
  enum Role {
    ElementRole = Qt::UserRole, ///< the name of the element; none for other lines
    MarkedRole,                 ///< whether the element is selected in the drawing
    ValueRole,                  ///< a number with all of its digits, or a text
    LineRole,                   ///< RowArrangement::Line::What
    NumbersRole,                ///< whether the cell is one of numbers
    QuantityRole                ///< whether its property has a unit
  };
  enum class Grouping { None, All, Property };

  explicit ElementTableModel(NetData &net, QObject *parent = nullptr);

  void clear();
  void show(const QStringList &types, const std::vector<PropertyKey> &columns);
  void setColumns(const std::vector<PropertyKey> &columns);
  /// After values, and perhaps types, have changed.
  void refresh();

  /// Without the name.
  std::vector<PropertyKey> columns() const;
  const ElementColumn &column(int column) const { return *m_columns[fromQt(column)]; }
  /// What is asked of a column; empty for nothing.
  void setFilter(int column, const QString &text);
  QString filter(int column) const { return m_filters.value(keyOf(column)); }
  /// By name of the property.
  const QMap<QString, QString> &filters() const { return m_filters; }
  void setFilters(const QMap<QString, QString> &filters);
  /// What is wrong with it.
  QString fault(int column) const;
  void restrictTo(const std::optional<Selection> &elements);
  bool isFiltered() const;

  void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;
  int sortedColumn() const; ///< -1 when the column is not there
  Qt::SortOrder sortOrder() const { return m_sortOrder; }
  QString sortedProperty() const { return m_sortedKey; }
  void setSorted(const QString &property, Qt::SortOrder order);

  void groupBy(Grouping grouping, const QString &property = QString());
  Grouping grouping() const { return m_grouping; }
  const QString &groupedBy() const { return m_groupedBy; }
  void setFigures(const std::vector<ColumnFigures::Kind> &figures);
  const std::vector<ColumnFigures::Kind> &figures() const { return m_figures; }
  /// Of the group to which the line belongs.
  void setCollapsed(int line, bool isCollapsed);
  void collapseAll(bool areCollapsed);
  bool isCollapsed(int line) const;
  /// Line of the head of the group that has the line.
  int headOf(int line) const;
  /// Titles of collapsed groups, to come back to.
  void setCollapsed(const QSet<QString> &titles) { m_arrangement.setCollapsed(titles); }
  const RowArrangement &arrangement() const { return m_arrangement; }
  RowArrangement::Line line(int line) const { return m_arrangement.lines()[fromQt(line)]; }

  /// Marks what is selected in the drawing.
  void mark(const Selection &selection);
  bool isMarked(int line) const;
  /// Rows of the list that are marked and pass the filters.
  std::vector<Index> markedRows() const;
  /// The names of the elements that a line stands for: one, or all of a group.
  QStringList elementsOf(int line) const;
  std::size_t elementCount() const { return m_list.size(); }
  int lineOf(const QString &name) const; ///< -1 when it is not shown

  int rowCount(const QModelIndex &parent = QModelIndex()) const override;
  int columnCount(const QModelIndex &parent = QModelIndex()) const override;
  QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

signals:
  void marked(); ///< other elements than before

private:
  QString keyOf(int column) const { return m_columns[fromQt(column)]->key().name().toLower(); }
  void makeColumns(const std::vector<PropertyKey> &columns);
  const ElementColumn *find(const QString &property) const;
  void sortRows();
  void arrange();
  std::vector<bool> bits(const Selection &selection) const;
  double cellNumber(const RowArrangement::Line &line, int column) const;
  QString cellText(const RowArrangement::Line &line, int column) const;
  QVariant cellValue(const RowArrangement::Line &line, int column) const;

  NetData &m_net;
  ElementList m_list;
  std::optional<DisplayValue> m_display;
  std::vector<std::unique_ptr<ElementColumn>> m_columns;
  RowArrangement m_arrangement;
  QMap<QString, QString> m_filters; ///< by property
  std::optional<Selection> m_restriction;
  std::vector<bool> m_restricted; ///< by row, empty without a restriction
  std::vector<bool> m_marked;     ///< by row, empty when none is
  Selection m_selection;
  QString m_sortedKey;
  Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
  Grouping m_grouping = Grouping::None;
  QString m_groupedBy;
  std::vector<ColumnFigures::Kind> m_figures = ColumnFigures::kinds();
};
