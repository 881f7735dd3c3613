#include <drawing/drawingtheme.h>
#include <drawing/elementlooks.h>

#include <QObject>

#include <cmath>

namespace {

constexpr QRgb Found = 0xffe8112d;
constexpr double NoFlow = 1e-10; // in whatever unit the flow is stored

bool hasFlow(double flow) {
  return flow != NetData::NoValue && std::abs(flow) >= NoFlow;
}

} // namespace

template <typename Look>
void ElementLooks::hide(NetData::EleType kind, std::vector<Look> &looks) const {
  if (!m_layers.hidesAny())
    return;
  for (Index i = 0; i < looks.size(); ++i)
    looks[i].isHidden = m_layers.isHidden({kind, i});
}

double ElementLooks::edgeWidth(const PlotSettings &settings, double fraction) {
  constexpr double WidthSpan = 4.0; // px that the width function adds at most, at magnification 1
  return settings.edgeConst + settings.edgeMag * WidthSpan * fraction;
}

double ElementLooks::sizeOfNode(double nodeSize, double fraction) {
  constexpr double SmallestShare = 0.5; // of the node size; the largest node is four times the smallest
  constexpr double ShareSpan = 1.5;
  return nodeSize * (SmallestShare + ShareSpan * fraction);
}

QRgb ElementLooks::foundColor() {
  return Found;
}

std::vector<EdgeLook> ElementLooks::edges() const {
  const DrawValues::Column &colors = m_values.of(Aspect::EdgeColor);
  const DrawValues::Column &widths = m_values.of(Aspect::EdgeWidth);
  const std::vector<double> &flow = m_values.flow();
  const auto widthMap = ColorScale::colorMap(m_settings, Aspect::EdgeWidth);
  const auto table = ColorScale::edgeColors(m_settings, colors);

  const DrawingTheme theme(m_settings.bgrColor);
  std::vector<EdgeLook> looks(m_geometry.edges().size());
  for (std::size_t i = 0; i < looks.size(); ++i) {
    EdgeLook &look = looks[i];
    look.width = m_settings.edgeConst + m_settings.edgeMag;
    if (widths.range.isValid()) {
      const double value = widths.ofElements[i];
      const double fraction = value == NetData::NoValue ? 0.0 : widthMap->fraction(widths.range, value);
      look.width = edgeWidth(m_settings, fraction);
    }
    look.isBackground = true;
    if (m_geometry.edges()[i].isInactive) {
      look.color = m_settings.edgeColorInactive.rgb();
      continue;
    }
    look.flow = !hasFlow(flow[i]) ? 0 : flow[i] > 0.0 ? 1 : -1;
    if (flow[i] != NetData::NoValue && look.flow == 0) {
      look.color = m_settings.edgeColorNoFlow.rgb();
    } else if (colors.range.isValid() && colors.ofElements[i] == NetData::NoValue) {
      look.color = theme.noValue();
    } else {
      look.isBackground = false;
      look.color = colors.range.isValid() ? table->rgb(colors.range, colors.ofElements[i]) : theme.plainEdge();
    }
  }
  hide(NetData::Edge, looks);
  return looks;
}

std::vector<QRgb> ElementLooks::stationColors(const std::vector<EdgeLook> &edges) const {
  const DrawValues::Column &values = m_values.of(Aspect::EdgeColor);
  if (!values.isAny())
    return {};
  bool hasPipes = false;
  std::vector<QRgb> colors(edges.size(), 0);
  for (std::size_t i = 0; i < edges.size(); ++i) {
    const bool isPipe = m_geometry.edges()[i].type == 'p';
    hasPipes = hasPipes || isPipe;
    if (values.ofElements[i] == NetData::NoValue)
      continue;
    if (isPipe)
      return {};
    if (!edges[i].isBackground && !edges[i].isHidden)
      colors[i] = edges[i].color;
  }
  return hasPipes ? colors : std::vector<QRgb>();
}

std::vector<NodeLook> ElementLooks::nodes(bool byFunction) const {
  const DrawValues::Column &colors = m_values.of(Aspect::NodeColor);
  const DrawValues::Column &sizes = m_values.of(Aspect::NodeSize);
  const auto sizeMap = ColorScale::colorMap(m_settings, Aspect::NodeSize);
  const auto table = ColorScale::nodeColors(m_settings, m_values);
  const bool isColored = byFunction && colors.isAny();

  const DrawingTheme theme(m_settings.bgrColor);
  std::vector<NodeLook> looks(m_geometry.nodes().size());
  for (std::size_t i = 0; i < looks.size(); ++i) {
    NodeLook &look = looks[i];
    look.size = m_nodeSize;
    if (sizes.range.isValid()) {
      const double value = sizes.ofElements[i];
      const double fraction = value == NetData::NoValue ? 0.0 : sizeMap->fraction(sizes.range, value);
      look.size = sizeOfNode(m_nodeSize, fraction);
    }
    if (!isColored)
      look.color = theme.plainNode();
    else if (colors.ofElements[i] == NetData::NoValue)
      look.color = theme.noValue();
    else
      look.color = table->rgb(colors.range, colors.ofElements[i]);
  }
  hide(NetData::Node, looks);
  return looks;
}

std::vector<ColorScale::Swatch> ElementLooks::swatches() const {
  const std::vector<double> &values = m_values.of(Aspect::EdgeColor).ofElements;
  const std::vector<double> &flow = m_values.flow();
  bool lacksValue = false;
  bool lacksFlow = false;
  bool isInactive = false;
  for (std::size_t i = 0; i < m_geometry.edges().size(); ++i) {
    const bool isOff = m_geometry.edges()[i].isInactive;
    const bool isStill = !isOff && flow[i] != NetData::NoValue && !hasFlow(flow[i]);
    isInactive = isInactive || isOff;
    lacksFlow = lacksFlow || isStill;
    lacksValue = lacksValue || (!isOff && !isStill && values[i] == NetData::NoValue);
  }
  std::vector<ColorScale::Swatch> swatches;
  if (lacksValue)
    swatches.push_back({DrawingTheme(m_settings.bgrColor).noValue(), QObject::tr("no value")});
  if (lacksFlow)
    swatches.push_back({m_settings.edgeColorNoFlow.rgb(), QObject::tr("no flow")});
  if (isInactive)
    swatches.push_back({m_settings.edgeColorInactive.rgb(), QObject::tr("off")});
  return swatches;
}

std::vector<bool> ElementLooks::searchResults(NetData::EleType kind) const {
  static const PropertyKey key = PropertyKey::intern("isSearchResult");
  const std::size_t count = m_geometry.count(kind);
  std::vector<bool> found(count);
  for (Index i = 0; i < count; ++i) {
    const PropertyText *text = m_geometry.source({kind, i})->find(key);
    found[i] = text != nullptr && text->isOn();
  }
  return found;
}

std::vector<EdgeLook> ElementLooks::searchedEdges() const {
  constexpr double WidthOfResults = 3.0; // px
  const std::vector<bool> found = searchResults(NetData::Edge);
  const QRgb rest = DrawingTheme(m_settings.bgrColor).notFound();
  std::vector<EdgeLook> looks(found.size());
  for (std::size_t i = 0; i < looks.size(); ++i)
    looks[i] = {found[i] ? Found : rest, found[i] ? WidthOfResults : 1.0, !found[i], false, 0};
  hide(NetData::Edge, looks);
  return looks;
}

std::vector<NodeLook> ElementLooks::searchedNodes() const {
  const std::vector<bool> found = searchResults(NetData::Node);
  const QRgb rest = DrawingTheme(m_settings.bgrColor).notFound();
  std::vector<NodeLook> looks(found.size());
  for (std::size_t i = 0; i < looks.size(); ++i)
    looks[i] = {found[i] ? Found : rest, m_nodeSize * (found[i] ? 2.0 : 1.0), false, found[i]};
  hide(NetData::Node, looks);
  return looks;
}
