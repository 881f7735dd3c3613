#pragma once

#include <base/filestamp.h>

#include <QByteArray>
#include <QRectF>
#include <QString>

#include <optional>
#include <vector>

/// Views with names, kept with the case in a file of their own: "viewbookmarks.csv", a line each,
/// "name;x;y;width;height" in the network's coordinates, the name percent-encoded where it holds marks.
///
/// Every change reads the file anew, so that two windows of one case do not undo each other's; a list is read again when
/// the file has another time or size.
class ViewBookmarks {
public:
  struct Bookmark {
    QString name;
    QRectF view;
  };

  explicit ViewBookmarks(const QString &path = QString())
      : m_path(path) {}

  /// In the order in which they were made; what is no bookmark is left out. None, with a fault, when the file cannot be
  /// read.
  const std::vector<Bookmark> &all();
  const QString &fault() const { return m_fault; }
  /// In place of one of the same name; lines that are no bookmarks stay. False with the reason when the file cannot be
  /// written, or cannot be read and holds nobody knows what.
  bool add(const Bookmark &bookmark, QString *reason) const;
  bool forget(const QString &name, QString *reason) const;

private:
  struct Line {
    QByteArray text;
    std::optional<Bookmark> bookmark; ///< nothing when it is none
  };

  /// Nothing, with the reason, when the file cannot be read.
  std::optional<std::vector<Line>> read(QString *reason) const;
  bool replace(const QString &name, const QByteArray &added, QString *reason) const;

  QString m_path;
  // As the file was when all() read it last.
  FileStamp m_stamp;
  std::vector<Bookmark> m_bookmarks;
  QString m_fault;
};
