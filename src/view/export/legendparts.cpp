#include "export/legendparts.h"

#include <model/displayformat.h>

#include <QFontMetricsF>
#include <QLinearGradient>
#include <qwt_scale_engine.h>

#include <cmath>

namespace {

constexpr double BarHeight = 12.0;
constexpr double CapWidth = 9.0;
constexpr int HeadingSize = 12;
constexpr int TextSize = 11;

double headingHeight(const QString &title) {
  const QRectF room(0.0, 0.0, PageContent::LegendWidth, 1e4);
  const QFontMetricsF metrics(pageFont(HeadingSize, true));
  return std::ceil(metrics.boundingRect(room, Qt::TextWordWrap, title).height()) + 4.0;
}

void paintHeading(QPainter &painter, const QString &title) {
  painter.setPen(Qt::black);
  painter.setFont(pageFont(HeadingSize, true));
  painter.drawText(QRectF(0.0, 0.0, PageContent::LegendWidth, headingHeight(title)), int(Qt::TextWordWrap), title);
}

/// A scale as it is drawn: values in the stored unit.
struct Scale {
  std::shared_ptr<const QwtColorMap> map;
  QwtInterval range;
  Units::Linear toDisplay;
  bool hasLowCap = false;
  bool hasHighCap = false;

  QwtInterval shown() const { return QwtInterval(toDisplay(range.minValue()), toDisplay(range.maxValue())).normalized(); }
  /// The share of the way along the bar, in the display unit.
  QRgb color(double share) const {
    const QwtInterval interval = shown();
    return map->rgb(range, toDisplay.inverse(interval.minValue() + interval.width() * share));
  }
};

/// Where the colour changes, as shares of the bar with the colour from there on. Many for a smooth scale.
std::vector<std::pair<double, QRgb>> runs(const Scale &scale) {
  constexpr int Steps = 256;
  std::vector<std::pair<double, QRgb>> found;
  for (int step = 0; step < Steps; ++step) {
    const QRgb color = scale.color((step + 0.5) / Steps);
    if (found.empty() || found.back().second != color)
      found.emplace_back(static_cast<double>(step) / Steps, color);
  }
  return found;
}

void paintBar(QPainter &painter, const Scale &scale, const QRectF &bar) {
  constexpr std::size_t MostClasses = 60;
  constexpr int Stops = 48;
  painter.setPen(Qt::NoPen);
  const std::vector<std::pair<double, QRgb>> classes = runs(scale);
  if (classes.size() <= MostClasses) { // each up to the end, painted over by the next: no gap shines through
    for (const auto &[from, color] : classes) {
      painter.setBrush(QColor(color));
      painter.drawRect(bar.adjusted(bar.width() * from, 0.0, 0.0, 0.0));
    }
  } else {
    QLinearGradient ramp(bar.topLeft(), bar.topRight());
    for (int stop = 0; stop <= Stops; ++stop)
      ramp.setColorAt(static_cast<double>(stop) / Stops, QColor(scale.color(static_cast<double>(stop) / Stops)));
    painter.setBrush(ramp);
    painter.drawRect(bar);
  }
  painter.setPen(QPen(QColor(90, 90, 90), 0.6));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(bar);
}

void paintCap(QPainter &painter, const Scale &scale, const QRectF &bar, bool isLow) {
  constexpr double Beyond = 0.05;
  const double side = isLow ? bar.left() : bar.right();
  painter.setPen(QPen(QColor(90, 90, 90), 0.6));
  painter.setBrush(QColor(scale.color(isLow ? -Beyond : 1.0 + Beyond)));
  painter.drawPolygon(QPolygonF({QPointF(side, bar.top()), QPointF(side + (isLow ? -CapWidth : CapWidth), bar.center().y()),
                                 QPointF(side, bar.bottom())}));
}

/// Round numbers with just the digits that they need.
void paintTicks(QPainter &painter, const QwtInterval &interval, const QRectF &bar) {
  constexpr int MostTicks = 5;
  constexpr double TickLength = 4.0;
  constexpr double Rounding = 1e-6;
  const QList<double> ticks = QwtLinearScaleEngine()
                                  .divideScale(interval.minValue(), interval.maxValue(), MostTicks, 0)
                                  .ticks(QwtScaleDiv::MajorTick);
  const double step = ticks.size() > 1 ? std::abs(ticks.at(1) - ticks.at(0)) : interval.width();
  const int decimals = static_cast<int>(qBound(0.0, -std::floor(std::log10(step) + Rounding), 9.0));
  painter.setFont(pageFont(TextSize));
  painter.setPen(QPen(Qt::black, 0.8));
  const QFontMetricsF metrics(painter.font());
  double end = -1e9; // of the number before
  for (const double tick : ticks) {
    const double x = bar.left() + bar.width() * (tick - interval.minValue()) / interval.width();
    const QString text = DisplayFormat::fixed(std::abs(tick) < step * Rounding ? 0.0 : tick, decimals);
    const double width = metrics.horizontalAdvance(text);
    const double left = qBound(0.0, x - width * 0.5, PageContent::LegendWidth - width);
    painter.drawLine(QPointF(x, bar.bottom()), QPointF(x, bar.bottom() + TickLength));
    if (left < end + 4.0)
      continue;
    painter.drawText(QPointF(left, bar.bottom() + TickLength + metrics.ascent()), text);
    end = left + width;
  }
}

void paintScale(QPainter &painter, const Scale &scale, double top) {
  const QRectF bar(scale.hasLowCap ? CapWidth : 0.5, top,
                   PageContent::LegendWidth - 1.0 - (scale.hasLowCap ? CapWidth : 0.0) - (scale.hasHighCap ? CapWidth : 0.0),
                   BarHeight);
  const QwtInterval interval = scale.shown();
  if (interval.width() > 0.0) {
    if (scale.hasLowCap)
      paintCap(painter, scale, bar, true);
    if (scale.hasHighCap)
      paintCap(painter, scale, bar, false);
    paintBar(painter, scale, bar);
    paintTicks(painter, interval, bar);
    return;
  }
  painter.setPen(QPen(QColor(90, 90, 90), 0.6)); // a single value
  painter.setBrush(QColor(scale.color(0.0)));
  painter.drawRect(QRectF(bar.topLeft(), QSizeF(bar.width() * 0.25, bar.height())));
  painter.setPen(Qt::black);
  painter.setFont(pageFont(TextSize));
  painter.drawText(QPointF(bar.left() + bar.width() * 0.25 + 8.0, bar.bottom() - 2.0),
                   DisplayFormat::number(interval.minValue()));
}

} // namespace

PaperLegendPart LegendParts::colors(const QString &title, std::shared_ptr<const QwtColorMap> map,
                                    const DrawValues::Column &values) {
  constexpr double TicksHeight = 19.0;
  const bool isTurned = values.function.toDisplay.factor < 0.0L;
  const bool isBelow = values.data.minValue() < values.range.minValue();
  const bool isAbove = values.data.maxValue() > values.range.maxValue();
  const Scale scale{std::move(map), values.range, values.function.toDisplay, isTurned ? isAbove : isBelow,
                    isTurned ? isBelow : isAbove};
  const double top = headingHeight(title);
  return {top + BarHeight + TicksHeight, [title, scale, top](QPainter &painter) {
            paintHeading(painter, title);
            paintScale(painter, scale, top);
          }};
}

PaperLegendPart LegendParts::rows(const QString &title, std::vector<Row> rows, double signWidth) {
  const double top = headingHeight(title);
  const double height = top + LineHeight * static_cast<double>(rows.size());
  return {height, [title, rows = std::move(rows), signWidth, top](QPainter &painter) {
            paintHeading(painter, title);
            QRectF line(0.0, top, PageContent::LegendWidth, LineHeight);
            for (const Row &row : rows) {
              painter.save();
              row.paint(painter, {signWidth * 0.5, line.center().y()});
              painter.restore();
              painter.setPen(Qt::black);
              painter.setFont(pageFont(TextSize));
              const QRectF room = line.adjusted(signWidth + 8.0, 0.0, 0.0, 0.0);
              painter.drawText(room, int(Qt::AlignLeft) | int(Qt::AlignVCenter),
                               QFontMetricsF(painter.font()).elidedText(row.text, Qt::ElideRight, room.width()));
              line.translate(0.0, LineHeight);
            }
          }};
}
