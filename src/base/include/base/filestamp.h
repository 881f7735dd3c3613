#pragma once

#include <QDateTime>
#include <QString>

/// Tells whether a file is still the one that was read.
struct FileStamp {
  qint64 size = -1; ///< bytes, -1 where there is no file
  QDateTime modified;

  static FileStamp of(const QString &path);
  bool isOfAFile() const { return size >= 0; }
  friend bool operator==(const FileStamp &a, const FileStamp &b) { return a.size == b.size && a.modified == b.modified; }
  friend bool operator!=(const FileStamp &a, const FileStamp &b) { return !(a == b); }
};
