#include "shared/tableexport.h"

#include "shared/csvfield.h"
#include "shared/workbookfile.h"

#include <base/wholefile.h>
#include <model/displayformat.h>
#include <model/propertytext.h>

#include <QTextStream>

namespace {

struct Style {
  QLatin1Char separator;
  QLatin1Char decimalSign;
  bool isForFile; ///< with the digits that people chose for files; else with all of them
};

Style styleOf(TableExport::Format format) {
  if (format == TableExport::Format::CommaCsv)
    return {QLatin1Char(';'), QLatin1Char(','), true};
  return {QLatin1Char(format == TableExport::Format::PointCsv ? ',' : '\t'), QLatin1Char('.'), true};
}

/// In quotes where something in it would be taken for the end of the cell.
QString textField(const QString &text, QLatin1Char separator) {
  QString field = CsvField::harmless(text);
  const bool needsQuotes = field.contains(separator) || field.contains(QLatin1Char('"')) ||
                           field.contains(QLatin1Char('\n')) || field.contains(QLatin1Char('\r')) ||
                           field != field.trimmed();
  return needsQuotes ? QLatin1Char('"') + field.replace(QLatin1Char('"'), QStringLiteral("\"\"")) + QLatin1Char('"') : field;
}

QString field(const QVariant &value, Style style) {
  if (value.type() != QVariant::Double)
    return textField(value.toString(), style.separator);
  QString number = PropertyText::shortest(value.toDouble()).toString();
  if (style.isForFile)
    return textField(DisplayFormat::inFile(number, style.decimalSign == QLatin1Char(',')), style.separator);
  return number.replace(QLatin1Char('.'), style.decimalSign);
}

void writeRows(QTextStream &stream, const ExportedTable &table, Style style, bool withHeader) {
  const int columns = table.headers.size();
  if (withHeader) {
    for (int column = 0; column < columns; ++column)
      stream << (column > 0 ? QString(style.separator) : QString()) << textField(table.headers.at(column), style.separator);
    stream << '\n';
  }
  for (int row = 0; row < table.rows; ++row) {
    for (int column = 0; column < columns; ++column)
      stream << (column > 0 ? QString(style.separator) : QString()) << field(table.value(row, column), style);
    stream << '\n';
  }
}

} // namespace

bool TableExport::writeText(QIODevice &device, Format format) const {
  QTextStream stream(&device);
  stream.setCodec("UTF-8");
  stream.setGenerateByteOrderMark(format != Format::Tabulators); // else spreadsheets take it for another encoding
  writeRows(stream, *this, styleOf(format), true);
  stream.flush();
  return stream.status() == QTextStream::Ok;
}

bool TableExport::save(const QString &path, Format format, QString *reason) const {
  const auto writer = [this, format](QIODevice &device, QString *why) {
    return format == Format::Workbook ? WorkbookFile(*this).write(device, why) : writeText(device, format);
  };
  return WholeFile::write(path, FileAccess::Source::Trusted, writer, reason);
}

QString TableExport::tabbed(bool withHeader) const {
  QString text;
  QTextStream stream(&text);
  Style style = styleOf(Format::Tabulators);
  style.isForFile = false;
  writeRows(stream, *this, style, withHeader);
  return text;
}
