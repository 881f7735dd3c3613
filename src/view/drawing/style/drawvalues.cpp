#include "geometry/drawngraph.h"

#include <algorithm>
#include <cmath>
#include <drawing/colormap.h>
#include <drawing/drawfunctions.h>
#include <drawing/drawvalues.h>

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

/// What separates values that people would call the same: solvers leave noise.
bool isOneValue(const QwtInterval &data, const Units::Linear &toDisplay) {
  constexpr double Share = 1e-3;
  const double low = toDisplay(data.minValue());
  const double high = toDisplay(data.maxValue());
  return std::abs(high - low) <= Share * std::max(std::abs(low), std::abs(high));
}

/// About zero, so that both signs have their own colours.
QwtInterval centred(const QwtInterval &range) {
  const double largest = std::max(std::abs(range.minValue()), std::abs(range.maxValue()));
  return {-largest, largest};
}

/// The data's range with fixed bounds in its place. An open bound beside a fixed one that lies beyond all data keeps the
/// width that the data have. Bounds that are no numbers, or upside down, are not taken.
QwtInterval rangeWithin(const DrawValues::Column &column, double minimum, double maximum, bool isCentred) {
  const QwtInterval &data = column.data;
  if (!data.isValid())
    return data;
  const bool hasMinimum = std::isfinite(minimum) && minimum > PlotSettings::OpenMinimum;
  const bool hasMaximum = std::isfinite(maximum) && maximum < PlotSettings::OpenMaximum;
  if (hasMinimum && hasMaximum)
    return maximum >= minimum ? QwtInterval(minimum, maximum) : data;
  const double width = std::max(data.width(), std::abs(hasMinimum ? minimum : maximum) * 0.01);
  if (hasMinimum) {
    const double high = isCentred && minimum < 0.0 ? -minimum : data.maxValue();
    return {minimum, high > minimum ? high : minimum + width};
  }
  if (hasMaximum) {
    const double low = isCentred && maximum > 0.0 ? -maximum : data.minValue();
    return {low < maximum ? low : maximum - width, maximum};
  }
  if (isCentred)
    return centred(data);
  if (!isOneValue(data, column.function.toDisplay))
    return data;
  const double middle = data.minValue() * 0.5 + data.maxValue() * 0.5;
  return {middle, middle};
}

/// Values of nodes that are computed on the graph.
std::vector<double> ofGraph(const DrawFunction &function, const NetGeometry &geometry) {
  if (function.computed == Computed::Connectivity)
    return DrawnGraph(geometry).components();
  const NetGeometry::Request lengths{{{PropertyKey::intern("length"), true}}, {}};
  return DrawnGraph(geometry).distances(geometry.values(lengths).ofEdges.front());
}

/// Drives are nodes, but none that is drawn as one: what they say must not stretch the scale of the others.
void forgetDrives(const NetGeometry &geometry, std::vector<double> &column) {
  for (std::size_t i = 0; i < column.size(); ++i) {
    if (geometry.nodes()[i].isDrive)
      column[i] = NetData::NoValue;
  }
}

/// Gives edges without a value what their ends say: the end where the gas enters, or the first less the second.
void takeFromEnds(const DrawFunction &function, bool absolute, const NetGeometry &geometry,
                  const std::vector<double> &ofEnds, const std::vector<double> &flow, std::vector<double> &column) {
  const auto at = [&ofEnds](int node) {
    return node < 0 ? NetData::NoValue : ofEnds[static_cast<std::size_t>(node)];
  };
  for (std::size_t i = 0; i < column.size(); ++i) {
    const NetGeometry::Edge &edge = geometry.edges()[i];
    const double first = at(edge.node1);
    const double second = at(edge.node2);
    if (column[i] != NetData::NoValue)
      continue;
    if (function.computed == Computed::AtInlet)
      column[i] = flow[i] != NetData::NoValue && flow[i] < 0.0 ? second : first;
    else if (first != NetData::NoValue && second != NetData::NoValue)
      column[i] = first - second;
    if (absolute && column[i] != NetData::NoValue)
      column[i] = std::abs(column[i]);
  }
}

enum EdgeColumns { EdgeColor, EdgeWidth, Flow };
enum NodeColumns { NodeColor, NodeSize, EndsOfColor, EndsOfWidth };

/// Colours of edges and nodes come from one property: it is read once.
bool isOneColor(const PlotSettings &s) {
  return s.nodeColorFunc == s.colorFunc && s.absNodeColor == s.absColor;
}

} // namespace

void DrawValues::read(const NetData &net, const PlotSettings &s, NetGeometry &geometry, bool rebuild) {
  const auto find = [&net](const QString &function) {
    return function == PlotSettings::fixedSize() ? DrawFunction() : DrawFunction::find(function, net);
  };
  m_edgeColor.function = find(s.colorFunc);
  m_edgeWidth.function = find(s.widthFunc);
  m_nodeColor.function = find(s.nodeColorFunc);
  m_nodeSize.function = find(s.nodeSizeFunc);
  const NetGeometry::Request request{{{m_edgeColor.function.property, s.absColor},
                                      {m_edgeWidth.function.property, s.absWidth},
                                      {PropertyKey::find(s.edgeShowFlow), false}},
                                     {{isOneColor(s) ? PropertyKey() : m_nodeColor.function.property, s.absNodeColor},
                                      {m_nodeSize.function.property, s.absNodeSize},
                                      {m_edgeColor.function.ofEnds, false},
                                      {m_edgeWidth.function.ofEnds, false}}};
  NetGeometry::Values values = rebuild ? geometry.build(net, request) : geometry.values(request);
  compute(geometry, s, values);
  take(values, s);
  m_flow = std::move(values.ofEdges[Flow]);
  m_flowSize = m_flow;
  for (double &flow : m_flowSize)
    flow = flow == NetData::NoValue ? flow : std::abs(flow);
}

/// What the elements carry themselves counts more than what can be computed.
void DrawValues::compute(const NetGeometry &geometry, const PlotSettings &s, NetGeometry::Values &values) const {
  const auto computeNodes = [&](const DrawFunction &function, std::vector<double> &column) {
    if (function.isOfGraph() && !rangeOf(column).isValid())
      column = ofGraph(function, geometry);
  };
  const auto computeEdges = [&](const DrawFunction &function, std::size_t column, std::size_t ofEnds, bool absolute) {
    if (!function.ofEnds.isNull())
      takeFromEnds(function, absolute, geometry, values.ofNodes[ofEnds], values.ofEdges[Flow], values.ofEdges[column]);
    if (!function.isOfGraph() || rangeOf(values.ofEdges[column]).isValid())
      return;
    values.ofEnds[column] = ofGraph(function, geometry);
    geometry.takeMeans(values.ofEnds[column], values.ofEdges[column]);
  };
  computeEdges(m_edgeColor.function, EdgeColor, EndsOfColor, s.absColor);
  computeEdges(m_edgeWidth.function, EdgeWidth, EndsOfWidth, s.absWidth);
  if (isOneColor(s))
    values.ofNodes[NodeColor] = values.ofEnds[EdgeColor];
  else
    computeNodes(m_nodeColor.function, values.ofNodes[NodeColor]);
  computeNodes(m_nodeSize.function, values.ofNodes[NodeSize]);
  for (std::vector<double> *column :
       {&values.ofNodes[NodeColor], &values.ofNodes[NodeSize], &values.ofEnds[EdgeColor], &values.ofEnds[EdgeWidth]})
    forgetDrives(geometry, *column);
}

void DrawValues::take(NetGeometry::Values &values, const PlotSettings &s) {
  const bool isDiverging = ColorRamp::kindOf(s.colorRamp) == ColorRamp::Kind::Diverging;
  const auto takeColumn = [](Column &column, std::vector<double> &own, const std::vector<double> &rangeFrom, double minimum,
                             double maximum, bool isCentred) {
    column.data = rangeOf(rangeFrom);
    column.range = rangeWithin(column, minimum, maximum, isCentred);
    column.ofElements = std::move(own);
  };
  // The nodes' own range, so that nodes and edges coloured by one function share their colours.
  const auto ofEdges = [&values](const Column &column, std::size_t place) -> const std::vector<double> & {
    return column.function.isOfNodes || column.function.isOfGraph() ? values.ofEnds[place] : values.ofEdges[place];
  };
  takeColumn(m_edgeColor, values.ofEdges[EdgeColor], ofEdges(m_edgeColor, EdgeColor), s.minVal_edgeColor, s.maxVal_edgeColor,
             isDiverging);
  takeColumn(m_edgeWidth, values.ofEdges[EdgeWidth], ofEdges(m_edgeWidth, EdgeWidth), s.minVal_Width, s.maxVal_Width, false);
  takeColumn(m_nodeColor, values.ofNodes[NodeColor], values.ofNodes[NodeColor], s.minVal_nodeColor, s.maxVal_nodeColor,
             isDiverging);
  takeColumn(m_nodeSize, values.ofNodes[NodeSize], values.ofNodes[NodeSize], s.minVal_nodeSize, s.maxVal_nodeSize, false);
}
