#include "canvas/functionlegend.h"

#include <qwt_text.h>

#include <algorithm>

namespace {

enum Corner { TopLeft = 1, BottomLeft = 2, TopRight = 3, BottomRight = 4 };

constexpr double Half = 0.5;

QwtText textOf(const PlotSettings &settings, const QString &functions) {
  constexpr int LargerThanLabels = 2; // pt
  constexpr int BackgroundAlpha = 200;
  QwtText text(functions, QwtText::PlainText);
  text.setFont(QFont(QStringLiteral("Arial"), std::max(settings.labelMag + LargerThanLabels, 1), QFont::Bold));
  text.setColor(settings.edgeLabelsColor);
  text.setRenderFlags(Qt::AlignLeft | Qt::AlignVCenter);
  QColor background = settings.bgrColor;
  background.setAlpha(BackgroundAlpha);
  text.setBackgroundBrush(background);
  return text;
}

} // namespace

FunctionLegend::FunctionLegend(QwtFastPlot &plot)
    : m_plot(plot) {
  constexpr double LegendZ = 100.0;
  m_marker.setZ(LegendZ);
  m_marker.setRenderHint(QwtPlotItem::RenderAntialiased);
  m_marker.attach(&plot);
  m_marker.hide();
}

void FunctionLegend::place(const PlotSettings &settings, const QString &functions) {
  constexpr double Inset = 10.0; // px
  const int corner = settings.legendPos;
  m_marker.setVisible(corner >= TopLeft && corner <= BottomRight && !functions.isEmpty());
  if (!m_marker.isVisible())
    return;
  const QwtText text = textOf(settings, functions);
  m_marker.setLabel(text);
  m_size = text.textSize();
  const QSizeF unit = m_plot.unitsPerPixel();
  const QRectF shown = m_plot.visibleRect();
  const double fromSide = (m_size.width() * Half + Inset) * unit.width();
  const double fromEnd = (m_size.height() * Half + Inset) * unit.height();
  const bool isRight = corner == TopRight || corner == BottomRight;
  const bool isTop = corner == TopLeft || corner == TopRight;
  // Plot coordinates grow upwards: the lower edge of the view is the top of its rectangle.
  m_marker.setValue(isRight ? shown.right() - fromSide : shown.left() + fromSide,
                    isTop ? shown.bottom() - fromEnd : shown.top() + fromEnd);
  m_plot.replot();
}

QRectF FunctionLegend::area() const {
  if (!m_marker.isVisible())
    return QRectF();
  QRectF area(QPointF(), m_size);
  area.moveCenter(
      {m_plot.transform(QwtPlot::xBottom, m_marker.value().x()), m_plot.transform(QwtPlot::yLeft, m_marker.value().y())});
  return area;
}
