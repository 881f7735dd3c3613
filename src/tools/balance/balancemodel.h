#pragma once

#include <model/displayunits.h>

#include <QAbstractTableModel>

#include <optional>
#include <rules/balance.h>

/// The sum of a balance and below it its groups, a row each. Flows are in the unit that people chose.
class BalanceModel final : public QAbstractTableModel {
  Q_OBJECT
public:
  enum Columns {
    GroupColumn,
    NodesColumn,
    EntryNodesColumn,
    EntriesColumn,
    ExitNodesColumn,
    ExitsColumn,
    FuelColumn,
    UnknownNodesColumn,
    UnknownColumn,
    OthersColumn,
    ImbalanceColumn,
    ColumnCount
  };
  enum Roles { ValueRole = Qt::UserRole }; ///< a number or a text, exact

  using QAbstractTableModel::QAbstractTableModel;

  void set(Balance balance, const DisplayUnits::Shown &flow);
  void clear();
  /// Names behind a cell.
  QStringList elements(const QModelIndex &cell) const;
  static bool isSum(int row) { return row == 0; }

  int rowCount(const QModelIndex &parent = QModelIndex()) const override;
  int columnCount(const QModelIndex &parent = QModelIndex()) const override;
  QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
  static Index groupOf(int row) { return isSum(row) ? NoIndex : static_cast<Index>(row - 1); }
  const Balance::Sums &sums(int row) const;
  QVariant value(int row, int column) const;
  double flow(const Balance::Sums &of, int column) const;

  std::optional<Balance> m_balance;
  DisplayUnits::Shown m_flow;
};
