#include <base/nivramsg.h>
#include <tools/layers.h>

#include <QRegularExpression>

void Layers::setProperty(const QString &property) {
  if (property == m_property)
    return;
  m_property = property;
  m_layers.clear();
  NivraMsg::debug(QStringLiteral("layer prop changed to ") + property);
  rebuild();
}

void Layers::rebuild() {
  static const PropertyKey name = PropertyKey::intern("name");
  QMap<QString, Layer> before;
  before.swap(m_layers);
  const PropertyKey key = PropertyKey::find(m_property);
  if (key.isNull())
    return;
  m_net.forEach(NetData::AllTypes, [&](element &e) {
    const PropertyText *layer = e.find(key);
    if (layer != nullptr && !layer->isEmpty())
      m_layers[layer->toString()].names.append(e.value(name));
  });
  for (auto layer = m_layers.begin(); layer != m_layers.end(); ++layer)
    layer->isVisible = before.value(layer.key()).isVisible;
}

void Layers::setVisible(const QString &layer, bool visible) {
  const auto found = m_layers.find(layer);
  if (found != m_layers.end())
    found->isVisible = visible;
}

void Layers::setAllVisible(bool visible) {
  for (Layer &layer : m_layers)
    layer.isVisible = visible;
}

void Layers::invert() {
  for (Layer &layer : m_layers)
    layer.isVisible = !layer.isVisible;
}

QSet<QString> Layers::hidden() const {
  QSet<QString> names;
  for (auto layer = m_layers.cbegin(); layer != m_layers.cend(); ++layer) {
    if (!layer->isVisible)
      names.insert(layer.key());
  }
  return names;
}

void Layers::add(const QStringList &names, const QString &layer) {
  for (const QString &name : names) {
    if (element *e = m_net.element(name))
      e->set(m_property, layer);
  }
  rebuild();
}

void Layers::rename(const QString &layer, const QString &newName) {
  const bool wasVisible = m_layers.value(layer).isVisible;
  add(m_layers.value(layer).names, newName);
  setVisible(newName, wasVisible);
}

void Layers::remove(const QString &layer) {
  for (const QString &name : m_layers.value(layer).names) {
    if (element *e = m_net.element(name))
      e->erase(m_property);
  }
  rebuild();
}

bool Layers::isAllowed(const QString &name) {
  static const QRegularExpression Forbidden(QStringLiteral("[;\"\\r\\n\\t<>]"));
  return !name.trimmed().isEmpty() && !Forbidden.match(name).hasMatch();
}
