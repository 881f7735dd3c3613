#include "scene/stationnames.h"

#include <drawing/cellaxis.h>
#include <drawing/edgelayer.h>
#include <drawing/nodelayer.h>
#include <drawing/subnetlayer.h>
#include <drawing/symbollayer.h>
#include <drawing/textboxlayer.h>
#include <model/names.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>
#include <tuple>

namespace {

enum Rank { SubnetRank, CompressorRank, SupplyRank, DemandRank };

QString ownName(const NetGeometry &geometry, NetGeometry::Item item) {
  return geometry.source(item)->value(Names::all().name);
}

} // namespace

StationNames::StationNames(const DrawnScene &drawing, const Projection &projection)
    : m_drawing(drawing)
    , m_projection(projection) {
  collectSubnets();
  collectSymbols();
  for (const QRectF &area : m_drawing.textBoxes.areas(m_projection))
    areas.push_back(area);
  collectNodes();
  collectLines();
  keepTheMostImportant();
}

void StationNames::add(NetGeometry::Item item, double clearance, int rank, double weight, const QString &name) {
  if (name.isEmpty() || m_drawing.visibility.of(item) != VisibilityRules::State::On || m_drawing.layers.isHidden(item))
    return;
  const QPointF center = *m_drawing.geometry.center(item);
  LabelWish wish;
  wish.candidate.item = item;
  wish.position = QLineF(center, center);
  wish.candidate.line = m_projection.map(wish.position);
  wish.candidate.clearance = clearance;
  wish.candidate.isShy = rank > CompressorRank;
  wish.rank = rank;
  wish.weight = weight;
  wish.name = name;
  wishes.push_back(wish);
}

void StationNames::collectSubnets() {
  for (const SubnetLayer::Placed &placed : m_drawing.subnets.layOut(m_projection)) {
    areas.push_back(placed.box);
    const NetGeometry::Item item{NetData::AssembledSubnet, placed.subnet};
    add(item, placed.box.width() * 0.5, SubnetRank, 0.0, ownName(m_drawing.geometry, item));
  }
}

QString StationNames::nameOf(Index symbol, NetGeometry::Item item) const {
  static const auto isSeparator = [](QChar c) {
    return !c.isLetterOrNumber();
  };
  QString own = ownName(m_drawing.geometry, item);
  int common = own.size();
  for (const NetGeometry::Item other : m_drawing.symbols.sharing(m_projection, symbol)) {
    const QString name = ownName(m_drawing.geometry, other);
    const auto differs = std::mismatch(own.cbegin(), own.cbegin() + std::min(common, name.size()), name.cbegin()).first;
    common = static_cast<int>(differs - own.cbegin());
  }
  if (common == own.size())
    return own;
  // Whole words of the name, if they say more than what kind of thing it is.
  while (common > 0 && !isSeparator(own.at(common - 1)))
    --common;
  const QString station = own.left(std::max(0, common - 1));
  return std::any_of(station.begin(), station.end(), isSeparator) ? station : own;
}

void StationNames::collectSymbols() {
  const std::vector<SymbolLayer::Placed> &symbols = m_drawing.symbols.laidOut(m_projection);
  for (Index i = 0; i < symbols.size(); ++i) {
    const SymbolLayer::Placed &placed = symbols[i];
    areas.push_back(placed.obstacle());
    const bool isCompressor = placed.item.kind == NetData::Edge && m_drawing.geometry.edges()[placed.item.index].type == 'c';
    if (isCompressor && placed.presence >= 1.0)
      add(placed.item, placed.reach(), CompressorRank, placed.others, nameOf(i, placed.item));
  }
}

void StationNames::collectNodes() {
  using Shape = NetGeometry::NodeShape;
  constexpr double SmallestNamed = 3.0; // px
  constexpr std::size_t MostDots = 3000;
  m_drawing.nodes.forEachVisible(m_projection, [&](Index node, const QPointF &center, double size) {
    if (areas.size() < MostDots)
      areas.emplace_back(center - QPointF(size, size) * 0.5, QSizeF(size, size));
    const NetGeometry::Node &record = m_drawing.geometry.nodes()[node];
    if (record.shape == Shape::Junction || record.isIdle || size < SmallestNamed)
      return;
    const double flow = record.flow == NetData::NoValue ? 0.0 : std::abs(record.flow);
    const NetGeometry::Item item{NetData::Node, node};
    add(item, size * 0.5, record.shape == Shape::Demand ? DemandRank : SupplyRank, flow, ownName(m_drawing.geometry, item));
  });
}

void StationNames::collectLines() {
  constexpr std::size_t MostLines = 3000; // among more there is no room without one
  constexpr double CrowdedLength = 8.0;   // px
  if (m_drawing.geometry.typicalLength() * m_projection.scale() < CrowdedLength)
    return;
  m_drawing.edges.forEachVisible(m_projection, [&](Index, const QLineF &drawn, double width) {
    if (lines.size() <= MostLines)
      lines.emplace_back(drawn, width);
  });
  if (lines.size() > MostLines)
    lines.clear();
}

/// The most important of each part of the canvas first, then the second of each, lest a crowd take all the names.
void StationNames::keepTheMostImportant() {
  constexpr double RoomOfName = 130.0; // px to each side, on average
  const QRectF &canvas = m_projection.canvas();
  const auto most = static_cast<std::size_t>(canvas.width() * canvas.height() / (RoomOfName * RoomOfName));
  if (wishes.size() <= most)
    return;
  // Of those of one weight, some from all over the drawing: neighbours have neighbouring numbers.
  const auto shuffled = [](const LabelWish &wish) {
    constexpr std::uint32_t Multiplier = 2654435761U; // Knuth's, about 2^32 by the golden ratio
    return static_cast<std::uint32_t>(wish.candidate.item.index) * Multiplier;
  };
  const auto key = [this, &shuffled](std::size_t number) {
    const LabelWish &wish = wishes[number];
    return std::make_tuple(wish.rank, -wish.weight, shuffled(wish));
  };
  std::vector<std::size_t> order(wishes.size());
  std::iota(order.begin(), order.end(), std::size_t(0));
  std::sort(order.begin(), order.end(), [&key](std::size_t a, std::size_t b) { return key(a) < key(b); });
  const auto cells = [](double from, double length) {
    return CellAxis(from, RoomOfName, static_cast<Index>(std::ceil(std::max(1.0, length / RoomOfName))));
  };
  const CellAxis columns = cells(canvas.left(), canvas.width());
  const CellAxis rows = cells(canvas.top(), canvas.height());
  std::vector<std::size_t> taken(std::size_t(columns.count()) * rows.count());
  std::vector<std::pair<std::size_t, std::size_t>> turns; // the how manieth of its part, and its place in the order
  turns.reserve(order.size());
  for (std::size_t i = 0; i < order.size(); ++i) {
    const QPointF at = wishes[order[i]].candidate.line.p1();
    turns.emplace_back(taken[std::size_t(rows.nearest(at.y())) * columns.count() + columns.nearest(at.x())]++, i);
  }
  std::nth_element(turns.begin(), turns.begin() + static_cast<std::ptrdiff_t>(most), turns.end());
  turns.resize(most);
  std::vector<LabelWish> kept;
  kept.reserve(most);
  for (const auto &[turn, place] : turns)
    kept.push_back(std::move(wishes[order[place]]));
  wishes = std::move(kept);
}
