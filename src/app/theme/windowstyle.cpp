#include "theme/windowstyle.h"

#include "theme/themepalette.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>

namespace {

QString fusion() {
  return QStringLiteral("Fusion");
}

} // namespace

WindowStyle::WindowStyle()
    : QProxyStyle(fusion()) {
  setObjectName(fusion().toLower()); // by which style sheets and settings of the toolkit know it
}

void WindowStyle::use() {
  if (qobject_cast<WindowStyle *>(QApplication::style()) == nullptr) // else every widget would be laid out again
    QApplication::setStyle(new WindowStyle);
}

int WindowStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                           QStyleHintReturn *returned) const {
  if (hint == SH_Menu_Scrollable) // else a long menu grows beside the screen, where nobody reaches its end
    return 1;
  return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 0 : QProxyStyle::styleHint(hint, option, widget, returned);
}

void WindowStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                const QWidget *widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  if (element != PE_IndicatorCheckBox || option == nullptr || !ThemePalette::isDark(option->palette))
    return;
  painter->save();
  painter->setBrush(Qt::NoBrush);
  painter->setPen(option->palette.color(QPalette::Disabled, QPalette::ButtonText));
  painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
  painter->restore();
}
