#include "profile/stationaxis.h"

#include <model/elementtypes.h>
#include <model/titles.h>

#include <QFontMetrics>
#include <QPainter>
#include <qwt_plot.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_map.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr double SymbolSize = 18.0; // px
constexpr double Gap = 2.0;         // px
constexpr double TickLength = 4.0;  // px

/// Pipes, and shortcuts that stand for nothing that is built, are no stations.
bool isStation(const PathProfile::Row &row) {
  return !row.isNode && row.type != QLatin1String("p") && row.type != QLatin1String("s");
}

double middle(const PathProfile::Row &row) {
  return (row.from + row.to) / 2.0;
}

} // namespace

void StationAxis::setProfile(const PathProfile &profile, const QStringList &wayPoints) {
  m_profile = &profile;
  m_stations.clear();
  m_wayPoints.clear();
  for (std::size_t i = 0; i < profile.rows().size(); ++i) {
    const PathProfile::Row &row = profile.rows()[i];
    if (isStation(row))
      m_stations.push_back(toIndex(i));
    else if (row.isNode && wayPoints.contains(row.name, Qt::CaseInsensitive))
      m_wayPoints.push_back(toIndex(i));
  }
}

int StationAxis::height(const QFontMetrics &metrics) {
  return static_cast<int>(SymbolSize + 4.0 * Gap + TickLength) + 2 * metrics.height();
}

std::vector<StationAxis::Placed> StationAxis::layOut(const QwtScaleMap &xMap) const {
  std::vector<Placed> placed;
  double first = 0.0; // of the symbols that share one
  for (const Index row : m_stations) {
    const double x = xMap.transform(middle(m_profile->rows()[row]));
    if (!placed.empty() && x - first < SymbolSize) {
      placed.back().rows.push_back(row);
      placed.back().place = (first + x) / 2.0;
      continue;
    }
    first = x;
    placed.push_back({x, {row}});
  }
  const auto isMoreImportant = [this](Index a, Index b) {
    const PathProfile::Row &one = m_profile->rows()[a];
    const PathProfile::Row &other = m_profile->rows()[b];
    return std::pair(one.isOff, PathProfile::rank(one.type)) < std::pair(other.isOff, PathProfile::rank(other.type));
  };
  for (Placed &symbol : placed)
    std::stable_sort(symbol.rows.begin(), symbol.rows.end(), isMoreImportant);
  return placed;
}

QString StationAxis::namesAt(const QwtScaleMap &xMap, double pixel) const {
  constexpr std::size_t MostNames = 12;
  QStringList names;
  for (const Placed &placed : layOut(xMap)) {
    if (std::abs(placed.place - pixel) > SymbolSize / 2.0 + Gap)
      continue;
    for (const Index row : placed.rows) {
      const PathProfile::Row &station = m_profile->rows()[row];
      const ElementType *type = ElementTypes::byCode(station.type);
      if (names.size() == toQt(MostNames)) {
        names.append(QStringLiteral("…"));
        break;
      }
      names.append(type == nullptr ? station.name : QStringLiteral("%1: %2").arg(Titles::of(*type), station.name));
    }
  }
  return names.join(QLatin1Char('\n'));
}

void StationAxis::drawSymbol(QPainter &painter, const Placed &placed, double y) const {
  const PathProfile::Row &row = m_profile->rows()[placed.rows.front()];
  const QPointF center(placed.place, y);
  painter.setPen(QPen(m_colors.own, 1.0));
  painter.setBrush(Qt::NoBrush);
  constexpr double Backwards = 180.0; // degrees
  const SymbolPlace where{center, SymbolSize, row.isForward ? 0.0 : Backwards, m_colors.ground};
  if (!m_symbols || !m_symbols(painter, row.entry->value, where))
    painter.drawEllipse(center, SymbolSize / 3.0, SymbolSize / 3.0);
  if (placed.rows.size() < 2)
    return;
  const QString count = QString::number(placed.rows.size());
  QFont font = painter.font();
  const QFont before = font;
  font.setPixelSize(qRound(font.pixelSize() * 0.75));
  painter.setFont(font);
  const QRectF badge(center.x() + SymbolSize / 2.0 - Gap, y - SymbolSize / 2.0,
                     QFontMetricsF(font).horizontalAdvance(count) + Gap, QFontMetricsF(font).height());
  painter.setPen(m_colors.ink);
  painter.drawText(badge, Qt::AlignLeft | Qt::AlignTop, count);
  painter.setFont(before);
}

/// Way points first, then stations by their importance; a name that finds no room is left to the tip.
void StationAxis::drawNames(QPainter &painter, const std::vector<Placed> &symbols, const QwtScaleMap &xMap,
                            const QRectF &canvas) const {
  constexpr double Apart = 6.0; // px
  std::vector<Name> names;
  for (const Index row : m_wayPoints)
    names.push_back({xMap.transform(m_profile->rows()[row].from), m_profile->rows()[row].name, true});
  std::vector<std::pair<int, Name>> others;
  for (const Placed &placed : symbols) {
    const PathProfile::Row &row = m_profile->rows()[placed.rows.front()];
    others.push_back({PathProfile::rank(row.type), {placed.place, row.name, false}});
  }
  std::stable_sort(others.begin(), others.end(), [](const auto &a, const auto &b) { return a.first < b.first; });
  for (const auto &[importance, name] : others)
    names.push_back(name);
  std::vector<QRectF> taken;
  const double top = canvas.top() + SymbolSize + 2.0 * Gap;
  QFont font = painter.font();
  for (const Name &name : names) {
    if (name.place < canvas.left() - 1.0 || name.place > canvas.right() + 1.0)
      continue;
    font.setBold(name.isWayPoint);
    const QFontMetricsF metrics(font);
    const double width = metrics.horizontalAdvance(name.text);
    const double left = std::min(std::max(name.place - width / 2.0, canvas.left()), canvas.right() - width);
    const QRectF box(left, top, width, metrics.height());
    const QRectF room = box.adjusted(-Apart, 0.0, Apart, 0.0);
    if (left < canvas.left() || std::any_of(taken.begin(), taken.end(), [&](const QRectF &r) { return r.intersects(room); }))
      continue;
    taken.push_back(box);
    painter.setFont(font);
    painter.setPen(m_colors.ink);
    painter.drawText(box, Qt::AlignCenter | Qt::TextDontClip, name.text);
  }
}

/// The numbers of the axis, which stand below everything; a plot's own would want room beside its canvas.
void StationAxis::drawTicks(QPainter &painter, const QwtScaleMap &xMap, const QRectF &canvas) const {
  const QFontMetricsF metrics(painter.font());
  const double top = canvas.bottom() - metrics.height() - Gap - TickLength;
  painter.setPen(QPen(m_colors.ink, 1.0));
  painter.drawLine(QLineF(canvas.left(), top, canvas.right(), top));
  const QString unit = m_profile->lengthUnit();
  const double unitLeft = canvas.right() - metrics.horizontalAdvance(unit);
  painter.drawText(QPointF(unitLeft, canvas.bottom() - metrics.descent()), unit);
  for (const double tick : plot()->axisScaleDiv(QwtPlot::xBottom).ticks(QwtScaleDiv::MajorTick)) {
    const double x = xMap.transform(tick);
    const QString number = plot()->axisScaleDraw(QwtPlot::xBottom)->label(tick).text();
    const double width = metrics.horizontalAdvance(number);
    const double left = std::max(canvas.left(), x - width / 2.0);
    painter.drawLine(QLineF(x, top, x, top + TickLength));
    if (left + width < unitLeft - metrics.averageCharWidth())
      painter.drawText(QPointF(left, canvas.bottom() - metrics.descent()), number);
  }
}

void StationAxis::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvas) const {
  Q_UNUSED(yMap)
  if (m_profile == nullptr || m_profile->isEmpty())
    return;
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setFont(m_font);
  const double y = canvas.top() + Gap + SymbolSize / 2.0;
  painter->setPen(QPen(m_colors.ink, 1.0));
  painter->drawLine(QLineF(xMap.transform(0.0), y, xMap.transform(m_profile->length()), y));
  const std::vector<Placed> symbols = layOut(xMap);
  for (const Placed &placed : symbols) {
    if (placed.place > canvas.left() - SymbolSize && placed.place < canvas.right() + SymbolSize)
      drawSymbol(*painter, placed, y);
  }
  painter->setBrush(m_colors.ground);
  painter->setPen(QPen(m_colors.ink, 1.5));
  for (const Index row : m_wayPoints)
    painter->drawEllipse(QPointF(xMap.transform(m_profile->rows()[row].from), y), 3.0, 3.0);
  const QFont font = painter->font();
  drawNames(*painter, symbols, xMap, canvas);
  painter->setFont(font);
  drawTicks(*painter, xMap, canvas);
  painter->restore();
}
