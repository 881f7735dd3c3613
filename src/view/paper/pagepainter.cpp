#include "pagepainter.h"

#include "scalebar.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace {

constexpr int TitleSize = 19;
constexpr int FactsSize = 11;
constexpr double Gap = 8.0;
constexpr double BlockGap = 12.0;
constexpr double FramePen = 0.8;

/// The height of a text that is broken into lines of this width; at most so many lines.
double heightOf(const QString &text, const QFont &font, double width, int mostLines) {
  const QFontMetricsF metrics(font);
  const double needed = metrics.boundingRect(QRectF(0.0, 0.0, width, 1e6), Qt::TextWordWrap, text).height();
  return std::min(std::ceil(needed), std::ceil(metrics.lineSpacing() * mostLines));
}

} // namespace

PagePainter::PagePainter(PageContent &content, const PageSetup &setup, PageText text)
    : m_content(content)
    , m_setup(setup)
    , m_text(std::move(text)) {
  const double unit = m_setup.unit();
  m_layout.paper = m_setup.size() / unit;
  QRectF room = QRectF(QPointF(), m_layout.paper)
                    .adjusted(m_setup.margins.left() / unit, m_setup.margins.top() / unit, -m_setup.margins.right() / unit,
                              -m_setup.margins.bottom() / unit);
  placeHeading(room);
  placeFoot(room);
  if (m_setup.hasLegend) {
    m_content.layOut(room.size(), m_setup, PageContent::Detail::Draft);
    m_blocks = m_content.legend();
    placeLegend(room);
  }
  m_layout.frame = room;
  m_content.layOut(room.size(), m_setup, PageContent::Detail::Whole);
}

void PagePainter::placeHeading(QRectF &room) {
  if (!m_setup.hasHeading)
    return;
  constexpr int MostLines = 4;
  if (!m_text.title.isEmpty()) {
    m_layout.title = room;
    m_layout.title.setHeight(heightOf(m_text.title, pageFont(TitleSize, true), room.width(), MostLines));
    room.setTop(m_layout.title.bottom() + 2.0);
  }
  if (!m_text.facts.isEmpty()) {
    m_layout.facts = room;
    m_layout.facts.setHeight(heightOf(m_text.facts, pageFont(FactsSize), room.width(), MostLines));
    room.setTop(m_layout.facts.bottom() + Gap);
  }
}

void PagePainter::placeFoot(QRectF &room) {
  constexpr int MostLines = 6;
  m_content.layOut(room.size(), m_setup, PageContent::Detail::Draft);
  const bool hasScale = m_setup.hasScaleBar && m_content.scale().has_value();
  double height = hasScale ? NorthArrow::Size : 0.0;
  if (!m_text.comment.isEmpty())
    height =
        std::max(height, heightOf(m_text.comment, pageFont(FactsSize), room.width() * (hasScale ? 0.5 : 1.0), MostLines));
  if (height == 0.0)
    return;
  m_layout.foot = QRectF(room.left(), room.bottom() - height, room.width(), height);
  room.setBottom(m_layout.foot.top() - Gap * 1.5);
}

QSizeF PagePainter::flow(double height) {
  m_places.clear();
  QPointF at;
  double lowest = 0.0;
  for (std::size_t i = 0; i < m_blocks.size(); ++i) {
    if (at.y() > 0.0 && at.y() + m_blocks[i].height > height)
      at = {at.x() + PageContent::LegendWidth + BlockGap, 0.0};
    m_places.push_back({i, at});
    lowest = std::max(lowest, at.y() + m_blocks[i].height);
    at.ry() += m_blocks[i].height + BlockGap;
  }
  return {at.x() + PageContent::LegendWidth, lowest};
}

/// Beside the drawing of a wide page, below that of a tall one. A small page has it smaller: at least half of the room is
/// for the drawing.
void PagePainter::placeLegend(QRectF &room) {
  constexpr double MostShare = 0.42;
  constexpr double Smaller = 0.92;
  constexpr double Smallest = 0.3;
  if (m_blocks.empty())
    return;
  const bool isBeside = room.width() >= room.height();
  QSizeF size;
  for (m_legendScale = 1.0; m_legendScale > Smallest; m_legendScale *= Smaller) {
    if (isBeside) {
      size = flow(room.height() / m_legendScale);
    } else { // as low as it gets with the columns for which there is room
      double tallest = 0.0;
      for (const PaperLegendPart &block : m_blocks)
        tallest = std::max(tallest, block.height);
      for (size = flow(tallest); size.width() * m_legendScale > room.width() && tallest < 1e4; size = flow(tallest))
        tallest += BlockGap;
    }
    size *= m_legendScale;
    const bool isSmallEnough = isBeside ? size.width() <= room.width() * MostShare && size.height() <= room.height()
                                        : size.height() <= room.height() * MostShare && size.width() <= room.width();
    if (isSmallEnough)
      break;
  }
  if (isBeside) {
    m_layout.legend = QRectF(QPointF(room.right() - size.width(), room.top()), QSizeF(size.width(), room.height()));
    room.setRight(m_layout.legend.left() - Gap * 1.5);
  } else {
    m_layout.legend = QRectF(QPointF(room.left(), room.bottom() - size.height()), QSizeF(room.width(), size.height()));
    room.setBottom(m_layout.legend.top() - Gap * 1.5);
  }
}

void PagePainter::paint(QPainter &painter) const {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(QRectF(QPointF(), m_layout.paper), Qt::white);
  painter.save();
  painter.setClipRect(m_layout.frame); // where the format knows how to
  painter.translate(m_layout.frame.topLeft());
  m_content.paint(painter);
  painter.restore();
  coverBeside(painter);
  painter.setPen(Qt::black);
  paintHeading(painter);
  paintLegend(painter);
  paintFoot(painter);
  if (m_setup.hasFrame) {
    painter.setPen(QPen(Qt::black, FramePen));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(m_layout.frame);
  }
}

/// Not every format can cut off what reaches beyond the frame.
void PagePainter::coverBeside(QPainter &painter) const {
  const QRectF &frame = m_layout.frame;
  const QSizeF paper = m_layout.paper;
  painter.fillRect(QRectF(0.0, 0.0, paper.width(), frame.top()), Qt::white);
  painter.fillRect(QRectF(0.0, frame.bottom(), paper.width(), paper.height() - frame.bottom()), Qt::white);
  painter.fillRect(QRectF(0.0, frame.top(), frame.left(), frame.height()), Qt::white);
  painter.fillRect(QRectF(frame.right(), frame.top(), paper.width() - frame.right(), frame.height()), Qt::white);
}

void PagePainter::paintHeading(QPainter &painter) const {
  painter.setFont(pageFont(TitleSize, true));
  painter.drawText(m_layout.title, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, m_text.title);
  painter.setFont(pageFont(FactsSize));
  painter.drawText(m_layout.facts, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, m_text.facts);
}

void PagePainter::paintLegend(QPainter &painter) const {
  for (const LegendPlace &place : m_places) {
    painter.save();
    painter.translate(m_layout.legend.topLeft());
    painter.scale(m_legendScale, m_legendScale);
    painter.translate(place.at);
    painter.setPen(Qt::black);
    m_blocks[place.block].paint(painter);
    painter.restore();
  }
}

void PagePainter::paintFoot(QPainter &painter) const {
  if (m_layout.foot.isEmpty())
    return;
  constexpr double MostShare = 0.3;
  constexpr double MostWidth = 220.0;
  const QRectF &foot = m_layout.foot;
  QRectF rest = foot;
  const std::optional<PaperScale> scale = m_setup.hasScaleBar ? m_content.scale() : std::nullopt;
  if (scale) {
    const ScaleBar bar = ScaleBar::of(*scale, std::min(foot.width() * MostShare, MostWidth));
    bar.paint(painter, {foot.left() + 1.0, foot.top() + (NorthArrow::Size - ScaleBar::Height) * 0.5});
    rest.setLeft(foot.left() + bar.neededWidth() + 2.0 * Gap);
    if (scale->north) {
      NorthArrow::paint(painter, {rest.left() + NorthArrow::Size * 0.5, foot.top() + NorthArrow::Size * 0.5}, *scale->north);
      rest.setLeft(rest.left() + NorthArrow::Size + 2.0 * Gap);
    }
  }
  painter.setPen(Qt::black);
  painter.setFont(pageFont(FactsSize));
  painter.drawText(rest, int(scale ? Qt::AlignRight : Qt::AlignLeft) | int(Qt::AlignVCenter) | int(Qt::TextWordWrap),
                   m_text.comment);
}
