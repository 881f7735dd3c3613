#include "canvas/legendplace.h"

#include <QCoreApplication>

#include <array>
#include <vector>

namespace {

using LegendPlace::Corner;

constexpr double Inset = 10.0; // px, from the sides of the canvas

// In square pixels of what is drawn.
constexpr double Nothing = 24.0;            // the end of a line
constexpr double AnyAtAll = 5000.0;         // more than all that can be left out is worth
constexpr double OfTaken = 1e9;             // nothing of the network counts as much
constexpr double WorthAnotherPlace = 500.0; // a line of 3 px over the breadth of a legend

/// What it costs to stand there; the parts add up.
struct Cost {
  double hidden = 0.0;
  double unsaid = 0.0;

  double sum() const { return hidden + unsaid; }
  double whole() const { return hidden < Nothing ? unsaid : AnyAtAll + sum(); }
};

Cost costOf(LegendPlace::Place place, const QSizeF &size, const LegendPlace::Surroundings &around) {
  constexpr std::array<double, LegendPicture::Brevities> Unsaid{0.0, 150.0, 400.0, 700.0, 1200.0};
  constexpr double Apart = 2.0; // px
  const QRectF area = LegendPlace::areaIn(place.corner, size, around.canvas);
  return {around.drawn.taken(area.adjusted(-Apart, -Apart, Apart, Apart)) + (area.intersects(around.taken) ? OfTaken : 0.0),
          Unsaid[static_cast<std::size_t>(place.brevity)]};
}

struct Judged {
  LegendPlace::Place place;
  Cost cost;
};

/// The best in one of the corners.
std::optional<Judged> best(const std::vector<Corner> &corners, const LegendPlace::Sizes &sizes,
                           const LegendPlace::Surroundings &around) {
  std::optional<Judged> found;
  for (std::size_t i = 0; i < sizes.size(); ++i) {
    for (const Corner corner : corners) {
      const LegendPlace::Place place{corner, static_cast<LegendPicture::Brevity>(i)};
      if (sizes[i].isEmpty())
        continue;
      const Cost cost = costOf(place, sizes[i], around);
      if (!found || cost.whole() < found->cost.whole())
        found = Judged{place, cost};
    }
  }
  return found;
}

} // namespace

const QStringList &LegendPlace::names() {
  static const QStringList known{QStringLiteral("top left"), QStringLiteral("bottom left"), QStringLiteral("top right"),
                                 QStringLiteral("bottom right")};
  return known;
}

QString LegendPlace::title(Corner corner) {
  constexpr std::array<const char *, 4> Titles{
      QT_TRANSLATE_NOOP("LegendPlace", "upper left corner"), QT_TRANSLATE_NOOP("LegendPlace", "lower left corner"),
      QT_TRANSLATE_NOOP("LegendPlace", "upper right corner"), QT_TRANSLATE_NOOP("LegendPlace", "lower right corner")};
  return QCoreApplication::translate("LegendPlace", Titles[static_cast<std::size_t>(corner)]);
}

std::optional<Corner> LegendPlace::cornerOf(const QString &name) {
  const int index = names().indexOf(name);
  return index < 0 ? std::nullopt : std::make_optional(static_cast<Corner>(index));
}

QRectF LegendPlace::areaIn(Corner corner, const QSizeF &size, const QRectF &canvas) {
  const bool isRight = corner == Corner::TopRight || corner == Corner::BottomRight;
  const bool isTop = corner == Corner::TopLeft || corner == Corner::TopRight;
  return {{isRight ? canvas.right() - Inset - size.width() : canvas.left() + Inset,
           isTop ? canvas.top() + Inset : canvas.bottom() - Inset - size.height()},
          size};
}

Corner LegendPlace::nearest(const QPointF &point, const QRectF &canvas) {
  const bool isTop = point.y() < canvas.center().y();
  if (point.x() < canvas.center().x())
    return isTop ? Corner::TopLeft : Corner::BottomLeft;
  return isTop ? Corner::TopRight : Corner::BottomRight;
}

LegendPlace::Place LegendPlace::leastHiding(const Sizes &sizes, const Surroundings &around,
                                            const std::optional<Place> &before) {
  const std::optional<Judged> found =
      best({Corner::BottomLeft, Corner::BottomRight, Corner::TopRight, Corner::TopLeft}, sizes, around);
  const std::optional<Judged> there = before ? best({before->corner}, sizes, around) : std::nullopt;
  if (there && there->cost.sum() - found->cost.sum() < WorthAnotherPlace)
    return there->place;
  return found ? found->place : Place();
}
