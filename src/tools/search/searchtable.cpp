#include "search/searchtable.h"

#include "shared/csvfield.h"

#include <QTextStream>

namespace {

constexpr int ValueColumn = 3;

} // namespace

QStringList SearchTable::headers() {
  return {QStringLiteral("name"), QStringLiteral("type"), QStringLiteral("property"), QStringLiteral("value"),
          QStringLiteral("unit")};
}

bool SearchTable::write(QIODevice &device, const SearchParams &params, const std::vector<QStringList> &rows, bool useComma) {
  QTextStream stream(&device);
  stream.setCodec("ISO-8859-1");
  const std::pair<QString, QString> restrictions[] = {{QStringLiteral("SearchString:"), params.searchString},
                                                      {QStringLiteral("NameRestriction:"), params.name},
                                                      {QStringLiteral("TypeRestriction:"), params.type},
                                                      {QStringLiteral("PropertyRestriction:"), params.prop},
                                                      {QStringLiteral("FormulaString:"), params.formula}};
  for (const auto &[label, text] : restrictions)
    stream << label << ";\"" << text << "\";\n"; // quotes inside are not doubled here
  stream << '\n';
  for (const QString &header : headers())
    stream << CsvField::quoted(header);
  stream << '\n';
  CsvField::writeRows(stream, rows, ValueColumn, useComma);
  stream.flush();
  return stream.status() == QTextStream::Ok;
}
