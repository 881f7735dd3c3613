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
  std::vector<char> room; ///< holds the text of a line after keep(), with bytes around it for the parser

  /// Copies the text of a line, which otherwise lives until the stream takes the next one. A row owns its text.
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

  void parse(const RawRecord &raw, Record &record);
  /// Those of the raw record that was parsed last. They refer to it and to the parser: they live until either is used again.
  ElementSpan elements() { return {m_elements.data(), m_elementCount}; }

private:
  void parseLine(const RawRecord &raw, Record &record);
  void parseRow(const RawRecord &raw, Record &record);

  RecordForm m_form;
  RecordContent m_content;
  JsonLineParser m_lines;
  TextRowParser m_rows;
  std::vector<ElementRecord> m_elements; ///< room, of which the first m_elementCount are filled
  std::size_t m_elementCount = 0;
};
