#include "geometry/canvasgrid.h"
#include "style/detail.h"

#include <drawing/edgelayer.h>
#include <drawing/layergeometry.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>
#include <unordered_map>

namespace {

constexpr double EdgeZ = 10.0;
constexpr double WidthStep = 0.25; // px: widths are rounded so that many edges share a pen

constexpr unsigned WidthShift = 32;
constexpr unsigned RankShift = 48;

/// A number a pen, ascending in drawing order: edges of the background lie below the others, narrow lines below broad ones.
std::uint64_t penKey(const EdgeLook &look) {
  constexpr double BroadestLine = 200.0; // px
  const auto width = static_cast<std::uint64_t>(std::lround(qBound(0.0, look.width, BroadestLine) / WidthStep));
  return (std::uint64_t(!look.isBackground) << RankShift) | (width << WidthShift) | look.color;
}

QPen penOf(std::uint64_t key) {
  constexpr std::uint64_t WidthMask = 0xffff;
  const double width = static_cast<double>((key >> WidthShift) & WidthMask) * WidthStep;
  return {QColor(static_cast<QRgb>(key)), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

} // namespace

EdgeLayer::EdgeLayer() {
  setRenderHint(RenderAntialiased);
  setZ(EdgeZ);
}

void EdgeLayer::setEdges(const NetGeometry &geometry) {
  m_factor.reset();
  m_typicalLength = geometry.typicalLength();
  std::vector<SpatialIndex::Box> boxes;
  std::vector<Index> edgesOfBoxes;
  boxes.reserve(geometry.edges().size());
  edgesOfBoxes.reserve(geometry.edges().size());
  for (Index i = 0; i < geometry.edges().size(); ++i) {
    const NetGeometry::Edge &edge = geometry.edges()[i];
    if (!geometry.isPlaced(edge))
      continue;
    const QLineF line = geometry.line(edge);
    const auto [x1, x2] = std::minmax({line.x1(), line.x2()});
    const auto [y1, y2] = std::minmax({line.y1(), line.y2()});
    boxes.push_back({x1, y1, x2, y2});
    edgesOfBoxes.push_back(i);
  }
  const std::vector<Index> order = m_index.build(boxes);
  m_records.clear();
  m_records.reserve(order.size());
  for (const Index box : order) {
    Record record;
    record.edge = edgesOfBoxes[box];
    const NetGeometry::Edge &edge = geometry.edges()[record.edge];
    const QLineF line = geometry.line(edge);
    record.x1 = line.x1();
    record.y1 = line.y1();
    record.x2 = line.x2();
    record.y2 = line.y2();
    record.lane = edge.lane;
    record.hasSymbol = edge.type != 'p';
    m_records.push_back(record);
  }
}

void EdgeLayer::setLooks(const std::vector<EdgeLook> &looks) {
  m_factor.reset();
  // Number the pens as they come, then put them into drawing order.
  std::unordered_map<std::uint64_t, Index> numbers;
  std::vector<std::uint64_t> keys;
  for (Record &record : m_records) {
    const EdgeLook &look = looks[record.edge];
    if (look.isHidden) {
      record.pen = NoIndex;
      continue;
    }
    const std::uint64_t key = penKey(look);
    record.flow = static_cast<signed char>(look.flow);
    const auto [known, isNew] = numbers.try_emplace(key, toIndex(keys.size()));
    if (isNew)
      keys.push_back(key);
    record.pen = known->second;
  }
  std::vector<std::uint64_t> sorted = keys;
  std::sort(sorted.begin(), sorted.end());
  std::vector<Index> drawingOrder(keys.size());
  for (Index pen = 0; pen < sorted.size(); ++pen)
    drawingOrder[numbers[sorted[pen]]] = pen;
  for (Record &record : m_records) {
    if (record.pen != NoIndex)
      record.pen = drawingOrder[record.pen];
  }

  m_pens.clear();
  m_widest = 0.0;
  for (const std::uint64_t key : sorted) {
    m_pens.push_back(penOf(key));
    m_widest = std::max(m_widest, m_pens.back().widthF());
  }
}

void EdgeLayer::clear() {
  m_records.clear();
  m_index.clear();
  m_pens.clear();
  m_factor.reset();
}

LaneWay EdgeLayer::way(const Record &record, const Projection &projection) const {
  const QLineF line(projection.map(record.x1, record.y1), projection.map(record.x2, record.y2));
  if (record.lane == 0.0F)
    return {line, 0.0};
  const double width = m_pens[record.pen].widthF();
  return {line, static_cast<double>(record.lane) * laneSpacing(record.hasSymbol, width, m_symbolSize)};
}

void EdgeLayer::addLines(const Record &record, const Projection &projection, const QRectF &area,
                         std::vector<VisibleLine> &lines, double arrowSize, std::vector<Arrow> &arrows) const {
  QLineF line(projection.map(record.x1, record.y1), projection.map(record.x2, record.y2));
  if (record.lane != 0.0F) {
    const LaneWay beside = way(record, projection);
    for (QLineF end : {QLineF(beside.start, beside.first), QLineF(beside.second, beside.end)}) {
      if (clipLine(end, area))
        lines.push_back({end, record.pen});
    }
    line = beside.middle();
  }
  const QLineF whole = line;
  if (!clipLine(line, area))
    return;
  lines.push_back({line, record.pen});
  if (record.flow != 0)
    addArrows(record, whole, area, arrowSize, arrows);
}

double EdgeLayer::arrowSizeIn(const Projection &projection) const {
  return m_arrowSize * Detail(m_typicalLength * projection.scale()).arrowScale();
}

void EdgeLayer::addArrows(const Record &record, const QLineF &line, const QRectF &area, double arrowSize,
                          std::vector<Arrow> &arrows) const {
  constexpr double ShortestLine = 5.0; // arrows
  constexpr double Spacing = 20.0;     // arrows
  const double dx = line.dx();
  const double dy = line.dy();
  const double square = dx * dx + dy * dy;
  const double shortest = arrowSize * ShortestLine + (record.hasSymbol ? m_symbolSize : 0.0);
  if (!(square >= shortest * shortest) || arrowSize <= 0.0)
    return;
  const double length = std::sqrt(square);
  double count = std::max(1.0, std::floor(length / (arrowSize * Spacing)));
  if (record.hasSymbol)
    count += std::fmod(count, 2.0); // none in the middle, where the symbol stands
  QLineF visible = line;
  if (!clipLine(visible, area))
    return;
  const auto numberAt = [&](const QPointF &p) {
    return ((p.x() - line.x1()) * dx + (p.y() - line.y1()) * dy) / square * count - 0.5;
  };
  const QPointF along = QPointF(dx, dy) / length * static_cast<double>(record.flow);
  constexpr double Half = 0.5;
  const double last = std::floor(numberAt(visible.p2()));
  for (double i = std::max(0.0, std::ceil(numberAt(visible.p1()))); i <= last && i < count; i += 1.0)
    arrows.push_back({line.pointAt((i + Half) / count) + along * arrowSize * Half, along, record.pen});
}

void EdgeLayer::drawArrows(QPainter &painter, const std::vector<Arrow> &arrows, double arrowSize) const {
  constexpr double WidthShare = 0.42; // to each side of the line
  constexpr double Notch = 0.75;      // how deep the back is cut
  constexpr int DarkerPercent = 150;
  painter.setPen(Qt::NoPen);
  for (const Arrow &arrow : arrows) {
    const QPen &pen = m_pens[arrow.pen];
    const double size = arrowSize + pen.widthF();
    const QPointF back = arrow.tip - arrow.along * size;
    const QPointF side = QPointF(-arrow.along.y(), arrow.along.x()) * size * WidthShare;
    painter.setBrush(pen.color().darker(DarkerPercent));
    painter.drawPolygon(
        QPolygonF(QVector<QPointF>{arrow.tip, back + side, arrow.tip - arrow.along * size * Notch, back - side}));
  }
}

namespace {

/// Of lines that are spread evenly, px.
template <typename Lines>
double distanceBetween(const Lines &lines, const QRectF &area) {
  double length = 1.0;
  for (const auto &line : lines)
    length += std::sqrt(line.line.dx() * line.line.dx() + line.line.dy() * line.line.dy());
  return area.width() * area.height() / length;
}

QColor mixed(const QColor &color, const QColor &other, double share) {
  const auto mix = [share](int a, int b) {
    return static_cast<int>(std::lround(a + (b - a) * share));
  };
  return {mix(color.red(), other.red()), mix(color.green(), other.green()), mix(color.blue(), other.blue())};
}

} // namespace

double EdgeLayer::factorFor(double apart) const {
  constexpr double ShareOfRoom = 0.4;
  return m_widest > 0.0 ? std::min(1.0, apart * ShareOfRoom / m_widest) : 1.0;
}

QPen EdgeLayer::penFor(const QPen &pen, double apart) const {
  constexpr double NextWidth = 1.4; // px: below it a line looks like one of a pixel, which is drawn much quicker
  constexpr double Paleness = 0.7;  // of the narrowest line where lines touch
  constexpr double Touching = 2.0;  // px
  constexpr double Apart = 12.0;    // px
  QPen drawn = pen;
  const double crowd = 1.0 - Detail::presence(apart, Touching, Apart);
  const double narrowness = m_widest > 0.0 ? 1.0 - pen.widthF() / m_widest : 0.0;
  if (crowd > 0.0 && narrowness > 0.0)
    drawn.setColor(mixed(pen.color(), m_background, crowd * narrowness * Paleness));
  const double factor = factorFor(apart);
  const double width = pen.widthF() * factor;
  drawn.setWidthF(factor < 1.0 && width < NextWidth ? std::min(pen.widthF(), 1.0) : width);
  return drawn;
}

std::vector<QLineF> EdgeLayer::inDrawingOrder(const std::vector<VisibleLine> &lines, const QRectF &canvas,
                                              std::vector<std::size_t> &starts) const {
  constexpr double ShortestSeen = 1.0; // px
  const auto isSeen = [](const QLineF &line) {
    return std::abs(line.dx()) > ShortestSeen || std::abs(line.dy()) > ShortestSeen;
  };
  // Counting sort by pen.
  starts.assign(m_pens.size() + 1, 0);
  for (const VisibleLine &line : lines)
    ++starts[line.pen + 1];
  std::partial_sum(starts.begin(), starts.end(), starts.begin());
  std::vector<QLineF> sorted(lines.size());
  std::vector<std::size_t> next = starts;
  for (const VisibleLine &line : lines)
    sorted[next[line.pen]++] = line.line;
  constexpr std::size_t ManyLines = 50000; // of fewer, each is drawn
  if (lines.size() < ManyLines)
    return sorted;
  // From the broadest on, each short line takes its place; what comes too late is left out, and the rest moves up.
  CanvasGrid places(canvas, ShortestSeen);
  std::size_t kept = sorted.size();
  std::size_t end = sorted.size();
  for (std::size_t pen = m_pens.size(); pen-- > 0;) {
    const std::size_t first = starts[pen];
    starts[pen + 1] = kept;
    for (std::size_t i = end; i-- > first;) {
      if (isSeen(sorted[i]) || places.take(sorted[i].center()))
        sorted[--kept] = sorted[i];
    }
    end = first;
  }
  starts.front() = kept;
  return sorted;
}

std::vector<EdgeLayer::VisibleLine> EdgeLayer::visibleLines(const Projection &projection, double arrowSize,
                                                            std::vector<Arrow> &arrows) const {
  const double margin = m_widest + 1.0;
  const QRectF area = projection.canvas().adjusted(-margin, -margin, margin, margin);
  std::vector<VisibleLine> visible;
  m_index.query(projection.visible(margin), [&](Index i) {
    if (m_records[i].pen != NoIndex)
      addLines(m_records[i], projection, area, visible, arrowSize, arrows);
  });
  return visible;
}

double EdgeLayer::widthFactor(const Projection &projection) const {
  if (!projection.isValid())
    return 1.0;
  if (!m_factor || !(m_factor->first == projection)) {
    std::vector<Arrow> none;
    const double apart = distanceBetween(visibleLines(projection, 0.0, none), coveredPart(projection));
    m_factor.emplace(projection, factorFor(apart));
  }
  return m_factor->second;
}

QRectF EdgeLayer::coveredPart(const Projection &projection) const {
  constexpr double Surroundings = 40.0; // px: lines in a row have room beside them
  const SpatialIndex::Box &bounds = m_index.bounds();
  const QRectF all = QRectF(projection.map(bounds.x1, bounds.y1), projection.map(bounds.x2, bounds.y2)).normalized();
  return all.adjusted(-Surroundings, -Surroundings, Surroundings, Surroundings) & projection.canvas();
}

void EdgeLayer::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvasRect) const {
  constexpr std::size_t ManyLines = 20000; // beyond it nobody sees the caps, but they cost half the frame
  const Projection projection(xMap, yMap, canvasRect);
  if (!projection.isValid())
    return;
  const double arrowSize = arrowSizeIn(projection);
  std::vector<Arrow> arrows;
  const std::vector<VisibleLine> visible = visibleLines(projection, arrowSize, arrows);
  const double apart = distanceBetween(visible, coveredPart(projection));
  std::vector<std::size_t> starts;
  const std::vector<QLineF> sorted = inDrawingOrder(visible, canvasRect, starts);
  for (std::size_t i = 0; i < m_pens.size(); ++i) {
    const std::size_t count = starts[i + 1] - starts[i];
    if (count == 0)
      continue;
    QPen pen = penFor(m_pens[i], apart);
    if (visible.size() > ManyLines)
      pen.setCapStyle(Qt::FlatCap);
    painter->setPen(pen);
    painter->drawLines(&sorted[starts[i]], toQt(count));
  }
  drawArrows(*painter, arrows, arrowSize);
}

void EdgeLayer::find(const Projection &projection, const QPointF &point, double tolerance, std::vector<Hit> &hits) const {
  const double reach = tolerance + m_widest;
  m_index.query(projection.around(point, reach + m_symbolSize), [&](Index i) {
    const Record &record = m_records[i];
    if (record.pen == NoIndex)
      return;
    const LaneWay line = way(record, projection);
    const double distance = std::min({distanceToLine(point, line.middle()), distanceToLine(point, {line.start, line.first}),
                                      distanceToLine(point, {line.second, line.end})});
    const double halfWidth = m_pens[record.pen].widthF() * 0.5;
    if (distance - halfWidth <= tolerance)
      hits.push_back({{NetData::Edge, record.edge}, distance, HitRank::Line});
  });
}
