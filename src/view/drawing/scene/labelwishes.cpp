#include "scene/labelwishes.h"

#include <drawing/edgelayer.h>
#include <drawing/nodelayer.h>
#include <drawing/subnetlayer.h>
#include <drawing/symbollayer.h>
#include <drawing/textboxlayer.h>

#include <cmath>

namespace {

enum Rank { SubnetRank, StationRank, SetPointRank, PipeRank, JunctionRank };

} // namespace

void LabelWishes::add(NetGeometry::Item item, const QLineF &position, bool isLine, double clearance, int rank,
                      double weight) {
  if (m_drawing.visibility.of(item) != VisibilityRules::State::On || m_drawing.layers.isHidden(item))
    return;
  LabelWish wish;
  wish.candidate.item = item;
  wish.candidate.isLine = isLine;
  wish.candidate.line = m_projection.map(position);
  wish.candidate.clearance = clearance;
  wish.position = position;
  wish.rank = rank;
  wish.weight = weight;
  wishes.push_back(wish);
}

void LabelWishes::collectSubnets() {
  for (const SubnetLayer::Placed &placed : m_drawing.subnets.layOut(m_projection)) {
    areas.push_back(placed.box);
    const NetGeometry::Item item{NetData::AssembledSubnet, placed.subnet};
    const QPointF center = *m_drawing.geometry.center(item);
    add(item, {center, center}, false, placed.box.width() * 0.5, SubnetRank, 0.0);
  }
}

void LabelWishes::collectSymbols() {
  for (const SymbolLayer::Placed &placed : m_drawing.symbols.laidOut(m_projection)) {
    areas.push_back(placed.obstacle());
    const bool isNode = placed.item.kind == NetData::Node; // a drive may be drawn beside where it stands
    const QPointF center = isNode ? m_projection.unmap(placed.center) : *m_drawing.geometry.center(placed.item);
    const QPointF aside = placed.center - m_projection.map(center.x(), center.y());
    const double flow = placed.item.kind == NetData::Edge ? m_drawing.flow[placed.item.index] : 0.0;
    add(placed.item, {center, center}, false, placed.reach() + std::hypot(aside.x(), aside.y()), StationRank, flow);
    if (isNode)
      m_nodesWithSymbol.insert(placed.item.index);
  }
}

void LabelWishes::collectNodes() {
  constexpr std::size_t MostDots = 3000; // more would leave no room for labels
  std::vector<QRectF> dots;
  m_drawing.nodes.forEachVisible(m_projection, [&](Index node, const QPointF &center, double size) {
    const NetGeometry::Node &record = m_drawing.geometry.nodes()[node];
    const bool isJunction = record.shape == NetGeometry::NodeShape::Junction;
    const QPointF position(record.x, record.y);
    dots.emplace_back(center - QPointF(size, size) * 0.5, QSizeF(size, size));
    if (m_nodesWithSymbol.count(node) == 0) // labelled there
      add({NetData::Node, node}, {position, position}, false, size * 0.5, isJunction ? JunctionRank : SetPointRank, 0.0);
  });
  if (dots.size() <= MostDots)
    areas.insert(areas.end(), dots.begin(), dots.end());
}

void LabelWishes::collectPipes() {
  const NetGeometry &geometry = m_drawing.geometry;
  constexpr std::size_t MostLines = 3000; // among more there is no room without one
  m_drawing.edges.forEachVisible(m_projection, [&](Index edge, const QLineF &drawn, double width) {
    const NetGeometry::Edge &record = geometry.edges()[edge];
    if (lines.size() <= MostLines)
      lines.emplace_back(drawn, width);
    if (record.type != 'p')
      return; // labelled at its symbol
    const QLineF straight = geometry.line(record);
    const double aside = record.lane == 0.0F ? 0.0 : distanceToLine(drawn.center(), m_projection.map(straight));
    add({NetData::Edge, edge}, straight, true, width * 0.5 + aside, PipeRank, m_drawing.flow[edge]);
  });
  if (lines.size() > MostLines)
    lines.clear();
}

LabelWishes::LabelWishes(const DrawnScene &drawing, const Projection &projection)
    : m_drawing(drawing)
    , m_projection(projection) {
  collectSubnets();
  collectSymbols();
  for (const QRectF &area : m_drawing.textBoxes.areas(m_projection))
    areas.push_back(area);
  collectNodes();
  collectPipes();
}
