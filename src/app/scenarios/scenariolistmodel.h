#pragma once

#include "scenarios/scenariolist.h"

#include <QAbstractTableModel>

/// A row for each scenario of the case, in the order of the list.
class ScenarioListModel final : public QAbstractTableModel {
  Q_OBJECT
public:
  enum Columns { NameColumn, DateColumn, MarkColumn, ColumnCount };
  enum Roles { FileRole = Qt::UserRole, SortRole };

  using QAbstractTableModel::QAbstractTableModel;

  void setList(const ScenarioList &list);
  const ScenarioList &list() const { return m_list; }
  /// Names of the scenario that is shown and of that which it is compared with; empty for none.
  void setMarks(const QString &shown, const QString &reference);

  int rowCount(const QModelIndex &parent = QModelIndex()) const final;
  int columnCount(const QModelIndex &parent = QModelIndex()) const final;
  QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const final;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const final;

private:
  QString mark(const ScenarioEntry &entry) const;
  QVariant shown(const ScenarioEntry &entry, int column) const;

  ScenarioList m_list;
  QString m_shown;
  QString m_reference;
};
