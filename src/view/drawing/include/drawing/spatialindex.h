#pragma once

#include <QRectF>

#include <vector>

/// Finds what lies in a part of the plane. Items are put into an order that keeps neighbours together; each run of this
/// order has a bounding box. Building is little more than a sort, a query skips whole runs, and outliers cost nothing but
/// sharper runs: nothing depends on how evenly the items are spread.
class SpatialIndex {
public:
  /// The corners of an item, each pair ascending and finite.
  struct Box {
    double x1 = 0.0;
    double y1 = 0.0;
    double x2 = 0.0;
    double y2 = 0.0;

    bool touches(const Box &other) const { return x1 <= other.x2 && x2 >= other.x1 && y1 <= other.y2 && y2 >= other.y1; }
    void unite(const Box &other);
  };

  /// The order in which the owner has to arrange its records: position -> index in boxes. Queries speak of positions.
  std::vector<int> build(const std::vector<Box> &boxes);
  void clear();

  const Box &bounds() const { return m_bounds; }

  /// Calls visit(first, last) for runs of positions that may touch the box, in order; last is excluded.
  template <typename Visitor>
  void query(const Box &area, Visitor visit) const {
    for (std::size_t i = 0; i < m_runs.size(); ++i) {
      if (m_runs[i].touches(area))
        visit(static_cast<int>(i) * RunLength, i + 1 == m_runs.size() ? m_count : static_cast<int>(i + 1) * RunLength);
    }
  }

private:
  static constexpr int RunLength = 64;

  std::vector<Box> m_runs;
  Box m_bounds;
  int m_count = 0;
};
