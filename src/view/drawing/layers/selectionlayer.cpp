#include "geometry/canvasgrid.h"

#include <base/settings.h>
#include <drawing/selectionlayer.h>

#include <algorithm>

namespace {

constexpr double SelectionZ = 3000.0; // above everything
constexpr double LineMargin = 8.0;    // px, width of the mark along a line

QColor colorOf(const Setting<QString> &name, const Setting<int> &alpha) {
  constexpr int Opaque = 255;
  QColor color(name.value());
  if (!color.isValid())
    color = Qt::red;
  color.setAlpha(qBound(0, alpha.value(), Opaque));
  return color;
}

} // namespace

SelectionLayer::SelectionLayer() {
  setRenderHint(RenderAntialiased);
  setZ(SelectionZ);
  hide();
  readSettings();
}

void SelectionLayer::setGeometry(const NetGeometry *geometry) {
  m_geometry = geometry;
  m_items.clear();
  m_hovered.reset();
}

bool SelectionLayer::setHovered(std::optional<NetGeometry::Item> item) {
  if (item == m_hovered)
    return false;
  m_hovered = item;
  return true;
}

SelectionLayer::Style SelectionLayer::styleOf(const Settings::SelectionMark &mark) {
  Style found;
  found.brush = QBrush(colorOf(mark.brushColor, mark.brushAlpha),
                       static_cast<Qt::BrushStyle>(qBound(0, mark.brushStyle.value(), int(Qt::Dense7Pattern))));
  found.pen = QPen(colorOf(mark.penColor, mark.penAlpha), 1.5);
  return found;
}

void SelectionLayer::readSettings() {
  m_element = styleOf(Settings::ElementSelection);
  m_subnet = styleOf(Settings::SubnetSelection);
  m_subnetFactor = qBound(0.0, Settings::SubnetSelectionSizeFactor.value(), 10.0);
}

std::optional<QLineF> SelectionLayer::lineOf(NetGeometry::Item item, const Projection &projection) const {
  const std::optional<QPointF> center = m_geometry->center(item);
  if (!center)
    return std::nullopt;
  if (item.kind != NetData::Edge) {
    const Index driven = item.kind == NetData::Node ? m_geometry->nodes()[item.index].driven : NoIndex;
    const QPointF middle = driven == NoIndex
                               ? projection.map(center->x(), center->y())
                               : besideLine(projection.map(m_geometry->line(m_geometry->edges()[driven])),
                                            static_cast<double>(m_geometry->edges()[driven].lane), m_symbolSize);
    return QLineF(middle, middle);
  }
  const NetGeometry::Edge &edge = m_geometry->edges()[item.index];
  return LaneWay(projection.map(m_geometry->line(edge)),
                 static_cast<double>(edge.lane) * laneSpacing(edge.type != 'p', 1.0, m_symbolSize))
      .middle();
}

double SelectionLayer::reachOf(NetGeometry::Item item) const {
  constexpr double Margin = 5.0;
  constexpr double Half = 0.5;
  switch (item.kind) {
  case NetData::AssembledSubnet:
    return m_symbolSize * (1.0 + m_subnetFactor) * Half;
  case NetData::Edge: {
    const bool hasSymbol = m_geometry->edges()[item.index].type != 'p';
    return hasSymbol ? m_symbolSize * Half + Margin : 0.0;
  }
  case NetData::TextBox:
    return m_symbolSize * Half;
  default:
    return m_nodeSize + Margin;
  }
}

void SelectionLayer::drawItem(QPainter &painter, const Projection &projection, NetGeometry::Item item,
                              const Style &style) const {
  std::optional<QLineF> line = lineOf(item, projection);
  const double reach = line ? reachOf(item) : 0.0;
  const double margin = std::max(reach, LineMargin);
  if (!line || !clipLine(*line, projection.canvas().adjusted(-margin, -margin, margin, margin)))
    return;
  if (!line->isNull()) {
    painter.setPen(QPen(style.brush, LineMargin, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(*line);
    painter.setPen(style.pen);
    painter.drawLine(*line);
  }
  if (reach <= 0.0 && !line->isNull())
    return;
  painter.setPen(style.pen);
  painter.setBrush(style.brush);
  const double radius = std::max(reach, LineMargin * 0.5);
  if (item.kind == NetData::AssembledSubnet)
    painter.drawRect(QRectF(line->center() - QPointF(radius, radius), QSizeF(radius, radius) * 2.0));
  else
    painter.drawEllipse(line->center(), radius, radius);
}

void SelectionLayer::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                          const QRectF &canvasRect) const {
  constexpr std::size_t ManyMarks = 5000; // of so many, those on the same spot tell nothing more
  constexpr double CellLength = 5.0;      // px
  const Projection projection(xMap, yMap, canvasRect);
  if (m_geometry == nullptr || !projection.isValid())
    return;
  std::optional<CanvasGrid> grid;
  if (m_items.size() > ManyMarks)
    grid.emplace(canvasRect, CellLength);
  for (const NetGeometry::Item item : m_items) {
    if (m_layers != nullptr && m_layers->isHidden(item))
      continue;
    if (grid) {
      const std::optional<QPointF> center = m_geometry->center(item);
      if (!center || !grid->take(projection.map(center->x(), center->y())))
        continue;
    }
    drawItem(*painter, projection, item, item.kind == NetData::AssembledSubnet ? m_subnet : m_element);
  }
  if (m_hovered) {
    const QColor color(20, 120, 220);
    QColor ground = color;
    constexpr int GroundAlpha = 60;
    ground.setAlpha(GroundAlpha);
    drawItem(*painter, projection, *m_hovered, {ground, QPen(color, 1.5)});
  }
}
