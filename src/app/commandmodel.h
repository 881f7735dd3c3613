#pragma once

#include "commandlist.h"

#include <QAbstractTableModel>
#include <QIcon>

/// The commands that fit what was typed, a row each.
class CommandModel final : public QAbstractTableModel {
  Q_OBJECT
public:
  enum Columns { TextColumn, MenuColumn, KeyColumn, ColumnCount };

  explicit CommandModel(QObject *parent = nullptr);

  void setCommands(std::vector<Command> commands, const QStringList &used);
  void setQuery(const QString &query);
  const Command &command(int row) const {
    return m_commands[static_cast<std::size_t>(m_rows[static_cast<std::size_t>(row)])];
  }

  int rowCount(const QModelIndex &parent = {}) const override;
  int columnCount(const QModelIndex &parent = {}) const override;
  QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
  Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
  std::vector<Command> m_commands;
  QStringList m_used;
  std::vector<int> m_rows; ///< indices of those that fit
  QIcon m_noIcon;
};
