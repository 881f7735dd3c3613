#include "styles/rampswatch.h"

#include <base/index.h>
#include <drawing/classlooks.h>
#include <drawing/colorscale.h>

#include <QPainter>
#include <QPixmap>

namespace {

constexpr int Size = 40; // px; screens take what they need of it
constexpr int Margin = 4;
constexpr int Steps = 32;

QRgb colorAt(const PlotSettings &settings, const HueColorMap &map, double share) {
  const int classes = settings.colorClasses;
  if (classes < 2)
    return map.ramp().color(share);
  const int own = std::min(classes - 1, static_cast<int>(share * classes));
  const std::vector<QColor> colors = ClassLooks::colors(settings.classColors);
  if (fromQt(own) < colors.size() && colors[fromQt(own)].isValid())
    return colors[fromQt(own)].rgb();
  return map.ramp().color(static_cast<double>(own) / (classes - 1));
}

} // namespace

QIcon RampSwatch::icon(const PlotSettings &settings) {
  const auto map = ColorScale::colorMap(settings, Aspect::EdgeColor);
  QPixmap picture(Size, Size);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  const QRectF area(Margin, Margin, Size - 2 * Margin, Size - 2 * Margin);
  for (int i = 0; i < Steps; ++i) {
    const double share = (i + 0.5) / Steps;
    QRectF rest = area; // painted over by the next, so that no gap shows
    rest.setLeft(area.left() + area.width() * i / Steps);
    painter.fillRect(rest, QColor::fromRgb(colorAt(settings, *map, share)));
  }
  painter.setPen(QPen(QColor(128, 128, 128), 2.0)); // apart from light and dark menus
  painter.drawRect(area);
  return QIcon(picture);
}
