#pragma once

#include <base/index.h>

#include <QRectF>

#include <algorithm>
#include <vector>

/// Finds what lies in a part of the plane.
/// 1. build() puts the items into an order that keeps neighbours together, that of a Z-order curve; the owner arranges its
///    records in this order. A position is an index into it.
/// 2. Each run of RunLength positions (the last one may be shorter) has a box that holds all its items.
/// 3. query() visits, in ascending order, the positions of every run whose box touches the area. No item that touches it is
///    missed; the visitor sorts out the others of the run.
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
  std::vector<Index> build(const std::vector<Box> &boxes);
  void clear();

  const Box &bounds() const { return m_bounds; }

  /// Calls visit(position) for the positions whose items may touch the box, in order.
  template <typename Visitor>
  void query(const Box &area, const Visitor &visit) const {
    Index first = 0;
    for (const Box &run : m_runs) {
      const Index end = std::min(first + RunLength, m_count);
      for (Index i = run.touches(area) ? first : end; i < end; ++i)
        visit(i);
      first = end;
    }
  }

private:
  static constexpr Index RunLength = 64;

  std::vector<Box> m_runs;
  Box m_bounds;
  Index m_count = 0;
};
