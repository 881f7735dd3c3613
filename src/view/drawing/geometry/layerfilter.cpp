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
  geometry.forEachItem([&](NetGeometry::Item item, const element &source) {
    const PropertyText *layer = source.find(key);
    m_hidden[item.kind].push_back(layer != nullptr && m_layers.contains(layer->toString()));
  });
}
