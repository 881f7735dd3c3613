#include "stationplot.h"

#include "shownnumber.h"

#include <QPainterPath>
#include <QPolygonF>

namespace {

MapQuantity flowUnit() {
  return MapQuantity(QStringLiteral("m³/s"));
}

QString pointText(const NetworkMachines::Station &present, const Compression &whole) {
  const QString at =
      StationPlot::tr("Q = %1, ratio = %2").arg(flowUnit().text(whole.volumeFlow()), shownNumber(whole.ratio()));
  return present.configuration ? StationPlot::tr("%1\nconfiguration %2").arg(at, present.configuration->name) : at;
}

} // namespace

/// The outline of all is that of what any of them covers.
void StationPlot::addOutlines(const std::vector<Outline> &outlines, const QString &present) {
  QPainterPath all;
  for (const Outline &outline : outlines) {
    if (outline.points.size() < 3)
      continue;
    QPainterPath own;
    own.addPolygon(QPolygonF(outline.points));
    own.closeSubpath();
    all = all.united(own);
    if (outline.name == present)
      addArea(outline.points);
  }
  const QList<QPolygonF> parts = all.toSubpathPolygons();
  bool isNamed = false;
  for (const QPolygonF &part : parts) {
    addNamedLine(part, QPen(PaleBlue, 5.0), isNamed ? QString() : tr("all configurations"));
    isNamed = true;
  }
  static const QColor *const Colors[] = {&Blue, &Orange, &Green, &Red};
  static const Qt::PenStyle Styles[] = {Qt::SolidLine, Qt::DashLine, Qt::DotLine};
  std::size_t i = 0;
  for (const Outline &outline : outlines) {
    const std::size_t number = i++;
    if (outline.points.size() < 3)
      continue;
    QVector<QPointF> closed = outline.points;
    closed.append(closed.first());
    addNamedLine(closed, QPen(*Colors[number % 4], outline.name == present ? 2.0 : 1.2, Styles[number / 4 % 3]),
                 outline.name);
  }
}

void StationPlot::show(const QString &station, const std::vector<Outline> &outlines, const NetworkMachines::Station &present,
                       const Compression &whole) {
  const MapQuantity flow = flowUnit();
  reset(station + QLatin1Char('\n') + pointText(present, whole), {tr("volume flow at the inlet"), flow},
        {tr("pressure ratio"), MapQuantity()});
  setReadout([flow](const QPointF &at) { return tr("Q = %1\nratio = %2").arg(flow.text(at.x()), shownNumber(at.y())); });
  addOutlines(outlines, present.configuration ? present.configuration->name : QString());
  for (const NetworkMachines::Unit &unit : present.units)
    addNamedPoint({unit.point.flow, unit.point.ratio}, unit.point.isInside, unit.machine);
  addWorkingPoint({whole.volumeFlow(), whole.ratio()}, present.isWell());
  finish();
}
