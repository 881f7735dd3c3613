#include "profile/profilepaper.h"

void ProfilePaper::layOut(const QSizeF &frame, const PageSetup &setup, Detail detail) {
  Q_UNUSED(setup)
  Q_UNUSED(detail)
  m_frame = frame;
}

/// The chart scales by the dots of the device, which the painter's units count already.
void ProfilePaper::paint(QPainter &painter) const {
  constexpr double Margin = 8.0;
  const double dots = static_cast<double>(painter.device()->logicalDpiX()) / m_chart.logicalDpiX();
  painter.scale(1.0 / dots, 1.0 / dots);
  const QRectF area = QRectF(QPointF(), m_frame).adjusted(Margin, Margin, -Margin, -Margin);
  m_chart.paintOnWhite(painter, QRectF(area.topLeft() * dots, area.size() * dots));
}
