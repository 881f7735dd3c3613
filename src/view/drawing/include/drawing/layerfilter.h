#pragma once

#include <drawing/netgeometry.h>

#include <QSet>

#include <map>
#include <vector>

/// Which elements are not drawn because their layer is hidden. The layer is the value of one property; layers are known by
/// name, whatever the network.
class LayerFilter {
public:
  /// False when this hides what was hidden before.
  bool setHidden(const QString &property, const QSet<QString> &layers);
  const QString &property() const { return m_property; }
  const QSet<QString> &hidden() const { return m_layers; }
  /// Looks up the layers of the elements.
  void read(const NetGeometry &geometry);

  bool hidesAny() const { return !m_layers.isEmpty(); }
  bool isHidden(NetGeometry::Item item) const {
    const auto kind = m_hidden.find(item.kind);
    return kind != m_hidden.end() && kind->second[item.index];
  }

private:
  QString m_property;
  QSet<QString> m_layers;
  std::map<NetData::EleType, std::vector<bool>> m_hidden; ///< empty while no layer is hidden
};
