#include "recordstream.h"

#include "jsonfile.h"
#include "readreport.h"

RecordStream::RecordStream(const QString &path, const Options &options)
    : m_options(options)
    , m_lines(path, options.source)
    , m_parser(parser()) {
  if (options.form == RecordForm::Text)
    m_tables.emplace(m_lines);
}

RecordForm RecordStream::formOf(const QString &path) {
  return isJsonPath(path) ? RecordForm::Json : RecordForm::Text;
}

bool RecordStream::next(Record &record) {
  if (!take(m_raw))
    return false;
  m_parser.parse(m_raw, record);
  return true;
}

bool RecordStream::take(RawRecord &raw) {
  if (m_tables) {
    const TextTableReader::Found found = m_tables->next(raw.row);
    raw.fault.clear();
    raw.quote.clear();
    if (found == TextTableReader::Found::Fault) {
      raw.fault = m_tables->fault();
      raw.quote = m_tables->quote();
      raw.row.number = m_tables->line();
    }
    return found != TextTableReader::Found::End;
  }
  while (m_lines.nextTrimmed(raw.json)) {
    // Those of the enclosing object hold nothing.
    if (raw.json.tooLong || (raw.json.size >= 2 && raw.json.text[0] != '{' && raw.json.text[0] != '}'))
      return true;
  }
  return false;
}

void RecordStream::tell(const Record &record, ReadReport &report) const {
  if (m_tables)
    report.badRow(record);
  else
    report.badLine(record);
}

void RecordStream::tellEncoding(ReadReport &report) const {
  if (m_tables)
    report.notUtf8(m_tables->notUtf8Line());
}

void RecordStream::tellEnd(ReadReport &report) const {
  report.readFault(readFault());
  tellEncoding(report);
}
