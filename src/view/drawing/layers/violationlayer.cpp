#include "geometry/canvasgrid.h"
#include "layers/elementmarks.h"

#include <drawing/violationlayer.h>
#include <model/names.h>
#include <model/propertycolumns.h>

#include <algorithm>

namespace {

constexpr double ViolationZ = 6.0;      // below the lines
constexpr double Casing = 5.0;          // px, to each side
constexpr double NarrowestCasing = 2.0; // px
constexpr std::size_t ManyMarks = 5000; // nobody sees how the edges of so many are rounded

} // namespace

ViolationLayer::ViolationLayer() {
  setRenderHint(RenderAntialiased);
  setZ(ViolationZ);
}

template <typename Records>
void ViolationLayer::find(NetData::EleType kind, const Records &records) {
  std::vector<const element *> sources;
  sources.reserve(records.size());
  for (const auto &record : records)
    sources.push_back(record.source);
  std::vector<unsigned char> states(sources.size()); // bytes, as several threads write them
  PropertyColumns({Names::all().violations}).forEach(sources, [&](std::size_t i, const PropertyColumns &columns) {
    if (columns[0] != nullptr)
      states[i] = static_cast<unsigned char>(Violations::of(*sources[i]));
  });
  for (Index i = 0; i < states.size(); ++i) {
    if (states[i] == static_cast<unsigned char>(Violations::State::Major))
      m_major.items.push_back({kind, i});
    else if (states[i] == static_cast<unsigned char>(Violations::State::Minor))
      m_minor.items.push_back({kind, i});
  }
}

void ViolationLayer::setElements(const NetGeometry &geometry) {
  clear();
  m_geometry = &geometry;
  find(NetData::Edge, geometry.edges());
  find(NetData::Node, geometry.nodes());
  m_cased = m_major.items;
  m_cased.insert(m_cased.end(), m_minor.items.begin(), m_minor.items.end());
  std::sort(m_cased.begin(), m_cased.end());
  sort(m_major);
  sort(m_minor);
}

double ViolationLayer::casingOf(NetGeometry::Item item, double widthFactor) const {
  const bool isCased = std::binary_search(m_cased.begin(), m_cased.end(), item) && !isHidden(item);
  return isCased ? std::max(NarrowestCasing, Casing * widthFactor) : 0.0;
}

void ViolationLayer::sort(Marked &marked) const {
  std::vector<SpatialIndex::Box> boxes;
  std::vector<NetGeometry::Item> placed;
  for (const NetGeometry::Item item : marked.items) {
    const std::optional<QPointF> center = m_geometry->center(item);
    if (!center)
      continue;
    QLineF line(*center, *center);
    const Index edge = item.kind == NetData::Edge ? item.index : m_geometry->nodes()[item.index].driven;
    if (edge != NoIndex) // a drive stands beside the line of its compressor
      line = m_geometry->line(m_geometry->edges()[edge]);
    const auto [x1, x2] = std::minmax({line.x1(), line.x2()});
    const auto [y1, y2] = std::minmax({line.y1(), line.y2()});
    boxes.push_back({x1, y1, x2, y2});
    placed.push_back(item);
  }
  marked.items.clear();
  for (const Index i : marked.index.build(boxes))
    marked.items.push_back(placed[i]);
}

void ViolationLayer::clear() {
  m_geometry = nullptr;
  m_major = Marked();
  m_minor = Marked();
  m_cased.clear();
}

bool ViolationLayer::isHidden(NetGeometry::Item item) const {
  return item.kind == NetData::Node ? m_filter.hides(item) : m_filter.layers != nullptr && m_filter.layers->isHidden(item);
}

bool ViolationLayer::isAny(Violations::State state) const {
  const std::vector<NetGeometry::Item> &items = (state == Violations::State::Major ? m_major : m_minor).items;
  return std::any_of(items.begin(), items.end(), [this](NetGeometry::Item item) { return !isHidden(item); });
}

std::vector<NetGeometry::Item> ViolationLayer::visible(const Marked &marked, const Projection &projection) const {
  constexpr double Surroundings = 100.0; // px: so far beside its place an element may be drawn
  constexpr double Seen = 2.0;           // px
  std::vector<NetGeometry::Item> items;
  marked.index.query(projection.visible(Surroundings), [&](Index i) {
    if (!isHidden(marked.items[i]))
      items.push_back(marked.items[i]);
  });
  if (items.size() < ManyMarks)
    return items;
  CanvasGrid places(projection.canvas().adjusted(-Surroundings, -Surroundings, Surroundings, Surroundings), Seen);
  const auto isCovered = [&](NetGeometry::Item item) {
    const bool isLine = item.kind == NetData::Edge;
    if (isLine && projection.map(m_geometry->line(m_geometry->edges()[item.index])).length() > Seen)
      return false;
    const std::optional<QPointF> center = m_geometry->center(item);
    return !center || !places.take(projection.map(center->x(), center->y()));
  };
  items.erase(std::remove_if(items.begin(), items.end(), isCovered), items.end());
  return items;
}

void ViolationLayer::draw(QPainter &painter, const Marked &marked, const QColor &color, const Projection &projection) const {
  constexpr double Gap = 1.5;        // px
  constexpr double NarrowGap = 0.75; // px
  const std::vector<NetGeometry::Item> items = visible(marked, projection);
  if (items.empty())
    return;
  ElementMarks::Drawing drawing;
  drawing.geometry = m_geometry;
  drawing.sizes = m_sizes;
  ElementMarks marks(drawing, projection);
  for (const NetGeometry::Item item : items)
    marks.add(item);
  painter.setRenderHint(QPainter::Antialiasing, marks.size() < ManyMarks);
  const Qt::PenCapStyle caps = marks.size() < ManyMarks ? Qt::RoundCap : Qt::FlatCap;
  marks.draw(painter, color, std::max(NarrowestCasing, Casing * marks.widthFactor()), caps);
  marks.drawSeen(painter, m_ground, std::max(NarrowGap, Gap * marks.widthFactor()), caps);
}

void ViolationLayer::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                          const QRectF &canvasRect) const {
  const Projection projection(xMap, yMap, canvasRect);
  if (m_geometry == nullptr || !projection.isValid())
    return;
  draw(*painter, m_minor, Violations::color(Violations::State::Minor), projection);
  draw(*painter, m_major, Violations::color(Violations::State::Major), projection);
}
