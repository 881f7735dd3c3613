#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>

/// Small files that tests make and look at.
namespace SmallFiles {

/// Returns the path. Makes the folders on the way.
inline QString write(const QString &path, const QByteArray &text) {
  QDir().mkpath(QFileInfo(path).path());
  QFile file(path);
  return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() ? path : QStringLiteral("cannot be written");
}

inline QByteArray contents(const QString &path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
}

} // namespace SmallFiles
