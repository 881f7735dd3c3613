#include "canvas/legendview.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>

LegendView::LegendView(const LegendPicture &picture, QWidget *canvas)
    : QWidget(canvas)
    , m_picture(picture) {
  setObjectName(QStringLiteral("legend"));
  setAccessibleName(tr("Legend"));
  setToolTip(tr("Drag the legend to another corner; right-click for its colours and scale; L hides it."));
  setCursor(Qt::OpenHandCursor);
  hide();
}

void LegendView::renew() {
  m_pixels = QPixmap();
  update();
}

void LegendView::paintEvent(QPaintEvent *) {
  if (m_isLeftOut)
    return;
  QPainter painter(this);
  const double ratio = devicePixelRatioF();
  if (painter.deviceTransform().m11() != ratio) { // into a picture of another scale
    m_picture.draw(painter, QPointF());
    return;
  }
  if (m_pixels.isNull() || m_pixels.devicePixelRatio() != ratio) {
    m_pixels = QPixmap((QSizeF(size()) * ratio).toSize());
    m_pixels.setDevicePixelRatio(ratio);
    m_pixels.fill(Qt::transparent);
    QPainter pixels(&m_pixels);
    m_picture.draw(pixels, QPointF());
  }
  painter.drawPixmap(0, 0, m_pixels);
}

void LegendView::enterEvent(QEvent *event) {
  emit entered();
  QWidget::enterEvent(event);
}

void LegendView::mousePressEvent(QMouseEvent *event) {
  m_grip = event->pos();
  m_isDragged = false;
  if (event->button() == Qt::LeftButton)
    setCursor(Qt::ClosedHandCursor);
}

void LegendView::mouseMoveEvent(QMouseEvent *event) {
  if (!event->buttons().testFlag(Qt::LeftButton))
    return;
  const QPoint way = event->pos() - m_grip;
  m_isDragged = m_isDragged || way.manhattanLength() >= QApplication::startDragDistance();
  if (!m_isDragged)
    return;
  const QRect room(QPoint(), parentWidget()->size() - size());
  const QPoint wanted = pos() + way;
  move(qBound(0, wanted.x(), qMax(0, room.right() + 1)), qBound(0, wanted.y(), qMax(0, room.bottom() + 1)));
}

void LegendView::mouseReleaseEvent(QMouseEvent *event) {
  if (event->button() != Qt::LeftButton)
    return;
  setCursor(Qt::OpenHandCursor);
  if (m_isDragged)
    emit dropped(geometry().center());
  m_isDragged = false;
}

void LegendView::mouseDoubleClickEvent(QMouseEvent *event) {
  if (event->button() == Qt::LeftButton)
    emit configurationWanted();
}

void LegendView::contextMenuEvent(QContextMenuEvent *event) {
  emit menuWanted(event->globalPos());
  event->accept();
}
