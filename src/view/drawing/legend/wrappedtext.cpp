#include "legend/wrappedtext.h"

#include <QFontMetricsF>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

WrappedText::WrappedText(const QString &text, const QFont &font, double width, int mostLines)
    : m_font(font) {
  const QFontMetricsF metrics(font);
  QTextLayout layout(text, font);
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(option);
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width);
    if (m_lines.size() + 1 == mostLines) {
      m_lines.append(metrics.elidedText(text.mid(line.textStart()).trimmed(), Qt::ElideRight, width));
      break;
    }
    m_lines.append(text.mid(line.textStart(), line.textLength()).trimmed());
  }
  layout.endLayout();
  double widest = 0.0;
  for (const QString &line : m_lines)
    widest = std::max(widest, metrics.horizontalAdvance(line));
  m_size = QSizeF(std::min(std::ceil(widest), width), metrics.height() * std::max(1, m_lines.size()));
}

void WrappedText::draw(QPainter &painter, const QPointF &top) const {
  const QFontMetricsF metrics(m_font);
  painter.setFont(m_font);
  QPointF base = top + QPointF(0.0, metrics.ascent());
  for (const QString &line : m_lines) {
    painter.drawText(base, line);
    base.ry() += metrics.height();
  }
}
