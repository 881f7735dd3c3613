#include "geometry/canvasgrid.h"

#include <drawing/elementfilter.h>
#include <drawing/symbollayer.h>
#include <model/elementstate.h>

#include <QtMath>

#include <algorithm>

namespace {

constexpr double SymbolZ = 30.0;
constexpr double LargestSymbol = 512.0; // px

/// Lower is more important; pipes have no symbol.
int priorityOf(char type) {
  constexpr std::string_view TypesByPriority = "crgwkfvsd";
  return static_cast<int>(std::min(TypesByPriority.find(type), TypesByPriority.size()));
}

} // namespace

SymbolLayer::SymbolLayer() {
  setRenderHint(RenderAntialiased);
  setZ(SymbolZ);
}

void SymbolLayer::setTable(const SymbolTable &table) {
  clear(); // the records hold numbers of the old symbols
  m_symbols.setTable(table);
}

Index SymbolLayer::symbolOf(const NetGeometry::Edge &edge) {
  const QString type(QLatin1Char(edge.type));
  const PropertyKey own = PropertyKey::find("vis.symbol");
  const Index symbol = own.isNull() ? NoIndex : m_symbols.find(edge.source->value(own).trimmed());
  if (symbol != NoIndex)
    return symbol;
  if (edge.isInactive)
    return m_symbols.find(type, QStringLiteral("_off"));
  return edge.isBypass ? m_symbols.find(type, QStringLiteral("_bypass")) : m_symbols.find(type);
}

std::vector<SymbolLayer::Record> SymbolLayer::records(const NetGeometry &geometry) {
  std::vector<Record> found;
  const auto shareOf = [this](const QString &type) {
    return static_cast<float>(m_sizes.contains(type) && m_size > 0.0 ? m_sizes.value(type) / m_size : 1.0);
  };
  for (Index i = 0; i < geometry.edges().size(); ++i) {
    const NetGeometry::Edge &edge = geometry.edges()[i];
    if (edge.type == 'p' || !geometry.isPlaced(edge))
      continue;
    const QLineF line = geometry.line(edge);
    Record record;
    record.x = line.center().x();
    record.y = line.center().y();
    record.dx = line.dx();
    record.dy = line.dy();
    record.item = {NetData::Edge, i};
    record.symbol = symbolOf(edge);
    record.priority = priorityOf(edge.type);
    record.lane = edge.lane;
    record.size = m_sizes.isEmpty() ? 1.0F : shareOf(QString(QLatin1Char(edge.type)));
    found.push_back(record);
  }
  for (Index i = 0; i < geometry.nodes().size(); ++i) {
    const NetGeometry::Node &node = geometry.nodes()[i];
    if (!node.isDrive || !node.isPlaced)
      continue;
    Record record;
    record.x = node.x;
    record.y = node.y;
    record.item = {NetData::Node, i};
    const QString type = QStringLiteral("d");
    record.symbol =
        ElementState::isOutOfUse(*node.source) ? m_symbols.find(type, QStringLiteral("_off")) : m_symbols.find(type);
    record.priority = priorityOf('d');
    record.size = shareOf(type);
    found.push_back(record);
  }
  found.erase(std::remove_if(found.begin(), found.end(), [](const Record &r) { return r.symbol == NoIndex; }), found.end());
  return found;
}

Findings SymbolLayer::setStations(const NetGeometry &geometry) {
  clear();
  std::vector<Record> found = records(geometry);
  Findings findings = m_symbols.takeFindings();
  append(findings, m_figures.read(geometry));
  for (Record &record : found)
    record.figure = m_figures.find(record.item);
  for (const NetGeometry::Item item : m_figures.itemsBesides(found)) {
    Record record;
    record.x = geometry.center(item)->x();
    record.y = geometry.center(item)->y();
    record.item = item;
    record.figure = m_figures.find(item);
    found.push_back(record);
  }
  std::vector<SpatialIndex::Box> boxes;
  boxes.reserve(found.size());
  for (const Record &r : found)
    boxes.push_back({r.x, r.y, r.x, r.y});
  m_records.reserve(found.size());
  for (const Index i : m_index.build(boxes))
    m_records.push_back(found[i]);
  return findings;
}

void SymbolLayer::setVisibility(const VisibilityRules &rules, const LayerFilter &layers) {
  const ElementFilter filter{&layers, &rules};
  for (Record &record : m_records)
    record.isVisible = !filter.hides(record.item);
  m_layout.reset(); // also for the boxes of subnets, which follow the same rules
}

void SymbolLayer::clear() {
  m_records.clear();
  m_index.clear();
  m_figures.clear();
  m_layout.reset();
}

QPointF SymbolLayer::centerOf(const Record &r, const Projection &projection) const {
  if (r.lane == 0.0F)
    return projection.map(r.x, r.y);
  const QLineF line(projection.map(r.x - r.dx * 0.5, r.y - r.dy * 0.5), projection.map(r.x + r.dx * 0.5, r.y + r.dy * 0.5));
  return LaneWay(line, static_cast<double>(r.lane) * laneSpacing(true, 0.0, m_size)).middle().center();
}

const std::vector<SymbolLayer::Placed> &SymbolLayer::laidOut(const Projection &projection) const {
  if (!m_layout || !(m_layout->projection == projection))
    m_layout = layOut(projection);
  return m_layout->placed;
}

SymbolLayer::Layout SymbolLayer::layOut(const Projection &projection) const {
  Layout layout{projection, {}, {}};
  std::vector<Placed> &placed = layout.placed;
  if (!projection.isValid() || m_size <= 0.0)
    return layout;
  const double reach = std::max(m_size, m_figures.longest() * 0.5);
  const double margin = reach + m_size; // lanes move symbols a little
  const QRectF area = projection.canvas().adjusted(-reach, -reach, reach, reach);
  const std::vector<QRectF> boxes = m_covers ? m_covers(projection) : std::vector<QRectF>();
  const auto isBehindBox = [&boxes](const QPointF &center) {
    return std::any_of(boxes.begin(), boxes.end(), [&center](const QRectF &box) { return box.contains(center); });
  };
  std::vector<std::pair<Index, QPointF>> visible; // index of the record, and its middle in pixels
  m_index.query(projection.visible(margin), [&](Index i) {
    if (!m_records[i].isVisible)
      return;
    const QPointF center = centerOf(m_records[i], projection);
    if (area.contains(center) && !isBehindBox(center))
      visible.emplace_back(i, center);
  });
  std::sort(visible.begin(), visible.end(), [&](const auto &a, const auto &b) {
    return std::make_pair(m_records[a.first].priority, a.first) < std::make_pair(m_records[b.first].priority, b.first);
  });

  // Symbols shrink where they are many, but stay legible; those that then overlap stand behind one of them.
  constexpr double ShareOfRoom = 0.6;
  constexpr double LegibleSize = 12.0; // px
  constexpr double CellShare = 0.55;   // of a symbol: one free cell lies between two symbols
  const QRectF &canvas = projection.canvas();
  const double room =
      std::sqrt(canvas.width() * canvas.height() / static_cast<double>(std::max<std::size_t>(visible.size(), 1)));
  const double size = std::min(m_size, std::max(LegibleSize, room * ShareOfRoom));
  CanvasGrid grid(area, size * CellShare);
  for (const auto &[i, center] : visible) {
    const Index number = grid.claim(center, toIndex(placed.size()));
    if (number < placed.size()) {
      ++placed[number].others;
      layout.behind.emplace_back(number, i);
      continue;
    }
    placed.push_back(this->placed(i, center, size, projection));
  }
  return layout;
}

SymbolLayer::Placed SymbolLayer::placed(Index record, const QPointF &center, double size,
                                        const Projection &projection) const {
  const Record &r = m_records[record];
  Placed placed;
  placed.item = r.item;
  placed.center = center;
  placed.record = record;
  placed.size = qBound(1.0, size * static_cast<double>(r.size), LargestSymbol);
  placed.isFigure = r.figure != NoIndex;
  placed.extent = placed.isFigure ? m_figures.extent(r.figure, placed.size) : QSizeF(placed.size, placed.size);
  const QPointF ahead = projection.map(r.x + r.dx, r.y + r.dy) - projection.map(r.x, r.y);
  const double angle = ahead.isNull() ? 0.0 : qRadiansToDegrees(std::atan2(ahead.y(), ahead.x()));
  placed.angle = std::isfinite(angle) ? angle : 0.0;
  return placed;
}

bool SymbolLayer::Placed::covers(const QPointF &point) const {
  const QPointF to = center - point;
  if (isFigure)
    return std::abs(to.x()) <= extent.width() * 0.5 && std::abs(to.y()) <= extent.height() * 0.5;
  return std::hypot(to.x(), to.y()) <= size * 0.5;
}

QRectF SymbolLayer::Placed::obstacle() const {
  constexpr double DrawnShare = 0.9; // symbols do not fill their corners
  QRectF area(QPointF(), extent * (isFigure ? 1.0 : DrawnShare));
  area.moveCenter(center);
  return area;
}

void SymbolLayer::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvasRect) const {
  const std::vector<Placed> &placed = laidOut(Projection(xMap, yMap, canvasRect));
  for (const Placed &p : placed) {
    const Record &r = m_records[p.record];
    if (p.isFigure)
      m_figures.draw(*painter, r.figure, p.center, p.size);
    else
      m_symbols.draw(*painter, r.symbol, p.center, p.size, p.angle);
  }
  for (const Placed &p : placed) {
    if (p.others > 0)
      m_symbols.drawCount(*painter, p.center + QPointF(p.extent.width(), -p.extent.height()) * 0.5, p.others + 1);
  }
}

void SymbolLayer::find(const Projection &projection, const QPointF &point, std::vector<Hit> &hits) const {
  const std::vector<Placed> &placed = laidOut(projection);
  for (std::size_t i = 0; i < placed.size(); ++i) {
    if (!placed[i].covers(point))
      continue;
    const double distance = QLineF(placed[i].center, point).length();
    hits.push_back({placed[i].item, distance, HitRank::Symbol});
    if (placed[i].others == 0)
      continue;
    for (const auto &[number, record] : m_layout->behind) {
      if (number == i)
        hits.push_back({m_records[record].item, distance, HitRank::Symbol});
    }
  }
}

bool SymbolLayer::drawKey(QPainter &painter, char type, const QPointF &center, double size) const {
  const Index symbol = m_symbols.find(QString(QLatin1Char(type)));
  if (symbol != NoIndex)
    m_symbols.draw(painter, symbol, center, size, 0.0);
  return symbol != NoIndex;
}
