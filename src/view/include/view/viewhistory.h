#pragma once

#include <QRectF>
#include <QString>

#include <optional>
#include <vector>

/// The views that a person has rested at, to go back and forward through.
class ViewHistory {
public:
  void clear();
  /// A view after the present one; what lay ahead is forgotten. The same view again changes nothing.
  void record(const QRectF &view);
  std::optional<QRectF> back();
  std::optional<QRectF> forward();
  bool canGoBack() const { return m_at > 0; }
  bool canGoForward() const { return m_at + 1 < m_views.size(); }

private:
  std::vector<QRectF> m_views;
  std::size_t m_at = 0;
};

/// Views with names, as PlotSettings::bookmarks keeps them: "name|x|y|width|height", joined by ";". A "%" in a name, and
/// what else would be taken for a mark, is percent-encoded.
namespace ViewBookmarks {

struct Bookmark {
  QString name;
  QRectF view; ///< plot coordinates
};

std::vector<Bookmark> parse(const QString &text); ///< what is no bookmark is left out
QString format(const std::vector<Bookmark> &bookmarks);

} // namespace ViewBookmarks
