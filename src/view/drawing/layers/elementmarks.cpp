#include "layers/elementmarks.h"

#include <drawing/edgelayer.h>
#include <drawing/nodelayer.h>
#include <drawing/subnetlayer.h>
#include <drawing/symbollayer.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr double Step = 0.5; // px: sizes are rounded so that many marks share a pen
constexpr double Half = 0.5;

int steps(double size) {
  constexpr double Largest = 600.0; // px
  return static_cast<int>(std::ceil(qBound(0.0, size, Largest) / Step));
}

} // namespace

ElementMarks::ElementMarks(const Drawing &drawing, const Projection &projection)
    : m_drawing(drawing)
    , m_projection(projection) {
  if (!projection.isValid())
    return;
  if (m_drawing.sizes.edges != nullptr)
    m_widthFactor = m_drawing.sizes.edges->widthFactor(projection);
  if (m_drawing.sizes.symbols == nullptr)
    return;
  for (const SymbolLayer::Placed &placed : m_drawing.sizes.symbols->laidOut(projection))
    m_symbols[placed.item] = placed.reach();
}

std::optional<QLineF> ElementMarks::lineOf(NetGeometry::Item item) const {
  const NetGeometry &geometry = *m_drawing.geometry;
  const std::optional<QPointF> center = geometry.center(item);
  if (!center)
    return std::nullopt;
  if (item.kind != NetData::Edge) {
    const Index driven = item.kind == NetData::Node ? geometry.nodes()[item.index].driven : NoIndex;
    const QPointF middle = driven == NoIndex ? m_projection.map(center->x(), center->y())
                                             : driveBeside(m_projection.map(geometry.line(geometry.edges()[driven])),
                                                           static_cast<double>(geometry.edges()[driven].lane),
                                                           geometry.edges()[driven].isBetweenLanes, symbolSize());
    return QLineF(middle, middle);
  }
  const NetGeometry::Edge &edge = geometry.edges()[item.index];
  return LaneWay(m_projection.map(geometry.line(edge)),
                 static_cast<double>(edge.lane) * laneSpacing(edge.type != 'p', widthOf(item), symbolSize()))
      .middle();
}

double ElementMarks::widthOf(NetGeometry::Item item) const {
  const std::vector<float> *widths = m_drawing.sizes.edgeWidths;
  if (widths == nullptr || item.index >= widths->size())
    return 1.0;
  const auto width = static_cast<double>((*widths)[item.index]);
  return std::max(width * m_widthFactor, std::min(width, 1.0));
}

double ElementMarks::symbolSize() const {
  return m_drawing.sizes.symbols == nullptr ? 0.0 : m_drawing.sizes.symbols->size();
}

/// Of what stands at a point, from its middle; 0 of a line without a symbol, and of what is not drawn for want of room.
double ElementMarks::reachOf(NetGeometry::Item item) const {
  const DrawnSizes &sizes = m_drawing.sizes;
  if (const auto symbol = m_symbols.find(item); symbol != m_symbols.end())
    return symbol->second;
  switch (item.kind) {
  case NetData::AssembledSubnet:
    return sizes.subnets == nullptr ? 0.0
                                    : sizes.subnets->sizeOf(item.index, m_projection) * Half *
                                          std::max(1.0, (1.0 + m_drawing.subnetFactor) / SubnetLayer::LargerThanSymbols);
  case NetData::TextBox:
    return symbolSize() * Half;
  case NetData::Node:
    return sizes.nodes == nullptr ? 0.0 : sizes.nodes->sizeOf(item.index, m_projection) * Half;
  default:
    return 0.0;
  }
}

bool ElementMarks::add(NetGeometry::Item item) {
  constexpr double Margin = 30.0;     // px that a mark may be broader than its element
  constexpr double SmallestDot = 2.5; // px, that a mark surrounds where next to nothing is drawn
  if (m_drawing.layers != nullptr && m_drawing.layers->isHidden(item))
    return false;
  std::optional<QLineF> line = lineOf(item);
  const double reach = reachOf(item);
  const double seen = reach + Margin;
  if (!line || !clipLine(*line, m_projection.canvas().adjusted(-seen, -seen, seen, seen)))
    return false;
  ++m_count;
  if (item.kind == NetData::AssembledSubnet) {
    m_boxes.emplace_back(line->center() - QPointF(reach, reach), QSizeF(reach, reach) * 2.0);
    return true;
  }
  if (!line->isNull())
    m_lines[steps(widthOf(item))].push_back(*line);
  if (reach > 0.0 || line->isNull())
    m_discs[steps(2.0 * std::max(reach, SmallestDot))].append(line->center());
  return true;
}

void ElementMarks::draw(QPainter &painter, const QBrush &brush, double margin, Qt::PenCapStyle caps) const {
  for (const auto &[width, lines] : m_lines) {
    painter.setPen(QPen(brush, width * Step + 2.0 * margin, Qt::SolidLine, caps));
    painter.drawLines(lines.data(), toQt(lines.size()));
  }
  for (const auto &[diameter, points] : m_discs) {
    painter.setPen(QPen(brush, diameter * Step + 2.0 * margin, Qt::SolidLine, Qt::RoundCap));
    painter.drawPoints(points);
  }
  painter.setPen(Qt::NoPen);
  painter.setBrush(brush);
  for (const QRectF &box : m_boxes)
    painter.drawRect(box.adjusted(-margin, -margin, margin, margin));
}
