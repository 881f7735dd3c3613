#pragma once

#include "linereader.h"

/// The lines of a file that holds one JSON member a line. Those of the enclosing object ("{", "}") and those of fewer than 2
/// characters are left out.
class JsonLineReader : public LineReader {
public:
  using LineReader::LineReader;

  bool next(Line &line) {
    while (nextTrimmed(line)) {
      if (line.tooLong || (line.size >= 2 && line.text[0] != '{' && line.text[0] != '}'))
        return true;
    }
    return false;
  }
};
