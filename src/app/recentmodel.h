#pragma once

#include <QAbstractListModel>
#include <QHash>
#include <QImage>

#include <vector>

class RecentFiles;

/// A row for each workspace that was opened. Pictures are read when they are asked for, once.
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
  std::vector<bool> m_isThere; ///< by row
  mutable QHash<QString, QImage> m_pictures;
};
