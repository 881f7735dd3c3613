#include "geometry/canvasgrid.h"

#include <algorithm>

namespace {

constexpr Index Free = NoIndex;

CellAxis axis(double origin, double pixels, double cell) {
  constexpr double MostCells = 4000.0;
  const double length = std::max(cell, 1.0);
  return {origin, length, static_cast<Index>(qBound(1.0, std::ceil(pixels / length), MostCells))};
}

} // namespace

CanvasGrid::CanvasGrid(const QRectF &area, double cell)
    : m_columns(axis(area.left(), area.width(), cell))
    , m_rows(axis(area.top(), area.height(), cell))
    , m_numbers(std::size_t{m_columns.count()} * m_rows.count(), Free) {}

Index &CanvasGrid::at(Index column, Index row) {
  return m_numbers[row * m_columns.count() + column];
}

bool CanvasGrid::take(const QPointF &point) {
  if (!m_columns.contains(point.x()) || !m_rows.contains(point.y()))
    return false;
  return std::exchange(at(m_columns.nearest(point.x()), m_rows.nearest(point.y())), 0) == Free;
}

bool CanvasGrid::takeArea(const QRectF &area) {
  const Index left = m_columns.nearest(area.left());
  const Index right = m_columns.nearest(area.right());
  const Index bottom = m_rows.nearest(area.bottom());
  for (const bool takes : {false, true}) { // nothing is taken unless all is free
    for (Index row = m_rows.nearest(area.top()); row <= bottom; ++row) {
      for (Index column = left; column <= right; ++column) {
        Index &cell = at(column, row);
        if (takes)
          cell = 0;
        else if (cell != Free)
          return false;
      }
    }
  }
  return true;
}

Index CanvasGrid::claim(const QPointF &point, Index number) {
  const Index column = m_columns.nearest(point.x());
  const Index row = m_rows.nearest(point.y());
  if (at(column, row) != Free)
    return at(column, row);
  const CellAxis::Range rows = m_rows.around(row);
  const CellAxis::Range columns = m_columns.around(column);
  for (Index y = rows.first; y < rows.end; ++y) {
    for (Index x = columns.first; x < columns.end; ++x) {
      if (at(x, y) != Free)
        return at(x, y);
    }
  }
  return at(column, row) = number;
}
