#include "geometry/canvasgrid.h"

#include <algorithm>

namespace {

CellAxis axis(double origin, double pixels, double cell) {
  constexpr double MostCells = 4000.0;
  const double length = std::max(cell, 1.0);
  return {origin, length, static_cast<Index>(qBound(1.0, std::ceil(pixels / length), MostCells))};
}

} // namespace

CanvasGrid::CanvasGrid(const QRectF &area, double cell)
    : m_columns(axis(area.left(), area.width(), cell))
    , m_rows(axis(area.top(), area.height(), cell))
    , m_taken(std::size_t{m_columns.count()} * m_rows.count()) {}

bool CanvasGrid::take(const QPointF &point) {
  if (!m_columns.contains(point.x()) || !m_rows.contains(point.y()))
    return false;
  const std::size_t cell = at(m_columns.nearest(point.x()), m_rows.nearest(point.y()));
  const bool isFree = !m_taken[cell];
  m_taken[cell] = true;
  return isFree;
}

bool CanvasGrid::takeArea(const QRectF &area) {
  const Index left = m_columns.nearest(area.left());
  const Index right = m_columns.nearest(area.right());
  const Index bottom = m_rows.nearest(area.bottom());
  for (const bool takes : {false, true}) { // nothing is taken unless all is free
    for (Index row = m_rows.nearest(area.top()); row <= bottom; ++row) {
      for (Index column = left; column <= right; ++column) {
        if (takes)
          m_taken[at(column, row)] = true;
        else if (m_taken[at(column, row)])
          return false;
      }
    }
  }
  return true;
}

Index CanvasGrid::claim(const QPointF &point, Index number) {
  if (m_numbers.empty())
    m_numbers.assign(m_taken.size(), NoIndex);
  const Index column = m_columns.nearest(point.x());
  const Index row = m_rows.nearest(point.y());
  Index &here = m_numbers[at(column, row)];
  if (here != NoIndex)
    return here;
  const CellAxis::Range rows = m_rows.around(row);
  const CellAxis::Range columns = m_columns.around(column);
  for (Index y = rows.first; y < rows.end; ++y) {
    for (Index x = columns.first; x < columns.end; ++x) {
      if (m_numbers[at(x, y)] != NoIndex)
        return m_numbers[at(x, y)];
    }
  }
  return here = number;
}
