#include <view/layergeometry.h>
#include <view/textboxlayer.h>

#include <QFontMetricsF>
#include <QPainterPath>

#include <algorithm>

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
  for (std::size_t i = 0; i < geometry.textBoxes().size(); ++i) {
    const NetGeometry::Place &box = geometry.textBoxes()[i];
    const QString shown = box.source->value(text).simplified().left(LongestText);
    if (shown.isEmpty())
      continue;
    const QFont own = screenFont(fontOf(*box.source, font));
    m_records.push_back({box.x, box.y, shown, own, colorOf(*box.source, color), static_cast<int>(i),
                         QFontMetricsF(own).size(Qt::TextSingleLine, shown)});
  }
}

std::vector<TextBoxLayer::Placed> TextBoxLayer::place(const Projection &projection) const {
  std::vector<Placed> placed;
  if (!projection.isValid())
    return placed;
  constexpr double Cell = 8.0;
  PixelGrid grid(projection.canvas(), Cell);
  for (const Record &record : m_records) {
    QRectF area(QPointF(), record.size);
    area.moveCenter(projection.map(record.x, record.y));
    const bool isHidden = m_layers != nullptr && m_layers->isHidden({NetData::TextBox, record.textBox});
    if (isHidden || !projection.canvas().contains(area.center()))
      continue;
    // What would be cut at the side of the canvas is moved in.
    area.moveLeft(std::max(std::min(area.left(), projection.canvas().right() - area.width()), projection.canvas().left()));
    if (grid.takeArea(area))
      placed.push_back({&record, area});
  }
  return placed;
}

std::vector<QRectF> TextBoxLayer::places(const Projection &projection) const {
  std::vector<QRectF> areas;
  for (const Placed &placed : place(projection))
    areas.push_back(placed.area);
  return areas;
}

void TextBoxLayer::find(const Projection &projection, const QPointF &point, std::vector<Hit> &hits) const {
  // Only where a text may lie under the point is it worth finding out which of them are drawn.
  const bool isNear = projection.isValid() && std::any_of(m_records.begin(), m_records.end(), [&](const Record &record) {
                        const QPointF to = projection.map(record.x, record.y) - point;
                        return std::abs(to.x()) <= record.size.width() && std::abs(to.y()) <= record.size.height();
                      });
  if (!isNear)
    return;
  for (const Placed &placed : place(projection)) {
    const QPointF to = placed.area.center() - point;
    if (placed.area.contains(point))
      hits.push_back({{NetData::TextBox, placed.record->textBox}, std::hypot(to.x(), to.y())});
  }
}

void TextBoxLayer::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                        const QRectF &canvasRect) const {
  constexpr double HaloWidth = 3.0;
  constexpr int HaloAlpha = 210;
  QColor halo = m_background;
  halo.setAlpha(HaloAlpha);
  for (const Placed &placed : place(Projection(xMap, yMap, canvasRect))) {
    const Record &record = *placed.record;
    const QPointF start(placed.area.left(), placed.area.top() + QFontMetricsF(record.font).ascent());
    QPainterPath outline;
    outline.addText(start, record.font, record.text);
    painter->strokePath(outline, QPen(halo, HaloWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->setPen(record.color);
    painter->setFont(record.font);
    painter->drawText(start, record.text);
  }
}
