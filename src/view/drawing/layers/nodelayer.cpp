#include "geometry/canvasgrid.h"
#include "style/detail.h"

#include <drawing/layergeometry.h>
#include <drawing/nodelayer.h>

#include <QMap>

#include <algorithm>

namespace {

using Shape = NetGeometry::NodeShape;

constexpr double NodeZ = 20.0;
constexpr double LargestReach = 20.0;    // px: half the largest node
constexpr double SmallestShape = 5.5;    // px: of smaller ones nobody tells a triangle from a dot
constexpr int DarkerPercent = 170;       // an outline is to tell the node from its line, not to be seen itself
constexpr double SmallestOutlined = 3.0; // px

double outlineWidth(double size) {
  constexpr double SizeOfFullOutline = 7.0;
  return Detail::presence(size, SmallestOutlined, SizeOfFullOutline);
}

QPolygonF shapeAround(const QPointF &center, Shape shape, double size) {
  const double r = size * 0.5;
  if (shape == Shape::Pressure)
    return QPolygonF(QRectF(center.x() - r, center.y() - r, size, size));
  // Supplies point up into the network, demands down out of it.
  const double tip = shape == Shape::Supply ? -r : r;
  return {QVector<QPointF>{center + QPointF(-r, -tip), center + QPointF(r, -tip), center + QPointF(0.0, tip)}};
}

} // namespace

NodeLayer::NodeLayer() {
  setRenderHint(RenderAntialiased);
  setZ(NodeZ);
}

void NodeLayer::setNodes(const NetGeometry &geometry) {
  std::vector<SpatialIndex::Box> boxes;
  std::vector<Record> records;
  std::array<std::size_t, Shapes> counts{};
  boxes.reserve(geometry.nodes().size());
  records.reserve(geometry.nodes().size());
  for (Index i = 0; i < geometry.nodes().size(); ++i) {
    const NetGeometry::Node &node = geometry.nodes()[i];
    if (!node.isPlaced || node.isDrive)
      continue;
    boxes.push_back({node.x, node.y, node.x, node.y});
    const Shape shape = node.isIdle ? Shape::Junction : node.shape;
    ++counts[static_cast<std::size_t>(shape)];
    records.push_back({node.x, node.y, i, shape, NodeLook(), false});
  }
  m_typicalLength = geometry.typicalLength();
  for (std::size_t shape = 0; shape < Shapes; ++shape)
    m_roomOfShapes[shape] = Detail::roomOf(geometry.area(), counts[shape]);
  const std::vector<Index> order = m_index.build(boxes);
  m_records.clear();
  m_records.reserve(order.size());
  m_ofNodes.assign(geometry.nodes().size(), NoIndex);
  for (const Index i : order) {
    m_ofNodes[records[i].node] = toIndex(m_records.size());
    m_records.push_back(records[i]);
  }
}

void NodeLayer::setLooks(const std::vector<NodeLook> &looks) {
  m_isSizedByValue = false;
  m_hasEmphasised = false;
  for (Record &record : m_records) {
    record.look = looks[record.node];
    m_hasEmphasised = m_hasEmphasised || record.look.isEmphasised;
    m_isSizedByValue = m_isSizedByValue || record.look.size != m_records.front().look.size;
  }
}

void NodeLayer::setVisibility(const VisibilityRules &rules) {
  const bool isAny = rules.isAny();
  for (Record &record : m_records)
    record.isOff = isAny && rules.of({NetData::Node, record.node}) == VisibilityRules::State::Off;
}

void NodeLayer::clear() {
  m_records.clear();
  m_ofNodes.clear();
  m_index.clear();
}

NodeLayer::Sizes NodeLayer::sizesIn(const Projection &projection) const {
  constexpr Sizes Shares{0.9, 2.8, 1.7, 2.3};  // junctions, supplies, demands, held pressures
  constexpr Sizes None{0.0, 12.0, 22.0, 12.0}; // px of room without which those of a shape are left out,
  constexpr Sizes All{1.0, 36.0, 55.0, 36.0};  // and from which on they are all there
  constexpr double SmallestOfValue = 0.8;
  const double scale = projection.scale();
  const double room = m_typicalLength * scale;
  const double common = Detail(room).nodeScale();
  Sizes sizes{};
  for (std::size_t shape = 0; shape < Shapes; ++shape) {
    const bool isJunction = shape == static_cast<std::size_t>(Shape::Junction);
    // Few stations stand out from however many junctions.
    const double least = isJunction ? 0.0 : 0.6;
    const double presence = isJunction ? 1.0 : Detail::presence(m_roomOfShapes[shape] * scale, None[shape], All[shape]);
    sizes[shape] = std::max(common, least) * Shares[shape] * presence;
    if (m_isSizedByValue && common > 0.0)
      sizes[shape] = std::max(sizes[shape], SmallestOfValue * Shares[shape] * Detail::presence(room, 4.0, 9.0));
  }
  return sizes;
}

double NodeLayer::sizeOf(Index node, const Projection &projection) const {
  const Index number = node < m_ofNodes.size() ? m_ofNodes[node] : NoIndex;
  if (number == NoIndex || !m_records[number].isDrawn())
    return 0.0;
  const double size = sizeOf(m_records[number], sizesIn(projection));
  return isSeen(size) ? size : 0.0;
}

void NodeLayer::find(const Projection &projection, const QPointF &point, double tolerance, std::vector<Hit> &hits) const {
  const Sizes sizes = sizesIn(projection);
  m_index.query(projection.around(point, tolerance + LargestReach), [&](Index i) {
    const Record &record = m_records[i];
    const QPointF to = projection.map(record.x, record.y) - point;
    const double distance = std::hypot(to.x(), to.y());
    const double size = sizeOf(record, sizes);
    if (record.isDrawn() && isSeen(size) && distance - size * 0.5 <= tolerance)
      hits.push_back({{NetData::Node, record.node}, distance, HitRank::Point});
  });
}

std::vector<NodeLayer::VisibleNode> NodeLayer::visibleNodes(const Projection &projection, const Sizes &sizes) const {
  std::vector<VisibleNode> nodes;
  const QRectF area = projection.canvas().adjusted(-LargestReach, -LargestReach, LargestReach, LargestReach);
  m_index.query(projection.visible(LargestReach), [&](Index i) {
    const Record &record = m_records[i];
    const double size = sizeOf(record, sizes);
    if (!record.isDrawn() || !isSeen(size))
      return;
    const QPointF center = projection.map(record.x, record.y);
    if (area.contains(center))
      nodes.push_back({center, size, &record});
  });
  if (m_hasEmphasised) // they are the first to take their place
    std::stable_partition(nodes.begin(), nodes.end(),
                          [](const VisibleNode &node) { return node.record->look.isEmphasised; });
  return nodes;
}

void NodeLayer::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvasRect) const {
  const Projection projection(xMap, yMap, canvasRect);
  if (!projection.isValid())
    return;
  const Sizes sizes = sizesIn(projection);
  if (!m_hasEmphasised && !isAnySeen(sizes))
    return;
  const std::vector<VisibleNode> nodes = visibleNodes(projection, sizes);
  drawDots(*painter, nodes, canvasRect);
  drawStations(*painter, nodes, canvasRect);
}

void NodeLayer::drawDots(QPainter &painter, const std::vector<VisibleNode> &nodes, const QRectF &canvas) {
  constexpr double SizeStep = 0.25; // px: sizes are rounded so that many nodes share a pen
  CanvasGrid grid(canvas.adjusted(-LargestReach, -LargestReach, LargestReach, LargestReach), SmallestDot);
  QMap<QPair<double, QRgb>, QPolygonF> dots; // points of one pen
  for (const VisibleNode &node : nodes) {
    const bool isDot = node.record->shape == Shape::Junction || node.size < SmallestShape;
    if (isDot && grid.take(node.center))
      dots[{std::round(node.size / SizeStep) * SizeStep, node.record->look.color}].append(node.center);
  }
  for (const bool outlines : {true, false}) {
    for (auto batch = dots.cbegin(); batch != dots.cend(); ++batch) {
      const auto [size, color] = batch.key();
      const double outline = outlineWidth(size);
      if (outlines && outline <= 0.0)
        continue;
      const QColor ink = outlines ? QColor(color).darker(DarkerPercent) : QColor(color);
      painter.setPen(QPen(ink, outlines ? size + outline : size - outline, Qt::SolidLine, Qt::RoundCap));
      painter.drawPoints(batch.value());
    }
  }
}

void NodeLayer::drawStations(QPainter &painter, const std::vector<VisibleNode> &nodes, const QRectF &canvas) {
  CanvasGrid grid(canvas.adjusted(-LargestReach, -LargestReach, LargestReach, LargestReach), SmallestShape);
  for (const VisibleNode &node : nodes) {
    if (node.record->shape == Shape::Junction || node.size < SmallestShape || !grid.take(node.center))
      continue;
    const QColor color(node.record->look.color);
    painter.setPen(QPen(color.darker(DarkerPercent), outlineWidth(node.size), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(color);
    painter.drawPolygon(shapeAround(node.center, node.record->shape, node.size));
  }
}

NodeLayer::ShapesSeen NodeLayer::shapesSeen(const Projection &projection) const {
  ShapesSeen seen;
  const Sizes sizes = sizesIn(projection);
  m_index.query(projection.visible(0.0), [&](Index i) {
    const Record &record = m_records[i];
    if (record.isDrawn() && sizeOf(record, sizes) >= SmallestShape &&
        projection.canvas().contains(projection.map(record.x, record.y)))
      seen.set(static_cast<std::size_t>(record.shape));
  });
  return seen;
}

void NodeLayer::drawKey(QPainter &painter, NetGeometry::NodeShape shape, const QPointF &center, double size) {
  const QColor color(Qt::lightGray);
  painter.setPen(QPen(color.darker(DarkerPercent), 1.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(color);
  painter.drawPolygon(shapeAround(center, shape, size));
}
