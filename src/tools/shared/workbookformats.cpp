#include "shared/workbookformats.h"

#include <model/displayformat.h>
#include <model/propertytext.h>

#include <algorithm>
#include <xlsxwriter.h>

lxw_format *WorkbookFormats::ofNumber(double number, Weight weight) {
  const QString exact = PropertyText::shortest(number).toString();
  return of(code(DisplayFormat::inFile(exact, false), exact), weight);
}

lxw_format *WorkbookFormats::of(const QByteArray &code, Weight weight) {
  if (code.isEmpty() && weight == Weight::Normal)
    return nullptr;
  lxw_format *&format = m_formats[{code, weight}];
  if (format != nullptr)
    return format;
  format = workbook_add_format(&m_book);
  if (weight == Weight::Bold)
    format_set_bold(format);
  if (!code.isEmpty())
    format_set_num_format(format, code.constData());
  return format;
}

QByteArray WorkbookFormats::code(const QString &shown, const QString &exact) {
  if (shown == exact)
    return QByteArray();
  const int power = shown.indexOf(QLatin1Char('e'), 0, Qt::CaseInsensitive);
  const QString plain = shown.left(power);
  const int point = plain.indexOf(QLatin1Char('.'));
  const QByteArray decimals = point < 0 ? QByteArray() : '.' + QByteArray(plain.size() - point - 1, '0');
  const QString whole = plain.left(point);
  const bool isParted = std::any_of(whole.begin(), whole.end(),
                                    [](QChar c) { return !c.isDigit() && c != QLatin1Char('-') && c != QLatin1Char('+'); });
  return (isParted ? QByteArray("#,##0") : QByteArray("0")) + decimals + (power < 0 ? QByteArray() : QByteArray("E+00"));
}
