#include "canvas/qwtfastplot.h"
#include "interaction/pathlayer.h"

#include <view/netviscontrol.h>
#include <view/pathmark.h>

PathMark::PathMark(NetVisControl &control)
    : QObject(control.plot())
    , m_control(control)
    , m_layer(std::make_unique<PathLayer>(*control.plot()->plot(), control.plot()->update())) {
  control.plot()->plot()->addOverlayItem(m_layer.get());
}

PathMark::~PathMark() = default;

void PathMark::setPath(const QStringList &edges, const QStringList &wayPoints) {
  const NetGeometry &geometry = m_control.plot()->update().geometry();
  const auto found = [&](const QStringList &names, NetData::EleType kind) {
    std::vector<Index> indices;
    indices.reserve(fromQt(names.size()));
    for (const QString &name : names) {
      if (const auto item = geometry.find(m_control.net(), name, kind))
        indices.push_back(item->index);
    }
    return indices;
  };
  m_layer->setItems(found(edges, NetData::Edge), found(wayPoints, NetData::Node));
  m_control.plot()->plot()->updateOverlay();
}

void PathMark::setCursor(const QString &element, double share) {
  const auto item = m_control.plot()->update().geometry().find(m_control.net(), element, NetData::Node | NetData::Edge);
  m_layer->setCursor(item ? std::make_optional(PathLayer::Cursor{*item, share}) : std::nullopt);
  m_control.plot()->plot()->updateOverlay();
}

void PathMark::clearCursor() {
  if (!m_layer->hasCursor())
    return;
  m_layer->setCursor(std::nullopt);
  m_control.plot()->plot()->updateOverlay();
}

std::size_t PathMark::size() const {
  return m_layer->size();
}
