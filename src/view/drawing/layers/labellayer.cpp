#include <drawing/labellayer.h>
#include <drawing/layergeometry.h>

#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QPainterPath>
#include <QTextDocument>

#include <cmath>

namespace {

constexpr double LabelZ = 2000.0; // above the boxes of subnets

} // namespace

LabelLayer::LabelLayer() {
  setRenderHint(RenderAntialiased);
  setZ(LabelZ);
}

void LabelLayer::setLabels(std::vector<Label> labels, double unitsPerPixel) {
  m_labels = std::move(labels);
  m_unitsPerPixel = unitsPerPixel;
}

void LabelLayer::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvasRect) const {
  constexpr double SameScale = 0.01;
  const Projection projection(xMap, yMap, canvasRect);
  if (!projection.isValid() || m_labels.empty())
    return;
  const double units = std::abs(xMap.sDist() / xMap.pDist());
  const bool isSameScale = std::abs(units - m_unitsPerPixel) <= SameScale * units;
  OccupancyGrid grid(canvasRect);
  for (const Label &label : m_labels) {
    LabelCandidate candidate = label.candidate;
    candidate.line = projection.map(label.position);
    const TurnedBox box = candidate.box(label.spot);
    if (!canvasRect.intersects(box.bounds()))
      continue;
    if (!isSameScale) { // until they are placed anew, labels that came too near to others are left out
      if (!grid.isFree(box))
        continue;
      grid.take(box);
    }
    drawLabel(*painter, label, candidate.anchor(label.spot.along) + label.spot.offset);
  }
}

namespace {

void drawHaloPath(QPainter &painter, const Label &label, const QPointF &top) {
  constexpr double Width = 3.0; // px
  QPointF start(0.0, top.y() + QFontMetricsF(label.style.font).ascent());
  QPainterPath outline;
  for (const QStaticText &line : label.lines) {
    start.setX(top.x() - line.size().width() * 0.5);
    outline.addText(start, label.style.font, line.text());
    start.ry() += line.size().height();
  }
  painter.strokePath(outline, QPen(label.style.halo, Width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

} // namespace

void LabelLayer::drawHalo(QPainter &painter, const Label &label, const QPointF &top) {
  if (label.style.halo.alpha() == 0)
    return;
  if (isVectorTarget(painter)) {
    drawHaloPath(painter, label, top);
    return;
  }
  // The prepared text, drawn all about its place, is much quicker than its outline.
  painter.setPen(label.style.halo);
  for (const QPointF &aside : {QPointF(-2, 0), QPointF(2, 0), QPointF(0, -2), QPointF(0, 2), QPointF(-1, -1), QPointF(1, -1),
                               QPointF(-1, 1), QPointF(1, 1)}) {
    double y = std::round(top.y());
    for (const QStaticText &line : label.lines) {
      painter.drawStaticText(QPointF(std::round(top.x() - line.size().width() * 0.5), y) + aside, line);
      y += line.size().height();
    }
  }
}

void LabelLayer::drawLines(QPainter &painter, const Label &label, QPointF top) {
  painter.setFont(label.style.font);
  drawHalo(painter, label, top);
  const bool isVector = isVectorTarget(painter);
  const double ascent = isVector ? QFontMetricsF(label.style.font).ascent() : 0.0;
  painter.setPen(label.style.text);
  for (const QStaticText &line : label.lines) {
    QPointF corner = top - QPointF(line.size().width() * 0.5, 0.0);
    if (isVector) { // prepared text would be written as outlines
      painter.drawText(corner + QPointF(0.0, ascent), line.text());
    } else {
      if (label.spot.angle == 0.0) // upright text stands on whole pixels, where it is sharpest
        corner = {std::round(corner.x()), std::round(corner.y())};
      painter.drawStaticText(corner, line);
    }
    top.ry() += line.size().height();
  }
}

void LabelLayer::drawLabel(QPainter &painter, const Label &label, const QPointF &center) {
  const QSizeF size = label.candidate.size;
  const bool isTurned = label.spot.angle != 0.0;
  if (isTurned) {
    painter.save();
    painter.translate(center);
    painter.rotate(label.spot.angle);
  }
  const QPointF middle = isTurned ? QPointF() : center;
  const QRectF box(middle - QPointF(size.width() * 0.5, size.height() * 0.5), size);
  if (label.style.background.alpha() > 0 || label.style.border.alpha() > 0) {
    painter.setPen(label.style.border.alpha() > 0 ? QPen(label.style.border, 1.0) : QPen(Qt::NoPen));
    painter.setBrush(label.style.background.alpha() > 0 ? QBrush(label.style.background) : QBrush(Qt::NoBrush));
    painter.drawRect(box);
  }
  painter.setPen(label.style.text);
  if (label.document != nullptr) {
    painter.save();
    painter.translate(box.topLeft());
    const QRectF area(QPointF(), box.size());
    painter.setClipRect(area, Qt::IntersectClip);
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, label.style.text);
    context.clip = area;
    label.document->documentLayout()->draw(&painter, context);
    painter.restore();
  } else {
    drawLines(painter, label, {middle.x(), box.top() + Label::padding().height()});
  }
  if (isTurned)
    painter.restore();
}
