#pragma once

#include <QString>
#include <QStringList>
#include <QTextStream>

#include <vector>

/// Fields of tables for spreadsheets.
namespace CsvField {

/// In quotes, those inside doubled, with the semicolon behind.
inline QString quoted(QString text) {
  return QLatin1Char('"') + text.replace(QLatin1Char('"'), QStringLiteral("\"\"")) + QStringLiteral("\";");
}

/// A value with a decimal comma when it is wanted.
inline QString value(QString text, bool useComma) {
  return useComma ? text.replace(QLatin1Char('.'), QLatin1Char(',')) : text;
}

/// Rows of quoted fields, one a line. \param valueColumn the one that gets decimal commas when useComma says so
inline void writeRows(QTextStream &stream, const std::vector<QStringList> &rows, int valueColumn, bool useComma) {
  for (const QStringList &row : rows) {
    for (int column = 0; column < row.size(); ++column)
      stream << quoted(value(row.at(column), useComma && column == valueColumn));
    stream << '\n';
  }
}

} // namespace CsvField
