#pragma once

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

/// Which parts of a canvas are taken, in cells of few pixels. A box takes all cells that it touches, so that boxes which
/// were found free never overlap.
class OccupancyGrid {
public:
  explicit OccupancyGrid(const QRectF &canvas);

  bool isFree(const TurnedBox &box) const;
  void take(const TurnedBox &box);

private:
  /// Calls visit(word, mask) for all words that hold cells of the box until it returns false; true when it never did.
  template <typename Visitor>
  bool forEachWord(const TurnedBox &box, const Visitor &visit) const;

  QPointF m_origin;
  int m_rows;
  int m_words; ///< a row
  std::vector<std::uint64_t> m_cells;
};
