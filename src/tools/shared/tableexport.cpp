#include "shared/tableexport.h"

#include "shared/csvfield.h"
#include "shared/workbookfile.h"

#include <base/settings.h>
#include <base/wholefile.h>
#include <model/displayformat.h>
#include <model/propertytext.h>

#include <QTextStream>

namespace {

using Format = TableExport::Format;

/// How cells become lines of text.
struct Style {
  QLatin1Char separator;
  bool hasComma;     ///< as decimal sign
  bool isQuoted;     ///< every cell, and the separator stands behind the last one as well
  bool hasAllDigits; ///< else those that people chose for files
};

Style styleOf(Format format) {
  switch (format) {
  case Format::Quoted:
    return {QLatin1Char(';'), Settings::UseComma.value(), true, false};
  case Format::CommaCsv:
    return {QLatin1Char(';'), true, false, false};
  case Format::PointCsv:
    return {QLatin1Char(','), false, false, false};
  default:
    return {QLatin1Char('\t'), false, false, false};
  }
}

QString cell(const ExportedTable &table, int row, int column, const Style &style) {
  const QVariant value = table.value(row, column);
  if (value.type() != QVariant::Double)
    return table.valueColumns.contains(column) ? DisplayFormat::inFile(value.toString(), style.hasComma) : value.toString();
  const QString number = PropertyText::shortest(value.toDouble()).toString();
  return style.hasAllDigits ? number : DisplayFormat::inFile(number, style.hasComma);
}

void writeLine(QTextStream &stream, int columns, const Style &style, const std::function<QString(int column)> &text) {
  for (int column = 0; column < columns; ++column) {
    if (style.isQuoted)
      stream << CsvField::quoted(text(column)) << style.separator;
    else
      stream << (column > 0 ? QString(style.separator) : QString()) << CsvField::plain(text(column), style.separator);
  }
  stream << '\n';
}

void writeLines(QTextStream &stream, const ExportedTable &table, const Style &style, TableExport::Header header) {
  const int columns = table.headers.size();
  if (header == TableExport::Header::Written)
    writeLine(stream, columns, style, [&table](int column) { return table.headers.at(column); });
  for (int row = 0; row < table.rows; ++row)
    writeLine(stream, columns, style, [&](int column) { return cell(table, row, column, style); });
}

} // namespace

void TableExport::writeRows(QTextStream &stream, Format format, Header header) const {
  writeLines(stream, *this, styleOf(format), header);
}

bool TableExport::writeText(QIODevice &device, Format format) const {
  QTextStream stream(&device);
  stream.setCodec("UTF-8");
  stream.setGenerateByteOrderMark(format != Format::Tabulators); // else spreadsheets take it for another encoding
  writeRows(stream, format, Header::Written);
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
  style.hasAllDigits = true;
  writeLines(stream, *this, style, withHeader ? Header::Written : Header::Left);
  return text;
}
