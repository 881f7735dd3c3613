#include <drawing/cellaxis.h>
#include <drawing/spatialindex.h>

#include <algorithm>
#include <cstdint>

namespace {

/// Moves bit i of the lower 16 bits to bit 2 i.
std::uint32_t spread(std::uint32_t x) {
  x = (x | (x << 8)) & 0x00ff00ffU;
  x = (x | (x << 4)) & 0x0f0f0f0fU;
  x = (x | (x << 2)) & 0x33333333U;
  return (x | (x << 1)) & 0x55555555U;
}

/// The cells of the curve along one axis; the last one begins where the bounds end.
CellAxis curveCells(double from, double to) {
  constexpr Index Cells = 1U << 16U;
  return {from, (to - from) / (Cells - 1), Cells};
}

/// How far along the Z-order curve through the cells the middle of the box lies.
std::uint32_t curveKey(const SpatialIndex::Box &box, const CellAxis &columns, const CellAxis &rows) {
  const auto cell = [](const CellAxis &axis, double low, double high) {
    return axis.nearest(low * 0.5 + high * 0.5);
  };
  return spread(cell(columns, box.x1, box.x2)) | (spread(cell(rows, box.y1, box.y2)) << 1);
}

} // namespace

void SpatialIndex::Box::unite(const Box &other) {
  x1 = std::min(x1, other.x1);
  y1 = std::min(y1, other.y1);
  x2 = std::max(x2, other.x2);
  y2 = std::max(y2, other.y2);
}

std::vector<Index> SpatialIndex::build(const std::vector<Box> &boxes) {
  clear();
  if (boxes.empty())
    return {};
  m_count = toIndex(boxes.size());
  m_bounds = boxes.front();
  for (const Box &box : boxes)
    m_bounds.unite(box);

  const CellAxis columns = curveCells(m_bounds.x1, m_bounds.x2);
  const CellAxis rows = curveCells(m_bounds.y1, m_bounds.y2);
  constexpr int KeyShift = 32;
  std::vector<std::uint64_t> keys(boxes.size()); // curve key above, index below: one plain sort
  for (std::size_t i = 0; i < boxes.size(); ++i)
    keys[i] = (static_cast<std::uint64_t>(curveKey(boxes[i], columns, rows)) << KeyShift) | i;
  std::sort(keys.begin(), keys.end());

  std::vector<Index> order(boxes.size());
  m_runs.reserve(boxes.size() / RunLength + 1);
  for (std::size_t i = 0; i < keys.size(); ++i) {
    order[i] = toIndex(keys[i] & 0xffffffffU);
    const Box &box = boxes[order[i]];
    if (i % RunLength == 0)
      m_runs.push_back(box);
    else
      m_runs.back().unite(box);
  }
  return order;
}

void SpatialIndex::clear() {
  m_runs.clear();
  m_bounds = Box();
  m_count = 0;
}
