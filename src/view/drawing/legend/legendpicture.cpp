#include "legend/legendblocks.h"

#include <drawing/layergeometry.h>
#include <drawing/legendpicture.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr double Margin = 8.0; // px, about the blocks
constexpr double Apart = 6.0;  // between two of them
constexpr double WidestBlock = 280.0;
constexpr double NarrowBlock = 140.0;

std::vector<LegendKeys::Key> keysOf(const LegendContents &contents, const QColor &ground) {
  constexpr double Length = 9.0; // px, to either side
  constexpr double LineWidth = 3.0;
  constexpr double CasingWidth = 8.0;
  const auto line = [](QPainter &painter, const QPointF &center, const QColor &color, double width) {
    painter.setPen(QPen(color, width, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(center - QPointF(Length, 0.0), center + QPointF(Length, 0.0));
  };
  std::vector<LegendKeys::Key> keys;
  for (const ColorScale::Swatch &swatch : contents.lines)
    keys.push_back({swatch.text, [line, color = QColor::fromRgb(swatch.color)](QPainter &painter, const QPointF &center) {
                      line(painter, center, color, LineWidth);
                    }});
  for (const ColorScale::Swatch &swatch : contents.casings)
    keys.push_back(
        {swatch.text, [line, ground, color = QColor::fromRgb(swatch.color)](QPainter &painter, const QPointF &center) {
           line(painter, center, color, CasingWidth);
           line(painter, center, ground, LineWidth);
         }});
  return keys;
}

std::vector<LegendKeys::Key> keysOf(const LegendContents &contents, const LegendPicture::DrawSymbol &drawSymbol) {
  constexpr double SymbolSize = 14.0; // px
  std::vector<LegendKeys::Key> keys;
  keys.reserve(contents.symbols.size());
  for (const LegendContents::Symbol &symbol : contents.symbols)
    keys.push_back({symbol.title, [symbol, drawSymbol](QPainter &painter, const QPointF &center) {
                      painter.save();
                      drawSymbol(painter, symbol, center, SymbolSize);
                      painter.restore();
                    }});
  return keys;
}

} // namespace

LegendPicture::LegendPicture() = default;
LegendPicture::~LegendPicture() = default;

void LegendPicture::setContents(const LegendContents &contents, const QColor &ground, const QFont &font,
                                const DrawSymbol &drawSymbol) {
  const LegendStyle style{font, ColorScale::isDark(ground) ? QColor(0xe8, 0xea, 0xec) : QColor(0x20, 0x28, 0x30), ground};
  m_ground = ground;
  m_shown.clear();
  m_blocks.clear();
  m_size = QSizeF();
  if (contents.isEmpty())
    return;
  m_hasCaption = !contents.caption.isEmpty();
  if (m_hasCaption)
    add(std::make_unique<LegendCaption>(style, contents.caption), Brevity::OneScale);
  for (std::size_t i = 0; i < contents.scales.size(); ++i)
    add(std::make_unique<LegendBar>(style, contents.scales[i]), i == 0 ? Brevity::OneScale : Brevity::Narrow);
  if (!contents.lines.empty() || !contents.casings.empty())
    add(std::make_unique<LegendKeys>(style, keysOf(contents, ground)), Brevity::OneScale);
  if (!contents.widths.samples.empty())
    add(std::make_unique<LegendSamples>(style, contents.widths, LegendSamples::Shape::Line), Brevity::NoSymbols);
  if (!contents.sizes.samples.empty())
    add(std::make_unique<LegendSamples>(style, contents.sizes, LegendSamples::Shape::Dot), Brevity::NoSymbols);
  if (!contents.symbols.empty())
    add(std::make_unique<LegendKeys>(style, keysOf(contents, drawSymbol)), Brevity::Whole);
}

void LegendPicture::add(std::unique_ptr<LegendBlock> block, Brevity briefest) {
  m_blocks.push_back({std::move(block), briefest});
}

QFont LegendPicture::fontOf(const PlotSettings &settings) {
  constexpr int LargerThanLabels = 1; // pt
  constexpr int Smallest = 6;
  constexpr int Largest = 24; // of larger ones nothing would fit
  return screenFont(QFont(QStringLiteral("Arial"), qBound(Smallest, settings.labelMag + LargerThanLabels, Largest)));
}

void LegendPicture::fitInto(const QSizeF &room, Brevity brevity) {
  constexpr double NarrowestBlock = 110.0; // px: in less a scale says nothing
  const bool isNarrow = brevity >= Brevity::Narrow;
  const double widest = std::min(isNarrow ? NarrowBlock : WidestBlock, room.width() - 2.0 * Margin);
  const double broadest = isNarrow ? widest : room.width() - 2.0 * Margin; // of samples, which stand in a row
  double width = 0.0;
  double height = 2.0 * Margin - Apart;
  m_shown.clear();
  m_size = QSizeF();
  for (const Block &part : m_blocks) {
    part.block->limit(widest);
    const QSizeF size = part.block->size();
    if (brevity > part.briefest || size.width() > broadest)
      continue; // the others say something without it
    height += size.height() + Apart;
    width = std::max(width, size.width() + 2.0 * Margin);
    if (height > room.height() || widest < NarrowestBlock)
      break;
    m_shown.push_back(part.block.get());
    m_size = QSizeF(std::ceil(width), std::ceil(height));
  }
  if (m_shown.size() == 1 && m_hasCaption) { // which would be the name of nothing
    m_shown.clear();
    m_size = QSizeF();
  }
}

std::vector<LegendPicture::Part> LegendPicture::parts(double width) const {
  std::vector<Part> parts;
  parts.reserve(m_blocks.size());
  for (const Block &part : m_blocks) {
    part.block->limit(width);
    const QSizeF size = part.block->size();
    const LegendBlock &drawn = *part.block;
    parts.push_back({size.height(), [&drawn, size](QPainter &painter) {
                       drawn.draw(painter, {QPointF(), size});
                     }});
  }
  return parts;
}

void LegendPicture::draw(QPainter &painter, const QPointF &corner) const {
  if (m_shown.empty())
    return;
  constexpr int GroundAlpha = 225;
  constexpr double Rounding = 4.0; // px
  QColor ground = m_ground;
  ground.setAlpha(GroundAlpha);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(128, 136, 144, 140), 1.0));
  painter.setBrush(ground);
  painter.drawRoundedRect(QRectF(corner, m_size).adjusted(0.5, 0.5, -0.5, -0.5), Rounding, Rounding);
  double top = corner.y() + Margin;
  for (const LegendBlock *block : m_shown) {
    const double height = block->size().height();
    block->draw(painter, {corner.x() + Margin, top, m_size.width() - 2.0 * Margin, height});
    top += height + Apart;
  }
  painter.restore();
}
