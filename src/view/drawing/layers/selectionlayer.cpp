#include "layers/elementmarks.h"

#include <drawing/colorscale.h>
#include <drawing/selectionlayer.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double SelectionZ = 5.0; // in documents: below the elements and their casings, which stay as they are

// What lies round a selected element, px, from its edge outwards.
constexpr double Free = 1.0; // the element as it is drawn, and what belongs to its edge
constexpr double Outline = 2.75;
constexpr double Halo = 6.5;
constexpr double Rim = 7.5;

QColor colorOf(const Setting<QString> &name, int alpha) {
  constexpr int Opaque = 255;
  QColor color(name.value());
  if (!color.isValid())
    color = Qt::red;
  color.setAlpha(qBound(0, alpha, Opaque));
  return color;
}

/// How much of the ground a brush of the style covers; patterns are too coarse for a halo.
double coverOf(int brushStyle) {
  constexpr std::array<double, 9> Covers{0.0, 1.0, 0.94, 0.88, 0.63, 0.5, 0.37, 0.12, 0.06};
  return Covers[static_cast<std::size_t>(qBound(0, brushStyle, int(Covers.size()) - 1))];
}

} // namespace

SelectionLayer::SelectionLayer() {
  setRenderHint(RenderAntialiased);
  setZ(SelectionZ);
  hide();
  readSettings();
}

void SelectionLayer::setGeometry(const NetGeometry *geometry) {
  m_geometry = geometry;
  m_items.clear();
  m_hovered.reset();
  forgetPicture();
}

void SelectionLayer::setItems(std::vector<NetGeometry::Item> items) {
  m_items = std::move(items);
  forgetPicture();
}

bool SelectionLayer::setHovered(std::optional<NetGeometry::Item> item) {
  if (item == m_hovered)
    return false;
  m_hovered = item;
  return true;
}

SelectionLayer::Style SelectionLayer::styleOf(const Settings::SelectionMark &mark) {
  const double alpha = mark.brushAlpha.value() * coverOf(mark.brushStyle.value());
  return {colorOf(mark.brushColor, static_cast<int>(alpha)), colorOf(mark.penColor, mark.penAlpha.value())};
}

void SelectionLayer::readSettings() {
  m_element = styleOf(Settings::ElementSelection);
  m_subnet = styleOf(Settings::SubnetSelection);
  m_subnetFactor = qBound(0.0, Settings::SubnetSelectionSizeFactor.value(), 10.0);
  forgetPicture();
}

void SelectionLayer::setGround(const QColor &ground, bool dimsRest) {
  m_ground = ground;
  m_dimsRest = dimsRest;
  forgetPicture();
}

QColor SelectionLayer::ink() const {
  return ColorScale::isDark(m_ground) ? QColor(0xf4, 0xf6, 0xf8) : QColor(0x14, 0x1c, 0x26);
}

/// Each step replaces what the one before left, so that nothing transparent lies twice on one spot; the last one opens the
/// view on the elements as they are drawn.
QPixmap SelectionLayer::paint(const Projection &projection, double pixelRatio) const {
  constexpr int VeilAlpha = 125;
  constexpr std::size_t ManyMarks = 4000; // outlines of so many would show nothing but ink
  const ElementMarks::Drawing drawing{m_geometry, m_layers, m_sizes, m_subnetFactor};
  ElementMarks elements(drawing, projection);
  ElementMarks subnets(drawing, projection);
  for (const NetGeometry::Item item : m_items)
    (item.kind == NetData::AssembledSubnet ? subnets : elements).add(item);
  const bool isCrowd = elements.size() > ManyMarks;

  QPixmap pixels((projection.canvas().size() * pixelRatio).toSize());
  pixels.setDevicePixelRatio(pixelRatio);
  QColor veil = m_ground;
  veil.setAlpha(m_dimsRest ? VeilAlpha : 0);
  pixels.fill(veil);
  QPainter painter(&pixels);
  painter.translate(-projection.canvas().topLeft());
  painter.setRenderHint(QPainter::Antialiasing, !isCrowd);
  painter.setCompositionMode(QPainter::CompositionMode_Source);
  const auto surround = [&](const ElementMarks &marks, const Style &style) {
    marks.draw(painter, style.rim, Rim);
    marks.draw(painter, style.halo, Halo);
    marks.draw(painter, ink(), Outline);
    marks.drawSeen(painter, Qt::transparent, Free);
  };
  if (isCrowd) {
    constexpr double NarrowHalo = 1.5; // px
    QColor tint = m_element.halo;      // where all is selected, nothing else would tell it
    tint.setAlpha(tint.alpha() / 3);
    elements.draw(painter, m_element.halo, NarrowHalo, Qt::FlatCap);
    elements.draw(painter, tint, 0.0, Qt::FlatCap);
  } else {
    surround(elements, m_element);
  }
  surround(subnets, m_subnet);
  return pixels;
}

void SelectionLayer::drawForDocument(QPainter &painter, const Projection &projection) const {
  const ElementMarks::Drawing drawing{m_geometry, m_layers, m_sizes, m_subnetFactor};
  ElementMarks elements(drawing, projection);
  ElementMarks subnets(drawing, projection);
  for (const NetGeometry::Item item : m_items)
    (item.kind == NetData::AssembledSubnet ? subnets : elements).add(item);
  for (const auto &[marks, style] : {std::make_pair(&elements, &m_element), {&subnets, &m_subnet}}) {
    marks->draw(painter, style->halo, Halo);
    marks->draw(painter, ink(), Outline);
  }
}

/// The way round the element, as it is under the cursor for a moment only.
void SelectionLayer::drawHovered(QPainter &painter, const Projection &projection) const {
  constexpr int Alpha = 90;
  constexpr double Margin = 3.5; // px
  const ElementMarks::Drawing drawing{m_geometry, m_layers, m_sizes, m_subnetFactor};
  ElementMarks mark(drawing, projection);
  mark.add(*m_hovered);
  mark.draw(painter, QColor(20, 120, 220, Alpha), Margin);
}

void SelectionLayer::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                          const QRectF &canvasRect) const {
  const Projection projection(xMap, yMap, canvasRect);
  if (m_geometry == nullptr || !projection.isValid() || canvasRect.isEmpty())
    return;
  if (m_isInDocument || isVectorTarget(*painter)) {
    drawForDocument(*painter, projection);
    return;
  }
  const bool isAnyShown = std::any_of(m_items.begin(), m_items.end(), [this](NetGeometry::Item item) {
    return m_layers == nullptr || !m_layers->isHidden(item);
  });
  if (isAnyShown) {
    const double ratio = pixelRatio(*painter);
    if (!m_picture || !(m_picture->projection == projection) || m_picture->pixelRatio != ratio)
      m_picture = Picture{projection, ratio, paint(projection, ratio)};
    painter->drawPixmap(canvasRect, m_picture->pixels, m_picture->pixels.rect());
  }
  if (m_hovered && std::find(m_items.begin(), m_items.end(), *m_hovered) == m_items.end()) // which is marked already
    drawHovered(*painter, projection);
}
