#include "dotsitem.h"

#include <QPainter>
#include <QPolygonF>
#include <qwt_scale_map.h>

#include <utility>

DotsItem::DotsItem(QVector<QPointF> inside, QVector<QPointF> outside)
    : m_inside(std::move(inside))
    , m_outside(std::move(outside)) {
  constexpr double Above = 47.0; // lines, and below the working point
  setZ(Above);
  setItemAttribute(AutoScale);
  setRenderHint(RenderAntialiased);
}

QRectF DotsItem::boundingRect() const {
  return QPolygonF(m_inside + m_outside).boundingRect();
}

void DotsItem::draw(QPainter *painter, const QwtScaleMap &x, const QwtScaleMap &y, const QRectF & /*canvas*/) const {
  constexpr double Radius = 3.5;
  painter->setPen(QPen(m_colors[2], 1.0));
  for (const bool isInside : {true, false}) {
    painter->setBrush(m_colors[isInside ? 0 : 1]);
    for (const QPointF &at : isInside ? m_inside : m_outside)
      painter->drawEllipse(QPointF(x.transform(at.x()), y.transform(at.y())), Radius, Radius);
  }
}
