#pragma once

#include <QtGlobal>

#include <cmath>

/// Equal cells along one axis: the one rule for the cell in which a position lies.
/// 1. Cell i covers the positions from origin + i * length up to, but without, origin + (i + 1) * length.
/// 2. There are count cells, from 0. The number of a position outside is below 0, or count or more.
/// 3. nearest() always names a cell: outside the first or the last one; of what is no number, and where cells have no
///    length, the first one.
class CellAxis {
public:
  CellAxis(double origin, double length, int count)
      : m_origin(origin)
      , m_length(length)
      , m_count(count) {}

  int count() const { return m_count; }
  /// A whole number, which may be larger than an int holds.
  double number(double position) const { return std::floor((position - m_origin) / m_length); }
  bool contains(double position) const { return number(position) >= 0.0 && number(position) < m_count; }
  int nearest(double position) const { return static_cast<int>(qBound(0.0, number(position), m_count - 1.0)); }
  struct Range {
    int first;
    int last; ///< before the first when there is none

    bool isEmpty() const { return last < first; }
  };
  /// The cells that the positions between two touch.
  Range range(double from, double to) const {
    return {static_cast<int>(qBound(0.0, number(from), static_cast<double>(m_count))),
            static_cast<int>(qBound(-1.0, number(to), m_count - 1.0))};
  }
  /// Where the cell begins.
  double start(int cell) const { return m_origin + cell * m_length; }

private:
  double m_origin;
  double m_length;
  int m_count;
};
