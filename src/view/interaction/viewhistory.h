#pragma once

#include <QRectF>

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
  bool canGoBack() const { return m_index > 0; }
  bool canGoForward() const { return m_index + 1 < m_views.size(); }

private:
  std::vector<QRectF> m_views;
  std::size_t m_index = 0; ///< of the present view
};
