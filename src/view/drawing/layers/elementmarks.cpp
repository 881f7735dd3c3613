#include "layers/elementmarks.h"

#include <drawing/edgelayer.h>
#include <drawing/nodelayer.h>
#include <drawing/subnetlayer.h>
#include <drawing/symbollayer.h>
#include <drawing/textboxlayer.h>

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
  const std::optional<QPointF> center = m_drawing.geometry->center(item);
  if (!center)
    return std::nullopt;
  if (item.kind == NetData::Edge)
    return lineOfEdge(item.index);
  const Index driven = item.kind == NetData::Node ? m_drawing.geometry->nodes()[item.index].driven : NoIndex;
  const QPointF middle = driven == NoIndex ? m_projection.map(center->x(), center->y()) : placeOfDrive(item, driven);
  return QLineF(middle, middle);
}

QLineF ElementMarks::lineOfEdge(Index number) const {
  const NetGeometry::Edge &edge = m_drawing.geometry->edges()[number];
  const double width = widthOf({NetData::Edge, number});
  return LaneWay(m_projection.map(m_drawing.geometry->line(edge)),
                 static_cast<double>(edge.lane) * laneSpacing(edge.type != 'p', width, symbolSize()))
      .middle();
}

/// Beside its compressor where it is drawn; otherwise that stands for it.
QPointF ElementMarks::placeOfDrive(NetGeometry::Item drive, Index driven) const {
  const NetGeometry::Edge &compressor = m_drawing.geometry->edges()[driven];
  if (m_drawing.sizes.symbols != nullptr && m_symbols.count(drive) == 0)
    return lineOfEdge(driven).center();
  return driveBeside(m_projection.map(m_drawing.geometry->line(compressor)), static_cast<double>(compressor.lane),
                     compressor.isBetweenLanes, symbolSize());
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
  case NetData::Node:
    return sizes.nodes == nullptr ? 0.0 : sizes.nodes->sizeOf(item.index, m_projection) * Half;
  default:
    return 0.0;
  }
}

bool ElementMarks::add(NetGeometry::Item item) {
  constexpr double Margin = 30.0;      // px that a mark may be broader than its element
  constexpr double ShortestSeen = 2.0; // px
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
  if (const QRectF text = item.kind == NetData::TextBox ? textArea(item.index) : QRectF(); !text.isEmpty()) {
    m_boxes.push_back(text);
    return true;
  }
  const double casing = casingOf(item);
  const bool isLine = line->length() >= ShortestSeen;
  if (isLine)
    m_lines[steps(widthOf(item) + 2.0 * casing)].push_back(*line);
  if (reach > 0.0)
    m_discs[steps(2.0 * (reach + casing))].append(line->center());
  else if (!isLine)
    m_dots.append(line->center());
  return true;
}

QRectF ElementMarks::textArea(Index textBox) {
  if (!m_texts)
    m_texts = m_drawing.sizes.textBoxes == nullptr ? std::map<Index, QRectF>()
                                                   : m_drawing.sizes.textBoxes->areasByTextBox(m_projection);
  const auto found = m_texts->find(textBox);
  return found == m_texts->end() ? QRectF() : found->second;
}

double ElementMarks::casingOf(NetGeometry::Item item) const {
  return m_drawing.sizes.casing ? m_drawing.sizes.casing(item, m_widthFactor) : 0.0;
}

void ElementMarks::draw(QPainter &painter, const QBrush &brush, double margin, Qt::PenCapStyle caps) const {
  constexpr double Dot = 1.0; // px across
  drawSeen(painter, brush, margin, caps);
  painter.setPen(QPen(brush, Dot + 2.0 * margin, Qt::SolidLine, Qt::RoundCap));
  painter.drawPoints(m_dots);
}

void ElementMarks::drawSeen(QPainter &painter, const QBrush &brush, double margin, Qt::PenCapStyle caps) const {
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
