#include <drawing/layerfilter.h>

bool LayerFilter::setHidden(const QString &property, const QSet<QString> &layers) {
  const bool isSame = layers == m_layers && (layers.isEmpty() || property == m_property);
  m_property = property;
  m_layers = layers;
  return !isSame;
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
