#include "configure/colorbutton.h"

#include <QColorDialog>

ColorButton::ColorButton(QWidget *parent)
    : QPushButton(parent) {
  connect(this, &QPushButton::clicked, this, [this] {
    const QColor chosen = QColorDialog::getColor(m_color, window());
    if (!chosen.isValid())
      return;
    setColor(chosen);
    emit colorChosen();
  });
}

void ColorButton::setColor(const QColor &color) {
  constexpr int SwatchSide = 16; // px
  m_color = color;
  QPixmap swatch(SwatchSide, SwatchSide);
  swatch.fill(color.isValid() ? color : QColor(Qt::transparent));
  setText(color.isValid() ? color.name() : QString());
  setIcon(swatch);
}
