#pragma once

#include <base/index.h>

#include <QtGlobal>

#include <algorithm>
#include <cmath>

/// Equal cells along one axis: the one rule for the cell in which a position lies.
/// 1. Cell i covers the positions from origin + i * length up to, but without, origin + (i + 1) * length.
/// 2. There are count cells, from 0. The number of a position outside is below 0, or count or more.
/// 3. nearest() always names a cell: outside the first or the last one; of what is no number, and where cells have no
///    length, the first one.
class CellAxis {
public:
  CellAxis(double origin, double length, Index count)
      : m_origin(origin)
      , m_length(length)
      , m_count(count) {}

  Index count() const { return m_count; }
  /// A whole number, which may be larger than an int holds.
  double number(double position) const { return std::floor((position - m_origin) / m_length); }
  bool contains(double position) const { return number(position) >= 0.0 && number(position) < m_count; }
  Index nearest(double position) const { return static_cast<Index>(qBound(0.0, number(position), m_count - 1.0)); }
  struct Range {
    Index first;
    Index end; ///< behind the last; not behind the first when there is none

    bool isEmpty() const { return end <= first; }
  };
  /// The cells that the positions between two touch.
  Range range(double from, double to) const {
    const double count = m_count;
    return {static_cast<Index>(qBound(0.0, number(from), count)), static_cast<Index>(qBound(0.0, number(to) + 1.0, count))};
  }
  /// The cell and those beside it.
  Range around(Index cell) const { return {cell == 0 ? 0 : cell - 1, std::min(cell + 2, m_count)}; }
  /// Where the cell begins.
  double start(Index cell) const { return m_origin + cell * m_length; }

private:
  double m_origin;
  double m_length;
  Index m_count;
};
