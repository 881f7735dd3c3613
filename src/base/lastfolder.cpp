#include <base/lastfolder.h>

#include <QDir>
#include <QFileInfo>

LastFolder &LastFolder::ofOpening() {
  static LastFolder folder;
  return folder;
}

LastFolder &LastFolder::ofSaving() {
  static LastFolder folder;
  return folder;
}

QString LastFolder::path() const {
  return QFileInfo(m_path).isDir() ? m_path : QString();
}

QString LastFolder::with(const QString &proposed) const {
  const QString folder = path();
  return folder.isEmpty() ? proposed : QDir(folder).filePath(QFileInfo(proposed).fileName());
}

void LastFolder::remember(const QString &file) {
  if (!file.isEmpty())
    m_path = QFileInfo(file).absolutePath();
}
