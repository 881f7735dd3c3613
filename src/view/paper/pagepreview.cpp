#include "pagepreview.h"

#include "pagewriter.h"

#include <QGuiApplication>

PagePreview::PagePreview(QWidget *parent)
    : QWidget(parent) {
  constexpr int PatienceMs = 60;
  setMinimumSize(220, 200);
  m_waiting.setSingleShot(true);
  m_waiting.setInterval(PatienceMs);
  connect(&m_waiting, &QTimer::timeout, this, &PagePreview::render);
}

void PagePreview::setPage(PageContent &content, const PageSetup &setup, const PageText &text) {
  m_content = &content;
  m_setup = setup;
  m_text = text;
  m_waiting.start();
}

void PagePreview::flush() {
  if (!m_waiting.isActive())
    return;
  m_waiting.stop();
  render();
}

void PagePreview::resizeEvent(QResizeEvent *event) {
  QWidget::resizeEvent(event);
  m_waiting.start();
}

void PagePreview::render() {
  if (m_content == nullptr)
    return;
  constexpr int Border = 12;
  const QSizeF room = size() - QSize(2 * Border, 2 * Border);
  const QSizeF sheet = m_setup.size();
  const double pixelsPerMillimeter = std::min(room.width() / sheet.width(), room.height() / sheet.height());
  m_page = QImage();
  if (m_setup.fault().isEmpty() && pixelsPerMillimeter > 0.0) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    m_page = PageWriter::picture(m_setup, *m_content, m_text,
                                 pixelsPerMillimeter * PageSetup::MillimetersPerInch * devicePixelRatioF());
    m_page.setDevicePixelRatio(devicePixelRatioF());
    QGuiApplication::restoreOverrideCursor();
  }
  update();
}

void PagePreview::paintEvent(QPaintEvent *event) {
  QWidget::paintEvent(event);
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Mid));
  if (m_page.isNull()) {
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect().adjusted(20, 20, -20, -20), int(Qt::AlignCenter) | int(Qt::TextWordWrap), m_setup.fault());
    return;
  }
  constexpr int Shadow = 3;
  QRectF sheet(QPointF(), QSizeF(m_page.size()) / m_page.devicePixelRatio());
  sheet.moveCenter(QRectF(rect()).center());
  sheet.moveTopLeft(sheet.topLeft().toPoint());
  painter.fillRect(sheet.translated(Shadow, Shadow), palette().color(QPalette::Shadow));
  painter.drawImage(sheet, m_page);
}
