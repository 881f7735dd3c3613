#pragma once

#include "legend/wrappedtext.h"

#include <drawing/legendcontents.h>

#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QPainter>

#include <functional>

/// How the texts of a legend look.
struct LegendStyle {
  QFont font;
  QColor ink;
  QColor ground;

  QFontMetricsF metrics() const { return QFontMetricsF(font); }
};

/// A part of the legend that stands or is left out as a whole.
class LegendBlock {
public:
  explicit LegendBlock(LegendStyle style)
      : m_style(std::move(style)) {}
  virtual ~LegendBlock() = default;
  LegendBlock(const LegendBlock &) = delete;
  LegendBlock &operator=(const LegendBlock &) = delete;

  /// How broad it may be at most, px; longer titles take several lines, texts of keys are cut.
  void limit(double width) { m_widest = width; }
  virtual QSizeF size() const = 0;
  /// \param area of the size, or broader
  virtual void draw(QPainter &painter, const QRectF &area) const = 0;

protected:
  const LegendStyle &style() const { return m_style; }
  double widest() const { return m_widest; }
  double widthOf(const QString &text) const { return m_style.metrics().horizontalAdvance(text); }
  /// In as many lines as it takes.
  QSizeF titleSize(const QString &title) const { return wrapped(title).size(); }
  void drawTitle(QPainter &painter, const QPointF &top, const QString &title) const;
  double lineHeight() const { return m_style.metrics().height(); }
  /// With its left end at the left of a line of text whose top is given.
  void drawText(QPainter &painter, const QPointF &top, const QString &text) const;

private:
  WrappedText wrapped(const QString &title) const { return {title, m_style.font, m_widest}; }

  LegendStyle m_style;
  double m_widest = 0.0;
};

/// Which case and scenario.
class LegendCaption : public LegendBlock {
public:
  LegendCaption(LegendStyle style, QString text);
  QSizeF size() const override;
  void draw(QPainter &painter, const QRectF &area) const override;

private:
  QString m_text;
};

/// A bar of colours with its title and its numbers.
class LegendBar : public LegendBlock {
public:
  LegendBar(LegendStyle style, LegendContents::Scale scale);
  QSizeF size() const override;
  void draw(QPainter &painter, const QRectF &area) const override;

private:
  struct Tick {
    double share; ///< of the bar, from its left end
    QString text;
  };
  double barWidth() const;
  std::vector<Tick> ticks(double width) const;
  std::vector<Tick> marks(const std::vector<double> &values) const;
  bool fit(const std::vector<Tick> &ticks, double width) const;
  void drawColors(QPainter &painter, const QRectF &bar) const;
  void drawCaps(QPainter &painter, const QRectF &bar) const;

  LegendContents::Scale m_scale;
};

/// Lines of some widths, or dots of some sizes, in a row.
class LegendSamples : public LegendBlock {
public:
  enum class Shape { Line, Dot };
  LegendSamples(LegendStyle style, LegendContents::Samples samples, Shape shape);
  QSizeF size() const override;
  void draw(QPainter &painter, const QRectF &area) const override;

private:
  double keyWidth(const LegendContents::Sample &sample) const;

  LegendContents::Samples m_samples;
  Shape m_shape;
};

/// Keys with a word each, in two columns where they fit.
class LegendKeys : public LegendBlock {
public:
  struct Key {
    QString text;
    std::function<void(QPainter &painter, const QPointF &center)> draw;
  };
  LegendKeys(LegendStyle style, std::vector<Key> keys);
  QSizeF size() const override;
  void draw(QPainter &painter, const QRectF &area) const override;

private:
  double columnWidth() const;
  std::size_t columns() const;
  std::size_t rows() const { return (m_keys.size() + columns() - 1) / columns(); }

  std::vector<Key> m_keys;
};
