#include <view/layergeometry.h>
#include <view/symbollayer.h>

#include <algorithm>

namespace {

constexpr double SymbolZ = 30.0;

/// Place in this order is the priority; pipes have no symbol.
int priorityOf(char type) {
  constexpr std::string_view Order = "crgwkfvsd";
  const std::size_t place = Order.find(type);
  return static_cast<int>(place == std::string_view::npos ? Order.size() : place);
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

void SymbolLayer::setStations(const NetGeometry &geometry) {
  clear();
  std::vector<Record> records;
  for (const NetGeometry::Edge &edge : geometry.edges()) {
    if (edge.type == 'p' || !geometry.isPlaced(edge))
      continue;
    const NetGeometry::Node &a = geometry.nodes()[static_cast<std::size_t>(edge.node1)];
    const NetGeometry::Node &b = geometry.nodes()[static_cast<std::size_t>(edge.node2)];
    records.push_back({(a.x + b.x) * 0.5, (a.y + b.y) * 0.5, b.x - a.x, b.y - a.y,
                       m_symbols.find(QString(QLatin1Char(edge.type))), priorityOf(edge.type)});
  }
  for (const NetGeometry::Node &node : geometry.nodes()) {
    if (node.isDrive && node.isPlaced)
      records.push_back({node.x, node.y, 0.0, 0.0, m_symbols.find(QStringLiteral("d")), priorityOf('d')});
  }
  static const PropertyKey variant = PropertyKey::intern("variant");
  for (const NetGeometry::Place &subnet : geometry.subnets()) {
    const int ofKind = m_symbols.find(subnet.source->value(variant));
    records.push_back({subnet.x, subnet.y, 0.0, 0.0, ofKind >= 0 ? ofKind : m_symbols.find(QStringLiteral("sub")), -1});
  }
  records.erase(std::remove_if(records.begin(), records.end(), [](const Record &r) { return r.symbol < 0; }), records.end());

  std::vector<SpatialIndex::Box> boxes;
  boxes.reserve(records.size());
  for (const Record &r : records)
    boxes.push_back({r.x, r.y, r.x, r.y});
  for (const int i : m_index.build(boxes))
    m_records.push_back(records[static_cast<std::size_t>(i)]);
}

void SymbolLayer::clear() {
  m_records.clear();
  m_index.clear();
}

void SymbolLayer::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvasRect) const {
  const Projection projection(xMap, yMap, canvasRect);
  if (!projection.isValid() || m_size <= 0.0)
    return;
  std::vector<std::pair<int, QPointF>> visible; // record and place
  const QRectF area = canvasRect.adjusted(-m_size, -m_size, m_size, m_size);
  m_index.query(projection.visible(m_size), [&](int first, int last) {
    for (int i = first; i < last; ++i) {
      const Record &record = m_records[static_cast<std::size_t>(i)];
      const QPointF center = projection.map(record.x, record.y);
      if (area.contains(center))
        visible.emplace_back(i, center);
    }
  });
  if (visible.empty())
    return;
  const auto record = [this](int i) -> const Record & {
    return m_records[static_cast<std::size_t>(i)];
  };
  std::sort(visible.begin(), visible.end(), [&](const auto &a, const auto &b) {
    return std::make_pair(record(a.first).priority, a.first) < std::make_pair(record(b.first).priority, b.first);
  });

  // Symbols shrink where they are many, but stay legible; what then overlaps is left out.
  constexpr double Share = 0.6;
  constexpr double Legible = 12.0;
  constexpr double Apart = 0.55; // cells of this share of a symbol, one free cell between two symbols
  constexpr double Degrees = 180.0 / M_PI;
  const double room = std::sqrt(canvasRect.width() * canvasRect.height() / static_cast<double>(visible.size()));
  const double size = std::min(m_size, std::max(Legible, room * Share));
  PixelGrid grid(area, size * Apart);
  for (const auto &[i, center] : visible) {
    if (!grid.takeApart(center))
      continue;
    const Record &r = record(i);
    const QPointF ahead = projection.map(r.x + r.dx, r.y + r.dy) - center;
    const double angle = ahead.isNull() ? 0.0 : std::atan2(ahead.y(), ahead.x()) * Degrees;
    m_symbols.draw(*painter, r.symbol, center, size, std::isfinite(angle) ? angle : 0.0);
  }
}
