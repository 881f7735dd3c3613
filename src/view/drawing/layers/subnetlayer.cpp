#include "geometry/canvasgrid.h"
#include "style/detail.h"

#include <base/settings.h>
#include <drawing/subnetlayer.h>
#include <drawing/violations.h>
#include <model/elementstate.h>
#include <model/subnetstate.h>

#include <algorithm>
#include <cmath>

namespace {

QColor colorOf(const Setting<QString> &setting) {
  const QColor color(setting.value());
  return color.isValid() ? color : QColor(Qt::gray);
}

bool isSearchResult(const element &subnet) {
  const PropertyText *text = subnet.find(QStringLiteral("isSearchResult"));
  return text != nullptr && text->isOn();
}

QColor controlColor(const NetData &net, const element &subnet) {
  const PropertyText control(SubnetState::of(net, subnet));
  const QString state = control.toString().toLower();
  const auto says = [&state](const char *word) {
    return state.contains(QLatin1String(word));
  };
  if (ElementState::saysOff(&control) || ElementState::isOutOfUse(subnet))
    return colorOf(Settings::SubnetColorOff);
  if (says("bypass"))
    return colorOf(Settings::SubnetColorBypass);
  if (says("maybe"))
    return colorOf(Settings::SubnetColorMaybeInControl);
  if (says("pressure"))
    return colorOf(Settings::SubnetColorPressureControl);
  if (says("flow"))
    return colorOf(Settings::SubnetColorFlowControl);
  return colorOf(says("control") ? Settings::SubnetColorMaybeInControl : Settings::SubnetColorUnknown);
}

QColor ringColor(const NetData &net, const element &subnet) {
  const QString mode = Settings::SubnetRingColors.value();
  if (mode == QLatin1String("BV status"))
    return Violations::color(Violations::of(subnet));
  if (mode == QLatin1String("SP/SM control"))
    return controlColor(net, subnet);
  if (mode == QLatin1String("search results") && isSearchResult(subnet))
    return colorOf(Settings::RingColorSearchResult);
  return colorOf(Settings::SubnetColorUnknown);
}

std::vector<QPointF> pinsOf(const NetGeometry::PointElement &subnet, const NetGeometry &geometry) {
  std::vector<QPointF> pins;
  for (const Index node : subnet.pins) {
    if (const std::optional<QPointF> position = geometry.center({NetData::Node, node}))
      pins.push_back(*position);
  }
  return pins;
}

double positive(double number) {
  return number > 0.0 ? number : 0.0; // NetData::NoValue is negative
}

} // namespace

SubnetLayer::SubnetLayer() {
  setRenderHint(RenderAntialiased);
}

void SubnetLayer::setTable(const SymbolTable &table) {
  clear(); // the records hold numbers of the old symbols
  m_symbols.setTable(table);
}

void SubnetLayer::setLook(double size, int alpha) {
  constexpr int Opaque = 255;
  m_size = size;
  m_alpha = qBound(0, alpha, Opaque);
  m_penWidth = qBound(0.0, Settings::SubnetPenWidth.value(), 50.0);
  m_groundMargin = qBound(0.0, Settings::SubnetBackgroundSize.value(), 200.0);
  m_drawsPinLines = Settings::DrawSubassemblyPinLines.value();
  const QString mode = Settings::SubassemblySize.value();
  m_takesWidth = mode.contains(QLatin1String("width"));
  m_takesVisSize = mode.contains(QLatin1String("vis.size"));
  setZ(Settings::SubnetBackgroundZ.value());
}

void SubnetLayer::setGround(const QColor &ground) {
  m_theme = DrawingTheme(ground);
  m_symbols.setGround(ground);
}

Findings SubnetLayer::setSubnets(const NetData &net, const NetGeometry &geometry) {
  m_records.clear();
  m_typicalLength = geometry.typicalLength();
  for (const NetGeometry::PointElement &subnet : geometry.subnets()) {
    const element &source = *subnet.source;
    const auto number = [&source](const char *key) {
      return NetData::number(source.find(PropertyKey::find(key)));
    };
    Record record;
    record.center = {subnet.x, subnet.y};
    record.pins = pinsOf(subnet, geometry);
    record.width = positive(number("width")) * geometry.plotUnits();
    record.visSize = positive(number("vis.size"));
    const Index ofKind = m_symbols.find(source.value(QStringLiteral("variant")));
    record.symbol = ofKind != NoIndex ? ofKind : m_symbols.find(QStringLiteral("sub"));
    record.ring = ringColor(net, source);
    record.ground = controlColor(net, source);
    record.isRingKnown =
        record.ring != colorOf(Settings::SubnetColorUnknown) && record.ring != colorOf(Settings::RingColorUnknown);
    record.isGroundKnown = record.ground != colorOf(Settings::SubnetColorUnknown);
    m_records.push_back(record);
  }
  return m_symbols.takeFindings();
}

double SubnetLayer::sizeOf(const Record &record, const Projection &projection) const {
  constexpr double WidthShare = 0.5;   // the pins stay outside of the box
  constexpr double LargestBox = 400.0; // px
  const double detail = Detail(m_typicalLength * projection.scale()).symbolScale();
  double size = m_takesVisSize && record.visSize > 0.0 ? record.visSize : m_size * detail;
  if (m_takesWidth) {
    const QPointF across = projection.map(record.center.x() + record.width, record.center.y()) -
                           projection.map(record.center.x(), record.center.y());
    size = std::max(m_takesVisSize ? size : m_size * detail, std::abs(across.x()) * WidthShare);
  }
  return std::min(size, LargestBox);
}

std::vector<SubnetLayer::Placed> SubnetLayer::layOut(const Projection &projection) const {
  std::vector<Placed> placed;
  if (!projection.isValid())
    return placed;
  constexpr double CellShare = 0.55; // of a box: one free cell lies between two boxes
  CanvasGrid grid(projection.canvas(), std::max(m_size, 1.0) * CellShare);
  for (Index i = 0; i < m_records.size(); ++i) {
    const Record &record = m_records[i];
    const QPointF center = projection.map(record.center.x(), record.center.y());
    const double size = sizeOf(record, projection);
    QRectF box(0.0, 0.0, std::round(size), std::round(size));
    box.moveCenter(center);
    box.moveTopLeft({std::round(box.left()) + 0.5, std::round(box.top()) + 0.5}); // a frame on whole pixels is sharpest
    if (isHidden(i) || !box.intersects(projection.canvas()))
      continue;
    const Index number = grid.claim(center, toIndex(placed.size()));
    if (number < placed.size())
      ++placed[number].others;
    else
      placed.push_back({i, box, 0});
  }
  return placed;
}

std::vector<QRectF> SubnetLayer::boxes(const Projection &projection) const {
  std::vector<QRectF> boxes;
  for (const Placed &placed : layOut(projection))
    boxes.push_back(placed.box);
  return boxes;
}

void SubnetLayer::drawPins(QPainter &painter, const Record &record, const QRectF &box, const Projection &projection) const {
  constexpr double LargestPin = 5.0; // px
  const double pinSize = std::min(LargestPin, box.width() * 0.12);
  const QRectF area = projection.canvas().adjusted(-pinSize, -pinSize, pinSize, pinSize);
  const QColor ink = m_theme.line(QColor(110, 120, 130));
  for (const QPointF &pin : record.pins) {
    QLineF line(box.center(), projection.map(pin.x(), pin.y()));
    if (m_drawsPinLines && clipLine(line, area)) {
      painter.setPen(QPen(ink, 1.0, Qt::DotLine));
      painter.drawLine(line);
    }
    const QPointF end = projection.map(pin.x(), pin.y());
    if (!area.contains(end))
      continue;
    painter.setPen(QPen(ink, 1.0));
    painter.setBrush(m_theme.paper());
    painter.drawRect(QRectF(end - QPointF(pinSize, pinSize) * 0.5, QSizeF(pinSize, pinSize)));
  }
}

void SubnetLayer::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvasRect) const {
  const Projection projection(xMap, yMap, canvasRect);
  const std::vector<Placed> placed = layOut(projection);
  for (const Placed &p : placed)
    drawPins(*painter, m_records[p.subnet], p.box, projection);
  for (const Placed &p : placed) {
    drawBox(*painter, m_records[p.subnet], p.box);
    if (p.others > 0)
      m_symbols.drawCount(*painter, p.box.topRight(), p.others + 1);
  }
}

// What is not known of a subnet is not painted large: then its box is a thin frame.
void SubnetLayer::drawBox(QPainter &painter, const Record &record, const QRectF &box) const {
  constexpr double Rounding = 0.18;
  constexpr double SymbolShare = 0.86;
  constexpr double GroundShare = 0.3;  // of the box, at most
  constexpr double FullSize = 48.0;    // px: smaller boxes have thinner rings
  constexpr double ThinnestRing = 1.5; // px
  const double size = box.width();
  const double rounding = size * Rounding;
  if (record.isGroundKnown) {
    QColor ground = record.ground;
    ground.setAlpha(m_alpha);
    const double margin = std::min(m_groundMargin, size * GroundShare) * 0.5;
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRoundedRect(box.adjusted(-margin, -margin, margin, margin), rounding, rounding);
  }
  const double known = std::max(ThinnestRing, m_penWidth * std::min(1.0, size / FullSize));
  painter.setPen(m_penWidth > 0.0 ? QPen(m_theme.line(record.ring), std::min(m_penWidth, record.isRingKnown ? known : 1.0))
                                  : QPen(Qt::NoPen));
  painter.setBrush(isVectorTarget(painter) ? QColor(Qt::white) : m_theme.paper()); // documents have the symbols as they are
  painter.drawRoundedRect(box, rounding, rounding);
  if (record.symbol != NoIndex)
    m_symbols.draw(painter, record.symbol, box.center(), size * SymbolShare, 0.0);
}

void SubnetLayer::find(const Projection &projection, const QPointF &point, std::vector<Hit> &hits) const {
  for (Index i = 0; i < m_records.size(); ++i) {
    const Record &record = m_records[i];
    const QPointF to = projection.map(record.center.x(), record.center.y()) - point;
    const double half = sizeOf(record, projection) * 0.5;
    if (!isHidden(i) && std::abs(to.x()) <= half && std::abs(to.y()) <= half)
      hits.push_back({{NetData::AssembledSubnet, i}, std::hypot(to.x(), to.y()), HitRank::Box});
  }
}
