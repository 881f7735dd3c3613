#include "geometry/canvasgrid.h"
#include "style/detail.h"

#include <drawing/elementfilter.h>
#include <drawing/symbollayer.h>
#include <model/elementstate.h>

#include <QtMath>

#include <algorithm>

namespace {

constexpr double SymbolZ = 30.0;
constexpr double LargestSymbol = 512.0; // px
constexpr double FaintestSeen = 0.3;    // presence: nobody points at what is fainter

int priorityOf(char type) {
  constexpr std::string_view Types = SymbolLayer::TypesByPriority;
  return static_cast<int>(std::min(Types.find(type), Types.size()));
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
    record.type = edge.type;
    record.item = {NetData::Edge, i};
    record.symbol = symbolOf(edge);
    record.priority = priorityOf(edge.type);
    record.lane = edge.lane;
    record.size = m_sizes.isEmpty() ? 1.0F : shareOf(QString(QLatin1Char(edge.type)));
    found.push_back(record);
  }
  for (Index i = 0; i < geometry.nodes().size(); ++i) {
    if (!geometry.nodes()[i].isDrive || !geometry.nodes()[i].isPlaced)
      continue;
    found.push_back(recordOf(geometry, i));
    found.back().size = shareOf(QStringLiteral("d"));
  }
  found.erase(std::remove_if(found.begin(), found.end(), [](const Record &r) { return r.symbol == NoIndex; }), found.end());
  return found;
}

SymbolLayer::Record SymbolLayer::recordOf(const NetGeometry &geometry, Index drive) {
  const NetGeometry::Node &node = geometry.nodes()[drive];
  Record record;
  record.x = node.x;
  record.y = node.y;
  if (node.driven != NoIndex) {
    const NetGeometry::Edge &driven = geometry.edges()[node.driven];
    const QLineF line = geometry.line(driven);
    record.x = line.center().x();
    record.y = line.center().y();
    record.dx = line.dx();
    record.dy = line.dy();
    record.lane = driven.lane;
    record.isBetweenLanes = driven.isBetweenLanes;
    record.isBeside = true;
  }
  record.type = 'd';
  record.item = {NetData::Node, drive};
  const QString type = QStringLiteral("d");
  record.symbol =
      ElementState::isOutOfUse(*node.source) ? m_symbols.find(type, QStringLiteral("_off")) : m_symbols.find(type);
  record.priority = priorityOf('d');
  return record;
}

Findings SymbolLayer::setStations(const NetGeometry &geometry) {
  clear();
  m_room.read(geometry);
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

QLineF SymbolLayer::lineOf(const Record &r, const Projection &projection) {
  return {projection.map(r.x - r.dx * 0.5, r.y - r.dy * 0.5), projection.map(r.x + r.dx * 0.5, r.y + r.dy * 0.5)};
}

QPointF SymbolLayer::onLane(const Record &r, const Projection &projection) const {
  if (r.lane == 0.0F)
    return projection.map(r.x, r.y);
  const double offset = static_cast<double>(r.lane) * laneSpacing(true, 0.0, m_size);
  return LaneWay(lineOf(r, projection), offset).middle().center();
}

QPointF SymbolLayer::centerOf(const Record &r, const Projection &projection) const {
  if (!r.isBeside)
    return onLane(r, projection);
  return driveBeside(lineOf(r, projection), static_cast<double>(r.lane), r.isBetweenLanes, m_size);
}

const std::vector<SymbolLayer::Placed> &SymbolLayer::laidOut(const Projection &projection) const {
  if (!m_layout || !(m_layout->projection == projection))
    m_layout = layOut(projection);
  return m_layout->placed;
}

double SymbolLayer::distanceToOthers(const Record &record, const QPointF &center, double reach,
                                     const Projection &projection) const {
  double distance = reach;
  m_index.query(projection.around(center, reach + m_size), [&](Index i) {
    const Record &other = m_records[i];
    if (!other.isVisible || other.priority >= record.priority)
      return;
    const QPointF to = centerOf(other, projection) - center;
    distance = std::min(distance, std::hypot(to.x(), to.y()));
  });
  return distance;
}

double SymbolLayer::presenceOf(const Record &record, const QPointF &center, double size,
                               const Projection &projection) const {
  constexpr double Reach = 3.0; // symbols: what is further away is not near
  if (record.figure != NoIndex)
    return 1.0;
  SymbolRoom::Place place;
  place.size = qBound(1.0, size * static_cast<double>(record.size), LargestSymbol);
  place.scale = projection.scale();
  place.lineLength = std::hypot(record.dx, record.dy) * place.scale;
  const double besideOthers = m_room.presence(record.type, place);
  place.distance = place.size * Reach;
  if (m_room.presence(record.type, place) <= besideOthers)
    return besideOthers; // whoever is near
  place.distance = distanceToOthers(record, center, place.size * Reach, projection);
  return m_room.presence(record.type, place);
}

std::vector<SymbolLayer::Candidate> SymbolLayer::candidates(const Projection &projection, double size) const {
  const double reach = std::max(m_size, m_figures.longest() * 0.5);
  const double margin = reach + m_size; // lanes move symbols a little
  const QRectF area = projection.canvas().adjusted(-reach, -reach, reach, reach);
  const std::vector<QRectF> boxes = m_covers ? m_covers(projection) : std::vector<QRectF>();
  const auto isBehindBox = [&boxes](const QPointF &center) {
    return std::any_of(boxes.begin(), boxes.end(), [&center](const QRectF &box) { return box.contains(center); });
  };
  std::vector<Candidate> found;
  m_index.query(projection.visible(margin), [&](Index i) {
    if (!m_records[i].isVisible)
      return;
    const QPointF center = centerOf(m_records[i], projection);
    if (area.contains(center) && !isBehindBox(center))
      found.push_back({i, center, presenceOf(m_records[i], center, size, projection)});
  });
  std::sort(found.begin(), found.end(), [&](const Candidate &a, const Candidate &b) {
    return std::make_pair(m_records[a.record].priority, a.record) < std::make_pair(m_records[b.record].priority, b.record);
  });
  return found;
}

std::vector<NetGeometry::Item> SymbolLayer::sharing(const Projection &projection, Index number) const {
  std::vector<NetGeometry::Item> items;
  const char type = m_records[laidOut(projection)[number].record].type;
  for (const auto &[symbol, record] : m_layout->behind) {
    if (symbol == number && m_records[record].type == type)
      items.push_back(m_records[record].item);
  }
  return items;
}

SymbolLayer::Layout SymbolLayer::layOut(const Projection &projection) const {
  Layout layout{projection, {}, {}};
  if (!projection.isValid() || m_size <= 0.0)
    return layout;
  constexpr double CellShare = 0.55; // of a symbol: one free cell lies between two symbols
  const double size = m_size * Detail(m_room.typicalLength() * projection.scale()).symbolScale();
  const double reach = std::max(m_size, m_figures.longest() * 0.5);
  CanvasGrid grid(projection.canvas().adjusted(-reach, -reach, reach, reach), size * CellShare);
  std::vector<Placed> &placed = layout.placed;
  for (const Candidate &candidate : candidates(projection, size)) {
    // What is not shown itself stands behind a symbol that is, where there is one.
    const Index own = candidate.presence > 0.0 ? toIndex(placed.size()) : NoIndex;
    const Index number = grid.claim(candidate.center, own);
    if (number < placed.size()) {
      placed[number].others += m_records[candidate.record].type == m_records[placed[number].record].type ? 1 : 0;
      layout.behind.emplace_back(number, candidate.record);
    } else if (own != NoIndex) {
      placed.push_back(this->placed(candidate, size, projection));
    }
  }
  return layout;
}

SymbolLayer::Placed SymbolLayer::placed(const Candidate &candidate, double size, const Projection &projection) const {
  constexpr double SmallestShare = 0.5;
  const Record &r = m_records[candidate.record];
  Placed placed;
  placed.item = r.item;
  placed.center = candidate.center;
  placed.record = candidate.record;
  placed.presence = candidate.presence;
  placed.isFigure = r.figure != NoIndex;
  const double full = (placed.isFigure ? m_size : size) * static_cast<double>(r.size);
  placed.size = qBound(1.0, full * (SmallestShare + (1.0 - SmallestShare) * placed.presence), LargestSymbol);
  placed.extent = placed.isFigure ? m_figures.extent(r.figure, placed.size) : QSizeF(placed.size, placed.size);
  const QPointF ahead = projection.map(r.x + r.dx, r.y + r.dy) - projection.map(r.x, r.y);
  const double angle = ahead.isNull() || r.isBeside ? 0.0 : qRadiansToDegrees(std::atan2(ahead.y(), ahead.x()));
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
  const Projection projection(xMap, yMap, canvasRect);
  const std::vector<Placed> &placed = laidOut(projection);
  drawShafts(*painter, projection, placed);
  const double opacity = painter->opacity();
  for (const Placed &p : placed) {
    const Record &r = m_records[p.record];
    painter->setOpacity(opacity * p.presence);
    drawDisc(*painter, p);
    if (p.isFigure)
      m_figures.draw(*painter, r.figure, p.center, p.size);
    else
      m_symbols.draw(*painter, r.symbol, p.center, p.size, p.angle);
  }
  for (const Placed &p : placed) {
    painter->setOpacity(opacity * Detail::presence(p.presence, 0.5, 1.0));
    if (p.others > 0 && painter->opacity() > 0.0)
      m_symbols.drawCount(*painter, p.center + QPointF(p.extent.width(), -p.extent.height()) * 0.5, p.others + 1);
  }
  painter->setOpacity(opacity);
}

void SymbolLayer::drawDisc(QPainter &painter, const Placed &placed) const {
  constexpr double Share = 0.8; // of the symbol's size, from the centre: its corners are within
  if (placed.item.kind != NetData::Edge || placed.item.index >= m_discs.size() || m_discs[placed.item.index] == 0)
    return;
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(m_discs[placed.item.index]));
  painter.drawEllipse(placed.center, placed.size * Share, placed.size * Share);
}

void SymbolLayer::drawShafts(QPainter &painter, const Projection &projection, const std::vector<Placed> &placed) const {
  for (const Placed &p : placed) {
    const Record &r = m_records[p.record];
    if (!r.isBeside)
      continue;
    QColor ink = m_theme.line(QColor(90, 100, 110));
    ink.setAlphaF(p.presence);
    painter.setPen(QPen(ink, 1.0));
    painter.drawLine(p.center, onLane(r, projection));
  }
}

void SymbolLayer::find(const Projection &projection, const QPointF &point, std::vector<Hit> &hits) const {
  const std::vector<Placed> &placed = laidOut(projection);
  for (std::size_t i = 0; i < placed.size(); ++i) {
    if (placed[i].presence < FaintestSeen || !placed[i].covers(point))
      continue;
    const double distance = QLineF(placed[i].center, point).length();
    hits.push_back({placed[i].item, distance, HitRank::Symbol});
    for (const auto &[number, record] : m_layout->behind) {
      if (number == i)
        hits.push_back({m_records[record].item, distance, HitRank::Symbol});
    }
  }
}

void SymbolLayer::drawKey(QPainter &painter, Index symbol, const QPointF &center, double size) const {
  if (symbol != NoIndex)
    m_symbols.draw(painter, symbol, center, size, 0.0);
}
