#include "legend/legendblocks.h"

#include <drawing/scaleticks.h>

#include <QLinearGradient>

#include <algorithm>
#include <cmath>

namespace {

constexpr double BarWidth = 190.0; // px
constexpr double BarHeight = 9.0;
constexpr double TickLength = 3.0;
constexpr double Gap = 3.0;
constexpr double CapWidth = 8.0;
constexpr double KeyRoom = 24.0; // for a key beside its word
constexpr double Spacing = 8.0;  // between neighbours in a row
constexpr double Half = 0.5;

} // namespace

void LegendBlock::drawTitle(QPainter &painter, const QPointF &top, const QString &title) const {
  painter.setPen(m_style.ink);
  wrapped(title).draw(painter, top);
}

void LegendBlock::drawText(QPainter &painter, const QPointF &top, const QString &text) const {
  painter.setFont(m_style.font);
  painter.setPen(m_style.ink);
  painter.drawText(top + QPointF(0.0, m_style.metrics().ascent()), text);
}

LegendCaption::LegendCaption(LegendStyle style, QString text)
    : LegendBlock([&style] {
      style.font.setBold(true);
      return style;
    }())
    , m_text(std::move(text)) {}

QSizeF LegendCaption::size() const {
  return titleSize(m_text);
}

void LegendCaption::draw(QPainter &painter, const QRectF &area) const {
  drawTitle(painter, area.topLeft(), m_text);
}

LegendBar::LegendBar(LegendStyle style, LegendContents::Scale scale)
    : LegendBlock(std::move(style))
    , m_scale(std::move(scale)) {}

double LegendBar::barWidth() const {
  return std::min(BarWidth, widest());
}

QSizeF LegendBar::size() const {
  const QSizeF title = titleSize(m_scale.title);
  return {std::max(barWidth(), title.width()), title.height() + lineHeight() + Gap + BarHeight + TickLength};
}

std::vector<LegendBar::Tick> LegendBar::marks(const std::vector<double> &values) const {
  const QwtInterval &range = m_scale.range;
  std::vector<Tick> found;
  found.reserve(values.size());
  for (const double value : values)
    found.push_back(
        {range.width() > 0.0 ? (value - range.minValue()) / range.width() : Half, ScaleTicks::text(value, values)});
  return found;
}

bool LegendBar::fit(const std::vector<Tick> &ticks, double width) const {
  double free = -width;
  for (const Tick &tick : ticks) {
    const double text = widthOf(tick.text);
    const double left = tick.share * width - text * Half;
    if (left < free)
      return false;
    free = left + text + Spacing;
  }
  return true;
}

/// As many round numbers, or breaks, as stand side by side.
std::vector<LegendBar::Tick> LegendBar::ticks(double width) const {
  constexpr int MostTicks = 6;
  const std::vector<double> &breaks = m_scale.breaks;
  for (std::size_t step = 1; step <= breaks.size(); ++step) {
    std::vector<double> some;
    for (std::size_t i = 0; i < breaks.size(); i += step) {
      if (m_scale.range.contains(breaks[i]))
        some.push_back(breaks[i]);
    }
    std::vector<Tick> found = marks(some);
    if (!found.empty() && fit(found, width))
      return found;
  }
  for (int count = MostTicks; count > 1; --count) {
    std::vector<Tick> found = marks(ScaleTicks::within(m_scale.range, count));
    if (found.size() > 1 && fit(found, width))
      return found;
  }
  const std::vector<double> middle{m_scale.range.minValue() + m_scale.range.width() * Half};
  return marks(middle);
}

/// Each class reaches to the end of the bar and is painted over by the next, so that no gap shines through in documents.
void LegendBar::drawColors(QPainter &painter, const QRectF &bar) const {
  painter.setPen(Qt::NoPen);
  const auto count = static_cast<double>(m_scale.colors.size());
  if (m_scale.breaks.empty() && m_scale.colors.size() > 1) {
    QLinearGradient ramp(bar.topLeft(), bar.topRight());
    for (std::size_t i = 0; i < m_scale.colors.size(); ++i)
      ramp.setColorAt((static_cast<double>(i) + Half) / count, QColor::fromRgb(m_scale.colors[i]));
    painter.setBrush(ramp);
    painter.drawRect(bar);
    return;
  }
  for (std::size_t i = 0; i < m_scale.colors.size(); ++i) {
    if (i > 0 && m_scale.colors[i] == m_scale.colors[i - 1])
      continue;
    QRectF rest = bar;
    rest.setLeft(bar.left() + bar.width() * static_cast<double>(i) / count);
    painter.setBrush(QColor::fromRgb(m_scale.colors[i]));
    painter.drawRect(rest);
  }
}

void LegendBar::drawCaps(QPainter &painter, const QRectF &bar) const {
  constexpr double Apart = 1.0; // px
  const double middle = bar.center().y();
  painter.setPen(Qt::NoPen);
  if (m_scale.below) {
    const double base = bar.left() - Apart;
    painter.setBrush(QColor::fromRgb(*m_scale.below));
    painter.drawPolygon(
        QPolygonF(QVector<QPointF>{{base, bar.top()}, {base, bar.bottom()}, {base - CapWidth + Apart, middle}}));
  }
  if (m_scale.above) {
    const double base = bar.right() + Apart;
    painter.setBrush(QColor::fromRgb(*m_scale.above));
    painter.drawPolygon(
        QPolygonF(QVector<QPointF>{{base, bar.top()}, {base, bar.bottom()}, {base + CapWidth - Apart, middle}}));
  }
}

void LegendBar::draw(QPainter &painter, const QRectF &area) const {
  drawTitle(painter, area.topLeft(), m_scale.title);
  const QRectF bar(area.left() + CapWidth, area.top() + titleSize(m_scale.title).height() + Gap, barWidth() - 2.0 * CapWidth,
                   BarHeight);
  drawColors(painter, bar);
  drawCaps(painter, bar);
  for (const Tick &tick : ticks(bar.width())) {
    const double x = bar.left() + bar.width() * tick.share;
    painter.setPen(QPen(style().ink, 1.0));
    painter.drawLine(QPointF(x, bar.bottom()), QPointF(x, bar.bottom() + TickLength));
    const double text = widthOf(tick.text);
    const double left = std::max(area.left(), std::min(x - text * Half, area.right() - text));
    drawText(painter, {left, bar.bottom() + TickLength}, tick.text);
  }
}

LegendSamples::LegendSamples(LegendStyle style, LegendContents::Samples samples, Shape shape)
    : LegendBlock(std::move(style))
    , m_samples(std::move(samples))
    , m_shape(shape) {}

double LegendSamples::keyWidth(const LegendContents::Sample &sample) const {
  return m_shape == Shape::Line ? KeyRoom : std::min(sample.size, KeyRoom);
}

QSizeF LegendSamples::size() const {
  double width = 0.0;
  double height = lineHeight();
  for (const LegendContents::Sample &sample : m_samples.samples) {
    width += keyWidth(sample) + Gap + widthOf(sample.text) + Spacing;
    height = std::max(height, std::min(sample.size, KeyRoom));
  }
  const QSizeF title = titleSize(m_samples.title);
  return {std::max(width - Spacing, title.width()), title.height() + height};
}

void LegendSamples::draw(QPainter &painter, const QRectF &area) const {
  drawTitle(painter, area.topLeft(), m_samples.title);
  const double middle = (area.top() + titleSize(m_samples.title).height() + area.bottom()) * Half;
  double left = area.left();
  for (const LegendContents::Sample &sample : m_samples.samples) {
    const double width = keyWidth(sample);
    if (m_shape == Shape::Line) {
      painter.setPen(QPen(style().ink, std::min(sample.size, KeyRoom), Qt::SolidLine, Qt::FlatCap));
      painter.drawLine(QPointF(left, middle), QPointF(left + width, middle));
    } else {
      painter.setPen(Qt::NoPen);
      painter.setBrush(style().ink);
      painter.drawEllipse(QPointF(left + width * Half, middle), width * Half, width * Half);
    }
    drawText(painter, {left + width + Gap, middle - lineHeight() * Half}, sample.text);
    left += width + Gap + widthOf(sample.text) + Spacing;
  }
}

LegendKeys::LegendKeys(LegendStyle style, std::vector<Key> keys)
    : LegendBlock(std::move(style))
    , m_keys(std::move(keys)) {}

double LegendKeys::columnWidth() const {
  double width = 0.0;
  for (const Key &key : m_keys)
    width = std::max(width, widthOf(key.text));
  return std::min(KeyRoom + width, widest());
}

std::size_t LegendKeys::columns() const {
  return m_keys.size() > 1 && columnWidth() * 2.0 + Spacing <= widest() ? 2 : 1;
}

QSizeF LegendKeys::size() const {
  const auto count = static_cast<double>(columns());
  return {columnWidth() * count + Spacing * (count - 1.0), static_cast<double>(rows()) * (lineHeight() + 1.0)};
}

void LegendKeys::draw(QPainter &painter, const QRectF &area) const {
  const double height = lineHeight() + 1.0;
  for (std::size_t i = 0; i < m_keys.size(); ++i) {
    const std::size_t column = i / rows();
    const double left = area.left() + static_cast<double>(column) * (columnWidth() + Spacing);
    const double top = area.top() + static_cast<double>(i % rows()) * height;
    constexpr double Beside = 10.0; // px, the middle of a key
    m_keys[i].draw(painter, {left + Beside, top + height * Half});
    drawText(painter, {left + KeyRoom, top},
             style().metrics().elidedText(m_keys[i].text, Qt::ElideRight, columnWidth() - KeyRoom));
  }
}
