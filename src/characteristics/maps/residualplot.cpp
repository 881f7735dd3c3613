#include "residualplot.h"

#include <algorithm>

void ResidualPlot::show(const QString &heading, const std::vector<FitResiduals::Point> &points, const MapQuantity &quantity,
                        double factor) {
  const MapQuantity flow(QStringLiteral("m³/s"));
  reset(heading, {tr("volume flow at the inlet"), flow}, {tr("residual"), quantity.ofDifferences()});
  setReadout([flow, quantity](const QPointF &at) {
    return tr("Q = %1\nresidual = %2").arg(flow.text(at.x()), quantity.ofDifferences().text(at.y(), 3));
  });
  QVector<QPointF> fitted;
  QVector<QPointF> published;
  double last = 0.0;
  for (const FitResiduals::Point &point : points) {
    if (point.fitted)
      fitted.append(QPointF(point.flow, factor * *point.fitted));
    if (point.published)
      published.append(QPointF(point.flow, factor * *point.published));
    last = std::max(last, point.flow);
  }
  addLine({{0.0, 0.0}, {last, 0.0}}, QPen(PaleBlue, 1.0));
  addDots(published, Orange, tr("published"));
  addDots(fitted, Blue, tr("fitted"));
  finish();
}
