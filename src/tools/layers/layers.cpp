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
  const PropertyKey key = PropertyKey::intern(m_property);
  QMap<QString, QSet<QString>> left;
  QStringList come;
  for (const QString &name : names) {
    element *e = m_net.element(name);
    const QString before = e == nullptr ? layer : e->value(key);
    if (before == layer)
      continue;
    e->set(key, layer);
    come.append(e->value(Names::all().name));
    left[before].insert(come.last());
  }
  for (auto it = left.cbegin(); it != left.cend(); ++it)
    takeFrom(it.key(), it.value());
  if (!come.isEmpty() && !layer.isEmpty())
    m_layers[layer] += come;
}

void Layers::takeFrom(const QString &layer, const QSet<QString> &names) {
  const auto entry = m_layers.find(layer);
  if (entry == m_layers.end())
    return;
  QStringList &members = *entry;
  members.erase(
      std::remove_if(members.begin(), members.end(), [&names](const QString &name) { return names.contains(name); }),
      members.end());
  if (members.isEmpty())
    m_layers.erase(entry);
}

void Layers::rename(const QString &layer, const QString &newName) {
  add(m_layers.value(layer), newName);
}

QStringList Layers::remove(const QSet<QString> &layers) {
  QStringList names;
  if (!canChange())
    return names;
  for (const QString &layer : layers)
    names += m_layers.take(layer);
  for (const QString &name : qAsConst(names)) {
    if (element *e = m_net.element(name))
      e->erase(m_property);
  }
  return names;
}

bool Layers::isAllowed(const QString &name) {
  static const QRegularExpression Forbidden(QStringLiteral("[;\"\\r\\n\\t<>]"));
  return !name.trimmed().isEmpty() && !Forbidden.match(name).hasMatch();
}
