#include "layers/elementmarks.h"

#include <drawing/violationlayer.h>
#include <model/names.h>
#include <model/propertycolumns.h>

namespace {

constexpr double ViolationZ = 6.0; // below the lines

} // namespace

ViolationLayer::ViolationLayer() {
  setRenderHint(RenderAntialiased);
  setZ(ViolationZ);
}

template <typename Records>
void ViolationLayer::find(NetData::EleType kind, const Records &records) {
  std::vector<const element *> sources;
  sources.reserve(records.size());
  for (const auto &record : records)
    sources.push_back(record.source);
  std::vector<unsigned char> states(sources.size()); // bytes, as several threads write them
  PropertyColumns({Names::all().violations}).forEach(sources, [&](std::size_t i, const PropertyColumns &columns) {
    if (columns[0] != nullptr)
      states[i] = static_cast<unsigned char>(Violations::of(*sources[i]));
  });
  for (Index i = 0; i < states.size(); ++i) {
    if (states[i] == static_cast<unsigned char>(Violations::State::Major))
      m_major.push_back({kind, i});
    else if (states[i] == static_cast<unsigned char>(Violations::State::Minor))
      m_minor.push_back({kind, i});
  }
}

void ViolationLayer::setElements(const NetGeometry &geometry, const std::vector<float> &edgeWidths) {
  clear();
  m_geometry = &geometry;
  m_edgeWidths = &edgeWidths;
  find(NetData::Edge, geometry.edges());
  find(NetData::Node, geometry.nodes());
}

void ViolationLayer::clear() {
  m_geometry = nullptr;
  m_edgeWidths = nullptr;
  m_major.clear();
  m_minor.clear();
}

void ViolationLayer::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                          const QRectF &canvasRect) const {
  constexpr double Casing = 5.0;          // px, to each side
  constexpr double Gap = 1.5;             // px
  constexpr std::size_t ManyMarks = 5000; // nobody sees how the edges of so many are rounded
  const Projection projection(xMap, yMap, canvasRect);
  if (m_geometry == nullptr || !projection.isValid())
    return;
  ElementMarks::Drawing drawing;
  drawing.geometry = m_geometry;
  drawing.layers = m_layers;
  drawing.edgeWidths = m_edgeWidths;
  drawing.nodeSize = m_nodeSize;
  drawing.symbolSize = m_symbolSize;
  for (const auto &[items, state] :
       {std::make_pair(&m_minor, Violations::State::Minor), {&m_major, Violations::State::Major}}) {
    ElementMarks marks(drawing, projection);
    for (const NetGeometry::Item item : *items)
      marks.add(item);
    painter->setRenderHint(QPainter::Antialiasing, marks.size() < ManyMarks);
    const Qt::PenCapStyle caps = marks.size() < ManyMarks ? Qt::RoundCap : Qt::FlatCap;
    marks.draw(*painter, Violations::color(state), Casing, caps);
    marks.draw(*painter, m_ground, Gap, caps);
  }
}
