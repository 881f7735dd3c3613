#include "search/searchtable.h"

#include "shared/csvfield.h"

#include <QCoreApplication>
#include <QTextStream>

#include <array>

QStringList SearchTable::headers() {
  return {QStringLiteral("name"), QStringLiteral("type"), QStringLiteral("property"), QStringLiteral("value"),
          QStringLiteral("unit")};
}

QString SearchTable::title(int column) {
  static constexpr std::array Titles{QT_TRANSLATE_NOOP("SearchTable", "name"), QT_TRANSLATE_NOOP("SearchTable", "type"),
                                     QT_TRANSLATE_NOOP("SearchTable", "property"), QT_TRANSLATE_NOOP("SearchTable", "value"),
                                     QT_TRANSLATE_NOOP("SearchTable", "unit")};
  return QCoreApplication::translate("SearchTable", Titles.at(static_cast<std::size_t>(column)));
}

bool SearchTable::write(QIODevice &device, const SearchParams &params, const std::vector<SearchRow> &rows, bool useComma) {
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
  for (const SearchRow &row : rows) {
    for (const QString &text : {row.name, row.type, row.property, CsvField::value(row.value, useComma), row.unit})
      stream << CsvField::quoted(text);
    stream << '\n';
  }
  stream.flush();
  return stream.status() == QTextStream::Ok;
}
