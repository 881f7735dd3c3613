#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <sys/mount.h>

/// A folder on a disk of its own, 64 kB small, for trying what happens when a disk fills up. Mounting needs root: a test
/// skips where isMounted() is false, and says so.
class FullDisk {
public:
  FullDisk()
      : m_isMounted(::mount("tmpfs", QFile::encodeName(m_folder.path()).constData(), "tmpfs", 0, "size=64k") == 0) {}
  ~FullDisk() {
    if (m_isMounted)
      ::umount2(QFile::encodeName(m_folder.path()).constData(), MNT_DETACH);
  }
  FullDisk(const FullDisk &) = delete;
  FullDisk &operator=(const FullDisk &) = delete;

  bool isMounted() const { return m_isMounted; }
  QString path(const QString &name) const { return m_folder.filePath(name); }

  /// Leaves no byte free.
  void fill() const {
    QFile filler(path(QStringLiteral("filler")));
    if (filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
      while (filler.write(QByteArray(4096, 'x')) > 0) {
      }
  }
  void free() const { QFile::remove(path(QStringLiteral("filler"))); }

private:
  QTemporaryDir m_folder;
  bool m_isMounted;
};
