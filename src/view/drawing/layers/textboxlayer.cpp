#include "geometry/canvasgrid.h"

#include <drawing/layergeometry.h>
#include <drawing/textboxlayer.h>

#include <QFontMetricsF>
#include <QPainterPath>

#include <algorithm>

namespace {

constexpr double TextZ = 40.0;

QSizeF sizeOf(const QStringList &lines, const QFont &font) {
  const QFontMetricsF metrics(font);
  QSizeF size(0.0, metrics.height() * lines.size());
  for (const QString &line : lines)
    size.setWidth(std::max(size.width(), metrics.size(Qt::TextSingleLine, line).width()));
  return size;
}

bool hasInk(const QColor &color) {
  return color.alpha() > 0;
}

} // namespace

TextBoxLayer::TextBoxLayer() {
  setRenderHint(RenderAntialiased);
  setZ(TextZ);
}

void TextBoxLayer::setTextBoxes(const NetGeometry &geometry, const LabelContents &contents, double size) {
  static const PropertyKey font = PropertyKey::intern("vis.font");
  m_records.clear();
  for (Index i = 0; i < geometry.textBoxes().size(); ++i) {
    const NetGeometry::PointElement &box = geometry.textBoxes()[i];
    const QStringList lines = contents.textOfBox(*box.source);
    if (lines.isEmpty())
      continue;
    LabelStyle style = contents.style(*box.source, NetData::TextBox);
    if (size >= 1.0 && box.source->find(font) == nullptr)
      style.font.setPixelSize(static_cast<int>(size));
    m_records.push_back({box.x, box.y, lines, style, i, sizeOf(lines, style.font)});
  }
}

std::vector<TextBoxLayer::Placed> TextBoxLayer::layOut(const Projection &projection) const {
  std::vector<Placed> placed;
  if (!projection.isValid())
    return placed;
  constexpr double CellLength = 8.0; // px
  CanvasGrid grid(projection.canvas(), CellLength);
  for (const Record &record : m_records) {
    QRectF area(QPointF(), record.size);
    area.moveCenter(projection.map(record.x, record.y));
    if (m_filter.hides({NetData::TextBox, record.textBox}) || !projection.canvas().contains(area.center()))
      continue;
    // What would be cut at the side of the canvas is moved in.
    area.moveLeft(std::max(std::min(area.left(), projection.canvas().right() - area.width()), projection.canvas().left()));
    if (grid.takeArea(area))
      placed.push_back({&record, area});
  }
  return placed;
}

std::vector<QRectF> TextBoxLayer::areas(const Projection &projection) const {
  std::vector<QRectF> areas;
  for (const Placed &placed : layOut(projection))
    areas.push_back(placed.area);
  return areas;
}

std::map<Index, QRectF> TextBoxLayer::areasByTextBox(const Projection &projection) const {
  std::map<Index, QRectF> areas;
  for (const Placed &placed : layOut(projection))
    areas[placed.record->textBox] = placed.area;
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
  for (const Placed &placed : layOut(projection)) {
    const QPointF to = placed.area.center() - point;
    if (placed.area.contains(point))
      hits.push_back({{NetData::TextBox, placed.record->textBox}, std::hypot(to.x(), to.y()), HitRank::Point});
  }
}

void TextBoxLayer::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                        const QRectF &canvasRect) const {
  constexpr double HaloWidth = 3.0;
  constexpr int HaloAlpha = 210;
  constexpr double Padding = 3.0; // px of ground around the text
  QColor halo = m_background;
  halo.setAlpha(HaloAlpha);
  for (const Placed &placed : layOut(Projection(xMap, yMap, canvasRect))) {
    const Record &record = *placed.record;
    const LabelStyle &style = record.style;
    const bool hasGround = hasInk(style.background);
    if (hasGround || hasInk(style.border)) {
      painter->setPen(hasInk(style.border) ? QPen(style.border, 1.0) : QPen(Qt::NoPen));
      painter->setBrush(hasGround ? QBrush(style.background) : QBrush(Qt::NoBrush));
      painter->drawRect(placed.area.adjusted(-Padding, -Padding, Padding, Padding));
    }
    const QFontMetricsF metrics(style.font);
    QPointF start(placed.area.left(), placed.area.top() + metrics.ascent());
    painter->setFont(style.font);
    for (const QString &line : record.lines) {
      if (!hasGround) {
        QPainterPath outline;
        outline.addText(start, style.font, line);
        painter->strokePath(outline, QPen(halo, HaloWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
      }
      painter->setPen(style.text);
      painter->drawText(start, line);
      start.ry() += metrics.height();
    }
  }
}
