#include "labels/labelpass.h"

#include <markup/closeddocument.h>

#include <QFontMetricsF>

#include <algorithm>
#include <array>
#include <drawing/edgelayer.h>
#include <drawing/nodelayer.h>
#include <drawing/subnetlayer.h>
#include <drawing/symbollayer.h>
#include <drawing/textboxlayer.h>
#include <map>

namespace {

enum Rank { SubnetRank, StationRank, SetPointRank, PipeRank, JunctionRank };

/// Widths of texts from those of their letters, which is close enough for a box and much quicker than laying them out.
class FontMeasure {
public:
  static FontMeasure &of(const QFont &font) {
    static std::map<QString, FontMeasure> known;
    return known.try_emplace(font.key(), font).first->second;
  }
  explicit FontMeasure(const QFont &font)
      : m_metrics(font) {
    for (std::size_t i = 0; i < m_advances.size(); ++i)
      m_advances[i] = m_metrics.horizontalAdvance(QChar(static_cast<ushort>(i)));
  }

  double width(const QString &text) const {
    double sum = 0.0;
    for (const QChar c : text) {
      if (c.unicode() >= m_advances.size())
        return m_metrics.horizontalAdvance(text);
      sum += m_advances[c.unicode()];
    }
    return sum;
  }
  double height() const { return m_metrics.height(); }

private:
  QFontMetricsF m_metrics;
  std::array<double, 256> m_advances{};
};

} // namespace

LabelPass::LabelPass(const Drawing &drawing, const LabelContents &contents, const Projection &projection, double margin)
    : m_drawing(drawing)
    , m_contents(contents)
    , m_projection(projection)
    , m_placement(projection.canvas(), margin) {}

void LabelPass::add(NetGeometry::Item item, const QLineF &place, bool isLine, double clearance, int rank, double weight) {
  if (m_drawing.visibility.of(item) != VisibilityRules::State::On || m_drawing.layers.isHidden(item))
    return;
  Wish wish;
  wish.candidate.item = item;
  wish.candidate.isLine = isLine;
  wish.candidate.line = {m_projection.map(place.x1(), place.y1()), m_projection.map(place.x2(), place.y2())};
  wish.candidate.clearance = clearance;
  wish.place = place;
  wish.rank = rank;
  wish.weight = weight;
  m_wishes.push_back(wish);
}

void LabelPass::collectSubnets() {
  for (const SubnetLayer::Placed &placed : m_drawing.subnets.place(m_projection)) {
    m_placement.addObstacle(placed.box);
    const NetGeometry::Item item{NetData::AssembledSubnet, placed.subnet};
    const QPointF center = *m_drawing.geometry.center(item);
    add(item, {center, center}, false, placed.box.width() * 0.5, SubnetRank, 0.0);
  }
}

void LabelPass::collectSymbols() {
  for (const SymbolLayer::Placed &placed : m_drawing.symbols.place(m_projection)) {
    m_placement.addObstacle(placed.obstacle());
    const QPointF center = *m_drawing.geometry.center(placed.item);
    const QPointF aside = placed.center - m_projection.map(center.x(), center.y());
    const double flow =
        placed.item.kind == NetData::Edge ? m_drawing.flow[static_cast<std::size_t>(placed.item.index)] : 0.0;
    add(placed.item, {center, center}, false, placed.reach() + std::hypot(aside.x(), aside.y()), StationRank, flow);
    if (placed.item.kind == NetData::Node)
      m_nodesWithSymbol.insert(placed.item.index);
  }
}

void LabelPass::collectNodes() {
  constexpr std::size_t Many = 3000; // so many dots would leave no room for labels
  std::vector<QRectF> dots;
  m_drawing.nodes.forEachVisible(m_projection, [&](int node, const QPointF &center, double size) {
    const NetGeometry::Node &record = m_drawing.geometry.nodes()[static_cast<std::size_t>(node)];
    const bool isJunction = record.shape == NetGeometry::NodeShape::Junction;
    const QPointF place(record.x, record.y);
    dots.emplace_back(center - QPointF(size, size) * 0.5, QSizeF(size, size));
    if (m_nodesWithSymbol.count(node) == 0) // labelled there
      add({NetData::Node, node}, {place, place}, false, size * 0.5, isJunction ? JunctionRank : SetPointRank, 0.0);
  });
  if (dots.size() <= Many) {
    for (const QRectF &dot : dots)
      m_placement.addObstacle(dot);
  }
}

void LabelPass::collectPipes() {
  const NetGeometry &geometry = m_drawing.geometry;
  constexpr std::size_t Many = 3000; // among so many lines there is no room without one
  std::vector<std::pair<QLineF, double>> lines;
  m_drawing.edges.forEachVisible(m_projection, [&](int edge, const QLineF &drawn, double width) {
    const NetGeometry::Edge &record = geometry.edges()[static_cast<std::size_t>(edge)];
    if (lines.size() <= Many)
      lines.emplace_back(drawn, width);
    if (record.type != 'p')
      return; // labelled at its symbol
    const QLineF straight = geometry.line(record);
    const double aside = record.lane == 0.0F ? 0.0 : distanceToLine(drawn.center(), m_projection.map(straight));
    add({NetData::Edge, edge}, straight, true, width * 0.5 + aside, PipeRank,
        m_drawing.flow[static_cast<std::size_t>(edge)]);
  });
  if (lines.size() > Many)
    return;
  for (const auto &[line, width] : lines)
    m_placement.addLine(line, width);
}

void LabelPass::collect() {
  constexpr std::size_t Most = 20000; // more than would ever fit
  collectSubnets();
  collectSymbols();
  for (const QRectF &area : m_drawing.textBoxes.places(m_projection))
    m_placement.addObstacle(area);
  collectNodes();
  collectPipes();
  const auto isBefore = [](const Wish &a, const Wish &b) {
    if (a.rank != b.rank)
      return a.rank < b.rank;
    if (a.weight != b.weight)
      return a.weight > b.weight;
    return a.candidate.item.index < b.candidate.item.index;
  };
  if (m_wishes.size() > Most) {
    std::nth_element(m_wishes.begin(), m_wishes.begin() + Most, m_wishes.end(), isBefore);
    m_wishes.resize(Most);
  }
  std::sort(m_wishes.begin(), m_wishes.end(), isBefore);
}

namespace {

/// The rich text of a label.
class LabelDocument : public ClosedDocument {
public:
  explicit LabelDocument(const LabelStyle &style, const QString &html) {
    setDefaultFont(style.font);
    setDocumentMargin(LabelLayer::padding().width());
    setUndoRedoEnabled(false);
    setHtml(html);
  }

  /// \return its size, cut to what a label may take
  QSizeF layOut() {
    constexpr QSizeF Largest(480.0, 360.0); // px
    if (idealWidth() > Largest.width())
      setTextWidth(Largest.width());
    return size().boundedTo(Largest);
  }
};

} // namespace

bool LabelPass::makeLabel(Wish &wish, Label &label, LabelText &text) const {
  const element &source = *m_drawing.geometry.source(wish.candidate.item);
  text = m_contents.text(source);
  if (text.isEmpty())
    return false;
  label.style = m_contents.style(source, wish.candidate.item.kind);
  QSizeF size;
  if (!text.html.isEmpty()) {
    auto document = std::make_shared<LabelDocument>(label.style, text.html);
    size = document->layOut();
    label.document = std::move(document);
  } else {
    const FontMeasure &measure = FontMeasure::of(label.style.font);
    for (const QString &line : text.lines)
      size.setWidth(std::max(size.width(), measure.width(line)));
    size.setHeight(measure.height() * text.lines.size());
    size += LabelLayer::padding() * 2.0;
  }
  wish.candidate.size = size;
  return true;
}

void LabelPass::layOut(Label &label, const LabelText &text) {
  for (const QString &line : text.lines) {
    QStaticText laidOut(line);
    laidOut.setTextFormat(Qt::PlainText);
    laidOut.setPerformanceHint(QStaticText::AggressiveCaching);
    laidOut.prepare(QTransform(), label.style.font);
    label.lines.push_back(laidOut);
  }
}

LabelPass::Result LabelPass::run(const std::vector<Label> &before) {
  Result result;
  collect();
  std::map<std::pair<int, int>, const LabelSpot *> known;
  for (const Label &label : before)
    known[{label.candidate.item.kind, label.candidate.item.index}] = &label.spot;
  const auto spotBefore = [&known](const Wish &wish) -> const LabelSpot * {
    const auto found = known.find({wish.candidate.item.kind, wish.candidate.item.index});
    return found == known.end() ? nullptr : found->second;
  };
  const auto take = [&](Wish &wish, bool keeps) {
    Label label;
    LabelText text;
    if (!makeLabel(wish, label, text))
      return;
    bool isPlaced = false;
    if (keeps) {
      label.spot = *spotBefore(wish);
      isPlaced = m_placement.keep(wish.candidate, label.spot);
    }
    if (!isPlaced && !m_placement.place(wish.candidate, label.spot)) {
      result.unplaced.push_back(wish.candidate.item);
      return;
    }
    label.candidate = wish.candidate;
    label.place = wish.place;
    layOut(label, text);
    result.labels.push_back(std::move(label));
  };
  for (const bool keeps : {true, false}) { // first come those that stood there before
    for (Wish &wish : m_wishes) {
      if ((spotBefore(wish) != nullptr) == keeps)
        take(wish, keeps);
    }
  }
  return result;
}
