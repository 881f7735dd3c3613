#pragma once

#include "recentlooks.h"

#include <QAbstractListModel>

class RecentFiles;

/// A row for each workspace that was opened. What disks are asked for comes later.
class RecentModel final : public QAbstractListModel {
  Q_OBJECT
public:
  enum Roles { PathRole = Qt::UserRole, FolderRole, DateRole, IsThereRole };

  /// \param files must outlive the model
  explicit RecentModel(const RecentFiles &files, QObject *parent = nullptr);

  int rowCount(const QModelIndex &parent = QModelIndex()) const final;
  QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const final;

private:
  void refresh();
  QString description(int row) const;

  const RecentFiles &m_files;
  RecentLooks m_looks;
  int m_count = 0;
};
