#include <base/wholefile.h>
#include <view/viewbookmarks.h>

#include <QFileInfo>
#include <QStringList>
#include <QUrl>

#include <cmath>

namespace {

std::optional<ViewBookmarks::Bookmark> bookmarkOf(const QByteArray &line) {
  constexpr int Parts = 5;
  const QList<QByteArray> parts = line.trimmed().split(';');
  if (parts.size() != Parts)
    return std::nullopt;
  const QRectF view(parts.at(1).toDouble(), parts.at(2).toDouble(), parts.at(3).toDouble(), parts.at(4).toDouble());
  if (!(view.width() > 0.0) || !(view.height() > 0.0) || !std::isfinite(view.x() + view.y() + view.right() + view.bottom()))
    return std::nullopt;
  return ViewBookmarks::Bookmark{QUrl::fromPercentEncoding(parts.first()), view};
}

QByteArray lineOf(const ViewBookmarks::Bookmark &bookmark) {
  constexpr int Digits = 17; // so that a number read again is the same
  QByteArray line = QUrl::toPercentEncoding(bookmark.name, " ");
  for (const double number : {bookmark.view.x(), bookmark.view.y(), bookmark.view.width(), bookmark.view.height()})
    line += ';' + QByteArray::number(number, 'g', Digits);
  return line;
}

} // namespace

std::optional<std::vector<ViewBookmarks::Line>> ViewBookmarks::read(QString *reason) const {
  constexpr qint64 LargestFile = qint64(1) << 20;
  std::vector<Line> lines;
  if (!QFileInfo::exists(m_path))
    return lines;
  const auto content = FileAccess::readWhole(m_path, FileAccess::Source::Workspace, LargestFile, reason);
  if (!content)
    return std::nullopt;
  QList<QByteArray> texts = content->split('\n');
  if (texts.last().isEmpty())
    texts.removeLast();
  for (const QByteArray &text : qAsConst(texts))
    lines.push_back({text, bookmarkOf(text)});
  return lines;
}

const std::vector<ViewBookmarks::Bookmark> &ViewBookmarks::all() {
  const FileStamp stamp = FileStamp::of(m_path);
  if (stamp == m_stamp)
    return m_bookmarks;
  m_stamp = stamp;
  m_bookmarks.clear();
  m_fault.clear();
  const std::optional<std::vector<Line>> lines = read(&m_fault);
  if (!lines)
    return m_bookmarks;
  for (const Line &line : *lines) {
    if (line.bookmark)
      m_bookmarks.push_back(*line.bookmark);
  }
  return m_bookmarks;
}

bool ViewBookmarks::add(const Bookmark &bookmark, QString *reason) const {
  return replace(bookmark.name, lineOf(bookmark) + '\n', reason);
}

bool ViewBookmarks::forget(const QString &name, QString *reason) const {
  return replace(name, QByteArray(), reason);
}

bool ViewBookmarks::replace(const QString &name, const QByteArray &added, QString *reason) const {
  const std::optional<std::vector<Line>> lines = read(reason);
  if (!lines)
    return false;
  QByteArray text;
  for (const Line &line : *lines) {
    if (!line.bookmark || line.bookmark->name != name)
      text += line.text + '\n';
  }
  return WholeFile::write(m_path, FileAccess::Source::Workspace, text + added, reason);
}
