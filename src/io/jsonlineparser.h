#pragma once

#include "linereader.h"
#include "record.h"

#include <memory>
#include <vector>

/// Parses one line of a file that holds one JSON member a line. One parser serves any number of lines; the views of a
/// result live until its next call.
class JsonLineParser {
public:
  explicit JsonLineParser(RecordNumbers numbers);
  ~JsonLineParser();
  JsonLineParser(const JsonLineParser &) = delete;
  JsonLineParser &operator=(const JsonLineParser &) = delete;

  /// Null on success, the reason otherwise. Reuses the vector's elements. A separating comma before the line becomes a
  /// brace.
  const char *parse(const LineReader::Line &line, std::vector<ElementRecord> &elements, std::size_t &count);
  const char *parse(const LineReader::Line &line, std::vector<SetPointsRecord> &setPoints);

private:
  class Engine;
  std::unique_ptr<Engine> m_engine; ///< the library's types differ by how a source is compiled, so that none may stand here
};
