#pragma once

#include <QRectF>

#include <vector>

/// Finds what lies in a part of the plane.
/// 1. build() puts the items into an order that keeps neighbours together, that of a Z-order curve; the owner arranges its
///    records in this order. A position is an index into it.
/// 2. Each run of RunLength positions (the last one may be shorter) has a box that holds all its items.
/// 3. query() visits, in ascending order, every run whose box touches the area. No item that touches it is missed; the
///    visitor sorts out the others of the run.
/// 4. How the items are spread makes runs larger or smaller, never an answer wrong. Building costs a sort, a query one
///    comparison a run.
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

  /// The order in which the owner has to arrange its records: by position the index in boxes.
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
