#include <drawing/layerfilter.h>

void LayerFilter::setHidden(const QString &property, const QSet<QString> &layers) {
  m_property = property;
  m_layers = layers;
}

void LayerFilter::read(const NetGeometry &geometry) {
  m_hidden.clear();
  const PropertyKey key = PropertyKey::find(m_property);
  if (m_layers.isEmpty() || key.isNull())
    return;
  const std::pair<NetData::EleType, std::size_t> kinds[] = {{NetData::Node, geometry.nodes().size()},
                                                            {NetData::Edge, geometry.edges().size()},
                                                            {NetData::AssembledSubnet, geometry.subnets().size()},
                                                            {NetData::TextBox, geometry.textBoxes().size()}};
  for (const auto &[kind, count] : kinds) {
    std::vector<bool> hidden(count);
    for (std::size_t i = 0; i < count; ++i) {
      const PropertyText *layer = geometry.source({kind, static_cast<int>(i)})->find(key);
      hidden[i] = layer != nullptr && m_layers.contains(layer->toString());
    }
    m_hidden[kind] = std::move(hidden);
  }
}
