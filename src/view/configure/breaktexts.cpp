#include "configure/breaktexts.h"

#include <model/displayformat.h>

#include <QStringList>

namespace {

bool isSame(const Units::Linear &a, const Units::Linear &b) {
  return a.factor == b.factor && a.offset == b.offset;
}

QString converted(const QString &number, const Units::Linear &from, const Units::Linear &to) {
  constexpr int Digits = 12; // what a conversion adds beyond is noise
  bool isNumber = false;
  const double value = number.toDouble(&isNumber);
  return isNumber && !isSame(from, to) ? QString::number(to(from.inverse(value)), 'g', Digits) : number;
}

} // namespace

QString BreakTexts::shown(const QString &inTable, const DrawFunction &function) {
  QStringList texts = inTable.split(QLatin1Char(';'));
  for (QString &text : texts) {
    if (!isSame(function.toTable, function.toDisplay))
      text = converted(text.trimmed(), function.toTable, function.toDisplay);
    text = DisplayFormat::editable(text);
  }
  return texts.join(QLatin1Char(';'));
}

QString BreakTexts::inTable(const QString &shown, const DrawFunction &function, QChar sign) {
  QStringList texts = shown.split(QLatin1Char(';'));
  for (QString &text : texts)
    text = converted(DisplayFormat::typed(text, sign), function.toDisplay, function.toTable);
  return texts.join(QLatin1Char(';'));
}
