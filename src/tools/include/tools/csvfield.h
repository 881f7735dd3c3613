#pragma once

#include <QString>

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

} // namespace CsvField
