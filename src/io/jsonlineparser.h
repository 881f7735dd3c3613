#pragma once

#include "jsonlinereader.h"

#include <model/propertytext.h>

#include <simdjson.h>
#include <string>
#include <string_view>
#include <vector>

/// Parses one line of a file that holds one JSON member a line. One parser serves any number of lines; the views of a
/// result live until its next call.
class JsonLineParser {
public:
  struct Value {
    std::string_view key;
    PropertyText text;
    bool isNumber = false;
  };
  struct Dropped {
    std::string key;
    const char *reason;
  };
  /// A member whose value is an object: a name with properties.
  struct Element {
    std::string_view name;
    std::vector<Value> values;
    std::vector<Dropped> dropped; ///< values that are neither number, text nor truth value
  };
  /// One entry of a member whose value is a list: an object with property, value and unit.
  struct SetPoint {
    std::string property;
    PropertyText value;
    std::string unit;
    bool isNumber = false;
    bool isComplete = false; ///< has property and value
  };
  struct SetPoints {
    std::string name;
    std::vector<SetPoint> points;
  };

  /// How the texts of numbers are given: as properties hold them (numberText()), or letter by letter.
  enum class Numbers { AsHeld, AsWritten };

  explicit JsonLineParser(Numbers numbers = Numbers::AsHeld)
      : m_numbers(numbers) {}

  /// Null on success, the reason otherwise. Reuses the vector's elements. A separating comma before the line becomes a
  /// brace.
  const char *parse(const JsonLineReader::Line &line, std::vector<Element> &elements, std::size_t &count);
  const char *parse(const JsonLineReader::Line &line, std::vector<SetPoints> &setPoints);

private:
  simdjson::error_code begin(const JsonLineReader::Line &line);
  simdjson::error_code readElement(simdjson::ondemand::object object, Element &element);
  using Member = simdjson::simdjson_result<simdjson::ondemand::field>;
  simdjson::error_code readMember(Member &member, Value &read, const char *&dropped);
  simdjson::error_code readValue(simdjson::ondemand::value value, Value &read, const char *&dropped);
  simdjson::error_code readList(simdjson::ondemand::array list, SetPoints &target);
  simdjson::error_code readPoint(simdjson::ondemand::object object, SetPoint &point);
  const char *finish(simdjson::error_code error);

  simdjson::ondemand::parser m_parser;
  simdjson::ondemand::document m_document;
  simdjson::dom::parser m_strict; ///< for the rare lines with parts that the walk skips
  std::string_view m_text;
  Numbers m_numbers;
  bool m_skipped = false;
};

enum class NumberText { Taken, Invalid, OutOfRange };

/// The text of a JSON number as a property holds it: as it stands when it has at most 15 significant digits and no exponent
/// (without superfluous zeros), 16 significant digits in the shortest general notation otherwise.
NumberText numberText(std::string_view token, PropertyText &text);
