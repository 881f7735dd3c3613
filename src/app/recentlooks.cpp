#include "recentlooks.h"

#include "thumbnails.h"

#include <QFileInfo>

#include <mutex>
#include <thread>

/// Whom the threads tell. They may outlive it, for nothing ends one that waits for a disk.
struct RecentLooks::Receiver {
  std::mutex mutex;
  RecentLooks *looks;
};

RecentLooks::RecentLooks(QObject *parent)
    : QObject(parent)
    , m_receiver(std::make_shared<Receiver>()) {
  m_receiver->looks = this;
}

RecentLooks::~RecentLooks() {
  const std::lock_guard<std::mutex> lock(m_receiver->mutex);
  m_receiver->looks = nullptr;
}

void RecentLooks::look(const QStringList &paths) {
  if (paths.isEmpty())
    return;
  std::thread([receiver = m_receiver, paths] {
    for (const QString &path : paths) {
      const Look look{QFileInfo(path).isFile(), Thumbnails::read(path)};
      const std::lock_guard<std::mutex> lock(receiver->mutex);
      RecentLooks *looks = receiver->looks;
      if (looks == nullptr)
        return;
      QMetaObject::invokeMethod(
          looks, [looks, path, look] { looks->take(path, look); }, Qt::QueuedConnection);
    }
  }).detach();
}

void RecentLooks::take(const QString &path, const Look &look) {
  const bool isOther = look.isThere != isThere(path) || look.picture != picture(path);
  m_seen.insert(path, look);
  if (isOther)
    emit seen(path);
}
