#include "numberlocale.h"

#include <base/settings.h>

#include <QApplication>
#include <QLocale>
#include <QWidget>

void NumberLocale::apply() {
  const QChar sign = Settings::DecimalSign.value() == QLatin1String("comma") ? QLatin1Char(',') : QLatin1Char('.');
  QLocale locale = QLocale::system();
  if (locale.decimalPoint() != sign)
    locale = sign == QLatin1Char(',') ? QLocale(QLocale::German, QLocale::Germany)
                                      : QLocale(QLocale::English, QLocale::UnitedStates);
  locale.setNumberOptions(QLocale::OmitGroupSeparator);
  if (locale == QLocale())
    return;
  QLocale::setDefault(locale);
  for (QWidget *window : QApplication::topLevelWidgets())
    window->setLocale(locale);
}
