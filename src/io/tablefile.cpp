#include "readreport.h"
#include "recordstream.h"

#include <io/tablefile.h>

TableFile::Contents TableFile::read(const QString &path) {
  Contents contents;
  RecordStream stream(path, {RecordForm::Text});
  QString reason;
  if (!stream.open(&reason)) {
    contents.findings.push_back({Finding::Severity::Warning, path, 0, reason});
    return contents;
  }
  contents.ok = true;
  ReadReport report(path);
  Record record;
  while (stream.next(record)) {
    if (!record.fault.isEmpty()) {
      stream.tell(record, report);
      continue;
    }
    ElementRecord &parsed = *stream.elements().begin();
    Row row;
    row.line = record.line;
    row.name = decoded(parsed.name);
    for (RecordValue &value : parsed.values) {
      if (value.key == TypeMember)
        row.type = value.text.toString();
      else
        row.values.set(PropertyKey::intern(value.key), std::move(value.text));
    }
    contents.rows.push_back(std::move(row));
  }
  stream.tellEnd(report);
  contents.findings = report.take();
  return contents;
}
