#include <view/edgelayer.h>
#include <view/layergeometry.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <unordered_map>

namespace {

constexpr double EdgeZ = 10.0;
constexpr double WidthStep = 0.25; // px: widths are rounded so that many edges share a pen

constexpr unsigned WidthShift = 32;
constexpr unsigned RankShift = 48;

/// A number a pen, ascending in drawing order: what says nothing lies below, narrow lines below broad ones.
std::uint64_t penKey(const EdgeLook &look) {
  constexpr double Broadest = 200.0;
  const auto width = static_cast<std::uint64_t>(std::lround(qBound(0.0, look.width, Broadest) / WidthStep));
  return (std::uint64_t(!look.isBackground) << RankShift) | (width << WidthShift) | look.color;
}

QPen penOf(std::uint64_t key) {
  constexpr std::uint64_t WidthMask = 0xffff;
  const double width = static_cast<double>((key >> WidthShift) & WidthMask) * WidthStep;
  return {QColor(static_cast<QRgb>(key)), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

} // namespace

EdgeLayer::EdgeLayer() {
  setRenderHint(RenderAntialiased);
  setZ(EdgeZ);
}

void EdgeLayer::setEdges(const NetGeometry &geometry) {
  std::vector<SpatialIndex::Box> boxes;
  std::vector<int> positions;
  boxes.reserve(geometry.edges().size());
  positions.reserve(geometry.edges().size());
  for (std::size_t i = 0; i < geometry.edges().size(); ++i) {
    const NetGeometry::Edge &edge = geometry.edges()[i];
    if (!geometry.isPlaced(edge))
      continue;
    const NetGeometry::Node &a = geometry.nodes()[static_cast<std::size_t>(edge.node1)];
    const NetGeometry::Node &b = geometry.nodes()[static_cast<std::size_t>(edge.node2)];
    boxes.push_back({std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)});
    positions.push_back(static_cast<int>(i));
  }
  const std::vector<int> order = m_index.build(boxes);
  m_records.clear();
  m_records.reserve(order.size());
  for (const int box : order) {
    Record record;
    record.edge = positions[static_cast<std::size_t>(box)];
    const NetGeometry::Edge &edge = geometry.edges()[static_cast<std::size_t>(record.edge)];
    const NetGeometry::Node &a = geometry.nodes()[static_cast<std::size_t>(edge.node1)];
    const NetGeometry::Node &b = geometry.nodes()[static_cast<std::size_t>(edge.node2)];
    record.x1 = a.x;
    record.y1 = a.y;
    record.x2 = b.x;
    record.y2 = b.y;
    m_records.push_back(record);
  }
}

void EdgeLayer::setLooks(const std::vector<EdgeLook> &looks) {
  // Number the pens as they come, then put them into drawing order.
  std::unordered_map<std::uint64_t, int> numbers;
  std::vector<std::uint64_t> keys;
  for (Record &record : m_records) {
    const std::uint64_t key = penKey(looks[static_cast<std::size_t>(record.edge)]);
    const auto [known, isNew] = numbers.try_emplace(key, static_cast<int>(keys.size()));
    if (isNew)
      keys.push_back(key);
    record.pen = known->second;
  }
  std::vector<std::uint64_t> sorted = keys;
  std::sort(sorted.begin(), sorted.end());
  std::vector<int> places;
  places.reserve(keys.size());
  for (const std::uint64_t key : keys)
    places.push_back(static_cast<int>(std::lower_bound(sorted.begin(), sorted.end(), key) - sorted.begin()));
  for (Record &record : m_records)
    record.pen = places[static_cast<std::size_t>(record.pen)];

  m_pens.clear();
  m_widest = 0.0;
  for (const std::uint64_t key : sorted) {
    m_pens.push_back(penOf(key));
    m_widest = std::max(m_widest, m_pens.back().widthF());
  }
}

void EdgeLayer::clear() {
  m_records.clear();
  m_index.clear();
  m_pens.clear();
}

std::vector<EdgeLayer::VisibleLine> EdgeLayer::visibleLines(const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                                                            const QRectF &canvasRect) const {
  std::vector<VisibleLine> lines;
  const Projection projection(xMap, yMap, canvasRect);
  if (!projection.isValid())
    return lines;
  const double margin = m_widest + 1.0;
  const QRectF area = canvasRect.adjusted(-margin, -margin, margin, margin);
  const SpatialIndex::Box visible = projection.visible(margin);
  m_index.query(visible, [&](int first, int last) {
    for (int i = first; i < last; ++i) {
      const Record &r = m_records[static_cast<std::size_t>(i)];
      QLineF line(projection.map(r.x1, r.y1), projection.map(r.x2, r.y2));
      if (r.pen >= 0 && clipLine(line, area))
        lines.push_back({line, r.pen});
    }
  });
  return lines;
}

void EdgeLayer::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvasRect) const {
  constexpr std::size_t ManyLines = 20000; // beyond it nobody sees the caps, but they cost half the frame
  const std::vector<VisibleLine> visible = visibleLines(xMap, yMap, canvasRect);

  // Counting sort by pen: starts[pen] is where the lines of the pen begin.
  std::vector<std::size_t> starts(m_pens.size() + 1, 0);
  for (const VisibleLine &line : visible)
    ++starts[static_cast<std::size_t>(line.pen) + 1];
  for (std::size_t pen = 1; pen < starts.size(); ++pen)
    starts[pen] += starts[pen - 1];
  std::vector<QLineF> sorted(visible.size());
  std::vector<std::size_t> next = starts;
  for (const VisibleLine &line : visible)
    sorted[next[static_cast<std::size_t>(line.pen)]++] = line.line;

  for (std::size_t i = 0; i < m_pens.size(); ++i) {
    const std::size_t count = starts[i + 1] - starts[i];
    if (count == 0)
      continue;
    QPen pen = m_pens[i];
    if (visible.size() > ManyLines)
      pen.setCapStyle(Qt::FlatCap);
    painter->setPen(pen);
    painter->drawLines(&sorted[starts[i]], static_cast<int>(count));
  }
}
