#include <tools/layers.h>

#include <QRegularExpression>

#include <algorithm>

void Layers::setProperty(const QString &property) {
  if (property == m_property)
    return;
  m_property = property;
  tell(m_told, Finding::Severity::Debug, QStringLiteral("layer prop changed to ") + property);
  rebuild();
}

void Layers::rebuild() {
  m_layers.clear();
  const PropertyKey key = PropertyKey::find(m_property);
  if (key.isNull())
    return;
  m_net.forEach(NetData::AllTypes, [&](element &e) {
    const PropertyText *layer = e.find(key);
    if (layer != nullptr && !layer->isEmpty())
      m_layers[layer->toString()].append(e.value(Names::all().name));
  });
}

bool Layers::canChange() const {
  return isChangeable(PropertyKey::find(m_property));
}

bool Layers::isChangeable(PropertyKey property) {
  const Names &all = Names::all();
  const std::initializer_list<PropertyKey> ofTheNetwork{all.name, all.type,     all.node1, all.node2, all.x,
                                                        all.y,    all.elements, all.pins,  all.refEle};
  return std::find(ofTheNetwork.begin(), ofTheNetwork.end(), property) == ofTheNetwork.end();
}

void Layers::add(const QStringList &names, const QString &layer) {
  if (!canChange())
    return;
  for (const QString &name : names) {
    if (element *e = m_net.element(name))
      e->set(m_property, layer);
  }
  rebuild();
}

void Layers::rename(const QString &layer, const QString &newName) {
  add(m_layers.value(layer), newName);
}

QStringList Layers::remove(const QSet<QString> &layers) {
  QStringList names;
  if (!canChange())
    return names;
  for (const QString &layer : layers)
    names += m_layers.value(layer);
  for (const QString &name : qAsConst(names)) {
    if (element *e = m_net.element(name))
      e->erase(m_property);
  }
  rebuild();
  return names;
}

bool Layers::isAllowed(const QString &name) {
  static const QRegularExpression Forbidden(QStringLiteral("[;\"\\r\\n\\t<>]"));
  return !name.trimmed().isEmpty() && !Forbidden.match(name).hasMatch();
}
