#include <view/layergeometry.h>
#include <view/textboxlayer.h>

#include <QFontMetricsF>
#include <QPainterPath>

namespace {

constexpr double TextZ = 40.0;

QFont fontOf(const element &box, const QFont &otherwise) {
  static const PropertyKey key = PropertyKey::intern("vis.font");
  QFont font;
  const QString text = box.value(key);
  return !text.isEmpty() && font.fromString(text) ? font : otherwise;
}

QColor colorOf(const element &box, const QColor &otherwise) {
  static const PropertyKey key = PropertyKey::intern("vis.color");
  const QColor color(box.value(key));
  return color.isValid() ? color : otherwise;
}

} // namespace

TextBoxLayer::TextBoxLayer() {
  setRenderHint(RenderAntialiased);
  setZ(TextZ);
}

void TextBoxLayer::setTextBoxes(const NetGeometry &geometry, const QColor &color, const QFont &font) {
  static const PropertyKey text = PropertyKey::intern("text");
  constexpr int LongestText = 500; // nobody reads more on a drawing
  m_records.clear();
  for (const NetGeometry::Place &box : geometry.textBoxes()) {
    const QString shown = box.source->value(text).simplified().left(LongestText);
    if (!shown.isEmpty())
      m_records.push_back({box.x, box.y, shown, fontOf(*box.source, font), colorOf(*box.source, color)});
  }
}

void TextBoxLayer::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                        const QRectF &canvasRect) const {
  const Projection projection(xMap, yMap, canvasRect);
  if (!projection.isValid())
    return;
  constexpr double HaloWidth = 3.0;
  constexpr double Cell = 8.0;
  PixelGrid grid(canvasRect, Cell);
  QColor halo = m_background;
  constexpr int HaloAlpha = 210;
  halo.setAlpha(HaloAlpha);
  for (const Record &record : m_records) {
    const QPointF center = projection.map(record.x, record.y);
    if (!canvasRect.contains(center))
      continue;
    const QFontMetricsF metrics(record.font, painter->device());
    QRectF place(QPointF(), metrics.size(Qt::TextSingleLine, record.text));
    place.moveCenter(center);
    if (!grid.takeArea(place))
      continue;
    QPainterPath outline;
    outline.addText(place.left(), place.top() + metrics.ascent(), record.font, record.text);
    painter->strokePath(outline, QPen(halo, HaloWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->setPen(record.color);
    painter->setFont(record.font);
    painter->drawText(QPointF(place.left(), place.top() + metrics.ascent()), record.text);
  }
}
