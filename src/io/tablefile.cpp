#include "readreport.h"
#include "texttablereader.h"

#include <io/tablefile.h>

TableFile::Contents TableFile::read(const QString &path) {
  Contents contents;
  TextTableReader reader(path);
  QString reason;
  if (!reader.open(&reason)) {
    contents.findings.push_back({Finding::Severity::Warning, path, 0, reason, QString()});
    return contents;
  }
  contents.ok = true;
  ReadReport report(path);
  JsonLineParser::Element parsed;
  for (TextTableReader::Found found = reader.next(parsed); found != TextTableReader::Found::End;
       found = reader.next(parsed)) {
    if (found == TextTableReader::Found::Fault) {
      report.badRow(reader.line(), reader.quote(), reader.fault());
      continue;
    }
    Row row;
    row.line = reader.line();
    row.name = QString::fromUtf8(parsed.name.data(), static_cast<int>(parsed.name.size()));
    for (JsonLineParser::Value &value : parsed.values) {
      if (value.key == "obj_type")
        row.type = value.text.toString();
      else
        row.values.set(PropertyKey::intern(value.key), std::move(value.text));
    }
    contents.rows.push_back(std::move(row));
  }
  report.readFault(reader.readFault());
  report.notUtf8(reader.notUtf8Line());
  contents.findings = report.take();
  return contents;
}
