#pragma once

#include <QAbstractTableModel>

#include <machines/workingpoint.h>
#include <optional>
#include <vector>

/// A row for each scenario: where a machine, or its whole station, works in it.
class CloudModel : public QAbstractTableModel {
  Q_OBJECT
public:
  enum Column { Name, Flow, Ratio, Speed, Power, Surge, Columns };
  struct Row {
    QString scenario;
    QString fault;
    std::optional<WorkingPoint> point; ///< of the machine; none where it does not run
  };

  using QAbstractTableModel::QAbstractTableModel;

  /// Keeps the rows that are there, when these are the first of the new ones.
  void setRows(std::vector<Row> rows);
  const std::vector<Row> &rows() const { return m_rows; }

  int rowCount(const QModelIndex &parent = QModelIndex()) const override;
  int columnCount(const QModelIndex &parent = QModelIndex()) const override;
  QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
  std::vector<Row> m_rows;
};
