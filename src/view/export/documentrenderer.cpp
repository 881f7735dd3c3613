#include "export/documentrenderer.h"

#include <QPainter>
#include <QSignalBlocker>
#include <qwt_color_map.h>
#include <qwt_plot.h>
#include <qwt_scale_map.h>
#include <qwt_scale_widget.h>

#include <cmath>

namespace {

/// Each step reaches from where it begins to the end of the bar and is painted over by the next, so that no gap shines
/// through between two of them.
void drawBar(QPainter &painter, const QwtScaleWidget &scale, const QRectF &bar) {
  constexpr int Steps = 256;
  const bool isUpright = bar.height() > bar.width();
  const QwtInterval interval = scale.colorBarInterval();
  QwtScaleMap map = scale.scaleDraw()->scaleMap();
  map.setPaintInterval(isUpright ? bar.bottom() : bar.left(), isUpright ? bar.top() : bar.right());
  painter.save();
  painter.setPen(Qt::NoPen);
  QRgb last = 0;
  for (int step = 0; step < Steps; ++step) {
    const double share = static_cast<double>(step) / Steps;
    const double position = map.p1() + (map.p2() - map.p1()) * share;
    const double middle = map.invTransform(map.p1() + (map.p2() - map.p1()) * (share + 0.5 / Steps));
    const QRgb color = scale.colorMap()->rgb(interval, middle);
    if (step > 0 && color == last)
      continue;
    last = color;
    QRectF rest = bar;
    if (isUpright)
      rest.setBottom(position);
    else
      rest.setLeft(position);
    painter.setBrush(QColor::fromRgb(color));
    painter.drawRect(rest);
  }
  painter.restore();
}

} // namespace

void DocumentRenderer::renderScale(const QwtPlot *plot, QPainter *painter, int axis, int startDistance, int endDistance,
                                   int baseDistance, const QRectF &rect) const {
  auto *scale = const_cast<QwtScaleWidget *>(plot->axisWidget(axis)); // as it is again when this returns
  if (!plot->axisEnabled(axis) || !scale->isColorBarEnabled() || scale->colorBarWidth() <= 0) {
    QwtPlotRenderer::renderScale(plot, painter, axis, startDistance, endDistance, baseDistance, rect);
    return;
  }
  drawBar(*painter, *scale, scale->colorBarRect(rect));
  const QSignalBlocker quiet(scale);
  scale->setColorBarEnabled(false);
  QwtPlotRenderer::renderScale(plot, painter, axis, startDistance, endDistance,
                               baseDistance + scale->colorBarWidth() + scale->spacing(), rect);
  scale->setColorBarEnabled(true);
}
