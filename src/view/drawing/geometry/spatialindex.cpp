#include <algorithm>
#include <cstdint>
#include <drawing/spatialindex.h>

namespace {

/// Spreads the lower 16 bits to the even places.
std::uint32_t spread(std::uint32_t x) {
  x = (x | (x << 8)) & 0x00ff00ffU;
  x = (x | (x << 4)) & 0x0f0f0f0fU;
  x = (x | (x << 2)) & 0x33333333U;
  return (x | (x << 1)) & 0x55555555U;
}

/// Place on the Z-order curve through the bounds.
std::uint32_t curveKey(const SpatialIndex::Box &box, const SpatialIndex::Box &bounds) {
  constexpr double Cells = 65535.0;
  const auto cell = [](double lo, double hi, double from, double to) {
    const double width = to - from;
    return width > 0.0 ? static_cast<std::uint32_t>(std::clamp((lo * 0.5 + hi * 0.5 - from) / width, 0.0, 1.0) * Cells) : 0U;
  };
  return spread(cell(box.x1, box.x2, bounds.x1, bounds.x2)) | (spread(cell(box.y1, box.y2, bounds.y1, bounds.y2)) << 1);
}

} // namespace

void SpatialIndex::Box::unite(const Box &other) {
  x1 = std::min(x1, other.x1);
  y1 = std::min(y1, other.y1);
  x2 = std::max(x2, other.x2);
  y2 = std::max(y2, other.y2);
}

std::vector<int> SpatialIndex::build(const std::vector<Box> &boxes) {
  clear();
  if (boxes.empty())
    return {};
  m_count = static_cast<int>(boxes.size());
  m_bounds = boxes.front();
  for (const Box &box : boxes)
    m_bounds.unite(box);

  constexpr int KeyShift = 32;
  std::vector<std::uint64_t> keys(boxes.size()); // curve key above, index below: one plain sort
  for (std::size_t i = 0; i < boxes.size(); ++i)
    keys[i] = (static_cast<std::uint64_t>(curveKey(boxes[i], m_bounds)) << KeyShift) | i;
  std::sort(keys.begin(), keys.end());

  std::vector<int> order(boxes.size());
  m_runs.reserve(boxes.size() / RunLength + 1);
  for (std::size_t i = 0; i < keys.size(); ++i) {
    order[i] = static_cast<int>(keys[i] & 0xffffffffU);
    const Box &box = boxes[static_cast<std::size_t>(order[i])];
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
