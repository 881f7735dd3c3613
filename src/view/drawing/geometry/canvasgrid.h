#pragma once

#include <drawing/cellaxis.h>

#include <QRectF>

#include <vector>

/// Coarse cells over a part of the canvas that remember that somebody stands there, or who: one grid serves one of both.
class CanvasGrid {
public:
  /// \param cell side of a cell in pixels, at least 1
  CanvasGrid(const QRectF &area, double cell);

  /// Takes the cell of the point; false when it was taken before or the point lies outside.
  bool take(const QPointF &point);
  /// Takes all cells under the rectangle, as far as they lie inside; false when one of them was taken before.
  bool takeArea(const QRectF &area);
  /// Takes the cell of the point when it and the eight around it are free, and returns the number; the number of one of
  /// those who stand there otherwise. Points outside take the nearest cell.
  Index claim(const QPointF &point, Index number);

private:
  std::size_t at(Index column, Index row) const { return std::size_t{row} * m_columns.count() + column; }

  CellAxis m_columns;
  CellAxis m_rows;
  std::vector<bool> m_taken;    ///< row by row; a bit a cell, as a grid is made for every paint
  std::vector<Index> m_numbers; ///< of those who stand in the cells; empty until the first claim
};
