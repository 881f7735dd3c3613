#pragma once

#include "linereader.h"
#include "recordparser.h"
#include "texttablereader.h"

#include <base/fileaccess.h>

#include <QString>

#include <optional>

class ReadReport;

/// Walks over a network file in either of its forms, JSON lines or text tables.
///
/// 1. What stands above it knows no form: both hand out the same records, in the order of the file.
/// 2. A faulty line or row is a record with a fault; those behind it are read all the same.
/// 3. take() cuts the file into raw records and is called by one thread at a time. A raw record that was kept needs nothing
///    of the stream any more, so that parsers of several threads work side by side.
/// 4. next() does both in one go; elements() are those of its record and live until the next call.
class RecordStream {
public:
  struct Options {
    RecordForm form = RecordForm::Json;
    RecordContent content = RecordContent::Elements;
    RecordNumbers numbers = RecordNumbers::AsHeld;
    FileAccess::Source source = FileAccess::Source::Workspace;
  };

  RecordStream(const QString &path, const Options &options);
  /// The form that the name of a file tells.
  static RecordForm formOf(const QString &path);

  bool open(QString *reason) { return m_lines.open(reason); }
  /// Both are false at the end.
  bool next(Record &record);
  ElementSpan elements() { return m_parser.elements(); }
  bool take(RawRecord &raw);
  /// For raw records that were taken.
  RecordParser parser() const { return {m_options.form, m_options.content, m_options.numbers}; }

  RecordForm form() const { return m_options.form; }
  double fraction() const { return m_lines.fraction(); } ///< of the file, 0 to 1
  double readingSeconds() const { return m_lines.readingSeconds(); }
  const QString &readFault() const { return m_lines.readFault(); }

  /// A record that is faulty.
  void tell(const Record &record, ReadReport &report) const;
  /// What is noticed of the file as a whole, once the walk has ended.
  void tellEncoding(ReadReport &report) const;
  void tellEnd(ReadReport &report) const;

private:
  Options m_options;
  LineReader m_lines;
  std::optional<TextTableReader> m_tables; ///< for the text form
  RawRecord m_raw;
  RecordParser m_parser;
};
