#pragma once

#include <QPushButton>

/// Wears a colour and its name; pressed, it lets a person choose another.
class ColorButton : public QPushButton {
  Q_OBJECT
public:
  explicit ColorButton(QWidget *parent = nullptr);

  const QColor &color() const { return m_color; }
  /// An invalid colour leaves the button blank.
  void setColor(const QColor &color);

signals:
  void colorChosen(); ///< by a person

private:
  QColor m_color;
};
