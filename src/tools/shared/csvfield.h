#pragma once

#include <model/displayformat.h>

#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QTextStream>
#include <QVector>

#include <vector>

/// Fields of tables for spreadsheets.
namespace CsvField {

/// A text that a spreadsheet would take for a formula gets an apostrophe in front, which makes it a text; numbers, with
/// either decimal sign and parted thousands, stay numbers.
inline QString harmless(const QString &text) {
  static const QRegularExpression formula(QStringLiteral("^(?:\\s*[-=+@]|[\\t\\r\\n])"));
  static const QRegularExpression number(
      QStringLiteral("^\\s*[-+]?(?:\\d{1,3}(?:[., ']\\d{3})+(?:[.,]\\d+)?|\\d+[.,]?\\d*|[.,]\\d+)(?:[eE][-+]?\\d+)?\\s*$"));
  return formula.match(text).hasMatch() && !number.match(text).hasMatch() ? QLatin1Char('\'') + text : text;
}

/// In quotes, those inside doubled, with the semicolon behind. Never a formula.
inline QString quoted(const QString &text) {
  return QLatin1Char('"') + harmless(text).replace(QLatin1Char('"'), QStringLiteral("\"\"")) + QStringLiteral("\";");
}

/// A value as people chose for files, with a decimal comma when it is wanted.
inline QString value(const QString &text, bool useComma) {
  return DisplayFormat::inFile(text, useComma);
}

/// Rows of quoted fields, one a line. \param valueColumns those that get decimal commas when useComma says so
inline void writeRows(QTextStream &stream, const std::vector<QStringList> &rows, const QVector<int> &valueColumns,
                      bool useComma) {
  for (const QStringList &row : rows) {
    for (int column = 0; column < row.size(); ++column)
      stream << quoted(valueColumns.contains(column) ? value(row.at(column), useComma) : row.at(column));
    stream << '\n';
  }
}

} // namespace CsvField
