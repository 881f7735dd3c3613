#pragma once

#include <base/mailbox.h>

#include <QHash>
#include <QImage>
#include <QObject>
#include <QStringList>

/// Whether files are still there, and their pictures. Both are looked for in a thread of their own: a disk of the network
/// that does not answer holds up nobody.
class RecentLooks : public QObject {
  Q_OBJECT
public:
  explicit RecentLooks(QObject *parent = nullptr);

  /// Begins to look, and returns at once.
  void look(const QStringList &paths);
  /// As it was seen last; taken to be so until then.
  bool isThere(const QString &path) const { return m_seen.value(path).isThere; }
  QImage picture(const QString &path) const { return m_seen.value(path).picture; }

signals:
  void seen(const QString &path); ///< something else than before

private:
  struct Look {
    bool isThere = true;
    QImage picture;
  };
  void take(const QString &path, const Look &look);

  Mailbox m_mailbox;
  QHash<QString, Look> m_seen;
};
