#include "export/networklegend.h"

#include "export/legendparts.h"

#include <drawing/elementlooks.h>
#include <drawing/nodelayer.h>
#include <model/displayformat.h>
#include <model/elementtypes.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

using Shape = NetGeometry::NodeShape;

constexpr double SignWidth = 34.0;

/// One element each whose value is the smallest, near the middle and the largest of those that are drawn.
std::vector<std::size_t> samples(const std::vector<double> &values, const QwtInterval &range) {
  const std::array<double, 3> wanted{range.minValue(), (range.minValue() + range.maxValue()) * 0.5, range.maxValue()};
  std::vector<std::size_t> found;
  for (const double value : wanted) {
    std::optional<std::size_t> best;
    for (std::size_t i = 0; i < values.size(); ++i) {
      if (values[i] != NetData::NoValue && (!best || std::abs(values[i] - value) < std::abs(values[*best] - value)))
        best = i;
    }
    const auto isSame = [&](std::size_t other) {
      return values[other] == values[*best];
    };
    if (best && std::none_of(found.begin(), found.end(), isSame))
      found.push_back(*best);
  }
  return found;
}

/// A node as the drawing has it.
void paintNode(QPainter &painter, const QPointF &center, Shape shape, const NodeLook &look) {
  NetGeometry::Records records;
  NetGeometry::Node node;
  node.isPlaced = true;
  node.shape = shape;
  records.nodes.push_back(node);
  const NetGeometry geometry(std::move(records), 0);
  NodeLayer layer;
  layer.setNodes(geometry);
  layer.setLooks({look});
  constexpr double Side = 60.0; // px, so that there is room for it
  QwtScaleMap map;
  map.setScaleInterval(-1.0, 1.0);
  map.setPaintInterval(0.0, Side);
  painter.translate(center - QPointF(Side, Side) * 0.5);
  layer.draw(&painter, map, map, QRectF(0.0, 0.0, Side, Side));
}

QString shapeName(Shape shape) {
  switch (shape) {
  case Shape::Supply:
    return NetworkLegend::tr("supply");
  case Shape::Demand:
    return NetworkLegend::tr("demand");
  case Shape::Pressure:
    return NetworkLegend::tr("held pressure");
  case Shape::Junction:
    break;
  }
  return QString();
}

} // namespace

NetworkLegend::NetworkLegend(const PageDrawing &drawing)
    : m_drawing(drawing) {
  SymbolTable table;
  table.read(drawing.source().folder + QStringLiteral("/symbols")); // what is wrong with it was told when it was drawn
  m_symbols.setTable(table);
}

std::vector<PaperLegendPart> NetworkLegend::blocks() {
  std::vector<PaperLegendPart> blocks;
  addColors(blocks);
  addSizes(blocks);
  addSymbols(blocks);
  return blocks;
}

void NetworkLegend::addColors(std::vector<PaperLegendPart> &blocks) const {
  const PlotSettings &settings = m_drawing.settings();
  const DrawValues &values = m_drawing.update().values();
  const ColorScale::Subject subject = m_drawing.update().coloured();
  if (subject == ColorScale::Subject::SearchResults)
    return;
  const DrawValues::Column &edges = values.of(Aspect::EdgeColor);
  const DrawValues::Column &nodes = values.of(Aspect::NodeColor);
  const bool showsNodes = subject == ColorScale::Subject::EdgesAndNodes && nodes.isAny();
  const bool isOne = showsNodes && ColorScale::isShared(settings, values);
  if (edges.isAny())
    blocks.push_back(LegendParts::colors((isOne ? tr("Edges and nodes: %1") : tr("Edges: %1")).arg(edges.function.title),
                                         ColorScale::edgeColors(settings, edges), edges));
  if (showsNodes && !isOne)
    blocks.push_back(
        LegendParts::colors(tr("Nodes: %1").arg(nodes.function.title), ColorScale::nodeColors(settings, values), nodes));
  std::vector<LegendParts::Row> rows;
  for (const ColorScale::Swatch &swatch : m_drawing.update().swatches())
    rows.push_back({[color = QColor(swatch.color)](QPainter &painter, const QPointF &center) {
                      painter.setPen(QPen(color, 3.0, Qt::SolidLine, Qt::FlatCap));
                      painter.drawLine(center - QPointF(SignWidth * 0.5, 0.0), center + QPointF(SignWidth * 0.5, 0.0));
                    },
                    swatch.text});
  if (!rows.empty())
    blocks.push_back(LegendParts::rows(tr("Other edges"), std::move(rows), SignWidth));
}

void NetworkLegend::addSizes(std::vector<PaperLegendPart> &blocks) const {
  const NetUpdate &update = m_drawing.update();
  const ElementLooks looks(update.geometry(), update.values(), m_drawing.settings(), update.layers(),
                           m_drawing.settings().nodeMag);
  const auto textOf = [](const DrawValues::Column &column, std::size_t element) {
    constexpr int Digits = 4;
    const QString number = DisplayFormat::number(column.function.toDisplay(column.ofElements[element]), Digits);
    return column.function.unit.isEmpty() ? number : number + QLatin1Char(' ') + Units::written(column.function.unit);
  };
  if (const DrawValues::Column &widths = update.values().of(Aspect::EdgeWidth); widths.isAny()) {
    const std::vector<EdgeLook> edges = looks.edges();
    std::vector<LegendParts::Row> rows;
    for (const std::size_t sample : samples(widths.ofElements, widths.range))
      rows.push_back({[width = edges[sample].width](QPainter &painter, const QPointF &center) {
                        painter.setPen(QPen(QColor(70, 78, 86), width, Qt::SolidLine, Qt::FlatCap));
                        painter.drawLine(center - QPointF(SignWidth * 0.5, 0.0), center + QPointF(SignWidth * 0.5, 0.0));
                      },
                      textOf(widths, sample)});
    blocks.push_back(LegendParts::rows(tr("Line width: %1").arg(widths.function.title), std::move(rows), SignWidth));
  }
  if (const DrawValues::Column &sizes = update.values().of(Aspect::NodeSize); sizes.isAny()) {
    const std::vector<NodeLook> nodes = looks.nodes(false);
    std::vector<LegendParts::Row> rows;
    for (const std::size_t sample : samples(sizes.ofElements, sizes.range))
      rows.push_back({[look = nodes[sample]](QPainter &painter, const QPointF &center) {
                        paintNode(painter, center, Shape::Junction, look);
                      },
                      textOf(sizes, sample)});
    blocks.push_back(LegendParts::rows(tr("Node size: %1").arg(sizes.function.title), std::move(rows), SignWidth));
  }
}

std::set<QString> NetworkLegend::visibleTypes() const {
  const NetGeometry &geometry = m_drawing.update().geometry();
  std::set<QString> types;
  for (const SymbolLayer::Placed &placed : m_drawing.update().determineVisibleSymbols()) {
    if (placed.isFigure)
      continue;
    types.insert(placed.item.kind == NetData::Edge ? QString(QLatin1Char(geometry.edges()[placed.item.index].type))
                                                   : QStringLiteral("d"));
  }
  return types;
}

std::set<Shape> NetworkLegend::visibleShapes() const {
  std::set<Shape> shapes;
  for (const NetGeometry::Node &node : m_drawing.update().geometry().nodes()) {
    if (node.isPlaced && !node.isDrive && node.shape != Shape::Junction && m_drawing.visible().contains(node.x, node.y))
      shapes.insert(node.shape);
  }
  return shapes;
}

void NetworkLegend::addSymbols(std::vector<PaperLegendPart> &blocks) {
  std::vector<LegendParts::Row> rows;
  for (const Shape shape : visibleShapes()) {
    NodeLook look;
    look.color = qRgb(160, 168, 176);
    look.size = m_drawing.settings().nodeMag;
    rows.push_back({[shape, look](QPainter &painter, const QPointF &center) { paintNode(painter, center, shape, look); },
                    shapeName(shape)});
  }
  for (const QString &type : visibleTypes()) {
    const Index symbol = m_symbols.find(type);
    const ElementType *known = ElementTypes::byCode(type);
    if (symbol == NoIndex)
      continue;
    rows.push_back({[this, symbol](QPainter &painter, const QPointF &center) {
                      constexpr double Size = LegendParts::LineHeight;
                      m_symbols.draw(painter, symbol, center, Size, 0.0);
                    },
                    known == nullptr ? type : known->longName});
  }
  if (!rows.empty())
    blocks.push_back(LegendParts::rows(tr("Symbols"), std::move(rows), SignWidth));
}
