#pragma once

#include "jsonlineparser.h"
#include "record.h"
#include "textrowparser.h"

#include <QString>

#include <vector>

enum class RecordForm { Json, Text };
/// Files of elements, and of values for them, hold objects; scenarios and fixes hold lists of set points.
enum class RecordContent { Elements, SetPoints };

/// The line or row of a record as it stands in the file.
struct RawRecord {
  LineReader::Line json; ///< in the buffer of the stream, until keep() is called
  TextRowParser::Row row;
  QString fault; ///< of a row that cannot be cut out of its table
  QString quote;
  std::vector<char> room; ///< for the text of a line, with room for the parser around it

  /// Copies the text of a line, so that it outlives the next one of the stream. A row has its own.
  void keep();
};

/// Parses records of one file. Each thread has its own.
class RecordParser {
public:
  RecordParser(RecordForm form, RecordContent content, RecordNumbers numbers)
      : m_form(form)
      , m_content(content)
      , m_lines(numbers)
      , m_rows(numbers) {}

  /// Elements refer to the raw record and to the parser: they live until either is used again. Set points stand alone.
  void parse(const RawRecord &raw, Record &record);

private:
  void parseLine(const RawRecord &raw, Record &record);
  void parseRow(const RawRecord &raw, Record &record);

  RecordForm m_form;
  RecordContent m_content;
  JsonLineParser m_lines;
  TextRowParser m_rows;
  std::vector<ElementRecord> m_elements; ///< room, a row has the first
};
