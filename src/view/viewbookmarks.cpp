#include <base/nivramsg.h>
#include <base/wholefile.h>
#include <view/viewbookmarks.h>

#include <QFileInfo>
#include <QStringList>
#include <QUrl>

#include <algorithm>
#include <cmath>

namespace {

std::vector<ViewBookmarks::Bookmark> without(std::vector<ViewBookmarks::Bookmark> bookmarks, const QString &name) {
  bookmarks.erase(std::remove_if(bookmarks.begin(), bookmarks.end(),
                                 [&name](const ViewBookmarks::Bookmark &bookmark) { return bookmark.name == name; }),
                  bookmarks.end());
  return bookmarks;
}

} // namespace

std::vector<ViewBookmarks::Bookmark> ViewBookmarks::all() const {
  constexpr qint64 Largest = qint64(1) << 20;
  constexpr int Parts = 5;
  std::vector<Bookmark> bookmarks;
  if (!QFileInfo::exists(m_path))
    return bookmarks;
  QString reason;
  const auto content = FileAccess::readWhole(m_path, FileAccess::Source::Workspace, Largest, &reason);
  if (!content) {
    NivraMsg::logWarning(reason);
    return bookmarks;
  }
  for (const QByteArray &line : content->split('\n')) {
    const QList<QByteArray> parts = line.trimmed().split(';');
    if (parts.size() != Parts)
      continue;
    const QRectF view(parts.at(1).toDouble(), parts.at(2).toDouble(), parts.at(3).toDouble(), parts.at(4).toDouble());
    if (view.width() > 0.0 && view.height() > 0.0 && std::isfinite(view.x() + view.y() + view.right() + view.bottom()))
      bookmarks.push_back({QUrl::fromPercentEncoding(parts.first()), view});
  }
  return bookmarks;
}

bool ViewBookmarks::add(const Bookmark &bookmark, QString *reason) const {
  std::vector<Bookmark> bookmarks = without(all(), bookmark.name);
  bookmarks.push_back(bookmark);
  return write(bookmarks, reason);
}

bool ViewBookmarks::forget(const QString &name, QString *reason) const {
  return write(without(all(), name), reason);
}

bool ViewBookmarks::write(const std::vector<Bookmark> &bookmarks, QString *reason) const {
  constexpr int Digits = 17; // so that a number read again is the same
  QByteArray text;
  for (const Bookmark &bookmark : bookmarks) {
    text += QUrl::toPercentEncoding(bookmark.name, " ");
    for (const double number : {bookmark.view.x(), bookmark.view.y(), bookmark.view.width(), bookmark.view.height()})
      text += ';' + QByteArray::number(number, 'g', Digits);
    text += '\n';
  }
  return WholeFile::write(m_path, FileAccess::Source::Workspace, text, reason);
}
