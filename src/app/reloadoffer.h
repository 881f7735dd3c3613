#pragma once

#include <base/readfiles.h>

#include <QObject>

class QMainWindow;
class ReloadBar;
class WorkspaceWatcher;

/// Watches the files of what is shown, and offers in a bar of the window to read them again.
class ReloadOffer : public QObject {
  Q_OBJECT
public:
  explicit ReloadOffer(QMainWindow &window);

  /// In place of the files before; what was offered is withdrawn.
  void watch(const ReadFiles::Stamps &files);
  /// These were written by the program itself.
  void accept(const QStringList &paths);
  /// Withdraws it also where the window was kept with it.
  void hideBar();
  /// Why the files cannot be read again.
  void tellFault(const QString &reason);

signals:
  void reloadWanted();
  void ignored();

private:
  ReloadBar &bar();

  QMainWindow &m_window;
  WorkspaceWatcher *m_watcher;
  ReloadBar *m_bar = nullptr; ///< made when there is something to tell, which most days there is not
};
