#include "jsonlineparser.h"

#include "numbertext.h"

#include <QtGlobal>

#include <simdjson.h>

namespace {

using simdjson::error_code;

std::string_view trimmed(std::string_view token) {
  while (!token.empty() && (token.back() == ' ' || token.back() == '\t' || token.back() == '\r' || token.back() == '\n'))
    token.remove_suffix(1);
  return token;
}

} // namespace

/// Walks over the line with the library's parser.
class JsonLineParser::Engine {
public:
  explicit Engine(RecordNumbers numbers)
      : m_numbers(numbers) {}

  const char *parse(const LineReader::Line &line, std::vector<ElementRecord> &elements, std::size_t &count);
  const char *parse(const LineReader::Line &line, std::vector<SetPointsRecord> &setPoints);

private:
  simdjson::error_code begin(const LineReader::Line &line, simdjson::ondemand::object &object);
  simdjson::error_code readElement(simdjson::ondemand::object object, ElementRecord &element);
  using Member = simdjson::simdjson_result<simdjson::ondemand::field>;
  simdjson::error_code readMember(Member &member, RecordValue &read, const char *&dropped);
  simdjson::error_code readValue(simdjson::ondemand::value value, RecordValue &read, const char *&dropped);
  simdjson::error_code readList(simdjson::ondemand::array list, SetPointsRecord &target);
  simdjson::error_code readPoint(simdjson::ondemand::object object, SetPointRecord &point);
  simdjson::error_code skip(simdjson::ondemand::value value, simdjson::ondemand::json_type type);
  const char *finish();

  simdjson::ondemand::parser m_parser;
  simdjson::ondemand::document m_document;
  RecordNumbers m_numbers;
  int m_skippedDepth = 0; ///< of lists and objects that are left out
};

error_code JsonLineParser::Engine::begin(const LineReader::Line &line, simdjson::ondemand::object &object) {
  char *text = line.text;
  std::size_t size = line.size + 1;
  // The comma that separates the elements stands before the line and becomes the brace.
  if (text[0] == ',')
    --size;
  else
    --text;
  text[0] = '{';
  text[size] = '}';
  ++size;
  m_skippedDepth = 0;
  const std::size_t capacity = line.capacity + static_cast<std::size_t>(line.text - text);
  if (const error_code error = m_parser.iterate(text, size, capacity).get(m_document); error != simdjson::SUCCESS)
    return error;
  return m_document.get_object().get(object);
}

const char *JsonLineParser::Engine::finish() {
  const bool isAtEnd = m_document.current_location().error() != simdjson::SUCCESS;
  return isAtEnd ? nullptr : simdjson::error_message(simdjson::TRAILING_CONTENT);
}

const char *JsonLineParser::Engine::parse(const LineReader::Line &line, std::vector<ElementRecord> &elements,
                                          std::size_t &count) {
  count = 0;
  simdjson::ondemand::object object;
  error_code error = begin(line, object);
  if (error != simdjson::SUCCESS)
    return simdjson::error_message(error);
  for (auto member : object) {
    simdjson::ondemand::object properties;
    if (count == elements.size())
      elements.emplace_back();
    ElementRecord &element = elements[count++];
    if ((error = member.unescaped_key().get(element.name)) != simdjson::SUCCESS ||
        (error = member.value().get_object().get(properties)) != simdjson::SUCCESS ||
        (error = readElement(properties, element)) != simdjson::SUCCESS)
      return simdjson::error_message(error);
  }
  return finish();
}

error_code JsonLineParser::Engine::readElement(simdjson::ondemand::object object, ElementRecord &element) {
  element.values.clear();
  element.dropped.clear();
  element.doubtful.clear();
  for (auto member : object) {
    RecordValue read;
    const char *dropped = nullptr;
    if (const error_code error = readMember(member, read, dropped); error != simdjson::SUCCESS)
      return error;
    if (dropped == nullptr)
      element.values.push_back(std::move(read));
    else
      element.dropped.push_back({std::string(read.key), dropped});
  }
  return simdjson::SUCCESS;
}

error_code JsonLineParser::Engine::readMember(Member &member, RecordValue &read, const char *&dropped) {
  simdjson::ondemand::value value;
  error_code error = member.unescaped_key().get(read.key);
  if (error == simdjson::SUCCESS)
    error = member.value().get(value);
  return error == simdjson::SUCCESS ? readValue(value, read, dropped) : error;
}

error_code JsonLineParser::Engine::readValue(simdjson::ondemand::value value, RecordValue &read, const char *&dropped) {
  simdjson::ondemand::json_type type{};
  if (const error_code error = value.type().get(type); error != simdjson::SUCCESS)
    return error;
  switch (type) {
  case simdjson::ondemand::json_type::number: {
    const std::string_view token = trimmed(value.raw_json_token());
    const NumberText taken = numberText(token, read.text);
    if (m_numbers == RecordNumbers::AsWritten && taken == NumberText::Taken)
      read.text = PropertyText(token);
    if (taken == NumberText::OutOfRange)
      dropped = QT_TRANSLATE_NOOP("ReadReport", "the number is out of range");
    read.isNumber = true;
    return taken == NumberText::Invalid ? simdjson::NUMBER_ERROR : simdjson::SUCCESS;
  }
  case simdjson::ondemand::json_type::string: {
    std::string_view text;
    const error_code error = value.get_string().get(text);
    if (error == simdjson::SUCCESS)
      read.text = PropertyText(text);
    return error;
  }
  case simdjson::ondemand::json_type::boolean: {
    bool truth = false;
    const error_code error = value.get_bool().get(truth);
    read.text = PropertyText(std::string_view(truth ? "true" : "false"));
    return error;
  }
  case simdjson::ondemand::json_type::null:
    dropped = QT_TRANSLATE_NOOP("ReadReport", "it has no value");
    return trimmed(value.raw_json_token()) == "null" ? simdjson::SUCCESS : simdjson::N_ATOM_ERROR;
  default:
    dropped = QT_TRANSLATE_NOOP("ReadReport", "the value is neither number nor text");
    return skip(value, type);
  }
}

/// Walks over a list or an object, which the library by itself would pass over unseen, however broken it is.
error_code JsonLineParser::Engine::skip(simdjson::ondemand::value value, simdjson::ondemand::json_type type) {
  constexpr int DeepestSkipped = 1000;
  if (m_skippedDepth == DeepestSkipped)
    return simdjson::DEPTH_ERROR;
  ++m_skippedDepth;
  RecordValue ignored;
  const char *dropped = nullptr;
  error_code error = simdjson::SUCCESS;
  if (type == simdjson::ondemand::json_type::array) {
    simdjson::ondemand::array list;
    if ((error = value.get_array().get(list)) != simdjson::SUCCESS)
      return error;
    for (auto entry : list) {
      simdjson::ondemand::value inner;
      if ((error = entry.get(inner)) != simdjson::SUCCESS ||
          (error = readValue(inner, ignored, dropped)) != simdjson::SUCCESS)
        return error;
    }
  } else {
    simdjson::ondemand::object object;
    if ((error = value.get_object().get(object)) != simdjson::SUCCESS)
      return error;
    for (auto member : object) {
      if ((error = readMember(member, ignored, dropped)) != simdjson::SUCCESS)
        return error;
    }
  }
  --m_skippedDepth;
  return simdjson::SUCCESS;
}

const char *JsonLineParser::Engine::parse(const LineReader::Line &line, std::vector<SetPointsRecord> &setPoints) {
  setPoints.clear();
  simdjson::ondemand::object object;
  error_code error = begin(line, object);
  if (error != simdjson::SUCCESS)
    return simdjson::error_message(error);
  for (auto member : object) {
    std::string_view name;
    simdjson::ondemand::array list;
    if ((error = member.unescaped_key().get(name)) != simdjson::SUCCESS ||
        (error = member.value().get_array().get(list)) != simdjson::SUCCESS)
      return simdjson::error_message(error);
    setPoints.emplace_back().name = name;
    if ((error = readList(list, setPoints.back())) != simdjson::SUCCESS)
      return simdjson::error_message(error);
  }
  return finish();
}

error_code JsonLineParser::Engine::readList(simdjson::ondemand::array list, SetPointsRecord &target) {
  for (auto entry : list) {
    simdjson::ondemand::object object;
    error_code error = entry.get_object().get(object);
    if (error == simdjson::SUCCESS)
      error = readPoint(object, target.points.emplace_back());
    if (error != simdjson::SUCCESS)
      return error;
  }
  return simdjson::SUCCESS;
}

error_code JsonLineParser::Engine::readPoint(simdjson::ondemand::object object, SetPointRecord &point) {
  bool hasValue = false;
  for (auto member : object) {
    RecordValue read;
    const char *dropped = nullptr;
    if (const error_code error = readMember(member, read, dropped); error != simdjson::SUCCESS)
      return error;
    if (read.key == "property") {
      point.property = read.text.utf8();
    } else if (read.key == "unit") {
      point.unit = read.text.utf8();
    } else if (read.key == "value" && dropped == nullptr) {
      point.value = std::move(read.text);
      point.isNumber = read.isNumber;
      hasValue = true;
    }
  }
  point.isComplete = hasValue && !point.property.empty();
  return simdjson::SUCCESS;
}

JsonLineParser::JsonLineParser(RecordNumbers numbers)
    : m_engine(std::make_unique<Engine>(numbers)) {}

JsonLineParser::~JsonLineParser() = default;

const char *JsonLineParser::parse(const LineReader::Line &line, std::vector<ElementRecord> &elements, std::size_t &count) {
  return m_engine->parse(line, elements, count);
}

const char *JsonLineParser::parse(const LineReader::Line &line, std::vector<SetPointsRecord> &setPoints) {
  return m_engine->parse(line, setPoints);
}
