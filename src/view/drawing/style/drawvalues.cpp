#include "geometry/drawngraph.h"
#include "geometry/geometryreader.h"
#include "style/boundload.h"
#include "style/comparedfunction.h"

#include <drawing/colormap.h>
#include <drawing/drawfunctions.h>
#include <drawing/drawvalues.h>

#include <algorithm>
#include <cmath>
#include <optional>

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
bool isOneValue(const QwtInterval &data, const Units::Linear &toTable) {
  constexpr double NoiseShare = 1e-3;
  const double low = toTable(data.minValue());
  const double high = toTable(data.maxValue());
  return std::abs(high - low) <= NoiseShare * std::max(std::abs(low), std::abs(high));
}

/// So that both sides have their own colours.
QwtInterval centred(const QwtInterval &range, double centre) {
  const double largest = std::max(std::abs(range.minValue() - centre), std::abs(range.maxValue() - centre));
  return {centre - largest, centre + largest};
}

/// About which value the colours part; none where one end of the scale is as good as the other.
std::optional<double> centreOf(const PlotSettings &s, Aspect aspect) {
  if (!isColor(aspect))
    return std::nullopt;
  switch (comparisonOf(s, aspect)) {
  case Comparison::Kind::Difference:
    return 0.0;
  case Comparison::Kind::Ratio:
    return 1.0;
  case Comparison::Kind::None:
    break;
  }
  return ColorRamp::kindOf(s.colorRamp) == ColorRamp::Kind::Diverging ? std::optional<double>(0.0) : std::nullopt;
}

/// What is less than the reference must not look as what is more.
bool isAbsolute(const PlotSettings &s, Aspect aspect) {
  return s.functions[aspect].isAbsolute && (!isColor(aspect) || comparisonOf(s, aspect) == Comparison::Kind::None);
}

/// Where open bounds lie: outliers, of which there are 2 % at either end, are left out. The whole data where next to nothing
/// would be left between the bounds.
QwtInterval withoutOutliers(const std::vector<double> &values, const QwtInterval &data, const Units::Linear &toTable) {
  constexpr std::size_t Share = 50;         // one in so many
  constexpr std::size_t MostAsked = 200000; // tell as much as a million
  std::vector<double> known;
  const std::size_t step = values.size() / MostAsked + 1;
  known.reserve(values.size() / step + 1);
  for (std::size_t i = 0; i < values.size(); i += step) {
    if (values[i] != NetData::NoValue)
      known.push_back(values[i]);
  }
  const std::size_t beyond = known.size() / Share; // at either end
  if (beyond == 0)
    return data;
  const auto low = known.begin() + static_cast<std::ptrdiff_t>(beyond);
  std::nth_element(known.begin(), low, known.end());
  const double minimum = *low;
  const auto high = known.end() - static_cast<std::ptrdiff_t>(beyond) - 1;
  std::nth_element(low, high, known.end());
  const QwtInterval open(minimum, *high);
  return isOneValue(open, toTable) ? data : open;
}

/// The data's range with fixed bounds in its place. An open bound beside a fixed one that lies beyond all data keeps the
/// width that the data have. Bounds that are no numbers, or upside down, are not taken.
QwtInterval rangeWithin(const DrawValues::Column &column, const PlotSettings::Function &settings,
                        const std::optional<double> &centre) {
  const QwtInterval &data = column.open;
  const double minimum = settings.minimum;
  const double maximum = settings.maximum;
  if (!data.isValid())
    return data;
  const bool hasMinimum = std::isfinite(minimum) && minimum > PlotSettings::OpenMinimum;
  const bool hasMaximum = std::isfinite(maximum) && maximum < PlotSettings::OpenMaximum;
  if (hasMinimum && hasMaximum)
    return maximum >= minimum ? QwtInterval(minimum, maximum) : data;
  const double width = std::max(data.width(), std::abs(hasMinimum ? minimum : maximum) * 0.01);
  if (hasMinimum) {
    const double high = centre && minimum < *centre ? 2.0 * *centre - minimum : data.maxValue();
    return {minimum, high > minimum ? high : minimum + width};
  }
  if (hasMaximum) {
    const double low = centre && maximum > *centre ? 2.0 * *centre - maximum : data.minValue();
    return {low < maximum ? low : maximum - width, maximum};
  }
  if (centre)
    return centred(data, *centre);
  if (!isOneValue(column.data, column.function.toTable)) // whatever unit somebody reads it in
    return data;
  const double middle = data.minValue() * 0.5 + data.maxValue() * 0.5;
  return {middle, middle};
}

/// Values of nodes that are computed on the graph.
std::vector<double> ofGraph(const DrawFunction &function, const NetGeometry &geometry) {
  if (function.computed == Computed::Connectivity)
    return DrawnGraph(geometry).components();
  const ValueRequest lengths{{{PropertyKey::intern("length"), true}}, {}};
  return DrawnGraph(geometry).distances(GeometryReader::readValues(geometry, lengths).ofEdges.front());
}

/// Gives elements without a load of their own what their bounds say.
template <typename Elements, typename LoadOf>
void readLoad(const Elements &elements, const LoadOf &loadOf, std::vector<double> &column) {
  for (std::size_t i = 0; i < column.size(); ++i) {
    if (column[i] == NetData::NoValue)
      column[i] = loadOf(*elements[i].source);
  }
}

/// Drives are nodes that are not drawn as such: their values must not stretch the scale of the others.
void forgetDrives(const NetGeometry &geometry, std::vector<double> &column) {
  for (std::size_t i = 0; i < column.size(); ++i) {
    if (geometry.nodes()[i].isDrive)
      column[i] = NetData::NoValue;
  }
}

/// Gives edges without a value what their ends say: the end where the gas enters, or the first less the second.
void readFromEnds(const DrawFunction &function, bool absolute, const NetGeometry &geometry,
                  const std::vector<double> &ofEnds, const std::vector<double> &flow, std::vector<double> &column) {
  const auto at = [&ofEnds](Index node) {
    return node == NoIndex ? NetData::NoValue : ofEnds[node];
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

/// Columns of a request: edges say colour, width and flow; nodes say colour, size and what edges make of their ends.
constexpr std::size_t FlowColumn = 2;

constexpr std::size_t columnOf(Aspect aspect) {
  return isColor(aspect) ? 0 : 1;
}

constexpr std::size_t columnOfEnds(Aspect aspectOfEdges) {
  return 2 + columnOf(aspectOfEdges);
}

/// Whether the colours of edges and nodes come from one property, which is then read once.
bool isOneColor(const PlotSettings &s) {
  const PlotSettings::Function &edges = s.functions[Aspect::EdgeColor];
  const PlotSettings::Function &nodes = s.functions[Aspect::NodeColor];
  return nodes.name == edges.name && isAbsolute(s, Aspect::NodeColor) == isAbsolute(s, Aspect::EdgeColor);
}

} // namespace

ValueRequest DrawValues::request(const PlotSettings &s) const {
  ValueRequest request;
  for (const Aspect aspect : AllAspects) {
    const bool isReadAlready = aspect == Aspect::NodeColor && isOneColor(s);
    (isOfEdges(aspect) ? request.ofEdges : request.ofNodes)
        .push_back({isReadAlready ? PropertyKey() : of(aspect).function.property, isAbsolute(s, aspect)});
  }
  request.ofEdges.push_back({PropertyKey::find(s.edgeShowFlow), false});
  for (const Aspect aspect : {Aspect::EdgeColor, Aspect::EdgeWidth})
    request.ofNodes.push_back({of(aspect).function.ofEnds, false});
  return request;
}

void DrawValues::read(const NetData &net, const PlotSettings &s, NetGeometry &geometry, bool rebuild) {
  findFunctions(net, s);
  take(rebuild ? GeometryReader::read(net, request(s), geometry) : GeometryReader::readValues(geometry, request(s)),
       geometry, s);
}

DrawValues::Column DrawValues::readOne(const NetData &net, const NetGeometry &geometry, PlotSettings settings, Aspect aspect,
                                       const QString &function) {
  for (const Aspect other : AllAspects)
    settings.functions[other] = {PlotSettings::fixedSize(), false};
  settings.functions[aspect].name = function;
  DrawValues values;
  values.findFunctions(net, settings);
  values.take(GeometryReader::readValues(geometry, values.request(settings)), geometry, settings);
  return values.m_columns[aspect];
}

void DrawValues::findFunctions(const NetData &net, const PlotSettings &s) {
  for (const Aspect aspect : AllAspects) {
    const QString &name = s.functions[aspect].name;
    m_columns[aspect].function = name == PlotSettings::fixedSize() ? DrawFunction() : DrawFunction::find(name, net);
  }
}

void DrawValues::take(ElementValues values, const NetGeometry &geometry, const PlotSettings &s) {
  compute(geometry, s, values);
  setColumns(values, s);
  m_flow = std::move(values.ofEdges[FlowColumn]);
  m_flowSize = m_flow;
  for (double &flow : m_flowSize)
    flow = flow == NetData::NoValue ? flow : std::abs(flow);
}

/// What the elements carry themselves counts more than what can be computed.
void DrawValues::compute(const NetGeometry &geometry, const PlotSettings &s, ElementValues &values) const {
  for (const Aspect aspect : AllAspects) {
    const DrawFunction &function = of(aspect).function;
    const std::size_t column = columnOf(aspect);
    if (isOfEdges(aspect)) {
      if (function.isOfBounds())
        readLoad(geometry.edges(), BoundLoad::ofEdge, values.ofEdges[column]);
      if (!function.ofEnds.isNull())
        readFromEnds(function, s.functions[aspect].isAbsolute, geometry, values.ofNodes[columnOfEnds(aspect)],
                     values.ofEdges[FlowColumn], values.ofEdges[column]);
      if (function.isOfGraph() && !rangeOf(values.ofEdges[column]).isValid()) {
        values.ofEnds[column] = ofGraph(function, geometry);
        std::transform(geometry.edges().begin(), geometry.edges().end(), values.ofEdges[column].begin(),
                       [&](const NetGeometry::Edge &edge) { return NetGeometry::meanOfEnds(edge, values.ofEnds[column]); });
      }
      continue;
    }
    if (aspect == Aspect::NodeColor && isOneColor(s))
      values.ofNodes[column] = values.ofEnds[columnOf(Aspect::EdgeColor)];
    else if (function.isOfGraph() && !rangeOf(values.ofNodes[column]).isValid())
      values.ofNodes[column] = ofGraph(function, geometry);
    if (function.isOfBounds())
      readLoad(geometry.nodes(), BoundLoad::ofNode, values.ofNodes[column]);
  }
  for (const Aspect aspect : AllAspects)
    forgetDrives(geometry, (isOfEdges(aspect) ? values.ofEnds : values.ofNodes)[columnOf(aspect)]);
}

void DrawValues::setColumns(ElementValues &values, const PlotSettings &s) {
  for (const Aspect aspect : AllAspects) {
    Column &column = m_columns[aspect];
    std::vector<double> &own = (isOfEdges(aspect) ? values.ofEdges : values.ofNodes)[columnOf(aspect)];
    // The nodes' own range, so that nodes and edges coloured by one function share their colours.
    const bool isRangeOfEnds = isOfEdges(aspect) && (column.function.isOfNodes || column.function.isOfGraph());
    const std::vector<double> &ranged = isRangeOfEnds ? values.ofEnds[columnOf(aspect)] : own;
    column.data = rangeOf(ranged);
    column.open = s.quantileBounds ? withoutOutliers(ranged, column.data, column.function.toTable) : column.data;
    column.range = rangeWithin(column, s.functions[aspect], centreOf(s, aspect));
    column.ofElements = std::move(own);
  }
}
