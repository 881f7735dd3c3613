#include <view/viewhistory.h>

#include <QStringList>
#include <QUrl>

#include <cmath>

namespace {

bool isSame(const QRectF &a, const QRectF &b) {
  constexpr double Share = 1e-3; // of the view: less is no other view to a person
  const double tolerance = Share * std::max(a.width(), a.height());
  return std::abs(a.left() - b.left()) < tolerance && std::abs(a.right() - b.right()) < tolerance &&
         std::abs(a.top() - b.top()) < tolerance && std::abs(a.bottom() - b.bottom()) < tolerance;
}

} // namespace

void ViewHistory::clear() {
  *this = ViewHistory();
}

void ViewHistory::record(const QRectF &view) {
  constexpr std::size_t Most = 200;
  if (!m_views.empty() && isSame(m_views[m_at], view))
    return;
  if (!m_views.empty())
    m_views.resize(m_at + 1);
  m_views.push_back(view);
  if (m_views.size() > Most)
    m_views.erase(m_views.begin());
  m_at = m_views.size() - 1;
}

std::optional<QRectF> ViewHistory::back() {
  if (!canGoBack())
    return std::nullopt;
  return m_views[--m_at];
}

std::optional<QRectF> ViewHistory::forward() {
  if (!canGoForward())
    return std::nullopt;
  return m_views[++m_at];
}

std::vector<ViewBookmarks::Bookmark> ViewBookmarks::parse(const QString &text) {
  constexpr int Parts = 5;
  std::vector<Bookmark> bookmarks;
  for (const QString &entry : text.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
    const QStringList parts = entry.split(QLatin1Char('|'));
    if (parts.size() != Parts)
      continue;
    const QRectF view(parts.at(1).toDouble(), parts.at(2).toDouble(), parts.at(3).toDouble(), parts.at(4).toDouble());
    if (view.width() > 0.0 && view.height() > 0.0 && std::isfinite(view.x() + view.y() + view.right() + view.bottom()))
      bookmarks.push_back({QUrl::fromPercentEncoding(parts.first().toUtf8()), view});
  }
  return bookmarks;
}

QString ViewBookmarks::format(const std::vector<Bookmark> &bookmarks) {
  constexpr int Digits = 12;
  QStringList entries;
  for (const Bookmark &bookmark : bookmarks) {
    QStringList parts{QString::fromLatin1(QUrl::toPercentEncoding(bookmark.name, " "))};
    for (const double number : {bookmark.view.x(), bookmark.view.y(), bookmark.view.width(), bookmark.view.height()})
      parts.append(QString::number(number, 'g', Digits));
    entries.append(parts.join(QLatin1Char('|')));
  }
  return entries.join(QLatin1Char(';'));
}
