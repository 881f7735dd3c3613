#include <base/filestamp.h>

#include <QFileInfo>

FileStamp FileStamp::of(const QString &path) {
  const QFileInfo file(path);
  return file.exists() ? FileStamp{file.size(), file.lastModified()} : FileStamp();
}
