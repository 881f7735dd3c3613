#include "geometry/canvasgrid.h"

#include <algorithm>

namespace {

constexpr int Free = -1;

CellAxis axis(double origin, double pixels, double cell) {
  constexpr double MostCells = 4000.0;
  const double length = std::max(cell, 1.0);
  return {origin, length, static_cast<int>(qBound(1.0, std::ceil(pixels / length), MostCells))};
}

} // namespace

CanvasGrid::CanvasGrid(const QRectF &area, double cell)
    : m_columns(axis(area.left(), area.width(), cell))
    , m_rows(axis(area.top(), area.height(), cell))
    , m_numbers(static_cast<std::size_t>(m_columns.count()) * static_cast<std::size_t>(m_rows.count()), Free) {}

int &CanvasGrid::at(int column, int row) {
  return m_numbers[static_cast<std::size_t>(row) * static_cast<std::size_t>(m_columns.count()) +
                   static_cast<std::size_t>(column)];
}

bool CanvasGrid::take(const QPointF &point) {
  if (!m_columns.contains(point.x()) || !m_rows.contains(point.y()))
    return false;
  return std::exchange(at(m_columns.nearest(point.x()), m_rows.nearest(point.y())), 0) == Free;
}

bool CanvasGrid::takeArea(const QRectF &area) {
  const int left = m_columns.nearest(area.left());
  const int right = m_columns.nearest(area.right());
  const int bottom = m_rows.nearest(area.bottom());
  for (const bool takes : {false, true}) { // nothing is taken unless all is free
    for (int row = m_rows.nearest(area.top()); row <= bottom; ++row) {
      for (int column = left; column <= right; ++column) {
        int &cell = at(column, row);
        if (takes)
          cell = 0;
        else if (cell != Free)
          return false;
      }
    }
  }
  return true;
}

int CanvasGrid::claim(const QPointF &point, int number) {
  const int column = m_columns.nearest(point.x());
  const int row = m_rows.nearest(point.y());
  if (at(column, row) != Free)
    return at(column, row);
  for (int y = std::max(row - 1, 0); y <= std::min(row + 1, m_rows.count() - 1); ++y) {
    for (int x = std::max(column - 1, 0); x <= std::min(column + 1, m_columns.count() - 1); ++x) {
      if (at(x, y) != Free)
        return at(x, y);
    }
  }
  return at(column, row) = number;
}
