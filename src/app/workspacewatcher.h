#pragma once

#include <base/readfiles.h>

#include <QFileSystemWatcher>
#include <QObject>
#include <QStringList>
#include <QTimer>

/// Tells when files are no longer those that were read, once they have come to rest: two looks after one another must see
/// the same sizes and times. A file that another one takes the place of (as editors save) is a changed one.
class WorkspaceWatcher : public QObject {
  Q_OBJECT
public:
  /// \param window looks again whenever it comes to the front: of files on other machines the system tells nothing
  explicit WorkspaceWatcher(QObject &window);

  /// How long files must be at rest; for tests, which need not wait as long as people's programs write.
  void setBetweenLooks(int ms) { m_rest.setInterval(ms); }
  /// In place of the files before. A stamp of no file stands for one that may come.
  void watch(const ReadFiles::Stamps &files);
  /// Once the files have come to rest.
  void look();
  /// Takes the files as they are now.
  void accept();
  /// Takes these as they are now, as far as they are watched: the program wrote them itself.
  void accept(const QStringList &paths);

signals:
  /// \param gone those that are no longer there; both empty when all are again as they were
  void changed(const QStringList &changed, const QStringList &gone);

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  void compare();
  void listen();
  ReadFiles::Stamps present() const;

  QFileSystemWatcher *m_system = nullptr; ///< made once the first network stands
  QTimer m_rest;
  ReadFiles::Stamps m_known; ///< as read or accepted
  ReadFiles::Stamps m_seen;  ///< by the last look
  ReadFiles::Stamps m_told;
};
