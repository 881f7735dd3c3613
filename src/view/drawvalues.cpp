#include <view/colormap.h>
#include <view/drawfunctions.h>
#include <view/drawvalues.h>
#include <view/networkgraph.h>

#include <algorithm>
#include <cmath>

namespace {

using Computed = DrawFunction::Computed;

QwtInterval rangeOf(const std::vector<double> &values) {
  double smallest = -NetData::NoValue;
  double largest = NetData::NoValue;
  for (const double value : values) {
    if (value == NetData::NoValue)
      continue;
    smallest = std::min(smallest, value);
    largest = std::max(largest, value);
  }
  return smallest <= largest ? QwtInterval(smallest, largest) : QwtInterval();
}

/// Fixed bounds take the place of those of the data. Bounds that are no numbers, or that leave nothing between them, are
/// not taken.
QwtInterval withFixedBounds(const QwtInterval &data, double minimum, double maximum) {
  if (!data.isValid())
    return data;
  QwtInterval range = data;
  if (std::isfinite(minimum) && minimum > PlotSettings::OpenMinimum)
    range.setMinValue(minimum);
  if (std::isfinite(maximum) && maximum < PlotSettings::OpenMaximum)
    range.setMaxValue(maximum);
  return range.maxValue() >= range.minValue() ? range : data;
}

/// About zero, so that both signs have their own colours.
QwtInterval centred(const QwtInterval &range) {
  const double largest = std::max(std::abs(range.minValue()), std::abs(range.maxValue()));
  return range.isValid() ? QwtInterval(-largest, largest) : range;
}

/// Values of nodes that are computed on the graph; empty for other functions.
std::vector<double> computed(const DrawFunction &function, const NetGeometry &geometry) {
  if (function.computed == Computed::Connectivity)
    return NetworkGraph(geometry).components();
  if (function.computed != Computed::AccumulatedLength)
    return {};
  const NetGeometry::Request lengths{{{PropertyKey::intern("length"), true}}, {}};
  return NetworkGraph(geometry).distances(geometry.values(lengths).ofEdges.front());
}

} // namespace

void DrawValues::read(const NetData &net, const PlotSettings &s, NetGeometry &geometry, bool rebuild) {
  const auto find = [&net](const QString &function) {
    return function == PlotSettings::fixedSize() ? DrawFunction() : DrawFunction::find(function, net);
  };
  const DrawFunction edgeColor = find(s.colorFunc);
  const DrawFunction edgeWidth = find(s.widthFunc);
  const DrawFunction nodeColor = find(s.nodeColorFunc);
  const DrawFunction nodeSize = find(s.nodeSizeFunc);
  enum { Color, Width, Flow };
  enum { NodeColor, NodeSize };
  const bool isOneColor = s.nodeColorFunc == s.colorFunc && s.absNodeColor == s.absColor; // then it is read once
  const NetGeometry::Request request{
      {{edgeColor.property, s.absColor}, {edgeWidth.property, s.absWidth}, {PropertyKey::find(s.edgeShowFlow), false}},
      {{isOneColor ? PropertyKey() : nodeColor.property, s.absNodeColor}, {nodeSize.property, s.absNodeSize}}};
  NetGeometry::Values values = rebuild ? geometry.build(net, request) : geometry.values(request);

  // What the elements carry themselves counts more than what can be computed.
  const auto computeNodes = [&](const DrawFunction &function, std::vector<double> &column) {
    if (function.computed != Computed::No && !rangeOf(column).isValid())
      column = computed(function, geometry);
  };
  const auto computeEdges = [&](const DrawFunction &function, std::size_t column) {
    if (function.computed == Computed::No || rangeOf(values.ofEdges[column]).isValid())
      return;
    values.ofEnds[column] = computed(function, geometry);
    geometry.takeMeans(values.ofEnds[column], values.ofEdges[column]);
  };
  computeEdges(edgeColor, Color);
  computeEdges(edgeWidth, Width);
  if (isOneColor)
    values.ofNodes[NodeColor] = values.ofEnds[Color];
  else
    computeNodes(nodeColor, values.ofNodes[NodeColor]);
  computeNodes(nodeSize, values.ofNodes[NodeSize]);

  // The nodes' own range, so that nodes and edges coloured by one function share their colours.
  const auto take = [](Column &column, std::vector<double> &own, const std::vector<double> &rangeFrom, double minimum,
                       double maximum) {
    column.data = rangeOf(rangeFrom);
    column.range = withFixedBounds(column.data, minimum, maximum);
    column.ofElements = std::move(own);
  };
  const auto ofEdges = [&values](const DrawFunction &function, std::size_t column) -> const std::vector<double> & {
    return function.isOfNodes || function.computed != Computed::No ? values.ofEnds[column] : values.ofEdges[column];
  };
  take(m_edgeColor, values.ofEdges[Color], ofEdges(edgeColor, Color), s.minVal_edgeColor, s.maxVal_edgeColor);
  take(m_edgeWidth, values.ofEdges[Width], ofEdges(edgeWidth, Width), s.minVal_Width, s.maxVal_Width);
  take(m_nodeColor, values.ofNodes[NodeColor], values.ofNodes[NodeColor], s.minVal_nodeColor, s.maxVal_nodeColor);
  take(m_nodeSize, values.ofNodes[NodeSize], values.ofNodes[NodeSize], s.minVal_nodeSize, s.maxVal_nodeSize);
  if (ColorRamp::kindOf(s.colorRamp) == ColorRamp::Kind::Diverging) {
    m_edgeColor.range = centred(m_edgeColor.range);
    m_nodeColor.range = centred(m_nodeColor.range);
  }
  m_colorsNodes = nodeColor.isOfNodes || nodeColor.computed != Computed::No;
  m_flow = std::move(values.ofEdges[Flow]);
  m_flowSize = m_flow;
  for (double &flow : m_flowSize)
    flow = flow == NetData::NoValue ? flow : std::abs(flow);
}
