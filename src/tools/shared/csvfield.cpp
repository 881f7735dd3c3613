#include "shared/csvfield.h"

#include <QRegularExpression>

namespace {

/// A text that a spreadsheet would take for a formula gets an apostrophe in front, which makes it a text; numbers, with
/// either decimal sign and parted thousands, stay numbers.
QString harmless(const QString &text) {
  static const QRegularExpression formula(QStringLiteral("^(?:\\s*[-=+@]|[\\t\\r\\n])"));
  static const QRegularExpression number(
      QStringLiteral("^\\s*[-+]?(?:\\d{1,3}(?:[., ']\\d{3})+(?:[.,]\\d+)?|\\d+[.,]?\\d*|[.,]\\d+)(?:[eE][-+]?\\d+)?\\s*$"));
  return formula.match(text).hasMatch() && !number.match(text).hasMatch() ? QLatin1Char('\'') + text : text;
}

QString inQuotes(QString text) {
  return QLatin1Char('"') + text.replace(QLatin1Char('"'), QStringLiteral("\"\"")) + QLatin1Char('"');
}

} // namespace

QString CsvField::quoted(const QString &text) {
  return inQuotes(harmless(text));
}

QString CsvField::plain(const QString &text, QChar separator) {
  const QString field = harmless(text);
  const bool needsQuotes = field.contains(separator) || field.contains(QLatin1Char('"')) ||
                           field.contains(QLatin1Char('\n')) || field.contains(QLatin1Char('\r')) ||
                           field != field.trimmed();
  return needsQuotes ? inQuotes(field) : field;
}
