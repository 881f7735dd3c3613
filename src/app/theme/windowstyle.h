#pragma once

#include <QProxyStyle>

/// The style of the program's windows: the toolkit's own "Fusion", with frames round empty check boxes that are seen on dark
/// ground, long menus that scroll, and without the coloured icons of dialog buttons, which are of another family than the
/// program's.
class WindowStyle : public QProxyStyle {
  Q_OBJECT
public:
  /// Makes it the style of the program unless it is that already.
  static void use();

  int styleHint(StyleHint hint, const QStyleOption *option = nullptr, const QWidget *widget = nullptr,
                QStyleHintReturn *returned = nullptr) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;

private:
  WindowStyle();
};
