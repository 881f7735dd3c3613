#include "interaction/viewhistory.h"

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
  constexpr std::size_t MaximumViews = 200;
  if (!m_views.empty() && isSame(m_views[m_index], view))
    return;
  if (!m_views.empty())
    m_views.resize(m_index + 1);
  m_views.push_back(view);
  if (m_views.size() > MaximumViews)
    m_views.erase(m_views.begin());
  m_index = m_views.size() - 1;
}

std::optional<QRectF> ViewHistory::back() {
  if (!canGoBack())
    return std::nullopt;
  return m_views[--m_index];
}

std::optional<QRectF> ViewHistory::forward() {
  if (!canGoForward())
    return std::nullopt;
  return m_views[++m_index];
}
