#pragma once

#include "linereader.h"
#include "record.h"

#include <simdjson.h>
#include <string>
#include <string_view>
#include <vector>

/// Parses one line of a file that holds one JSON member a line. One parser serves any number of lines; the views of a
/// result live until its next call.
class JsonLineParser {
public:
  explicit JsonLineParser(RecordNumbers numbers)
      : m_numbers(numbers) {}

  /// Null on success, the reason otherwise. Reuses the vector's elements. A separating comma before the line becomes a
  /// brace.
  const char *parse(const LineReader::Line &line, std::vector<ElementRecord> &elements, std::size_t &count);
  const char *parse(const LineReader::Line &line, std::vector<SetPointsRecord> &setPoints);

private:
  simdjson::error_code begin(const LineReader::Line &line);
  simdjson::error_code readElement(simdjson::ondemand::object object, ElementRecord &element);
  using Member = simdjson::simdjson_result<simdjson::ondemand::field>;
  simdjson::error_code readMember(Member &member, RecordValue &read, const char *&dropped);
  simdjson::error_code readValue(simdjson::ondemand::value value, RecordValue &read, const char *&dropped);
  simdjson::error_code readList(simdjson::ondemand::array list, SetPointsRecord &target);
  simdjson::error_code readPoint(simdjson::ondemand::object object, SetPointRecord &point);
  const char *finish(simdjson::error_code error);

  simdjson::ondemand::parser m_parser;
  simdjson::ondemand::document m_document;
  simdjson::dom::parser m_strict; ///< for the rare lines with parts that the walk skips
  std::string_view m_text;
  RecordNumbers m_numbers;
  bool m_skipped = false;
};
