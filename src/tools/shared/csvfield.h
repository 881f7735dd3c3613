#pragma once

#include <QString>

/// Cells of tables as texts. Whatever stands in one, no spreadsheet takes it for a formula.
namespace CsvField {

/// In quotes, those inside doubled.
QString quoted(const QString &text);
/// In quotes where something in it would be taken for the end of the cell.
QString plain(const QString &text, QChar separator);

} // namespace CsvField
