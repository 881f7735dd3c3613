#include "geometry/canvasgrid.h"

#include <drawing/layergeometry.h>
#include <drawing/nodelayer.h>

#include <QMap>

#include <algorithm>

namespace {

using Shape = NetGeometry::NodeShape;

constexpr double NodeZ = 20.0;
constexpr QRgb Outline = 0xff3c4650;
constexpr double LargestReach = 20.0; // px: half the largest node
constexpr double StationShare = 2.5;  // of the size of a junction of the same look
constexpr double SmallestStation = 5.0;

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
  boxes.reserve(geometry.nodes().size());
  records.reserve(geometry.nodes().size());
  for (Index i = 0; i < geometry.nodes().size(); ++i) {
    const NetGeometry::Node &node = geometry.nodes()[i];
    if (!node.isPlaced || node.isDrive)
      continue;
    boxes.push_back({node.x, node.y, node.x, node.y});
    records.push_back({node.x, node.y, i, node.shape, NodeLook(), false});
  }
  const std::vector<Index> order = m_index.build(boxes);
  m_records.clear();
  m_records.reserve(order.size());
  for (const Index i : order)
    m_records.push_back(records[i]);
}

void NodeLayer::setLooks(const std::vector<NodeLook> &looks) {
  for (Record &record : m_records)
    record.look = looks[record.node];
}

void NodeLayer::setVisibility(const VisibilityRules &rules) {
  const bool isAny = rules.isAny();
  for (Record &record : m_records)
    record.isOff = isAny && rules.of({NetData::Node, record.node}) == VisibilityRules::State::Off;
}

void NodeLayer::clear() {
  m_records.clear();
  m_index.clear();
}

double NodeLayer::sizeOf(const Record &record) {
  return record.shape == Shape::Junction ? record.look.size : std::max(SmallestStation, record.look.size * StationShare);
}

void NodeLayer::find(const Projection &projection, const QPointF &point, double tolerance, std::vector<Hit> &hits) const {
  m_index.query(projection.around(point, tolerance + LargestReach), [&](Index i) {
    const Record &record = m_records[i];
    const QPointF to = projection.map(record.x, record.y) - point;
    const double distance = std::hypot(to.x(), to.y());
    if (record.isDrawn() && distance - sizeOf(record) * 0.5 <= tolerance)
      hits.push_back({{NetData::Node, record.node}, distance, HitRank::Point});
  });
}

std::vector<NodeLayer::VisibleNode> NodeLayer::visibleNodes(const Projection &projection) const {
  std::vector<VisibleNode> nodes;
  const QRectF area = projection.canvas().adjusted(-LargestReach, -LargestReach, LargestReach, LargestReach);
  m_index.query(projection.visible(LargestReach), [&](Index i) {
    const Record &record = m_records[i];
    const QPointF center = projection.map(record.x, record.y);
    if (record.isDrawn() && area.contains(center))
      nodes.push_back({center, &record});
  });
  return nodes;
}

void NodeLayer::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvasRect) const {
  const Projection projection(xMap, yMap, canvasRect);
  if (!projection.isValid())
    return;
  const std::vector<VisibleNode> nodes = visibleNodes(projection);
  if (nodes.empty())
    return;
  // A node may take a third of the room that there is for each.
  constexpr double ShareOfRoom = 0.33;
  const double room = std::sqrt(canvasRect.width() * canvasRect.height() / static_cast<double>(nodes.size()));
  drawJunctions(*painter, nodes, room * ShareOfRoom, canvasRect);
  drawStations(*painter, nodes, room, canvasRect);
}

void NodeLayer::drawJunctions(QPainter &painter, const std::vector<VisibleNode> &nodes, double largest,
                              const QRectF &canvas) {
  constexpr double TooSmall = 1.5; // px: such dots would only make the lines look dirty
  constexpr double OutlineWidth = 1.0;
  if (largest < TooSmall)
    return;
  CanvasGrid grid(canvas.adjusted(-LargestReach, -LargestReach, LargestReach, LargestReach),
                  std::max(TooSmall, largest * 0.5));
  QMap<QPair<double, QRgb>, QPolygonF> dots; // points of one pen
  for (const VisibleNode &node : nodes) {
    if (node.record->shape == Shape::Junction && grid.take(node.center))
      dots[{std::min(node.record->look.size, largest), node.record->look.color}].append(node.center);
  }
  for (const bool outlines : {true, false}) {
    for (auto batch = dots.cbegin(); batch != dots.cend(); ++batch) {
      const auto [size, color] = batch.key();
      if (outlines)
        painter.setPen(QPen(QColor(Outline), size + OutlineWidth, Qt::SolidLine, Qt::RoundCap));
      else
        painter.setPen(QPen(QColor(color), std::max(size - OutlineWidth, 1.0), Qt::SolidLine, Qt::RoundCap));
      painter.drawPoints(batch.value());
    }
  }
}

void NodeLayer::drawStations(QPainter &painter, const std::vector<VisibleNode> &nodes, double largest,
                             const QRectF &canvas) {
  CanvasGrid grid(canvas.adjusted(-LargestReach, -LargestReach, LargestReach, LargestReach), SmallestStation);
  painter.setPen(QPen(QColor(Outline), 1.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  for (const VisibleNode &node : nodes) {
    if (node.record->shape == Shape::Junction || !grid.take(node.center))
      continue;
    painter.setBrush(QColor(node.record->look.color));
    painter.drawPolygon(
        shapeAround(node.center, node.record->shape, std::max(SmallestStation, std::min(sizeOf(*node.record), largest))));
  }
}

void NodeLayer::drawKey(QPainter &painter, NetGeometry::NodeShape shape, const QPointF &center, double size) {
  painter.setPen(QPen(QColor(Outline), 1.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(QColor(Qt::lightGray));
  painter.drawPolygon(shapeAround(center, shape, size));
}
