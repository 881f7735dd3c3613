#include "search/searchtable.h"

#include "shared/tableexport.h"

#include <base/index.h>

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

bool SearchTable::write(QIODevice &device, const SearchParams &params, const std::vector<SearchRow> &rows) {
  TableExport table;
  table.headers = headers();
  table.rows = toQt(rows.size());
  table.valueColumns = {3};
  table.value = [&rows](int row, int column) {
    const SearchRow &of = rows[fromQt(row)];
    const std::array<const QString *, 5> cells{&of.name, &of.type, &of.property, &of.value, &of.unit};
    return QVariant(*cells[fromQt(column)]);
  };
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
  table.writeRows(stream, TableExport::Format::Quoted, TableExport::Header::Written);
  stream.flush();
  return stream.status() == QTextStream::Ok;
}
