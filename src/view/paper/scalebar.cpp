#include "scalebar.h"

#include <QFontMetricsF>
#include <QLocale>

#include <array>
#include <cmath>

namespace {

constexpr int TextSize = 11;
constexpr double BarHeight = 5.0;
constexpr double Ascent = 14.0; // of the numbers above the bar

} // namespace

ScaleBar ScaleBar::of(const PaperScale &scale, double mostWidth) {
  ScaleBar bar;
  const double most = scale.lengthOfUnit * mostWidth;
  if (!(most > 0.0) || !std::isfinite(most))
    return bar;
  const double power = std::pow(10.0, std::floor(std::log10(most)));
  struct Step {
    double factor;
    int parts;
  };
  for (const Step &step : std::array<Step, 3>{{{5.0, 5}, {2.0, 4}, {1.0, 4}}}) {
    if (step.factor * power > most * (1.0 + 1e-9))
      continue;
    bar.length = step.factor * power;
    bar.parts = step.parts;
    break;
  }
  bar.width = bar.length / scale.lengthOfUnit;
  constexpr double Kilo = 1000.0;
  const QLocale locale;
  const auto number = [&locale](double value) {
    constexpr int Digits = 12;
    return locale.toString(value, 'g', Digits);
  };
  if (!scale.isMetres)
    bar.text = tr("%1 plot units").arg(number(bar.length));
  else if (bar.length >= Kilo)
    bar.text = tr("%1 km").arg(number(bar.length / Kilo));
  else
    bar.text = tr("%1 m").arg(number(bar.length));
  return bar;
}

double ScaleBar::neededWidth() const {
  return width + QFontMetricsF(pageFont(TextSize)).horizontalAdvance(text) + 8.0;
}

void ScaleBar::paint(QPainter &painter, const QPointF &at) const {
  if (!(width > 0.0))
    return;
  painter.setPen(QPen(Qt::black, 0.8));
  const double part = width / parts;
  for (int i = 0; i < parts; ++i) {
    painter.setBrush(i % 2 == 0 ? Qt::black : Qt::white);
    painter.drawRect(QRectF(at.x() + i * part, at.y() + Ascent, part, BarHeight));
  }
  painter.setBrush(Qt::NoBrush);
  painter.setFont(pageFont(TextSize));
  painter.drawText(QPointF(at.x(), at.y() + Ascent - 3.0), QStringLiteral("0"));
  painter.drawText(QPointF(at.x() + width + 5.0, at.y() + Ascent + BarHeight), text);
}

void NorthArrow::paint(QPainter &painter, const QPointF &center, double angle) {
  constexpr double Tip = 15.0;
  constexpr double HalfWidth = 6.0;
  painter.save();
  painter.translate(center);
  painter.rotate(angle);
  painter.setPen(QPen(Qt::black, 0.8, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin));
  const QPointF tip(0.0, -Tip + 2.0);
  const QPointF notch(0.0, 5.0);
  painter.setBrush(Qt::black);
  painter.drawPolygon(QPolygonF({tip, notch, QPointF(-HalfWidth, 9.0)}));
  painter.setBrush(Qt::white);
  painter.drawPolygon(QPolygonF({tip, QPointF(HalfWidth, 9.0), notch}));
  painter.setBrush(Qt::NoBrush);
  painter.restore();
  painter.setFont(pageFont(TextSize, true));
  // The letter keeps upright beside the tail, whichever way the arrow points.
  painter.drawText(QRectF(center + QPointF(Tip - 3.0, -Size * 0.5), QSizeF(12.0, Size)), Qt::AlignCenter,
                   QStringLiteral("N"));
}
