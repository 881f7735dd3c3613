#pragma once

#include <QFont>
#include <QPainter>
#include <QSizeF>
#include <QStringList>

/// A text in as many lines as it takes: broken between words, and within a word that is too long for a line.
class WrappedText {
public:
  /// \param width px; \param mostLines after which the rest is cut: nobody's name makes a legend of itself
  WrappedText(const QString &text, const QFont &font, double width, int mostLines = 4);

  QSizeF size() const { return m_size; }
  const QStringList &lines() const { return m_lines; }
  /// In the pen of the painter. \param top the upper left corner
  void draw(QPainter &painter, const QPointF &top) const;

private:
  QFont m_font;
  QStringList m_lines;
  QSizeF m_size;
};
