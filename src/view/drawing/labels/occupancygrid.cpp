#include <drawing/occupancygrid.h>

#include <QtMath>

#include <algorithm>
#include <bitset>
#include <cmath>

namespace {

constexpr double CellLength = 2.0; // px
constexpr Index WordBits = 64;
constexpr double LongestSide = 30000.0; // px, of the canvas

Index cellsOf(double side) {
  return static_cast<Index>(std::ceil(qBound(1.0, side, LongestSide) / CellLength));
}

Index wordsOf(double side) {
  return (cellsOf(side) + WordBits - 1) / WordBits;
}

QPointF direction(double angle) {
  if (angle == 0.0)
    return {1.0, 0.0};
  return {std::cos(qDegreesToRadians(angle)), std::sin(qDegreesToRadians(angle))};
}

QPointF turnedRight(const QPointF &direction) {
  return {-direction.y(), direction.x()};
}

} // namespace

TurnedBox::TurnedBox(const QPointF &center, const QSizeF &size, double angle)
    : TurnedBox(center, direction(angle) * (size.width() * 0.5), turnedRight(direction(angle)) * (size.height() * 0.5)) {}

TurnedBox::TurnedBox(const QPointF &center, const QPointF &across, const QPointF &down)
    : m_center(center)
    , m_across(across)
    , m_down(down)
    , m_corners{center - across - down, center + across - down, center + across + down, center - across + down} {}

TurnedBox TurnedBox::grown(double margin) const {
  const auto longer = [margin](const QPointF &half) {
    const double length = std::hypot(half.x(), half.y());
    return length > 0.0 ? half * ((length + margin) / length) : half;
  };
  return {m_center, longer(m_across), longer(m_down)};
}

QRectF TurnedBox::bounds() const {
  const double x = std::abs(m_across.x()) + std::abs(m_down.x());
  const double y = std::abs(m_across.y()) + std::abs(m_down.y());
  return {m_center.x() - x, m_center.y() - y, x * 2.0, y * 2.0};
}

// Separating axes: two convex shapes are apart if and only if a side of one of them parts them.
bool TurnedBox::overlaps(const TurnedBox &other) const {
  for (const QPointF &axis : {m_across, m_down, other.m_across, other.m_down}) {
    const auto reach = [&axis](const TurnedBox &box) {
      return std::abs(QPointF::dotProduct(box.m_across, axis)) + std::abs(QPointF::dotProduct(box.m_down, axis));
    };
    if (std::abs(QPointF::dotProduct(other.m_center - m_center, axis)) >= reach(*this) + reach(other))
      return false;
  }
  return true;
}

OccupancyGrid::OccupancyGrid(const QRectF &canvas)
    : m_columns(canvas.left(), CellLength, wordsOf(canvas.width()) * WordBits)
    , m_rows(canvas.top(), CellLength, cellsOf(canvas.height()))
    , m_words(wordsOf(canvas.width()))
    , m_cells(m_rows.count() * m_words, 0) {}

namespace {

/// How far the box reaches between two heights; left lies behind right where it does not reach.
void reachBetween(const TurnedBox &box, double top, double bottom, double &left, double &right) {
  std::swap(left, right);
  for (std::size_t i = 0; i < box.corners().size(); ++i) {
    QPointF a = box.corners()[i];
    QPointF b = box.corners()[(i + 1) % box.corners().size()];
    if (a.y() > b.y())
      std::swap(a, b);
    if (a.y() > bottom || b.y() < top)
      continue;
    const double slope = b.y() > a.y() ? (b.x() - a.x()) / (b.y() - a.y()) : 0.0;
    const double x1 = a.y() < top ? a.x() + (top - a.y()) * slope : a.x();
    const double x2 = b.y() > bottom ? a.x() + (bottom - a.y()) * slope : b.x();
    left = std::min({left, x1, x2});
    right = std::max({right, x1, x2});
  }
}

} // namespace

template <typename Visitor>
bool OccupancyGrid::forEachWord(const TurnedBox &box, const Visitor &visit) const {
  const QRectF bounds = box.bounds();
  const CellAxis::Range rows = m_rows.range(bounds.top(), bounds.bottom());
  for (Index row = rows.first; row < rows.end; ++row) {
    double left = bounds.left();
    double right = bounds.right();
    if (!box.isUpright())
      reachBetween(box, m_rows.start(row), m_rows.start(row + 1), left, right);
    const CellAxis::Range cells = m_columns.range(left, right);
    if (left > right || cells.isEmpty())
      continue;
    const Index firstWord = cells.first / WordBits;
    const Index last = cells.end - 1;
    const Index lastWord = last / WordBits;
    for (Index word = firstWord; word <= lastWord; ++word) {
      std::uint64_t mask = ~std::uint64_t(0);
      if (word == firstWord)
        mask &= ~std::uint64_t(0) << (cells.first % WordBits);
      if (word == lastWord)
        mask &= ~std::uint64_t(0) >> (WordBits - 1 - last % WordBits);
      if (!visit(row * m_words + word, mask))
        return false;
    }
  }
  return true;
}

bool OccupancyGrid::isFree(const TurnedBox &box) const {
  return forEachWord(box, [this](std::size_t word, std::uint64_t mask) { return (m_cells[word] & mask) == 0; });
}

void OccupancyGrid::take(const TurnedBox &box) {
  forEachWord(box, [this](std::size_t word, std::uint64_t mask) {
    m_cells[word] |= mask;
    return true;
  });
}

double OccupancyGrid::taken(const QRectF &area) const {
  std::size_t cells = 0;
  forEachWord(TurnedBox(area.center(), area.size(), 0.0), [this, &cells](std::size_t word, std::uint64_t mask) {
    cells += std::bitset<WordBits>(m_cells[word] & mask).count();
    return true;
  });
  return static_cast<double>(cells) * CellLength * CellLength;
}
