#pragma once

#include <drawing/cellaxis.h>

#include <QPointF>
#include <QRectF>

#include <array>
#include <cstdint>
#include <vector>

/// A rectangle that may be turned about its middle, in pixels.
class TurnedBox {
public:
  /// \param angle degrees, clockwise on the screen
  TurnedBox(const QPointF &center, const QSizeF &size, double angle);

  /// As it is with a margin on all sides.
  TurnedBox grown(double margin) const;
  const std::array<QPointF, 4> &corners() const { return m_corners; }
  QRectF bounds() const;
  bool isUpright() const { return m_across.y() == 0.0 && m_down.x() == 0.0; }
  /// Whether the boxes have more than their borders in common.
  bool overlaps(const TurnedBox &other) const;

private:
  TurnedBox(const QPointF &center, const QPointF &across, const QPointF &down);

  QPointF m_center;
  QPointF m_across; ///< from the middle to the middle of a side
  QPointF m_down;
  std::array<QPointF, 4> m_corners;
};

/// Which parts of a canvas are taken, in cells of few pixels.
/// 1. A box takes all cells that it touches: of two boxes that were found free one after the other none overlaps the other.
/// 2. What of a box lies outside the canvas takes nothing and is always free.
/// 3. Each cell is one bit: cell c of a row is bit c % 64 of the row's word c / 64. The cells that fill the last word of a
///    row lie beyond the canvas and are taken like others.
/// 4. Asking and taking cost one operation for each word of each row that the box touches.
class OccupancyGrid {
public:
  explicit OccupancyGrid(const QRectF &canvas);

  bool isFree(const TurnedBox &box) const;
  void take(const TurnedBox &box);
  /// How many square pixels of the area are taken.
  double taken(const QRectF &area) const;

private:
  /// Calls visit(word, mask) for all words that hold cells of the box until it returns false; true when it never did.
  template <typename Visitor>
  bool forEachWord(const TurnedBox &box, const Visitor &visit) const;

  CellAxis m_columns;
  CellAxis m_rows;
  std::size_t m_words;                ///< of a row
  std::vector<std::uint64_t> m_cells; ///< row by row
};
