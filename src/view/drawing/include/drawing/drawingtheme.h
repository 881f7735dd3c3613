#pragma once

#include <drawing/plotsettings.h>

#include <QColor>
#include <QImage>

/// The colours of what a drawing has on its ground, in one place. On a light ground they are those that were chosen for
/// white paper. On a dark one the program's own are others, and those of a settings file, a table or the network stay unless
/// they could not be told from the ground: then they become lighter, in their hue.
class DrawingTheme {
public:
  explicit DrawingTheme(const QColor &ground = Qt::white);

  /// The settings as they look on a screen: on a dark one the white ground, which is the usual one, becomes dark, and so do
  /// the usual colours on it. Another ground is somebody's choice, and stays with all that is on it.
  static PlotSettings onScreen(PlotSettings settings, bool isDarkScreen);

  bool isDark() const { return m_isDark; }
  const QColor &ground() const { return m_ground; }

  QColor ink() const;   ///< of letters
  QColor paper() const; ///< what boxes and badges are filled with
  /// Of a line or a mark, as far as the ground lets it be seen.
  QColor line(const QColor &color) const;
  /// Of letters on a background that may let the ground through.
  QColor text(const QColor &color, const QColor &background) const;

  QRgb noValue() const;   ///< the element lacks the value that the others are coloured by
  QRgb plainEdge() const; ///< there is nothing to colour by
  QRgb plainNode() const;
  QRgb notFound() const; ///< behind the results of a search

  /// What was drawn with dark ink on white, with light ink on paper(): hues stay.
  QColor turned(const QColor &color) const;
  QImage turned(QImage picture) const;

private:
  QColor m_ground;
  bool m_isDark;
};
