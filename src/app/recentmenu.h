#pragma once

#include "recentlooks.h"

#include <QHash>
#include <QMenu>

class RecentFiles;

/// "Open Recent": the workspaces that were opened last, with their pictures. Those that are no longer there are grey.
class RecentMenu : public QMenu {
  Q_OBJECT
public:
  static constexpr int Shown = 10;

  /// \param files must outlive the menu
  explicit RecentMenu(RecentFiles &files, QWidget *parent = nullptr);

signals:
  void fileWanted(const QString &path);

private:
  void fill();
  void show(const QString &path);

  RecentFiles &m_files;
  RecentLooks m_looks;
  QHash<QString, QAction *> m_entries; ///< by path
};
