#include "recentlooks.h"

#include "thumbnails.h"

#include <QFileInfo>

#include <thread>

RecentLooks::RecentLooks(QObject *parent)
    : QObject(parent)
    , m_mailbox(*this) {}

void RecentLooks::look(const QStringList &paths) {
  if (paths.isEmpty())
    return;
  std::thread([this, address = m_mailbox.address(), paths] {
    for (const QString &path : paths) {
      const Look look{QFileInfo(path).isFile(), Thumbnails::read(path)};
      if (!address.send([this, path, look] { take(path, look); }))
        return;
    }
  }).detach();
}

void RecentLooks::take(const QString &path, const Look &look) {
  const bool isOther = look.isThere != isThere(path) || look.picture != picture(path);
  m_seen.insert(path, look);
  if (isOther)
    emit seen(path);
}
