#include <base/generalsettings.h>
#include <base/nivramsg.h>
#include <view/colorscale.h>
#include <view/drawfunctions.h>
#include <view/netplot.h>
#include <view/netupdate.h>
#include <view/networkgraph.h>
#include <view/qwtfastplot.h>

#include <QElapsedTimer>

#include <algorithm>
#include <cmath>
#include <future>

namespace {

constexpr QRgb NoValueColor = 0xffc4c8cc; ///< the element lacks the value that the others are coloured by
constexpr QRgb PlainEdge = 0xff2f5d8a;    ///< there is nothing to colour by
constexpr QRgb PlainNode = 0xff5b6b7b;

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

QwtInterval withFixedBounds(QwtInterval range, double minimum, double maximum) {
  if (!range.isValid())
    return range;
  if (minimum > PlotSettings::OpenMinimum)
    range.setMinValue(minimum);
  if (maximum < PlotSettings::OpenMaximum)
    range.setMaxValue(maximum);
  return range;
}

QString seconds(const QElapsedTimer &timer) {
  constexpr double Milli = 1e-3;
  return QString::number(static_cast<double>(timer.elapsed()) * Milli);
}

} // namespace

NetUpdate::NetUpdate(NetPlot &plot, const PlotSettings &settings)
    : m_plot(plot)
    , m_settings(settings) {
  for (QwtPlotItem *layer : std::initializer_list<QwtPlotItem *>{&m_edges, &m_nodes, &m_symbols, &m_textBoxes})
    layer->attach(plot.plot());
}

void NetUpdate::setNetData(const NetData *net) {
  m_net = net;
  m_geometry.clear();
  m_edges.clear();
  m_nodes.clear();
  m_symbols.clear();
  m_textBoxes.clear();
}

void NetUpdate::updatePlot(bool rebuild, Which which, bool relabel) {
  NivraMsg::log(QStringLiteral("Updating plot - rebuild: %2, which: %3, relabel: %4 ...")
                    .arg(int(rebuild))
                    .arg(static_cast<int>(which))
                    .arg(int(relabel)));
  if (m_net == nullptr)
    return;
  QElapsedTimer timer;
  timer.start();
  readValues(rebuild);
  ColorScale::show(*m_plot.plot(), m_settings, DrawFunction::find(m_settings.colorFunc, *m_net), m_values.edgeColor.range);
  m_plot.placeLegend();
  m_plot.showAxes();

  std::future<void> nodes; // beside the edges
  if (which != Which::Edges)
    nodes = std::async(std::launch::async, [this, rebuild] {
      if (rebuild)
        m_nodes.setNodes(m_geometry);
      updateNodes();
    });
  if (which != Which::Nodes) {
    if (rebuild) {
      m_edges.setEdges(m_geometry);
      NivraMsg::log(QStringLiteral("   after rebuild edges: %1 sec.").arg(seconds(timer)));
    }
    updateEdges();
    NivraMsg::log(QStringLiteral("   after update edge curves: %1 sec.").arg(seconds(timer)));
  }
  if (nodes.valid()) {
    nodes.get();
    NivraMsg::log(QStringLiteral("   after update nodes: %1 sec.").arg(seconds(timer)));
  }
  if (rebuild)
    updateSymbols();
  m_symbols.setSize(m_settings.symMag);
  m_plot.plot()->replot();
  NivraMsg::log(QStringLiteral("Plot update: %1 sec.").arg(seconds(timer)));
}

void NetUpdate::readValues(bool rebuild) {
  const PlotSettings &s = m_settings;
  const auto wanted = [this](const QString &function, bool absolute) {
    return NetGeometry::Wanted{DrawFunction::find(function, *m_net).property, absolute};
  };
  enum { Color, Width, Flow };
  enum { NodeColor, NodeSize };
  const bool isFixed = s.nodeSizeFunc == PlotSettings::fixedSize();
  const bool isOneColor = s.nodeColorFunc == s.colorFunc && s.absNodeColor == s.absColor; // then it is read once
  const NetGeometry::Request request{
      {wanted(s.colorFunc, s.absColor), wanted(s.widthFunc, s.absWidth), wanted(s.edgeShowFlow, true)},
      {wanted(isOneColor ? QString() : s.nodeColorFunc, s.absNodeColor),
       wanted(isFixed ? QString() : s.nodeSizeFunc, s.absNodeSize)}};
  NetGeometry::Values read = rebuild ? m_geometry.build(*m_net, request) : m_geometry.values(request);
  if (rebuild && m_geometry.unplaced() > 0)
    NivraMsg::log(QStringLiteral("%1 elements are not drawn for want of coordinates").arg(m_geometry.unplaced()));
  compute(read, {s.colorFunc, s.widthFunc}, {s.nodeColorFunc, s.nodeSizeFunc});
  if (isOneColor)
    read.ofNodes[NodeColor] = read.ofEnds[Color];

  // The nodes' own range, so that nodes and edges coloured by one function share their colours.
  const auto isOfNodes = [this](const QString &function) {
    const DrawFunction found = DrawFunction::find(function, *m_net);
    return found.isOfNodes || found.computed != DrawFunction::Computed::No;
  };
  const auto edgeRange = [&](const QString &function, std::size_t i) {
    return rangeOf(isOfNodes(function) ? read.ofEnds[i] : read.ofEdges[i]);
  };
  m_values.edgeColor.range = withFixedBounds(edgeRange(s.colorFunc, Color), s.minVal_edgeColor, s.maxVal_edgeColor);
  m_values.edgeWidth.range = withFixedBounds(edgeRange(s.widthFunc, Width), s.minVal_Width, s.maxVal_Width);
  m_values.edgeColor.ofElements = std::move(read.ofEdges[Color]);
  m_values.edgeWidth.ofElements = std::move(read.ofEdges[Width]);
  m_values.flow = std::move(read.ofEdges[Flow]);
  m_values.nodeColor.range = withFixedBounds(rangeOf(read.ofNodes[NodeColor]), s.minVal_nodeColor, s.maxVal_nodeColor);
  m_values.nodeSize.range = withFixedBounds(rangeOf(read.ofNodes[NodeSize]), s.minVal_nodeSize, s.maxVal_nodeSize);
  m_values.nodeColor.ofElements = std::move(read.ofNodes[NodeColor]);
  m_values.nodeSize.ofElements = std::move(read.ofNodes[NodeSize]);
}

void NetUpdate::compute(NetGeometry::Values &values, const QStringList &ofEdges, const QStringList &ofNodes) const {
  using Computed = DrawFunction::Computed;
  const auto computed = [this](const QString &function) {
    const DrawFunction found = DrawFunction::find(function, *m_net);
    std::vector<double> ofGraph;
    if (found.computed == Computed::Connectivity) {
      ofGraph = NetworkGraph(m_geometry).components();
    } else if (found.computed == Computed::AccumulatedLength) {
      const NetGeometry::Request lengths{{{PropertyKey::intern("length"), true}}, {}};
      ofGraph = NetworkGraph(m_geometry).distances(m_geometry.values(lengths).ofEdges.front());
    }
    return ofGraph;
  };
  // What the elements carry themselves counts more than what can be computed.
  for (int i = 0; i < ofNodes.size(); ++i) {
    std::vector<double> &column = values.ofNodes[static_cast<std::size_t>(i)];
    if (std::vector<double> own = computed(ofNodes.at(i)); !own.empty() && !rangeOf(column).isValid())
      column = std::move(own);
  }
  for (int i = 0; i < ofEdges.size(); ++i) {
    const auto function = static_cast<std::size_t>(i);
    std::vector<double> own = computed(ofEdges.at(i));
    if (own.empty() || rangeOf(values.ofEdges[function]).isValid())
      continue;
    values.ofEnds[function] = std::move(own);
    m_geometry.takeMeans(values.ofEnds[function], values.ofEdges[function]);
  }
}

void NetUpdate::updateEdges() {
  constexpr double WidthSpan = 4.0; // px that the width function adds at most, at magnification 1
  constexpr double NoFlow = 1e-10;  // in whatever unit the flow is stored
  const Values &colors = m_values.edgeColor;
  const Values &widths = m_values.edgeWidth;
  const std::vector<double> &flow = m_values.flow;
  const auto colorMap = ColorScale::colorMap(m_settings, m_settings.logScaleColor);
  const auto widthMap = ColorScale::colorMap(m_settings, m_settings.logScaleWidth);
  const TableColorMap table(*colorMap, colors.range);

  std::vector<EdgeLook> looks(m_geometry.edges().size());
  for (std::size_t i = 0; i < looks.size(); ++i) {
    EdgeLook &look = looks[i];
    look.width = m_settings.edgeConst + m_settings.edgeMag;
    if (widths.range.isValid()) {
      const double value = widths.ofElements[i];
      const double fraction = value == NetData::NoValue ? 0.0 : widthMap->fraction(widths.range, value);
      look.width = m_settings.edgeConst + m_settings.edgeMag * WidthSpan * fraction;
    }
    look.isBackground = true;
    if (m_geometry.edges()[i].isInactive) {
      look.color = m_settings.edgeColorInactive.rgb();
    } else if (flow[i] != NetData::NoValue && flow[i] < NoFlow) {
      look.color = m_settings.edgeColorNoFlow.rgb();
    } else if (colors.range.isValid() && colors.ofElements[i] == NetData::NoValue) {
      look.color = NoValueColor;
    } else {
      look.isBackground = false;
      look.color = colors.range.isValid() ? table.rgb(colors.range, colors.ofElements[i]) : PlainEdge;
    }
  }
  m_edges.setLooks(looks);
}

void NetUpdate::updateNodes() {
  const PlotSettings &s = m_settings;
  const Values &colors = m_values.nodeColor;
  const Values &sizes = m_values.nodeSize;
  const auto colorMap = ColorScale::colorMap(s, s.logScaleNodeColor);
  const auto sizeMap = ColorScale::colorMap(s, s.logScaleNodeSize);
  const TableColorMap table(*colorMap, colors.range);
  constexpr double SmallestShare = 0.5; // of the magnification, and the largest four times as large
  constexpr double ShareSpan = 1.5;

  std::vector<NodeLook> looks(m_geometry.nodes().size());
  for (std::size_t i = 0; i < looks.size(); ++i) {
    NodeLook &look = looks[i];
    look.size = s.nodeMag;
    if (sizes.range.isValid()) {
      const double value = sizes.ofElements[i];
      const double fraction = value == NetData::NoValue ? 0.0 : sizeMap->fraction(sizes.range, value);
      look.size = s.nodeMag * (SmallestShare + ShareSpan * fraction);
    }
    if (!colors.range.isValid())
      look.color = PlainNode;
    else if (colors.ofElements[i] == NetData::NoValue)
      look.color = NoValueColor;
    else
      look.color = table.rgb(colors.range, colors.ofElements[i]);
  }
  m_nodes.setLooks(looks);
}

void NetUpdate::updateSymbols() {
  if (GeneralSettings::instance().isOn(QStringLiteral("build symbols")))
    m_symbols.setStations(m_geometry);
  else
    m_symbols.clear();
  m_textBoxes.setBackground(m_settings.bgrColor);
  m_textBoxes.setTextBoxes(m_geometry, m_settings.nodeLabelsColor,
                           QFont(QStringLiteral("Arial"), std::max(m_settings.labelMag, 1)));
}
