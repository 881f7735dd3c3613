#include "layers/elementmarks.h"

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

std::optional<QLineF> ElementMarks::lineOf(NetGeometry::Item item) const {
  const NetGeometry &geometry = *m_drawing.geometry;
  const std::optional<QPointF> center = geometry.center(item);
  if (!center)
    return std::nullopt;
  if (item.kind != NetData::Edge) {
    const Index driven = item.kind == NetData::Node ? geometry.nodes()[item.index].driven : NoIndex;
    const QPointF middle = driven == NoIndex
                               ? m_projection.map(center->x(), center->y())
                               : besideLine(m_projection.map(geometry.line(geometry.edges()[driven])),
                                            static_cast<double>(geometry.edges()[driven].lane), m_drawing.symbolSize);
    return QLineF(middle, middle);
  }
  const NetGeometry::Edge &edge = geometry.edges()[item.index];
  return LaneWay(m_projection.map(geometry.line(edge)),
                 static_cast<double>(edge.lane) * laneSpacing(edge.type != 'p', widthOf(item), m_drawing.symbolSize))
      .middle();
}

double ElementMarks::widthOf(NetGeometry::Item item) const {
  const std::vector<float> *widths = m_drawing.edgeWidths;
  return widths == nullptr || item.index >= widths->size() ? 1.0 : static_cast<double>((*widths)[item.index]);
}

/// Of what stands at a point, from its middle; 0 of a plain line.
double ElementMarks::reachOf(NetGeometry::Item item) const {
  switch (item.kind) {
  case NetData::AssembledSubnet:
    return m_drawing.symbolSize * (1.0 + m_drawing.subnetFactor) * Half;
  case NetData::Edge:
    return m_drawing.geometry->edges()[item.index].type == 'p' ? 0.0 : m_drawing.symbolSize * Half;
  case NetData::TextBox:
    return m_drawing.symbolSize * Half;
  default:
    return m_drawing.geometry->nodes()[item.index].isDrive ? m_drawing.symbolSize * Half : m_drawing.nodeSize;
  }
}

bool ElementMarks::add(NetGeometry::Item item) {
  constexpr double Margin = 30.0; // px that a mark may be broader than its element
  if (m_drawing.layers != nullptr && m_drawing.layers->isHidden(item))
    return false;
  std::optional<QLineF> line = lineOf(item);
  const double reach = reachOf(item) + Margin;
  if (!line || !clipLine(*line, m_projection.canvas().adjusted(-reach, -reach, reach, reach)))
    return false;
  ++m_count;
  if (item.kind == NetData::AssembledSubnet) {
    const double half = reachOf(item);
    m_boxes.emplace_back(line->center() - QPointF(half, half), QSizeF(half, half) * 2.0);
    return true;
  }
  if (!line->isNull())
    m_lines[steps(widthOf(item))].push_back(*line);
  if (reachOf(item) > 0.0 || line->isNull())
    m_discs[steps(2.0 * std::max(reachOf(item), 1.0))].append(line->center());
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
