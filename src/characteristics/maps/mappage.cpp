#include "mappage.h"

#include <qwt_plot.h>
#include <qwt_plot_renderer.h>

PageText MapPage::text() const {
  const QString heading = m_map.title().text();
  const QString point = heading.section(QLatin1Char('\n'), 1);
  return {heading.section(QLatin1Char('\n'), 0, 0),
          point.isEmpty() ? m_facts.line() : m_facts.line() + QLatin1Char('\n') + point, QString()};
}

void MapPage::layOut(const QSizeF &frame, const PageSetup &setup, Detail detail) {
  Q_UNUSED(setup)
  Q_UNUSED(detail)
  m_frame = frame;
}

/// The renderer scales by the dots of the device, which the painter's units count already.
void MapPage::paint(QPainter &painter) const {
  constexpr double Margin = 16.0; // numbers at the ends of axes reach beyond them
  const double dots = static_cast<double>(painter.device()->logicalDpiX()) / m_map.logicalDpiX();
  painter.scale(1.0 / dots, 1.0 / dots);
  QwtPlotRenderer renderer;
  renderer.setDiscardFlag(QwtPlotRenderer::DiscardBackground);
  renderer.setDiscardFlag(QwtPlotRenderer::DiscardTitle); // which the page has
  const QRectF area = QRectF(QPointF(), m_frame).adjusted(Margin * 0.5, Margin, -Margin * 1.5, -Margin * 0.5);
  m_onWhite([&] { renderer.render(&m_map, &painter, QRectF(area.topLeft() * dots, area.size() * dots)); });
}
