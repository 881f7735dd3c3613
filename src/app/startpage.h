#pragma once

#include <QLabel>

class QListView;
class QPushButton;
class QVBoxLayout;
class RecentFiles;

/// What the window shows before a workspace is open: the label that says how one is opened and, once there are some, the
/// workspaces that were opened before.
class StartPage : public QLabel {
  Q_OBJECT
public:
  explicit StartPage(QWidget *parent = nullptr);

  /// \param files must outlive the page
  void showRecent(RecentFiles &files);

signals:
  void openWanted();                    ///< by the dialog
  void fileWanted(const QString &path); ///< one of those that were opened before

private:
  void makeList(RecentFiles &files);
  void addActions(RecentFiles &files);
  void arrange();
  void open(const QModelIndex &index);
  int textHeight() const;

  RecentFiles *m_files = nullptr;
  QVBoxLayout *m_layout;
  QListView *m_list = nullptr;
  QPushButton *m_open;
  QPushButton *m_clear = nullptr;
};
